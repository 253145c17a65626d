#!/bin/sh
# Runs a Windows program under Wine. About one start in 1,200 dies before the program runs, with the message below; that
# start, and nothing else, is tried again.
errors=$(mktemp)
trap 'rm -f "$errors"' EXIT
for try in 1 2 3; do
  wine "$@" 2>"$errors"
  status=$?
  grep -q 'failed to map the shared user data' "$errors" || break
done
cat "$errors" >&2
exit $status
