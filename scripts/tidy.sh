#!/bin/sh
# Runs clang-tidy over the portable sources and the seam of the host, with the compile commands of the host build.
set -eu
cd "$(dirname "$0")/.."
cmake --preset host >/dev/null
# GCC's own warning options mean nothing to clang.
exec run-clang-tidy -quiet -p build/host -extra-arg=-Wno-unknown-warning-option "^$PWD/src/"
