# shellcheck shell=bash
# A desktop of its own for scripts that use the program as a person does: a display, a window
# manager, the program in a copy of its folder, keys, mouse and pictures of the screen. Source it:
#   source desk.sh; open_desk 1280x800; start_program FILE; ...; everything ends with the script.
# Nothing sleeps for a fixed time alone: every step polls for what it waits for, with a limit.

desk_folder=
desk_processes=()
program=0
main_window=
# VARIABLE=VALUE for the program alone.
program_environment=()

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# end_process ID: asks it to end, makes it end after a while; quiet when it is gone already.
end_process() {
  kill "$1" 2>/dev/null || return 0
  for _ in {1..20}; do
    kill -0 "$1" 2>/dev/null || return 0
    sleep 0.1
  done
  kill -9 "$1" 2>/dev/null || true
  wait "$1" 2>/dev/null || true
}

# keep_screen STATUS: what was to be seen where the script fails.
screen_kept=
keep_screen() {
  if [ "$1" -eq 0 ] || [ -z "$main_window" ] || [ -n "$screen_kept" ]; then
    return
  fi
  screen_kept=yes
  import -window root "$desk_folder/failed.png" 2>/dev/null &&
    cp "$desk_folder/failed.png" "${TMPDIR:-/tmp}/trelonit-desktop-failed.png" &&
    echo "The screen at that moment: ${TMPDIR:-/tmp}/trelonit-desktop-failed.png" >&2
  if [ -s "$desk_folder/program.log" ]; then
    cat "$desk_folder/program.log" >&2
  fi
}

close_desk() {
  local status=$? place
  trap - EXIT
  keep_screen "$status"
  # The program before its display, so that it does not complain about the loss.
  for ((place = ${#desk_processes[@]} - 1; place >= 0; --place)); do
    end_process "${desk_processes[place]}"
  done
  rm -rf "$desk_folder"
  exit "$status"
}

# eventually SECONDS WHAT COMMAND...: runs the command until it succeeds.
eventually() {
  local limit=$((SECONDS + $1)) what=$2
  shift 2
  until "$@" >/dev/null 2>&1; do
    [ "$SECONDS" -lt "$limit" ] || fail "waited in vain for $what"
    sleep 0.05
  done
}

# open_desk WIDTHxHEIGHT: a display with a window manager, and a home folder of its own.
open_desk() {
  desk_folder=$(mktemp -d "${TMPDIR:-/tmp}/trelonit-desk.XXXXXX")
  trap close_desk EXIT
  trap 'exit 1' INT TERM HUP
  mkdir -p "$desk_folder"/{home,config,data,cache,state,runtime}
  chmod 700 "$desk_folder/runtime"
  export HOME=$desk_folder/home LC_ALL=C.UTF-8
  export XDG_CONFIG_HOME=$desk_folder/config XDG_DATA_HOME=$desk_folder/data
  export XDG_CACHE_HOME=$desk_folder/cache XDG_STATE_HOME=$desk_folder/state
  export XDG_RUNTIME_DIR=$desk_folder/runtime
  unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS

  # The server picks a free number itself and writes it when it is ready.
  mkfifo "$desk_folder/display"
  Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset \
    3>"$desk_folder/display" >/dev/null 2>"$desk_folder/server.log" &
  desk_processes+=($!)
  local number=
  read -r -t 20 number <"$desk_folder/display" || fail "no display: $(cat "$desk_folder/server.log")"
  export DISPLAY=:$number
  # Both alphabets, as on the keyboards of the users, Russian chosen: the mnemonics are Cyrillic.
  # Keys of the other alphabet are not to be used: switching between two keys is faster than the
  # program looks at which alphabet is on. A Latin shortcut is the key where its letter stands.
  setxkbmap -layout ru,us
  openbox --sm-disable >/dev/null 2>&1 &
  desk_processes+=($!)
  eventually 20 "the window manager" window_manager_is_there
}

window_manager_is_there() {
  xdotool get_desktop
}

# start_program FILE [ARGUMENT ...]: a copy of it in a folder of its own, where it unpacks its files.
# It starts in that folder, so that its dialogs begin there.
start_program() {
  mkdir -p "$desk_folder/program"
  cp "$1" "$desk_folder/program/"
  start_in_place "./${1##*/}" "${@:2}"
}

# start_in_place COMMAND [ARGUMENT ...]: the same with the program as it is installed.
start_in_place() {
  mkdir -p "$desk_folder/program"
  cd "$desk_folder/program" || fail "no folder for the program"
  env "${program_environment[@]}" "$@" >"$desk_folder/program.log" 2>&1 &
  program=$!
  desk_processes+=("$program")
  eventually 20 "the main window" main_window_or_end
  ! program_is_gone 2>/dev/null || fail "the program ended at once: $(<"$desk_folder/program.log")"
}

main_window_or_end() {
  program_is_gone && return
  main_window=$(xdotool search --onlyvisible --pid "$program" --name . | head -n 1)
  [ -n "$main_window" ] && window_is_active "$main_window"
}

window_is_active() {
  [ "$(xdotool getactivewindow)" = "$1" ]
}

# opened NAME: waits for a window whose title starts so and that takes the keys; "window" is then
# its number.
opened() {
  eventually 15 "the window \"$1\"" find_window "$1"
}

find_window() {
  window=$(xdotool getactivewindow) && [[ $(xdotool getwindowname "$window") == "$1"* ]]
}

# back_to_main: waits until the main window takes the keys again.
back_to_main() {
  eventually 15 "the main window to come back" window_is_active "$main_window"
}

keys() {
  xdotool key --delay 15 "$@"
}

# enter MNEMONIC TEXT: replaces what stands in the field with this mnemonic, which selects it.
enter() {
  keys "alt+$1"
  xdotool type --delay 20 "$2"
}

# click X Y: presses at this place of the main window, and leaves it before a hint comes up.
click() {
  xdotool mousemove --window "$main_window" "$1" "$2" click 1 mousemove 0 0
}

# picture WINDOW FILE [SUM]: the window as it is shown, once it has come to rest and, if the sum of
# an earlier picture is given, looks different. "picture_sum" is then the sum of this one.
picture_sum=
picture() {
  local limit=$((SECONDS + 15)) before=
  while [ "$SECONDS" -lt "$limit" ]; do
    # Without compression: the pictures are many and short-lived.
    import -silent -window "$1" "ppm:$2"
    picture_sum=$(cksum <"$2")
    if [ "$picture_sum" = "$before" ] && [ "$picture_sum" != "${3:-}" ]; then
      return 0
    fi
    before=$picture_sum
    sleep 0.1
  done
  fail "the window does not come to ${3:+another picture and }rest: ${2##*/}"
}

program_is_gone() {
  ! kill -0 "$program"
}

# colours FILE: how many a picture has.
colours() {
  identify -format '%k' "$1"
}
