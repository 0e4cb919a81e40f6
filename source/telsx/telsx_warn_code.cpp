// Warn code (RFC 3261, 20.43).
#include "telsx/telsx_warn_code.h"

#include "telsx/telsx_codes.hpp"
#include "telsx/telsx_number.hpp"

using namespace telsx;

RT_BOOL telsxWarnCodeOk( int64_t warnCode ) { return warnCode >= 0 && warnCode <= 999; }

static constexpr CodeText texts[] = {
    { 300, "Incompatible network protocol" },   { 301, "Incompatible network address formats" },
    { 302, "Incompatible transport protocol" }, { 303, "Incompatible bandwidth units" },
    { 304, "Media type not available" },        { 305, "Incompatible media format" },
    { 306, "Attribute not understood" },        { 307, "Session description parameter not understood" },
    { 330, "Multicast not available" },         { 331, "Unicast not available" },
    { 370, "Insufficient bandwidth" },          { 399, "Miscellaneous warning" },
};

RT_STRING telsxWarnCodeToString( int64_t warnCode )
{
    TELSX_ASSERT( telsxWarnCodeOk( warnCode ) );
    return textOfCode( texts, warnCode, "Warning \"%03i\"" );
}

RT_STRING telsx___WarnCodeEncode( int64_t warnCode )
{
    TELSX_ASSERT( telsxWarnCodeOk( warnCode ) );
    return encodeNumber( warnCode );
}

int64_t telsx___WarnCodeDecode( const RT_CHAR *chs, int64_t length )
{
    int64_t result = -1, charsRead = 0;
    TELSX_ASSERT( rtFormatTryDecodeIntChars( chs, length, 10, &result, &charsRead ) && charsRead == length );
    return result;
}
