#!/usr/bin/env bash
# What the objects of rt look like inside is known to rt alone. The libraries above it go through the functions of rt/*.hpp:
# they name no structure of rt, and read no field of a string, whose structure is the only one that these headers show.
# usage: check_layouts.sh SOURCE
set -euo pipefail

cd "$1"
structures=$( sed -nE 's/^struct (RT_[A-Z_]+_)$/\1/p' rt/*.cpp rt/*.hpp | paste -s -d '|' )
fields=$( sed -nE '/^struct RT_STRING_$/,/^};$/ { s|//.*||; s/.*\<([a-z]+)(;|\(\)).*/\1/p }' rt/rt_string.hpp )
[[ $structures == *RT_STRING_* && $fields == *chs* ]] || { echo "no structures found in rt"; exit 1; }

failed=0
none() { ! grep -rnE -e "$2" "${@:3}" || { echo "$1"; failed=1; }; }
none "these lines name a structure of rt" "\<($structures)\>" telsx net rsc
none "these files see the inside of strings" 'rt/rt_string\.hpp' net rsc
# Other objects have a length, too, but none that is held by a Ref.
for field in $fields; do
    [ $field = length ] && handle='get\(\)' || handle=
    none "these lines read a field of a string" "$handle->$field\>" telsx
done
exit $failed
