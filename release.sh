#!/bin/bash
# Builds, tests and packs a release:  ./release.sh
# Leaves Folivant-VERSION-setup.exe, Folivant-VERSION-portable.zip, SHA256SUMS and the package managers' manifests in dist/.
# Builds from a clean checkout of the current commit; the same commit gives the same bytes.
set -euo pipefail
cd "$(dirname "$0")"
if [ -n "$(git status --porcelain)" ]; then
  echo "There are changes that are not committed; a release is made of a commit." >&2
  exit 1
fi
version=$(sed -n 's/^project(Folivant VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
if ! grep -q "^## $version " CHANGELOG.md; then
  echo "CHANGELOG.md has no dated entry for $version." >&2
  exit 1
fi
./test.sh
rm -rf dist
packaging/pack.sh build/windows dist
cat dist/SHA256SUMS
if grep -qE '^[A-Z]+=.*(Unknown|\.example)' packaging/package.conf; then
  echo "Do not publish dist/manifests: packaging/package.conf still has placeholders for licence or addresses." >&2
fi
