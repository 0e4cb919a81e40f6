// Scanning many characters at a time: sets of ASCII characters and runs of them, and bytes that are still to be
// decoded. Functions that scan bytes may read up to scanSlack bytes past the end of the text; these must be readable.
#pragma once

#include <bit>
#include <functional>

#include "rt/rt_scan.h"

// A test defines RT_SCAN_PLAIN to check that the results are the same without vectors.
#if defined( __SSE2__ ) && !defined( RT_SCAN_PLAIN )
#define RT_SCAN_VECTORS
#include <emmintrin.h>
#endif

namespace rt
{

// A set of ASCII characters without NUL. Each row is for one value of a character's low four bits and has a bit for
// each value of its high four bits.
struct CharSet
{
    uint8_t rows[16] = {};

    constexpr void add( unsigned char ch ) { rows[ch % 16] |= static_cast<uint8_t>( 1 << ch / 16 ); }
    constexpr bool has( RT_CHAR ch ) const { return ch < 0x80 && rows[ch % 16] >> ch / 16 & 1; }

    // How many code points at the start are in the set.
    int64_t runOf( const RT_CHAR *chs, int64_t length ) const { return rt___RunOf( rows, chs, length ); }
};

// The same, one character at a time.
inline int64_t plainRunOf( const CharSet &set, const RT_CHAR *chs, int64_t length )
{
    int64_t at = 0;
    while ( at < length && set.has( chs[at] ) )
        ++at;
    return at;
}

inline constexpr int64_t scanSlack = 16;

// Sixteen bytes.
struct ByteBlock
{
#ifdef RT_SCAN_VECTORS
    __m128i bytes;

    static ByteBlock at( const void *from )
    {
        return { _mm_loadu_si128( static_cast<const __m128i *>( from ) ) };
    }
    static ByteBlock of( char ch ) { return { _mm_set1_epi8( ch ) }; }
    friend ByteBlock operator|( ByteBlock a, ByteBlock b ) { return { _mm_or_si128( a.bytes, b.bytes ) }; }
    friend ByteBlock operator&( ByteBlock a, ByteBlock b ) { return { _mm_and_si128( a.bytes, b.bytes ) }; }

    // All bits of a byte are set if it is the same in both, and none otherwise.
    friend ByteBlock same( ByteBlock a, ByteBlock b ) { return { _mm_cmpeq_epi8( a.bytes, b.bytes ) }; }

    // The top bits of the bytes; that of the first byte is the lowest bit.
    uint32_t mask() const { return static_cast<uint32_t>( _mm_movemask_epi8( bytes ) ); }

    void store( void *into ) const { _mm_storeu_si128( static_cast<__m128i *>( into ), bytes ); }

    // Writes sixteen code points.
    void widen( RT_CHAR *into ) const
    {
        __m128i zero = _mm_setzero_si128(), low = _mm_unpacklo_epi8( bytes, zero ),
                high = _mm_unpackhi_epi8( bytes, zero );
        auto *to = reinterpret_cast<__m128i *>( into );
        _mm_storeu_si128( to, _mm_unpacklo_epi16( low, zero ) );
        _mm_storeu_si128( to + 1, _mm_unpackhi_epi16( low, zero ) );
        _mm_storeu_si128( to + 2, _mm_unpacklo_epi16( high, zero ) );
        _mm_storeu_si128( to + 3, _mm_unpackhi_epi16( high, zero ) );
    }
#else
    char bytes[16];

    static ByteBlock at( const void *from )
    {
        ByteBlock block;
        __builtin_memcpy( block.bytes, from, sizeof block.bytes );
        return block;
    }
    static ByteBlock of( char ch )
    {
        ByteBlock block;
        __builtin_memset( block.bytes, ch, sizeof block.bytes );
        return block;
    }
    template <class MAP>
    static ByteBlock joined( ByteBlock a, ByteBlock b, MAP map )
    {
        for ( int i = 0; i < 16; ++i )
            a.bytes[i] = static_cast<char>( map( a.bytes[i], b.bytes[i] ) );
        return a;
    }
    friend ByteBlock operator|( ByteBlock a, ByteBlock b ) { return joined( a, b, std::bit_or<>() ); }
    friend ByteBlock operator&( ByteBlock a, ByteBlock b ) { return joined( a, b, std::bit_and<>() ); }
    friend ByteBlock same( ByteBlock a, ByteBlock b )
    {
        return joined( a, b, []( char x, char y ) { return x == y ? -1 : 0; } );
    }
    uint32_t mask() const
    {
        uint32_t bits = 0;
        for ( int i = 0; i < 16; ++i )
            bits |= static_cast<uint32_t>( bytes[i] >> 7 & 1 ) << i;
        return bits;
    }
    void store( void *into ) const { __builtin_memcpy( into, bytes, sizeof bytes ); }
    void widen( RT_CHAR *into ) const
    {
        for ( int i = 0; i < 16; ++i )
            into[i] = static_cast<unsigned char>( bytes[i] );
    }
#endif
};

// Four code points, to check whether many are ASCII.
#ifdef RT_SCAN_VECTORS
struct FourChars
{
    __m128i chs;

    static FourChars at( const RT_CHAR *from )
    {
        return { _mm_loadu_si128( reinterpret_cast<const __m128i *>( from ) ) };
    }
    friend FourChars operator|( FourChars a, FourChars b ) { return { _mm_or_si128( a.chs, b.chs ) }; }
    bool areAscii() const
    {
        __m128i beyond = _mm_and_si128( chs, _mm_set1_epi32( ~0x7F ) );
        return _mm_movemask_epi8( _mm_cmpeq_epi32( beyond, _mm_setzero_si128() ) ) == 0xFFFF;
    }
};

// Writes sixteen code points as bytes and returns their union, which tells whether all are ASCII. Only then are the
// bytes valid.
inline FourChars narrow( const RT_CHAR *from, unsigned char *into )
{
    auto at = [from]( int i ) { return FourChars::at( from + i ).chs; };
    __m128i a = at( 0 ), b = at( 4 ), c = at( 8 ), d = at( 12 );
    _mm_storeu_si128( reinterpret_cast<__m128i *>( into ),
                      _mm_packus_epi16( _mm_packs_epi32( a, b ), _mm_packs_epi32( c, d ) ) );
    return { _mm_or_si128( _mm_or_si128( a, b ), _mm_or_si128( c, d ) ) };
}
#else
struct FourChars
{
    uint64_t chs[2];

    static FourChars at( const RT_CHAR *from )
    {
        FourChars four;
        __builtin_memcpy( four.chs, from, sizeof four.chs );
        return four;
    }
    friend FourChars operator|( FourChars a, FourChars b )
    {
        return { { a.chs[0] | b.chs[0], a.chs[1] | b.chs[1] } };
    }
    bool areAscii() const { return ( ( chs[0] | chs[1] ) & 0xFFFFFF80FFFFFF80 ) == 0; }
};

inline FourChars narrow( const RT_CHAR *from, unsigned char *into )
{
    FourChars four[4];
    __builtin_memcpy( four, from, sizeof four );
    for ( int i = 0; i < 16; ++i )
        into[i] = static_cast<unsigned char>( from[i] );
    return ( four[0] | four[1] ) | ( four[2] | four[3] );
}
#endif

// Where the byte first occurs, or the end.
inline const char *findByte( const char *at, const char *end, char ch )
{
    for ( ; at < end; at += 16 )
        if ( uint32_t found = same( ByteBlock::at( at ), ByteBlock::of( ch ) ).mask() ) [[likely]]
        {
            at += std::countr_zero( found );
            break;
        }
    return at < end ? at : end;
}

// Copies bytes to a place with slack of its own.
inline void copy( const void *from, int64_t length, void *into )
{
    for ( int64_t at = 0; at < length; at += 16 )
        ByteBlock::at( static_cast<const char *>( from ) + at ).store( static_cast<char *>( into ) + at );
}

// Writes ASCII as code points, to a place with slack of its own.
inline void widen( const char *from, int64_t length, RT_CHAR *into )
{
    for ( int64_t at = 0; at < length; at += 16 )
        ByteBlock::at( from + at ).widen( into + at );
}

// The same, from and to places without slack.
inline void widenExactly( const char *from, int64_t length, RT_CHAR *into )
{
    int64_t at = 0;
    for ( ; length - at >= 16; at += 16 )
        ByteBlock::at( from + at ).widen( into + at );
    // The rest is converted in a block that overlaps the one before.
    if ( at && at < length )
        ByteBlock::at( from + length - 16 ).widen( into + length - 16 );
    else
        for ( ; at < length; ++at )
            into[at] = static_cast<unsigned char>( from[at] );
}

} // namespace rt
