#!/usr/bin/env bash
# The documents are true: their C code compiles, prints the text that follows it and leaves no object behind; the
# functions that they name exist; docs/headers.md has all kinds of headers, values and addresses with all their fields.
# usage: run_documents.sh CC ROOT LIBRARY...
set -euo pipefail

cc=$1 root=$2 libraries=( "${@:3}" ) failed=0
scratch=$( mktemp -d )
trap 'rm -rf "$scratch"' EXIT
cd "$root"

# The n-th block of C code in a document becomes <document>-<n>.c, the block of text after it <document>-<n>.text.
for document in README.md docs/cookbook.md docs/accepts.md; do
    awk -v to="$scratch/$( basename "$document" .md )" '
        /^```c$/    { base = sprintf( "%s-%02d", to, ++n ); file = base ".c"; printf "" >file; next }
        /^```text$/ { file = base ? base ".text" : ""; base = ""; next }
        /^```/      { file = ""; next }
        file        { print >file }' "$document"
done

# A block that is not a whole program replaces the comment in the first program of the cookbook.
frame=$scratch/cookbook-01.c
cat >"$scratch/leaks.c" <<'END'
#include <stdio.h>
#include <unistd.h>
#include <rt/rt.h>
__attribute__( ( destructor ) ) static void leaks( void )
{
    if ( rtObjsAlive() > 0 )
    {
        fprintf( stderr, "%d objects are left\n", (int)rtObjsAlive() );
        fflush( stdout );
        _exit( 1 );
    }
}
END
rpath=$( printf -- '-Wl,-rpath,%s ' $( dirname "${libraries[@]}" | sort -u ) )
for code in "$scratch"/*-*.c; do
    base=${code%.c}
    touch "$base.text"
    program=$code
    if [ "$( head -c 8 "$code" )" != '#include' ]; then
        program=$base-framed.c
        sed 's/^/    /' "$code" >"$base.indented"
        sed -e "\\,/\\* the recipe \\*/,{r $base.indented" -e 'd}' "$frame" >"$program"
    fi
    "$cc" -std=c11 -Wall -Wextra -Werror -Isource -o "$base" "$program" "$scratch/leaks.c" "${libraries[@]}" $rpath &&
        { "$base" || echo "exits with $?"; } | tr -d '\r' |
            diff -u --label "the text after it" "$base.text" --label "printed by ${base##*/}" - || failed=1
done

# What the documents name, which may be the beginning of a name, exists.
nm -D --defined-only "${libraries[@]}" | awk '/ T / { print $NF }' >"$scratch/exported"
grep -ohE '\b(telsx|rt|net|rsc)[A-Z][A-Za-z0-9]*' README.md docs/*.md | sort -u | while read -r name; do
    grep -q "^$name" "$scratch/exported" || { echo "the documents name $name, which is not there"; exit 1; }
done || failed=1

# A row of docs/headers.md for each type: for a list its word, for others the fields, which have a getter and a setter;
# those with a deleter have a question mark.
awk '
    FILENAME ~ /exported/ { exported[$0] }
    /^TELSX_(KIND|VALUE|ADDRESS)/ {
        split( $0, part, /[(,)" ]+/ )
        name = part[2]; key = part[1] ~ /KIND/ ? part[4] : "TELSX_" part[3]
        if( part[1] ~ /KIND_OF_(VALUES|SET|LIST)/ )
            print key, part[5]
        else
            for( function_ in exported )
                if( match( function_, "^telsx" name "Set" ) ) {
                    field = substr( function_, RLENGTH + 1 )
                    if( "telsx" name field in exported )
                        print key, field ( "telsx" name "Del" field in exported ? "?" : "" )
                }
    }' "$scratch/exported" source/telsx/telsx_{headers,values,addresses}.def | sort >"$scratch/types"
awk -F '|' '
    $2 ~ /^ ([A-Z][A-Za-z-]*|`TELSX_[A-Z_]*`) $/ {
        key = $2; gsub( /[` ]/, "", key )
        rest = $( NF - 1 )
        while( match( rest, /`[A-Za-z0-9]+`\??/ ) ) {
            field = substr( rest, RSTART, RLENGTH ); gsub( /`/, "", field ); print key, field
            rest = substr( rest, RSTART + RLENGTH )
        }
    }' docs/headers.md | sort >"$scratch/rows"
diff -u --label "the types and their fields" "$scratch/types" --label docs/headers.md "$scratch/rows" || failed=1

exit $failed
