# shellcheck shell=bash
# What scripts need that use the program in wine as a person does, beside tests/desktop/desk.sh and
# scripts/wine.sh, which are sourced before.

# title NAME: waits for a window with this in its title and gives it the keys; "window" is then its
# number. Between its windows Wine does not hand the keys on by itself under every window manager.
title() {
  eventually 120 "a window with \"$1\" in its title" find_title "$1"
  to_window "$window"
}
find_title() {
  window=$(xdotool search --onlyvisible --name "$1" | head -n 1) && [ -n "$window" ]
}
no_title() {
  ! find_title "$1"
}
to_window() {
  xdotool windowactivate "$1"
  eventually 15 "the window to take the keys" window_is_active "$1"
}
back_to_main() {
  to_window "$main_window"
}

# shown STEP: the window of the keys shows something.
shown() {
  picture "$window" "$desk_folder/$1.ppm"
  [ "$(colours "$desk_folder/$1.ppm")" -ge 32 ] || fail "after \"$1\" the window is blank"
}

# save_as NAME: types it into the dialogue that is open.
save_as() {
  sleep 0.5
  xdotool key --delay 15 ctrl+a
  xdotool type --delay 20 "$1"
  keys Return
}

# Another Windows of this machine may run the program too.
not_running() {
  local id
  for id in $(pgrep -u "$(id -u)" -x trelonit.exe); do
    ! grep -qzxF "WINEPREFIX=$WINEPREFIX" "/proc/$id/environ" || return 1
  done
}
