// Message id (RFC 8262, 3; RFC 5322, 3.6.4).
#include "telsx/telsx_msg_id.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxMsgIdOk( RT_STRING msgId )
{
    TELSX_ASSERT( msgId );
    return covers( telsx___SkipMsgId, msgId );
}

// The printable characters of ASCII except these.
static constexpr rt::CharSet printableExcept( std::string_view others )
{
    rt::CharSet set;
    for ( char ch = '!'; ch <= '~'; ++ch )
        if ( others.find( ch ) == others.npos )
            set.add( static_cast<unsigned char>( ch ) );
    return set;
}
static constexpr rt::CharSet atext = printableExcept( "\"(),.:;<>@[\\]" ), dtext = printableExcept( "[\\]" );

static int64_t skipAtext( const RT_CHAR *chs, int64_t length ) { return atext.runOf( chs, length ); }

static int64_t skipLiteral( Text text )
{
    Text rest = text;
    if ( !rest.take( telsx___SkipChar( rest.chs, rest.length, '[' ) ) )
        return 0;
    rest.take( dtext.runOf( rest.chs, rest.length ) );
    return rest.take( telsx___SkipChar( rest.chs, rest.length, ']' ) ) ? text.length - rest.length : 0;
}

int64_t telsx___SkipMsgId( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    if ( !rest.take( skipDotted( rest, skipAtext ) )
         || !rest.take( telsx___SkipChar( rest.chs, rest.length, '@' ) ) )
        return 0;
    int64_t right = skipDotted( rest, skipAtext );
    if ( !right )
        right = skipLiteral( rest );
    return right ? length - rest.length + right : 0;
}
