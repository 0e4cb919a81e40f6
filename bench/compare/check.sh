#!/usr/bin/env bash
# check.sh PROGRAM...: that all parsers read the same values from the messages, and from what they encoded. One
# that cannot do a job is not asked about it.
set -euo pipefail

scratch=$( mktemp -d )
trap 'rm -rf "$scratch"' EXIT

"$1" check >"$scratch/first"
[ "$( wc -l <"$scratch/first" )" = 15 ]
for program in "${@:2}"; do
    "$program" check >"$scratch/other"
    [ "$( wc -l <"$scratch/other" )" -ge 10 ]
    if grep -Fxv -f "$scratch/first" "$scratch/other" >"$scratch/differences"; then
        echo "$program reads other values than $1:"
        cat "$scratch/differences"
        exit 1
    fi
done
echo "$# parsers read the same values"
