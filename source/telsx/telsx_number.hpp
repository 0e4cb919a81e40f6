// Numbers in decimal digits.
#pragma once

#include "rt/rt_ascii.hpp"
#include "telsx/telsx_text.hpp"

namespace telsx
{

inline RT_STRING encodeNumber( int64_t number ) { return joined( Decimal( number ) ).take(); }

// The value if the whole text is a number, and Ok where that is asked for, else -1.
template <class CHAR>
int64_t tryDecodeDigits( const CHAR *chs, int64_t length )
{
    int64_t value = -1;
    return rt::readNumber( chs, length, 10, &value ) == length ? value : -1;
}
inline int64_t tryDecodeNumber( Text text, RT_BOOL ( *isOk )( int64_t ) = nullptr )
{
    int64_t value = tryDecodeDigits( text.chs, text.length );
    return value != -1 && ( !isOk || isOk( value ) ) ? value : -1;
}
inline int64_t tryDecodeNumber( std::string_view text )
{
    return tryDecodeDigits( text.data(), lengthOf( text ) );
}

} // namespace telsx
