#!/bin/bash
# Installs what is missing, builds both builds and runs every test: those of the host build with sanitizers, Windows programs under Wine,
# desktop tests on an X server of their own, print tests through a private CUPS. Further words go to ctest (-R NAME).
set -euo pipefail
cd "$(dirname "$0")"
jobs=$(nproc)

scripts/install.sh
for preset in host windows; do
  cmake --preset $preset >/dev/null
  cmake --build --preset $preset -j "$jobs"
done

# One ctest over both build trees, so that one closing line counts everything.
printf 'subdirs(host windows)\n' >build/CTestTestfile.cmake
tests/env/with-wine.sh ctest --test-dir build --output-on-failure -j "$jobs" "$@" </dev/null
