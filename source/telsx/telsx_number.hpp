// Numbers in decimal digits.
#pragma once

#include <charconv>

#include "telsx/telsx_text.hpp"

namespace telsx
{

inline RT_STRING encodeNumber( int64_t number )
{
    char digits[24];
    return rtStringCreateFromCstr( digits, std::to_chars( digits, std::end( digits ), number ).ptr - digits );
}

// The value of the whole text if it is a number, and Ok if that is asked, else -1.
inline int64_t tryDecodeNumber( Text text, RT_BOOL ( *isOk )( int64_t ) = nullptr )
{
    int64_t value = -1, consumed = 0;
    bool decoded = rtFormatTryDecodeIntChars( text.chs, text.length, 10, &value, &consumed );
    return decoded && consumed == text.length && ( !isOk || isOk( value ) ) ? value : -1;
}

} // namespace telsx
