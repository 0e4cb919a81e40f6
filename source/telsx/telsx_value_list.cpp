// What the headers that are a list of values share.
#include "telsx/telsx_value_list.hpp"

#include "telsx/telsx_skip.h"

bool telsx::decodeValues( Ref<RT_VECTOR> &values, TELSX_MESSAGE_HEADER header, Skipper skipValue,
                          WithoutLines withoutLines )
{
    if ( linesOf( header ) == 0 )
        return withoutLines == WithoutLines::isEmpty;
    ItemReader items( header, skipValue, telsx___SkipComma );
    while ( items.next() )
        rtVectorAppendString( values.address(), items.item().get() );
    return !items.failed();
}
