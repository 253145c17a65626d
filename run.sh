#!/bin/bash
# Builds Folivant.exe and lists a folder with it:  ./run.sh [FOLDER] [KIND] [STYLE]
#   KIND   text (default) or another word of the table in src/output/OutputKinds.cpp: tab, html, csv, xml,
#          exact-csv, jsonl, sha256
#   STYLE  files, subdirectories (default), tree, directories, paths
set -euo pipefail
usage() {
  sed -n '2,5s/^# \{0,1\}//p' "$0" >&2
  exit 1
}
# The switch for a kind, from the table; nothing for a word that is none.
switch_of() {
  sed -nE "s|^ *\{OutputKind::[A-Za-z0-9]+, L\"$1\", L'([a-z])'.*|/t \\1|p
           s|^ *\{OutputKind::[A-Za-z0-9]+, L\"$1\", L'.0', L\"([a-z0-9]+)\".*|/k \\1|p" "$here/src/output/OutputKinds.cpp"
}
# Letters name kinds in the code page, words name kinds in UTF-8.
show() {
  case $kind in /t*) iconv -f CP1252 -t UTF-8 "$1" ;; *) cat "$1" ;; esac | tr -d '\r'
}
here=$(cd "$(dirname "$0")" && pwd)
folder=$here kind='/t t' style=1
if [ $# -gt 0 ] && [ -d "$1" ]; then
  folder=$(cd "$1" && pwd)
  shift
fi
cd "$here"
for word in "$@"; do
  case $word in
    files) style=0 ;; subdirectories) style=1 ;; tree) style=2 ;; directories) style=3 ;; paths) style=4 ;;
    printer | *[^a-z0-9-]*) usage ;;
    *) kind=$(switch_of "$word") && [ "$kind" ] || usage ;;
  esac
done

scripts/install.sh
cmake --preset windows >/dev/null
cmake --build --preset windows -j "$(nproc)" --target Folivant >&2

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
printf '[Folivant 3.5]\r\nFormat=%s\r\n' "$style" >"$work/run.fvf"
windows() { printf 'Z:%s' "$1" | tr / '\\'; }
status=0
# The Wine prefix is kept, for speed; two runs at once take turns.
FOLIVANT_NO_DISPLAY=1 FOLIVANT_PREFIX=$PWD/build/wine flock -o build/wine.lock tests/env/with-wine.sh tests/env/run-windows.sh build/windows/Folivant.exe \
  /f "$(windows "$work/run.fvf")" /d "$(windows "$folder")" $kind /o "$(windows "$work/listing.out")" /g || status=$?
[ -f "$work/listing.out" ] && show "$work/listing.out"
exit $status
