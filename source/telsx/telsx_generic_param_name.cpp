// Name of a generic parameter (RFC 3261, 25.1).
#include "telsx/telsx_generic_param_name.h"

#include "telsx/telsx_token.h"

RT_BOOL telsxGenericParamNameOk( RT_STRING name ) { return telsxTokenOk( name ); }

RT_STRING telsxGenericParamNameNormalize( RT_STRING name ) { return telsxTokenNormalize( name ); }
