#!/usr/bin/env bash
# Each public header compiles alone, and twice, as C11 and as C++17, and its include guard is named after its path.
# telsx.hpp is for C++ alone. telsx.h includes all that begin with its name.
# usage: check_headers.sh CC CXX SOURCE
set -euo pipefail
export LC_ALL=C

check()
{
    local cc=$1 cxx=$2 header=$3 guard
    guard=$( echo "$header" | tr 'a-z/.' 'A-Z__' )
    grep -qx "#ifndef $guard" "$header" && grep -qx "#define $guard" "$header" ||
        { echo "source/$header: no include guard $guard"; return 1; }
    printf '#include "%s"\n#include "%s"\n' "$header" "$header" >"$scratch/$guard.c"
    local warnings=( -I. -fsyntax-only -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror )
    { [ "$header" = telsx/telsx.hpp ] || "$cc" -std=c11 "${warnings[@]}" "$scratch/$guard.c"; } &&
        "$cxx" -std=c++17 "${warnings[@]}" -x c++ "$scratch/$guard.c"
}

cd "$3"
scratch=$( mktemp -d )
trap 'rm -rf "$scratch"' EXIT
export -f check
export scratch
diff --label telsx.h --label 'the headers that are there' -U 0 <( sed -n 's/^#include "\(.*\)"$/\1/p' telsx/telsx.h ) \
    <( printf '%s\n' telsx/telsx_*.h ) || { echo "'scripts/abi names' renews telsx.h"; exit 1; }
printf '%s\0' */*.h telsx/telsx.hpp | xargs -0 -n 1 -P "$( nproc )" bash -c 'check "$@"' check "$1" "$2"
