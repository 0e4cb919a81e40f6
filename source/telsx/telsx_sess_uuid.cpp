// Session UUID (RFC 7989, 5).
#include "telsx/telsx_sess_uuid.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxSessUuidOk( RT_STRING sessUuid )
{
    TELSX_ASSERT( sessUuid );
    return covers( telsx___SkipSessUuid, sessUuid );
}

int64_t telsx___SkipSessUuid( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t token = runOf<classToken>( { chs, length } );
    auto isDigit = []( RT_CHAR ch ) { return isIn( ch, classHexdig ) && !( ch >= 'A' && ch <= 'F' ); };
    static constexpr int64_t digits = 32;
    return token == digits && std::all_of( chs, chs + digits, isDigit ) ? digits : 0;
}
