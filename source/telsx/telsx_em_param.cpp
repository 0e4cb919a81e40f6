// Early-media parameter (RFC 5009, 8).
#include "telsx/telsx_em_param.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxEmParamOk( RT_STRING emParam )
{
    TELSX_ASSERT( emParam );
    return covers( telsx___SkipEmParam, emParam );
}

RT_STRING telsxEmParamNormalize( RT_STRING emParam )
{
    TELSX_ASSERT( telsxEmParamOk( emParam ) );
    return lowerCase( emParam );
}

int64_t telsx___SkipEmParam( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
