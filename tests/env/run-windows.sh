#!/bin/bash
# Runs a Windows program under Wine. About one start in some thousand dies before the program runs: Wine could not map the
# page that all programs share with its server (two of the three messages that tell of it come through an error channel,
# which has to be let through), or it ended without a word. Rarer still, the system's loader below Wine fails as it unloads
# its libraries, after all is done. Such a run, and nothing else, is tried again, and says so. A test program that has run
# has at least printed its first line.
errors=$(mktemp)
output=$(mktemp)
trap 'rm -f "$errors" "$output"' EXIT

wine_failed() {
  grep -q -e 'failed to map the shared user data' -e 'failed to open the USD section' \
    -e 'failed to remap the process USD' -e 'Inconsistency detected by ld.so: dl-fini' "$errors" && return
  [[ $1 == *_tests.exe ]] && [ $status -ne 0 ] && [ ! -s "$errors" ] && [ ! -s "$output" ]
}

export WINEDEBUG=${WINEDEBUG:+$WINEDEBUG,}err+virtual
for try in 1 2 3; do
  if [[ $1 == *_tests.exe ]]; then
    wine "$@" 2>"$errors" | tee "$output"
    status=${PIPESTATUS[0]}
  else
    wine "$@" 2>"$errors"
    status=$?
  fi
  cat "$errors" >&2
  wine_failed "$1" || break
  echo "$1 ended with status $status because of Wine." >&2
done
exit $status
