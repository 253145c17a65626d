#!/bin/sh
# Installs the Debian packages of scripts/packages.txt that are missing; asks nothing, and touches no network when none is.
set -eu
missing=$(sed '/^#/d;/^$/d' "$(dirname "$0")/packages.txt" | while read -r package; do
  dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || echo "$package"
done)
[ -z "$missing" ] && exit 0
echo "Installing:" $missing
apt-get update -qq
# shellcheck disable=SC2086
DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing </dev/null >/dev/null
