// ASCII letters and digits, of characters of any type.
#pragma once

#include "rt/rt_object.h"

namespace rt
{

constexpr bool isDigit( RT_CHAR ch ) { return ch >= '0' && ch <= '9'; }
constexpr bool isLetter( RT_CHAR ch ) { return ch < 0x80 && ( ch | 0x20 ) >= 'a' && ( ch | 0x20 ) <= 'z'; }
constexpr bool isHexdig( RT_CHAR ch ) { return isDigit( ch ) || ( isLetter( ch ) && ( ch | 0x20 ) <= 'f' ); }

template <class CHAR>
constexpr CHAR lowerAscii( CHAR ch )
{
    return ch >= 'A' && ch <= 'Z' ? static_cast<CHAR>( ch + 0x20 ) : ch;
}
template <class CHAR>
constexpr CHAR upperAscii( CHAR ch )
{
    return ch >= 'a' && ch <= 'z' ? static_cast<CHAR>( ch - 0x20 ) : ch;
}

// What the character counts as a digit; 36 if it is none in any radix.
constexpr int64_t digitOf( RT_CHAR ch )
{
    return isDigit( ch ) ? ch - '0' : isLetter( ch ) ? ( ch | 0x20 ) - 'a' + 10 : 36;
}

// Reads the number at the start of a text and returns how many digits it has; 0 if there is none or the number does not
// fit, and the number is left alone then.
template <class CHAR>
constexpr int64_t readNumber( const CHAR *chs, int64_t length, int64_t radix, int64_t *number )
{
    int64_t value = 0, count = 0;
    for ( ; count < length; ++count )
    {
        int64_t digit = digitOf( static_cast<RT_CHAR>( chs[count] ) );
        if ( digit >= radix )
            break;
        // The first twelve cannot overflow: 36 to the power of 12 fits.
        if ( count < 12 )
            value = value * radix + digit;
        else if ( __builtin_mul_overflow( value, radix, &value )
                  || __builtin_add_overflow( value, digit, &value ) )
            return 0;
    }
    if ( count )
        *number = value;
    return count;
}

} // namespace rt
