// Scanning many characters at a time finds what scanning one by one finds.
#include "rt/rt_scan.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace
{

std::mt19937 random_( 7 );

uint32_t below( uint32_t limit )
{
    return std::uniform_int_distribution<uint32_t>( 0, limit - 1 )( random_ );
}

// Mostly members of the set, in a block of exactly this size.
std::vector<RT_CHAR> textFor( const rt::CharSet &set, std::size_t length )
{
    static constexpr RT_CHAR strange[] = { 0,      0x7F,   0x80,    0xFF,       0x141,
                                           0x7FFF, 0x8041, 0x10041, 0x80000041, 0xFFFFFF41 };
    std::vector<RT_CHAR> text( length );
    for ( RT_CHAR &ch : text )
        do
            ch = below( 0x80 );
        while ( !set.has( ch ) && below( 40 ) );
    if ( length && below( 2 ) )
        text[below( static_cast<uint32_t>( length ) )] = strange[below( std::size( strange ) )];
    return text;
}

TEST( Scan, FindsRunsOfASetAsOneByOne )
{
    for ( int round = 0; round < 4000; ++round )
    {
        rt::CharSet set;
        for ( unsigned char ch = 1; ch < 0x80; ++ch )
            if ( below( 3 ) )
                set.add( ch );
        std::vector<RT_CHAR> text = textFor( set, below( 50 ) );
        auto length = static_cast<int64_t>( text.size() );
        ASSERT_EQ( rt::plainRunOf( set, text.data(), length ), set.runOf( text.data(), length ) );
    }
}

TEST( Scan, FindsBytesWhereTheyAre )
{
    for ( std::size_t length = 0; length < 70; ++length )
        for ( std::size_t at = 0; at <= length; ++at )
        {
            std::string text( length + rt::scanSlack, 'x' );
            text[at] = '\r';
            const char *begin = text.data(), *end = begin + length;
            ASSERT_EQ( begin + at, rt::findByte( begin, end, '\r' ) );
        }
}

TEST( Scan, CopiesAndWidens )
{
    for ( std::size_t length = 0; length < 70; ++length )
    {
        std::string text( length + rt::scanSlack, '\0' ), copy = text;
        for ( std::size_t i = 0; i < length; ++i )
            text[i] = static_cast<char>( i + 0x70 );
        std::vector<RT_CHAR> wide( text.size() );
        rt::widen( text.data(), static_cast<int64_t>( length ), wide.data() );
        rt::copy( text.data(), static_cast<int64_t>( length ), copy.data() );
        for ( std::size_t i = 0; i < length; ++i )
        {
            ASSERT_EQ( text[i], copy[i] );
            ASSERT_EQ( i + 0x70, wide[i] );
        }
    }
}

TEST( Scan, NarrowsAndTellsWhetherThatWasRight )
{
    for ( RT_CHAR odd : { RT_CHAR( 'a' ), RT_CHAR( 0x7F ), RT_CHAR( 0x80 ), RT_CHAR( 0x100 ),
                          RT_CHAR( 0x8041 ), RT_CHAR( 0x10FFFF ), RT_CHAR( 0x80000000 ) } )
        for ( std::size_t at = 0; at < 16; ++at )
        {
            std::vector<RT_CHAR> text( 16, 'b' );
            text[at] = odd;
            unsigned char bytes[16];
            ASSERT_EQ( odd < 0x80, rt::narrow( text.data(), bytes ).areAscii() ) << odd;
            for ( std::size_t i = 0; odd < 0x80 && i < 16; ++i )
                ASSERT_EQ( text[i], bytes[i] );
        }
}

} // namespace
