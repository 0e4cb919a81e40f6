// Warning header (RFC 3261, 20.43).
#include "telsx/telsx_header_warning.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_WARNING_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderWarning, HEADER_WARNING, hdr, "Warning" )

// The list has its own word for a value that is missing.
static RT_STRING encode( TELSX_WARNING_VALUE warning )
{
    TELSX_ASSERT( warning );
    return telsx___WarningValueEncode( warning );
}

TELSX_DEFINE_VALUE_LIST( HeaderWarning, Warning, WarningValue, encode, WarningsClear )

TELSX_HEADER_WARNING telsxHeaderWarningCreate( void )
{
    return createList<TELSX_HEADER_WARNING_>( telsxHeaderWarningSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderWarningEncode( TELSX_HEADER_WARNING hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Warning">(), hdr->values );
}

static TELSX_HEADER_WARNING decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_WARNING> hdr = adopt( telsxHeaderWarningCreate() );
    return decodeValues( hdr->values, lines, telsx___SkipWarningValue, WithoutLines::isEmpty ) ? hdr.take()
                                                                                               : nullptr;
}
