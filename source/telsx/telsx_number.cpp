// Numbers in decimal digits.
#include "telsx/telsx_number.hpp"

namespace telsx
{

template <class CHAR>
static int64_t tryDecodeDigits( const CHAR *chs, int64_t length )
{
    int64_t value = 0;
    for ( int64_t at = 0; at < length; ++at )
    {
        auto digit = static_cast<uint32_t>( chs[at] ) - '0';
        if ( digit > 9 || __builtin_mul_overflow( value, 10, &value )
             || __builtin_add_overflow( value, digit, &value ) )
            return -1;
    }
    return length ? value : -1;
}

int64_t tryDecodeNumber( Text text, RT_BOOL ( *isOk )( int64_t ) )
{
    int64_t value = tryDecodeDigits( text.chs, text.length );
    return value != -1 && ( !isOk || isOk( value ) ) ? value : -1;
}

int64_t tryDecodeNumber( std::string_view text ) { return tryDecodeDigits( text.data(), lengthOf( text ) ); }

} // namespace telsx
