// Runs of characters in a set, as many at a time as the processor allows.
#include "rt/rt_scan.hpp"

#include <algorithm>

#ifdef RT_SCAN_VECTORS
#include <cpuid.h>
#include <tmmintrin.h>

#include <atomic>

#define TARGET __attribute__( ( target( "ssse3" ) ) )

// Code points as bytes. Those above 0xFF become NUL or a byte from 0x80 on, none of which is in any set.
TARGET static inline __m128i load4( const RT_CHAR *chs )
{
    __m128i words = _mm_loadu_si128( reinterpret_cast<const __m128i *>( chs ) );
    words = _mm_packs_epi32( words, words );
    return _mm_packus_epi16( words, words );
}
TARGET static inline __m128i load8( const RT_CHAR *chs )
{
    auto *four = reinterpret_cast<const __m128i *>( chs );
    __m128i words = _mm_packs_epi32( _mm_loadu_si128( four ), _mm_loadu_si128( four + 1 ) );
    return _mm_packus_epi16( words, words );
}
TARGET static inline __m128i load16( const RT_CHAR *chs )
{
    auto *four = reinterpret_cast<const __m128i *>( chs );
    return _mm_packus_epi16( _mm_packs_epi32( _mm_loadu_si128( four ), _mm_loadu_si128( four + 1 ) ),
                             _mm_packs_epi32( _mm_loadu_si128( four + 2 ), _mm_loadu_si128( four + 3 ) ) );
}

// A bit for each byte, the lowest for the first byte, set if the byte is not in the set with these rows.
TARGET static inline uint32_t othersOf( __m128i rows, __m128i bytes )
{
    // The upper half is for bytes from 0x80 on and therefore empty.
    const __m128i columns = _mm_setr_epi8( 1, 2, 4, 8, 16, 32, 64, -128, 0, 0, 0, 0, 0, 0, 0, 0 );
    __m128i high = _mm_and_si128( _mm_srli_epi16( bytes, 4 ), _mm_set1_epi8( 0x0F ) );
    __m128i found = _mm_and_si128( _mm_shuffle_epi8( rows, bytes ), _mm_shuffle_epi8( columns, high ) );
    return static_cast<uint32_t>( _mm_movemask_epi8( _mm_cmpeq_epi8( found, _mm_setzero_si128() ) ) );
}

// What is left after the whole blocks is checked in a block that ends with the text and overlaps the one before.
TARGET static int64_t vectorRunOf( const rt::CharSet &set, const RT_CHAR *chs, int64_t length )
{
    const __m128i rows = _mm_loadu_si128( reinterpret_cast<const __m128i *>( set.rows ) );
    if ( length >= 16 )
    {
        int64_t at = 0;
        for ( ; length - at >= 16; at += 16 )
            if ( uint32_t others = othersOf( rows, load16( chs + at ) ) )
                return at + std::countr_zero( others );
        uint32_t others = othersOf( rows, load16( chs + length - 16 ) );
        return others ? length - 16 + std::countr_zero( others ) : length;
    }
    if ( length >= 8 )
    {
        uint32_t others = ( othersOf( rows, load8( chs ) ) & 0xFF )
                          | othersOf( rows, load8( chs + length - 8 ) ) << ( length - 8 );
        return std::min<int64_t>( std::countr_zero( others ), length );
    }
    if ( length >= 4 )
    {
        uint32_t others = ( othersOf( rows, load4( chs ) ) & 0xF )
                          | othersOf( rows, load4( chs + length - 4 ) ) << ( length - 4 );
        return std::min<int64_t>( std::countr_zero( others ), length );
    }
    return rt::plainRunOf( set, chs, length );
}

enum class Vectors
{
    unknown,
    absent,
    present
};

[[gnu::noinline]] static Vectors askProcessor()
{
    unsigned a, b, c = 0, d;
    return __get_cpuid( 1, &a, &b, &c, &d ) && ( c & bit_SSSE3 ) ? Vectors::present : Vectors::absent;
}

int64_t rt___RunOf( const uint8_t *set, const RT_CHAR *chs, int64_t length )
{
    static constinit std::atomic vectors = Vectors::unknown;
    auto &of = *reinterpret_cast<const rt::CharSet *>( set );
    if ( vectors.load( std::memory_order_relaxed ) == Vectors::present ) [[likely]]
        return vectorRunOf( of, chs, length );
    if ( vectors.load( std::memory_order_relaxed ) == Vectors::unknown )
        vectors.store( askProcessor(), std::memory_order_relaxed );
    return rt::plainRunOf( of, chs, length );
}
#else
int64_t rt___RunOf( const uint8_t *set, const RT_CHAR *chs, int64_t length )
{
    return rt::plainRunOf( *reinterpret_cast<const rt::CharSet *>( set ), chs, length );
}
#endif
