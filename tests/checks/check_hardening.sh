#!/usr/bin/env bash
# The libraries are hardened as they are built: nothing that the loader fills stays writable, no stack is executable,
# stack and buffers are guarded. No code runs on load, and there is no variable that isn't named here.
# usage: check_hardening.sh LIBRARY=FILE...     such as rt=build/release/lib/libcorvane-rt.so
set -euo pipefail

# Everything that a library may write to and that outlives a call.
declare -A variables=(
    # The free blocks of each thread, the modules that run and their lock, the seed of the dictionaries, and whether the
    # processor has vectors.
    [rt]="\
(anonymous namespace)::hasEnded
(anonymous namespace)::hashOf(rt::Text)::seed
(anonymous namespace)::makeLists()::atThreadEnd
first
guard variable for (anonymous namespace)::hashOf(rt::Text)::seed
guard variable for (anonymous namespace)::makeLists()::atThreadEnd
mutex
rt___RunOf::vectors
rt___blockLists"
    [net]="" [rsc]=""
    [telsx]="\
shortToLongDict
telsx___VersionSip20"
)

# What a library calls where the compiler added guards: rt prints, and all work on arrays on the stack.
declare -A guards=( [rt]="__fprintf_chk __stack_chk_fail" [net]=__stack_chk_fail [rsc]=__stack_chk_fail
    [telsx]=__stack_chk_fail )

failed=0
complain() { echo "$name: $1"; failed=1; }

for library in "$@"; do
    name=${library%%=*} file=${library#*=}
    segments=$( readelf --wide --segments "$file" ) dynamic=$( readelf --wide --dynamic "$file" )
    grep -q GNU_RELRO <<<"$segments" && grep -qw 'BIND_NOW\|NOW' <<<"$dynamic" || complain "not full RELRO"
    grep -q 'GNU_STACK .* RW ' <<<"$segments" || complain "the stack is executable"
    ! grep -q ' RWE ' <<<"$segments" || complain "a segment is writable and executable"
    imported=$( nm --dynamic --undefined-only "$file" )
    for guard in ${guards[$name]}; do
        grep -qw "$guard" <<<"$imported" || complain "does not call $guard"
    done

    # Where the compiler's own start code stands alone, there is one entry of eight bytes.
    readelf --wide --sections "$file" | grep -q ' \.init_array .* 000008 ' || complain "has code that runs on load"
    symbols=$( nm --demangle --format=sysv "$file" )
    diff -U 0 --label "$name may write to" <( sed '/^$/d' <<<"${variables[$name]}" ) --label "$name writes to" <(
        awk -F ' *[|] *' '$5 ~ /[1-9a-f]/ && $NF ~ /^\.(t?data|t?bss)/ && $NF !~ /^\.data\.rel\.ro/ { print $1 }' \
            <<<"$symbols" | grep -v '^completed\.0$' | LC_ALL=C sort ) || failed=1
done
exit $failed
