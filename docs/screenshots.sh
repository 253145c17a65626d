#!/bin/bash
# Takes the pictures of every window for the manuals, and those of the README: docs/screenshots.sh [readme] [LANGUAGE...],
# everything when nothing is named. Builds the Windows program, starts it in a world of its own (tests/env/with-wine.sh, with
# a print server of its own) and leaves the pictures in help/pictures/LANGUAGE and docs/pictures. Those of the README need
# the Debian package gnumeric besides. Look at the pictures before they are committed.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
build=$root/build/windows
program=$build/Folivant.exe
if [ -z "${FOLIVANT_SCREENSHOTS:-}" ]; then
  cmake --build "$build" --target Folivant languages resident press FindStandIn
  export FOLIVANT_SCREENSHOTS=1
  exec "$root/tests/env/with-wine.sh" python3 -c '
import subprocess, sys
sys.path.insert(0, sys.argv[1])
from print_server import PrintServer
server = PrintServer({"Office": (18, 24, 30, 36)})
environment = dict(server.environment, FOLIVANT_PRINTED=str(server.folder("Office")))
try:
    sys.exit(subprocess.run(sys.argv[2:], env=environment, stdin=subprocess.DEVNULL).returncode)
finally:
    server.remove()' "$root/tests/print" "$0" "$@"
fi

# How each language writes short dates; the windows show them.
declare -A short_date=([english]='M/d/yyyy' [dutch]='d-M-yyyy' [german]='dd.MM.yyyy' [french]='dd/MM/yyyy'
  [spanish]='dd/MM/yyyy' [italian]='dd/MM/yyyy' [portuguese]='dd/MM/yyyy' [polish]='dd.MM.yyyy' [russian]='dd.MM.yyyy')

xdotool mousemove 1270 1015 # controls change their look below the pointer
data=$WINEPREFIX/drive_c/Data
mkdir -p "$data/Letters" "$data/Accounts/2025" "$data/Pictures"
for name in Budget.xls Readme.txt Letters/Bank.doc Letters/Offer.doc Accounts/2025/January.csv Pictures/Garden.jpg; do
  head -c 23456 /dev/zero >"$data/$name"
done
# A tree whose listing takes long enough to look at its progress.
for year in 2021 2022 2023 2024 2025; do
  for month in 01 02 03 04 05 06 07 08 09 10 11 12; do
    mkdir -p "$WINEPREFIX/drive_c/Archive/$year/$month"
    (cd "$WINEPREFIX/drive_c/Archive/$year/$month" && touch $(seq -f 'Letter%.0f.doc' 2500))
  done
done

# setting KEY VALUE [SECTION]
setting() {
  wine reg add "HKCU\\Software\\Folivant 3.0\\${3:-Settings}" /v "$1" /d "$2" /f >/dev/null 2>&1 </dev/null
}
# text NUMBER: the text of the language without its mnemonic's mark
text() { sed -n "s/^$1=//p" "$root/lang/$language.ini" | tr -d '&\r'; }
# press TITLE CONTROL
press() {
  local number
  number=$(sed -n "s/^#define $2 \([0-9]*\).*/\1/p" "$root/src/res/Controls.h")
  wine "$build/press.exe" "$1" "${number:-$2}" </dev/null >/dev/null 2>&1 || { echo "$language: no \"$1\" with $2" >&2; exit 1; }
}
# window TITLE: its number, once it is on the screen
window() {
  local found=
  for _ in $(seq 300); do
    found=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -1)
    [ -n "$found" ] && echo "$found" && return
    sleep 0.2
  done
  echo "$language: no window \"$1\"" >&2
  exit 1
}
# shrink FROM TO: in few colours, which suffice for windows
shrink() {
  convert "$1" +dither -colors 256 -strip -define png:compression-level=9 -define png:exclude-chunk=all "PNG8:$2"
}
# picture NAME TITLE: takes the window with its frame
picture() {
  local shown
  shown=$(window "$2")
  [ "$1" = progress ] || xdotool windowactivate --sync "$shown" 2>/dev/null || true
  sleep 0.7
  import -frame -window "$shown" "$TMPDIR/$1.png"
  shrink "$TMPDIR/$1.png" "$out/$1.png"
}

# start [FOLDER]
start() {
  wine "$program" "${1:-C:\\Data}" </dev/null >/dev/null 2>&1 &
  started=$!
  main=$(window Folivant)
}
stop() {
  press Folivant cmdCancel
  wait $started
}

take_main_and_its_dialogs() {
  start
  picture main Folivant
  press Folivant cmdFilter
  picture filter "$(text 200)"
  press "$(text 200)" cmdCancel
  press Folivant cmdFormat
  picture format "$(text 201)"
  press "$(text 201)" Command1
  picture columns "$(text 202)"
  press "$(text 202)" cmdCancel
  press "$(text 201)" cmdCancel
  stop
}

take_options() {
  local page=0 name
  for name in general printer font header-footer language listing; do
    page=$((page + 1))
    setting LastTab $page
    start
    press Folivant cmdOptions
    picture "options-$name" "$(text 204)"
    if [ $name = printer ]; then
      press "$(text 204)" cmdPrinter
      picture printer "$(text 205)"
      press "$(text 205)" cmdCancel
    fi
    press "$(text 204)" cmdCancel
    stop
  done
}

# The question that Cancel asks holds the run, so its window stands still; the question itself is moved out of the way.
take_progress() {
  start 'C:\Archive'
  press Folivant optScreen
  press Folivant cmdOK
  window "$(text 203)" >/dev/null
  press "$(text 203)" cmdCancel
  sleep 1
  xdotool getactivewindow windowmove 20 700
  picture progress "$(text 203)"
  press Folivant 6 # Yes
  sleep 1
  stop
}

take_find() {
  local title shown standins=()
  printf 'Bank.doc\tC:\\Data\\Letters\t23 kb\tDOC\t1/1/2025 10:00\n' >"$WINEPREFIX/drive_c/rows.txt"
  for title in '*.doc - C:\Data' 'Bank*.* - C:\'; do
    wine "$build/FindStandIn.exe" "$title" 'C:\rows.txt' </dev/null >/dev/null 2>&1 &
    standins+=($!)
    sleep 1 # the later one stands first in the list
  done
  start
  press Folivant optScreen
  press Folivant cmdFormat
  press "$(text 201)" optFind
  press "$(text 201)" cmdOK
  press Folivant cmdOK
  picture find "$(text 206)"
  press "$(text 206)" cmdCancel
  sleep 1
  stop
  for shown in $(xdotool search --onlyvisible --name ' - C:' 2>/dev/null); do
    xdotool windowclose "$shown" 2>/dev/null || true
  done
  kill "${standins[@]}" 2>/dev/null || true
}

# file BYTES DATE PATH: in the tree of the README
file() {
  mkdir -p "$(dirname "$holiday/$3")"
  truncate -s "$1" "$holiday/$3"
  touch -d "$2" "$holiday/$3"
}
make_holiday() {
  local number
  file 48500 '2026-06-03 18:40' 'Budget 2026.xlsx'
  file 390700 '2026-06-10 07:55' 'Ferry tickets.pdf'
  file 2140 '2026-06-01 09:12' 'Packing list.txt'
  file 8214000 '2026-06-28 21:30' 'Route from Bergen to Lofoten with all stops.gpx'
  for number in 1 2 3 4 5 6; do
    file $((3100000 + 77000 * number)) "2026-07-0$number 11:2$number" "Bergen/IMG_041$number.jpg"
  done
  for number in 1 2 3 4 5 6 7 8 9; do
    file $((2900000 + 91000 * number)) "2026-07-1$number 15:0$number" "Lofoten/IMG_050$number.jpg"
  done
  file 31400 '2026-07-20 22:10' 'Lofoten/Diary.docx'
  file 48300000 '2026-07-16 10:31' 'Lofoten/Panoramas/Nusfjord.tif'
  file 61200000 '2026-07-15 00:04' 'Lofoten/Panoramas/Reine at midnight.tif'
  find "$holiday" -depth -type d -exec touch -d '2026-07-20 22:15' {} +
}

# list KIND FILE [LINE...]: a listing of C:\Holiday as a script makes it; the lines are its filter file's
list() {
  local kind=$1 file=$2
  shift 2
  { printf '[Folivant 3.5]\r\n' && printf '%s\r\n' "$@"; } >"$WINEPREFIX/drive_c/readme.fvf"
  wine "$program" /f 'C:\readme.fvf' /d 'C:\Holiday' /t "$kind" /o "C:\\$file" /g </dev/null >/dev/null 2>&1
}

take_readme() {
  local holiday=$WINEPREFIX/drive_c/Holiday
  make_holiday
  wine reg delete 'HKCU\Software\Folivant 3.0' /f >/dev/null 2>&1 </dev/null || true

  # A printed page.
  list p none FShow=10111
  for _ in $(seq 100); do
    [ -n "$(find "$FOLIVANT_PRINTED" -name '*.pdf')" ] && break
    sleep 0.2
  done
  pdftoppm -r 85 -png -singlefile "$FOLIVANT_PRINTED"/*.pdf "$TMPDIR/page"
  convert "$TMPDIR/page.png" -bordercolor '#aaa' -border 1 "$TMPDIR/page.png"
  shrink "$TMPDIR/page.png" "$root/docs/pictures/page.png"

  # Tab-delimited text in a spreadsheet.
  list a holiday.txt Format=2 'Header=%p'
  gnumeric "$WINEPREFIX/drive_c/holiday.txt" >/dev/null 2>&1 </dev/null &
  local sheet=$! shown key
  shown=$(window 'holiday.txt - Gnumeric')
  xdotool windowsize --sync "$shown" 760 620 windowactivate --sync "$shown"
  sleep 2
  for key in ctrl+a alt+o c Up Return ctrl+Home; do # all columns as wide as their content
    xdotool key $key
    sleep 0.5
  done
  import -frame -window "$shown" "$TMPDIR/spreadsheet.png"
  shrink "$TMPDIR/spreadsheet.png" "$root/docs/pictures/spreadsheet.png"
  kill $sheet

  # An HTML listing in a browser.
  list h holiday.html 'Header=%p, %d'
  chromium --headless --no-sandbox --disable-gpu --hide-scrollbars --disable-background-networking --disable-sync \
    --disable-component-update --no-first-run --user-data-dir="$TMPDIR/browser" --window-size=760,620 \
    --screenshot="$TMPDIR/html.png" "file://$WINEPREFIX/drive_c/holiday.html" >/dev/null 2>&1
  shrink "$TMPDIR/html.png" "$root/docs/pictures/html.png"
  echo 'README: 3 pictures'
}

[ $# -gt 0 ] || set -- $(cd "$root/lang" && ls *.ini | sed 's/\.ini$//') readme
for language in "$@"; do
  if [ "$language" = readme ]; then
    take_readme
    continue
  fi
  out=$root/help/pictures/$language
  mkdir -p "$out"
  wine reg delete 'HKCU\Software\Folivant 3.0' /f >/dev/null 2>&1 </dev/null || true
  wine reg add 'HKCU\Control Panel\International' /v sShortDate /d "${short_date[$language]}" /f >/dev/null 2>&1 </dev/null
  setting Language "$language.ini"
  setting Filter 1111 Filter
  setting FilterName '*.doc, *.txt' Filter
  setting FilterSize 10 Filter
  setting FilterDateMin 2025/01/01 Filter
  take_main_and_its_dialogs
  take_options
  take_progress
  take_find
  echo "$language: $(ls "$out" | wc -l) pictures"
done
