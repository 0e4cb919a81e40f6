// Alert-Info value (RFC 3261, 20.4).
#include "telsx/telsx_alert_info.h"

#include "telsx/telsx_info.hpp"
#include "telsx/telsx_iri.h"

using namespace telsx;

struct TELSX_ALERT_INFO_ : Info
{
};

TELSX_DEFINE_OBJECT( AlertInfo, ALERT_INFO, telsx___AlertInfoFreeFunc, telsx___AlertInfoCompareFunc,
                     telsx___AlertInfoToStringFunc )
TELSX_DEFINE_FREE_FUNC( AlertInfo, alertInfo )
TELSX_DEFINE_COMPARE_FUNC( AlertInfo, alertInfo )
TELSX_DEFINE_TO_STRING_FUNC( AlertInfo, alertInfo )
TELSX_DEFINE_FIELD( AlertInfo, alertInfo, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_FIELD( AlertInfo, alertInfo, GenericParams, genericParams, genericParams )

static TELSX_ALERT_INFO create() { return rt::create<TELSX_ALERT_INFO_>( telsxAlertInfoSort() ); }

TELSX_ALERT_INFO telsxAlertInfoCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    TELSX_ALERT_INFO alertInfo = create();
    alertInfo->iri = share( iri );
    alertInfo->genericParams = noGenericParams();
    return alertInfo;
}

RT_STRING telsx___AlertInfoEncode( TELSX_ALERT_INFO alertInfo )
{
    TELSX_ASSERT( alertInfo );
    return encodeInfo( *alertInfo );
}

TELSX_ALERT_INFO telsx___AlertInfoTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Ref<TELSX_ALERT_INFO> alertInfo = adopt( create() );
    return decodeInfo( *alertInfo.get(), { chs, length } ) ? alertInfo.take() : nullptr;
}
