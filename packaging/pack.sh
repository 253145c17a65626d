#!/bin/bash
# Packs a finished Windows build:  packaging/pack.sh BUILD DIST [VERSION]
# VERSION is that of the project unless a test plays an older one. What the manifests say comes from package.conf, or from
# the file named by PACKAGE_CONF.
# Leaves in DIST the installer, the portable zip, the package managers' manifests and SHA256SUMS. The same commit gives the
# same bytes: all times are those of the commit (or SOURCE_DATE_EPOCH), all lists are sorted.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(dirname "$here")
build=$(cd "$1" && pwd)
mkdir -p "$2"
dist=$(cd "$2" && pwd)
version=${3:-$(sed -n 's/^project(Folivant VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")}
: "${SOURCE_DATE_EPOCH:=$(git -C "$root" log -1 --format=%ct)}"
export SOURCE_DATE_EPOCH TZ=UTC LC_ALL=C
# shellcheck source=packaging/package.conf
. "${PACKAGE_CONF:-$here/package.conf}"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
stage=$work/Folivant-$version
mkdir -p "$stage" "$work/files"
setup=Folivant-$version-setup.exe
portable=Folivant-$version-portable.zip

stage_program() {
  cp "$build/Folivant.exe" "$build"/*.ini "$stage"
  cp -r "$build/help" "$stage"
  sed 's/$/\r/' "$root/CHANGELOG.md" >"$stage/Changes.txt"
  find "$work" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
}

# What the installer puts in place, and what an uninstaller or an upgrade takes away: made from the same sorted list.
list_files() {
  local file folder last=
  (cd "$stage" && find . -type f -printf '%P\n' | sort) >"$work/list"
  while read -r file; do
    folder=$(dirname "$file")
    if [ "$folder" != "$last" ]; then
      printf 'SetOutPath "$INSTDIR\\%s"\n' "$(sed 's,^\.$,,;s,/,\\,g' <<<"$folder")"
      last=$folder
    fi
    printf 'File "${STAGE}/%s"\n' "$file"
  done <"$work/list" | sed 's,\$INSTDIR\\",$INSTDIR",' >"$work/files/install.nsh"
  {
    tr / '\\' <"$work/list"
    (cd "$stage" && find . -mindepth 1 -type d -printf '%P\n' | sort -r | sed 's/$/\//' | tr / '\\')
  } | sed 's/$/\r/' >"$work/files/files.lst"
  touch -d "@$SOURCE_DATE_EPOCH" "$work/files/files.lst"
}

pack_installer() {
  (cd "$here" && makensis -V2 -NOCONFIG -INPUTCHARSET UTF8 -DVERSION="$version" -DSTAGE="$stage" -DFILES="$work/files" \
    -DOUTPUT="$dist/$setup" Folivant.nsi)
}

pack_zip() {
  rm -f "$dist/$portable"
  (cd "$work" && find "Folivant-$version" -type f | sort | zip -X -9 -q "$dist/$portable" -@)
}

sha256_of() { sha256sum "$dist/$1" | cut -d' ' -f1; }

fill() {
  python3 "$here/fill.py" "$1" "$2" VERSION="$version" PUBLISHER="$PUBLISHER" IDENTIFIER="$IDENTIFIER" \
    LICENSE="$LICENSE" HOMEPAGE="$HOMEPAGE" SUMMARY="$SUMMARY" DESCRIPTION="$DESCRIPTION" \
    DATE="$(date -u -d "@$SOURCE_DATE_EPOCH" +%F)" SETUP_URL="$DOWNLOADS/$setup" PORTABLE_URL="$DOWNLOADS/$portable" \
    SETUP_SHA256="$(sha256_of "$setup")" PORTABLE_SHA256="$(sha256_of "$portable")"
}

fill_manifests() {
  local template
  rm -rf "$dist/manifests"
  for template in winget/installer.yaml winget/locale.en-US.yaml winget/version.yaml; do
    case $template in
      */version.yaml) fill "$here/$template" "$dist/manifests/winget/$IDENTIFIER.yaml" ;;
      *) fill "$here/$template" "$dist/manifests/winget/$IDENTIFIER.$(basename "$template")" ;;
    esac
  done
  fill "$here/scoop/folivant.json" "$dist/manifests/scoop/folivant.json"
  for template in chocolatey/folivant.nuspec chocolatey/tools/chocolateyinstall.ps1 chocolatey/tools/chocolateyuninstall.ps1; do
    fill "$here/$template" "$dist/manifests/$template"
  done
}

stage_program
list_files
pack_installer
pack_zip
fill_manifests
(cd "$dist" && sha256sum "$setup" "$portable" >SHA256SUMS)
