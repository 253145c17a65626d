#!/bin/sh
# Runs a Windows program under Wine. About one start in 1,200 dies with status 1 before the program runs, because Wine
# could not map the page that all programs share with its server; that start, and nothing else, is tried again. Two of the
# three messages that tell of it come through an error channel, which has to be let through.
errors=$(mktemp)
trap 'rm -f "$errors"' EXIT
for try in 1 2 3; do
  WINEDEBUG=${WINEDEBUG:+$WINEDEBUG,}err+virtual wine "$@" 2>"$errors"
  status=$?
  grep -q -e 'failed to map the shared user data' -e 'failed to open the USD section' \
    -e 'failed to remap the process USD' "$errors" || break
done
cat "$errors" >&2
exit $status
