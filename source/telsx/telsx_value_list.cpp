// What the headers that are a list of values share.
#include "telsx/telsx_value_list.hpp"

#include "telsx/telsx_skip.h"

bool telsx::decodeValues( Ref<RT_VECTOR> &values, HeaderLines &lines, Skipper skipValue,
                          WithoutLines withoutLines )
{
    if ( lines.empty() )
        return withoutLines == WithoutLines::isEmpty;
    ItemReader items( lines, skipValue, telsx___SkipComma );
    while ( items.next() )
        rtVectorAppendString( values.address(), items.item().get() );
    return !items.failed();
}
