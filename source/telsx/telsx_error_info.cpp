// Error-Info value (RFC 3261, 20.18).
#include "telsx/telsx_error_info.h"

#include "telsx/telsx_info.hpp"
#include "telsx/telsx_iri.h"

using namespace telsx;

struct TELSX_ERROR_INFO_ : Info
{
};

TELSX_DEFINE_OBJECT( ErrorInfo, ERROR_INFO, telsx___ErrorInfoFreeFunc, telsx___ErrorInfoCompareFunc,
                     telsx___ErrorInfoToStringFunc )
TELSX_DEFINE_FREE_FUNC( ErrorInfo, errorInfo )
TELSX_DEFINE_COMPARE_FUNC( ErrorInfo, errorInfo )
TELSX_DEFINE_TO_STRING_FUNC( ErrorInfo, errorInfo )
TELSX_DEFINE_FIELD( ErrorInfo, errorInfo, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_FIELD( ErrorInfo, errorInfo, GenericParams, genericParams, genericParams )

static TELSX_ERROR_INFO create() { return rt::create<TELSX_ERROR_INFO_>( telsxErrorInfoSort() ); }

TELSX_ERROR_INFO telsxErrorInfoCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    TELSX_ERROR_INFO errorInfo = create();
    errorInfo->iri = share( iri );
    errorInfo->genericParams = noGenericParams();
    return errorInfo;
}

RT_STRING telsx___ErrorInfoEncode( TELSX_ERROR_INFO errorInfo )
{
    TELSX_ASSERT( errorInfo );
    return encodeInfo( *errorInfo );
}

TELSX_ERROR_INFO telsx___ErrorInfoTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Ref<TELSX_ERROR_INFO> errorInfo = adopt( create() );
    return decodeInfo( *errorInfo.get(), { chs, length } ) ? errorInfo.take() : nullptr;
}
