// Display name (RFC 3261, 25.1).
#include "telsx/telsx_display_name.h"

#include "telsx/telsx_quotable_string.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxDisplayNameOk( RT_STRING displayName )
{
    TELSX_ASSERT( displayName );
    return telsxQuotableStringOk( displayName );
}

RT_STRING telsx___DisplayNameEncode( RT_STRING displayName )
{
    TELSX_ASSERT( displayName );
    TELSX_ASSERT( telsxDisplayNameOk( displayName ) );
    return telsx___QuotableStringEncode( displayName );
}

RT_STRING telsx___DisplayNameTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    if ( RT_STRING unquoted = telsx___QuotableStringTryDecode( chs, length ) )
        return unquoted;
    Ref<RT_STRING> name = adopt( rtStringCreate() );
    for ( Text rest = { chs, length }; rest; )
    {
        Text token = rest.take( telsx___SkipToken );
        if ( !token )
            return nullptr;
        rtStringAppendChars( name.address(), token.chs, token.length );
        if ( rest.take( telsx___SkipLws ) && rest )
            rtStringAppendChar( name.address(), ' ' );
    }
    return name.take();
}
