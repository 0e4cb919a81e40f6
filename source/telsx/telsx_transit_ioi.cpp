// Transit IOI (RFC 7315, 5.6).
#include "telsx/telsx_transit_ioi.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxTransitIoiOk( RT_STRING transitIoi )
{
    TELSX_ASSERT( transitIoi );
    return covers( telsx___SkipTransitIoi, transitIoi );
}

// A transit-ioi-param.
static int64_t skipNetwork( Text text )
{
    Text rest = text, name = rest.take( runOf<classAlphanum>( text ) );
    if ( !name || !isIn( name.chs[0], classAlpha ) )
        return 0;
    bool isIndexed =
        rest.take( telsx___SkipChar( rest.chs, rest.length, '.' ) ) && rest.take( telsx___SkipDigits );
    if ( isIndexed )
        return text.length - rest.length;
    return findWordInAnyCase<"void">( name ) ? name.length : 0;
}

int64_t telsx___SkipTransitIoi( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    if ( !rest.take( skipNetwork( rest ) ) )
        return 0;
    for ( Text next = rest; next.take( telsx___SkipComma ) && next.take( skipNetwork( next ) ); )
        rest = next;
    return length - rest.length;
}
