#!/bin/bash
# Builds, tests and packs a release:  ./release.sh
# Leaves Folivant-VERSION-setup.exe, Folivant-VERSION-portable.zip, SHA256SUMS and the package managers' manifests in dist/.
# Builds and tests a clean checkout of the current commit below build/; the same commit gives the same bytes.
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

checkout=$PWD/build/release
remove_checkout() {
  rm -rf "$checkout"
  git worktree prune
}
trap remove_checkout EXIT
remove_checkout # of a release that was killed
git worktree add -q --detach "$checkout"
"$checkout/test.sh"
rm -rf dist
"$checkout/packaging/pack.sh" "$checkout/build/windows" dist
cat dist/SHA256SUMS
if grep -qE '^[A-Z]+=.*(Unknown|\.example)' packaging/package.conf; then
  echo "Do not publish dist/manifests: packaging/package.conf still has placeholders for licence or addresses." >&2
fi
