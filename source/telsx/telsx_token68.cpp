// Token68 (RFC 7235, 2.1).
#include "telsx/telsx_token68.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxToken68Ok( RT_STRING token68 )
{
    TELSX_ASSERT( token68 );
    return covers( telsx___SkipToken68, token68 );
}

static bool isToken68( RT_CHAR ch )
{
    return isIn( ch, classAlphanum ) || ch == '-' || ch == '.' || ch == '_' || ch == '~' || ch == '+'
           || ch == '/';
}

int64_t telsx___SkipToken68( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t at = 0;
    while ( at < length && isToken68( chs[at] ) )
        ++at;
    while ( at && at < length && chs[at] == '=' )
        ++at;
    return at;
}
