// Location value (RFC 6442, 4.1).
#include "telsx/telsx_location_value.h"

#include "telsx/telsx_info.hpp"
#include "telsx/telsx_iri.h"

using namespace telsx;

struct TELSX_LOCATION_VALUE_ : Info
{
};

TELSX_DEFINE_OBJECT( LocationValue, LOCATION_VALUE, telsx___LocationValueFreeFunc,
                     telsx___LocationValueCompareFunc, telsx___LocationValueToStringFunc )
TELSX_DEFINE_FREE_FUNC( LocationValue, locationValue )
TELSX_DEFINE_COMPARE_FUNC( LocationValue, locationValue )
TELSX_DEFINE_TO_STRING_FUNC( LocationValue, locationValue )
TELSX_DEFINE_FIELD( LocationValue, locationValue, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_FIELD( LocationValue, locationValue, GenericParams, genericParams, genericParams )

static TELSX_LOCATION_VALUE create() { return rt::create<TELSX_LOCATION_VALUE_>( telsxLocationValueSort() ); }

TELSX_LOCATION_VALUE telsxLocationValueCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    TELSX_LOCATION_VALUE locationValue = create();
    locationValue->iri = share( iri );
    locationValue->genericParams = noGenericParams();
    return locationValue;
}

RT_STRING telsx___LocationValueEncode( TELSX_LOCATION_VALUE locationValue )
{
    TELSX_ASSERT( locationValue );
    return encodeInfo( *locationValue );
}

TELSX_LOCATION_VALUE telsx___LocationValueTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Ref<TELSX_LOCATION_VALUE> locationValue = adopt( create() );
    return decodeInfo( *locationValue.get(), { chs, length } ) ? locationValue.take() : nullptr;
}

int64_t telsx___SkipLocationValue( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipAlertInfo( chs, length );
}
