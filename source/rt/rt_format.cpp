// Numbers from text.
#include "rt/rt_format.h"

#include "rt/rt_frame.hpp"

static int64_t digitValue( RT_CHAR ch )
{
    if ( ch >= '0' && ch <= '9' )
        return ch - '0';
    RT_CHAR letter = ch | 0x20;
    return ch < 0x80 && letter >= 'a' && letter <= 'z' ? letter - 'a' + 10 : 36;
}

RT_BOOL rtFormatTryDecodeIntChars( const RT_CHAR *chs, int64_t length, int64_t radix, int64_t *value,
                                   int64_t *consumed )
{
    RT_ASSERT( length >= 0 );
    RT_ASSERT( chs || length == 0 );
    RT_ASSERT( radix >= 2 && radix <= 36 );
    RT_ASSERT( value );
    int64_t number = 0, count = 0;
    // No overflow yet: 36 to the power of 12 fits.
    for ( ; count < length && count < 12; ++count )
    {
        int64_t digit = digitValue( chs[count] );
        if ( digit >= radix )
            break;
        number = number * radix + digit;
    }
    for ( ; count >= 12 && count < length; ++count )
    {
        int64_t digit = digitValue( chs[count] );
        if ( digit >= radix )
            break;
        if ( __builtin_mul_overflow( number, radix, &number )
             || __builtin_add_overflow( number, digit, &number ) )
            return 0;
    }
    if ( count == 0 )
        return 0;
    *value = number;
    if ( consumed )
        *consumed = count;
    return 1;
}

int64_t rtIntMin( int64_t a, int64_t b ) { return a < b ? a : b; }

int64_t rtIntMax( int64_t a, int64_t b ) { return a > b ? a : b; }
