#!/bin/bash
# Takes the pictures of every window for the manual and the README: docs/screenshots.sh [LANGUAGE FILE [OUTPUT FOLDER]].
# Starts the built program in a world of its own (tests/env/with-wine.sh) and opens each window with real keys.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
language=${1:-english.ini}
out=${2:-$root/help/pictures}
program=$root/build/windows/Folivant.exe
if [ -z "${FOLIVANT_SCREENSHOTS:-}" ]; then
  FOLIVANT_SCREENSHOTS=1 exec "$root/tests/env/with-wine.sh" "$0" "$language" "$out"
fi

mkdir -p "$out"
data=$WINEPREFIX/drive_c/Data
mkdir -p "$data/Letters" "$data/Accounts/2025" "$data/Pictures"
for name in Budget.xls Readme.txt Letters/Bank.doc Letters/Offer.doc Accounts/2025/January.csv Pictures/Garden.jpg; do
  head -c 23456 /dev/zero >"$data/$name"
done

# setting KEY VALUE [SECTION]
setting() {
  wine reg add "HKCU\\Software\\Folivant 3.0\\${3:-Settings}" /v "$1" /d "$2" /f >/dev/null 2>&1 </dev/null
}
# A text of the language without its mnemonic's mark, and the mnemonic.
text() { sed -n "s/^$1=//p" "$root/lang/$language" | tr -d '&\r'; }
mnemonic() { sed -n "s/^$1=//p" "$root/lang/$language" | sed -n 's/.*&\(.\).*/\1/p' | tr 'A-Z' 'a-z'; }

# picture NAME TITLE: waits for the window and takes it with its frame
picture() {
  local window=
  for _ in $(seq 100); do
    window=$(xdotool search --onlyvisible --name "^$2\$" 2>/dev/null | tail -1)
    [ -n "$window" ] && break
    sleep 0.2
  done
  [ -n "$window" ] || { echo "No window \"$2\"" >&2; exit 1; }
  xdotool windowactivate --sync "$window" 2>/dev/null || true
  sleep 0.7
  import -frame -window "$window" "$out/$1.png"
}
press() { xdotool key "$@"; }

setting Language "$language"
setting Filter 1111 Filter
setting FilterName '*.doc, *.xls, *.txt' Filter
setting FilterSize 10 Filter
setting FilterDateMin 2025/01/01 Filter
start() {
  wine "$program" 'C:\Data' </dev/null >/dev/null 2>&1 &
  started=$!
}
stop() {
  press Escape
  wait $started
}

start
picture main Folivant
press "alt+$(mnemonic 5)"
picture filter "$(text 200)"
press Escape
sleep 0.5
press "alt+$(mnemonic 6)"
picture format "$(text 201)"
press "alt+$(mnemonic 234)"
picture columns "$(text 202)"
press Escape
sleep 0.5
press Escape
sleep 0.5
stop

page=0
for name in general printer font header-footer language; do
  page=$((page + 1))
  setting LastTab $page
  start
  picture ignored Folivant
  press "alt+$(mnemonic 12)"
  picture "options-$name" "$(text 204)"
  press Escape
  sleep 0.5
  stop
done
rm -f "$out/ignored.png"

# An HTML listing as a browser shows it, for the README.
if [ "$language" = english.ini ]; then
  printf '[Folivant 3.5]\r\nHeader=%%p, %%d\r\n' >"$data.fvf"
  wine "$program" /f 'C:\Data.fvf' /d 'C:\Data' /t h /o 'C:\Data.html' /g </dev/null >/dev/null 2>&1
  chromium --headless --no-sandbox --disable-gpu --hide-scrollbars --disable-background-networking --disable-sync \
    --disable-component-update --no-first-run --user-data-dir="$TMPDIR/browser" --window-size=640,760 \
    --screenshot="$root/docs/pictures/html.png" "file://$data.html" >/dev/null 2>&1
fi
