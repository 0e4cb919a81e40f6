// Name of a generic parameter (RFC 3261, 25.1).
#include "telsx/telsx_generic_param_name.h"

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_token.h"

RT_BOOL telsxGenericParamNameOk( RT_STRING name )
{
    TELSX_ASSERT( name );
    return telsxTokenOk( name );
}

RT_STRING telsxGenericParamNameNormalize( RT_STRING name )
{
    TELSX_ASSERT( name );
    return telsxTokenNormalize( name );
}
