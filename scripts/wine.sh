# shellcheck shell=bash
# What scripts need that build programs for Windows or run them. Source it:
#   source wine.sh; open_wine; header_prefix FOLDER

# open_wine: a Windows of its own, in the folder "scratch", which goes with the script. A script
# with a trap of its own calls close_wine there.
scratch=
open_wine() {
  scratch=$(mktemp -d "${TMPDIR:-/tmp}/trelonit-wine.XXXXXX")
  trap close_wine EXIT
  export WINEPREFIX=$scratch/wine WINEDEBUG=${WINEDEBUG--all}
  # No downloads, nothing in the menus of this machine, no debugger that keeps what has crashed, and
  # the viewer of compiled help that a test brings along before Wine's own.
  export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe,winedbg.exe=d;hhctrl.ocx=n,b"
  # Names of files are UTF-8.
  export LC_ALL=C.UTF-8
  echo "Preparing wine ..." >&2
  env -u DISPLAY -u WAYLAND_DISPLAY wine wineboot --init >"$scratch/wineboot.log" 2>&1 || {
    cat "$scratch/wineboot.log" >&2
    exit 1
  }
  wine_at_rest
}

# wine_at_rest: waits for the last of its processes. The one that has the desktop stays for a while,
# and what is started meanwhile is shown where that one was: nowhere, if it had no display.
wine_at_rest() {
  wine_server -w
}

wine_server() {
  "$(command -v wineserver || echo /usr/lib/wine/wineserver)" "$@"
}

close_wine() {
  [ -n "$scratch" ] || return 0
  wine_server -k || true
  wine_server -w || true
  rm -rf "$scratch"
}

# For the trap of a script that has a display of tests/desktop/desk.sh too.
close_wine_and_desk() {
  local status=$?
  set +e
  keep_screen "$status"
  close_wine
  (exit "$status")
  close_desk
}

# header_prefix FOLDER: fills it with the header-only libraries alone: the other headers of this
# machine are not for Windows. Their packages are copied, since a linked one would find its way
# back.
header_prefix() {
  local library
  mkdir -p "$1/include" "$1/share/cmake"
  for library in CLI nlohmann utf8cpp; do
    ln -sfn "/usr/include/$library" "$1/include/$library"
  done
  cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$1/share/cmake"
}
