// Value of a generic parameter (RFC 3261, 25.1).
#include "telsx/telsx_generic_param_value.h"

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_host.h"
#include "telsx/telsx_quotable_string.h"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxGenericParamValueOk( int64_t type, RT_STRING value )
{
    TELSX_ASSERT( TELSX_GENERIC_PARAM_VALUE_TYPE_OK( type ) );
    TELSX_ASSERT( value );
    switch ( type )
    {
        case TELSX_GENERIC_PARAM_VALUE_TYPE_TOKEN: return telsxTokenOk( value );
        case TELSX_GENERIC_PARAM_VALUE_TYPE_HOST: return telsxHostOk( value );
        default: return telsxQuotableStringOk( value );
    }
}

RT_STRING telsxGenericParamValueNormalize( int64_t type, RT_STRING value )
{
    TELSX_ASSERT( TELSX_GENERIC_PARAM_VALUE_TYPE_OK( type ) );
    TELSX_ASSERT( value );
    return type == TELSX_GENERIC_PARAM_VALUE_TYPE_TOKEN ? telsxTokenNormalize( value )
                                                        : share( value ).take();
}
