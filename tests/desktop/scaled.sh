#!/bin/sh
# Runs desktop tests at another resolution, which Wine keeps for each user:  scaled.sh DPI PROGRAM [ARGUMENTS]
dpi=$1
shift
here=$(cd "$(dirname "$0")" && pwd)
key='HKCU\Control Panel\Desktop'
resolution() {
  "$here/../env/run-windows.sh" reg add "$key" /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null
}
trap 'resolution 96' EXIT
resolution "$dpi" || exit 1
FOLIVANT_DPI=$dpi "$here/../env/run-windows.sh" "$@"
