// Boundary (RFC 2046, 5.1.1).
#include "telsx/telsx_boundary.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxBoundaryOk( RT_STRING boundary )
{
    TELSX_ASSERT( boundary );
    return covers( telsx___SkipBoundary, boundary );
}

static constexpr rt::CharSet bchars = []
{
    rt::CharSet set = charSet<classAlphanum>;
    for ( char ch : std::string_view( "'()+_,-./:=? " ) )
        set.add( static_cast<unsigned char>( ch ) );
    return set;
}();

int64_t telsx___SkipBoundary( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t count = bchars.runOf( chs, length );
    while ( count && chs[count - 1] == ' ' )
        --count;
    static constexpr int64_t longest = 70;
    return count <= longest ? count : 0;
}
