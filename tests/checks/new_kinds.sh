#!/usr/bin/env bash
# A set, a list and a value with its header are added to a copy of the tree in the steps of CONTRIBUTING.md, and in no
# others; the tests of the copy must pass, and the new units must be as short as promised.
# usage: new_kinds.sh ROOT
set -euo pipefail

scratch=$( mktemp -d )
trap 'rm -rf "$scratch"' EXIT
cd "$1"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$scratch" 2>/dev/null || true
cd "$scratch"
units=source/telsx
sed -i 's/-O2 -g/-O0/; s/"Release"/"Release", "CORVANE_TRAINING": "OFF"/' CMakePresets.json # what counts here is not speed

# unit PATTERN NEW SED...: a pair of files like that of the pattern.
unit()
{
    for suffix in h cpp; do
        sed "${@:3}" "$units/telsx_$1.$suffix" >"$units/telsx_$2.$suffix"
    done
}
# at_most LINES UNIT: the pair is no longer than that.
at_most()
{
    local lines
    lines=$( cat "$units/telsx_$2".{h,cpp} | wc -l )
    echo "telsx_$2: $lines lines"
    [ "$lines" -le "$1" ] || { echo "new_kinds: that is more than $1"; exit 1; }
}
# before LINE FILE TEXT: the text stands before the first line that is the pattern.
before() { sed -i "0,/$1/{/$1/i\\
$3
}" "$2"; }
after() { sed -i "/$1/a\\
$3" "$2"; }

unit header_unsupported header_x_set 's/HeaderUnsupported/HeaderXSet/g; s/HEADER_UNSUPPORTED/HEADER_X_SET/g; s/header_unsupported/header_x_set/g; s/"Unsupported"/"X-Set"/'
at_most 50 header_x_set
unit header_route header_x_list 's/HeaderRoute/HeaderXList/g; s/HEADER_ROUTE/HEADER_X_LIST/g; s/header_route/header_x_list/g; s/"Route"/"X-List"/'
at_most 50 header_x_list
unit alert_info x_value 's/telsx_alert_info/telsx_x_value/g; s/ALERT_INFO/X_VALUE/g; s/AlertInfo/XValue/g; s/alertInfo/xValue/g'
sed -i 's/^RT_END$/\/* How many code points at the start of the text are such a value (see telsx_skip.h). *\/\nRT_API int64_t telsx___SkipXValue( const RT_CHAR *chs, int64_t length );\n\n&/' "$units/telsx_x_value.h"
cat >>"$units/telsx_x_value.cpp" <<'EOF'

int64_t telsx___SkipXValue( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return telsx___SkipAlertInfo( chs, length );
}
EOF
at_most 110 x_value
unit header_route header_x_values 's/telsx_route/telsx_x_value/g; s/HeaderRoute, HEADER_ROUTE, Route, ROUTE/HeaderXValues, HEADER_X_VALUES, XValue, X_VALUE/; s/HeaderRoute, "Route", Route, Route/HeaderXValues, "X-Values", XValue, XValue/; s/HeaderRoute/HeaderXValues/g; s/HEADER_ROUTE/HEADER_X_VALUES/g; s/header_route/header_x_values/g; s/"Route"/"X-Values"/'
at_most 50 header_x_values

before '^#undef TELSX_KIND_OF_FIELDS' "$units/telsx_headers.def" 'TELSX_KIND_OF_VALUES( HeaderXList, HEADER_X_LIST, "X-List", Route, Route )\
TELSX_KIND_OF_SET( HeaderXSet, HEADER_X_SET, "X-Set", OptionTag )\
TELSX_KIND_OF_VALUES( HeaderXValues, HEADER_X_VALUES, "X-Values", XValue, XValue )'
echo 'TELSX_VALUE( XValue, X_VALUE, TELSX_TEXT( XValue, Iri, Iri ) TELSX_PARAMS( XValue ) )' >>"$units/telsx_values.def"
cat >>tests/telsx/rows_headers.def <<'EOF'
{ "X-Set", "", { "b,a" }, { { "B", "b" } }, { "a b" } },
{ "X-List", "", { "<sip:a;lr>" }, {}, { "a" } },
{ "X-Values", "", { "<sip:a>;x=1" }, {}, { "a" } },
EOF
echo '{ "XValue", "", { "<sip:a>", "<sip:a>;x" }, { { " <sip:a> ;X", "<sip:a>;x" } }, { "", "a", "<sip:a>;" } },' >>tests/telsx/rows_values.def
after '^| Unsupported |' docs/headers.md '| X-Set | a set (RFC 3261) | lower | `OptionTag` |'
after '^| Warning |' docs/headers.md '| X-List | a list (RFC 3261) | `TELSX_ROUTE` | `Route` |\
| X-Values | a list of new values (RFC 3261) | `TELSX_X_VALUE` | `XValue` |'
after '^| `TELSX_WARNING_VALUE` |' docs/headers.md '| `TELSX_X_VALUE` | a value | `Iri`, `GenericParams` |'
echo '- The headers X-Set, X-List and X-Values.' >>CHANGELOG.md

scripts/abi names >names.log 2>&1 || { tail -40 names.log; exit 1; }
cmake --build --preset release >build.log 2>&1 || { grep -A5 -E 'error|FAILED' build.log; exit 1; }
ctest --preset release --parallel "$( nproc )" --no-tests=error --exclude-regex '^(sipp|install|check_hardening|threads|rt|net|rsc|scan_plain|load)$'
