#!/bin/bash
# Runs a command in a world of its own: X server, window manager, Wine prefix and home folder, all fresh, all ended and
# removed afterwards, so that any number of these can go side by side. Used by test.sh, and by hand:
#   tests/env/with-wine.sh ctest --test-dir build/windows -R CommandLine
#   tests/env/with-wine.sh wine build/windows/Folivant.exe
# With FOLIVANT_NO_DISPLAY=1 there is no X server; with FOLIVANT_PREFIX=DIR the Wine prefix is kept there.
set -u
here=$(cd "$(dirname "$0")" && pwd)
scratch=$(mktemp -d "${TMPDIR:-/tmp}/folivant.XXXXXX")
started=()
command=

finish() {
  local status=$?
  trap - EXIT INT TERM
  [ -n "$command" ] && kill -- "-$command" 2>/dev/null
  WINEPREFIX=$WINEPREFIX timeout 10 /usr/lib/wine/wineserver64 -k 2>/dev/null
  for pid in "${started[@]}"; do
    kill "$pid" 2>/dev/null
  done
  wait 2>/dev/null
  rm -rf "$scratch"
  exit $status
}

export LANG=C.UTF-8 TZ=${TZ:-UTC}
export PYTHONDONTWRITEBYTECODE=1 # nothing is left in the source folders
export HOME=$scratch/home TMPDIR=$scratch/tmp XDG_CONFIG_HOME=$scratch/config
export WINEPREFIX=${FOLIVANT_PREFIX:-$scratch/prefix} WINEDEBUG=-all
export WINEDLLOVERRIDES='winedbg.exe=d;winemenubuilder.exe=d;mscoree=d;mshtml=d'
mkdir -p "$HOME" "$TMPDIR" "$XDG_CONFIG_HOME" "$(dirname "$WINEPREFIX")"
unset DISPLAY WAYLAND_DISPLAY
trap finish EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

if [ -z "${FOLIVANT_NO_DISPLAY:-}" ]; then
  mkfifo "$scratch/display"
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$scratch/display" >/dev/null 2>&1 </dev/null &
  started+=($!)
  read -r -t 30 number <"$scratch/display" || { echo "The X server did not start." >&2; exit 1; }
  export DISPLAY=:$number
  openbox --sm-disable >/dev/null 2>&1 </dev/null &
  started+=($!)
fi

# Whatever starts the server or its services must not hold the caller's pipes, or the caller never sees their end.
if [ ! -f "$WINEPREFIX/system.reg" ]; then
  timeout 120 wineboot -i </dev/null >/dev/null 2>&1
  # Courier New is the default listing font; without a face of that name the font dialog would show another.
  timeout 60 wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v 'Courier New' /d 'Liberation Mono' /f </dev/null >/dev/null 2>&1
fi
timeout 30 /usr/lib/wine/wineserver64 -p </dev/null >/dev/null 2>&1
timeout 60 wine wineboot </dev/null >/dev/null 2>&1

# Programs that start in the same instant as Wine's desktop may not see each other's windows: one stays from the start.
if [ -z "${FOLIVANT_NO_DISPLAY:-}" ] && [ -f "$here/../../build/windows/resident.exe" ]; then
  setsid wine "$here/../../build/windows/resident.exe" </dev/null >/dev/null 2>&1 &
  started+=($!)
fi

# In a process group of its own and waited for, so that an interrupt ends it, and everything that it started, at once.
setsid "$@" <&0 &
command=$!
wait "$command"
