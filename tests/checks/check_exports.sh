#!/usr/bin/env bash
# The libraries export what their public headers declare, no more and no less, and that is what the lists in abi/ say.
# usage: check_exports.sh CC SOURCE LIBRARY=FILE...     such as rt=build/debug/lib/libcorvane-rt.so
set -euo pipefail
export LC_ALL=C # which is how the lists are sorted

# The functions and variables that the headers of a library declare. The compiler removes comments, macros and
# attributes; in the rest, declarations end with semicolons, and a name is before the first parenthesis.
declared()
{
    ( cd "$source" && printf '#include "%s"\n' "$1"/*.h ) |
        "$cc" -std=c11 "-D__attribute__(x)=" "-I$source" -E -P -x c - | tr '\n' ' ' |
        sed -E ':again; s/\{[^{}]*\}/@/; t again; s/\) *@/);/g' | tr ';' '\n' |
        grep -vE '\<(typedef|static)\>' |
        sed -nE 's/^[^(]*\<([A-Za-z_0-9]+) *\(.*/\1/p; t; s/.*\<extern\>.*\<([A-Za-z_0-9]+) *(\[.*)?$/\1/p' |
        grep -E "^$1[_A-Z]" | sort -u
}

cc=$1 source=$2 failed=0
scratch=$( mktemp -d )
trap 'rm -rf "$scratch"' EXIT
for library in "${@:3}"; do
    name=${library%%=*} file=${library#*=}
    list=$( basename "${file%%.so*}" ).names
    nm -D --defined-only "$file" | awk '{ print $NF }' | sort -u >"$scratch/exported"
    diff -U 0 --label "declared by source/$name/*.h" <( declared "$name" ) \
        --label "exported by $name" "$scratch/exported" || failed=1
    diff -U 0 --label "abi/$list" "$source/../abi/$list" --label "exported by $name" "$scratch/exported" ||
        { echo "The interface has changed. If it is meant to, 'scripts/abi names' renews the lists in abi/."; failed=1; }
done
exit $failed
