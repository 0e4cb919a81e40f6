// Buffers.
#include "model.hpp"

using namespace support;
using model::Random;

using Side = model::Side<RT_BUFFER, std::string>;

static void step( Side &side, const Side &other, Random &random )
{
    // The source may be the buffer itself.
    const std::string source = other.model;
    std::string &model = side.model;
    RT_BUFFER *buffer = side.real.address(), from = other.real.get();
    auto first = static_cast<std::size_t>( random.upTo( source.size() ) ),
         count = static_cast<std::size_t>( random.upTo( source.size() - first ) ),
         place = static_cast<std::size_t>( random.upTo( model.size() ) ),
         kept = static_cast<std::size_t>( random.upTo( model.size() - place ) );
    auto offset = static_cast<int64_t>( first ), length = static_cast<int64_t>( count ),
         at = static_cast<int64_t>( place );
    std::string bytes( static_cast<std::size_t>( random.below( random.below( 50 ) ? 20 : 2000 ) ),
                       static_cast<char>( random.below( 256 ) ) );
    const std::function<void()> actions[] = {
        [&] { rtBufferAppend( buffer, from ), model += source; },
        [&] { rtBufferAppendInner( buffer, from, offset, length ), model += source.substr( first, count ); },
        [&]
        {
            rtBufferAppendOuter( buffer, from, offset, length );
            model += source.substr( 0, first ) + source.substr( first + count );
        },
        [&] { rtBufferAppendLeading( buffer, from, offset ), model += source.substr( 0, first ); },
        [&]
        { rtBufferAppendTrailing( buffer, from, offset ), model += source.substr( source.size() - first ); },
        [&] { rtBufferAppendBytes( buffer, bytes.data(), std::ssize( bytes ) ), model += bytes; },
        [&]
        {
            auto own = static_cast<const char *>( rtBufferBacking( *buffer ) );
            rtBufferAppendBytes( buffer, own + place, static_cast<int64_t>( kept ) );
            model += model.substr( place, kept );
        },
        [&] { rtBufferDelLeading( buffer, at ), model.erase( 0, place ); },
        [&] {
            rtBufferDelOuter( buffer, at, static_cast<int64_t>( kept ) ), model = model.substr( place, kept );
        },
    };
    model.size() > 5000 ? std::end( actions )[-1]() : random.act( actions );
}

TEST( RtBuffer, ActsLikeItsModel )
{
    auto same = []( const Side &side )
    {
        std::string read( side.model.size(), '-' );
        rtBufferRead( side.real.get(), 0, read.data(), std::ssize( read ) );
        EXPECT_EQ( side.model, read );
        EXPECT_EQ( side.model, bytes( side.real ) );
    };
    model::run<std::string>( adopt( rtBufferCreate() ), 50000, step, same );
}

TEST( RtBuffer, ComparesBytesThenLengths )
{
    auto make = []( const char *bytes ) { return rtBufferObj( buffer( bytes ).take() ); };
    model::expectAscending( make, "", "a", "ab", "b", "\x7F", "\x80", "\xFF" );
}

TEST( RtBuffer, HasTheSpaceThatItTells )
{
    Ref<RT_BUFFER> some = buffer( std::string( 1000, 'a' ) );
    rtBufferDelLeading( some.address(), 700 );
    int64_t space = rtBufferSpace( some.get() );
    EXPECT_GE( space, 700 );
    rtBufferAppendBytes( some.address(), std::string( 700, 'b' ).data(), 700 );
    EXPECT_EQ( space - 700, rtBufferSpace( some.get() ) );
    EXPECT_EQ( std::string( 300, 'a' ) + std::string( 700, 'b' ), bytes( some ) );
}

// Each of these would take minutes if deleting or appending moved all bytes each time.
TEST( RtBuffer, StaysFastWhileLarge )
{
    constexpr int64_t size = 8'000'000, piece = 40;
    Ref<RT_BUFFER> large = buffer( std::string( size, 'a' ) );
    for ( int64_t i = 0; i < size / piece; ++i )
    {
        rtBufferDelLeading( large.address(), 1 );
        rtBufferAppendBytes( large.address(), "b", 1 );
    }
    EXPECT_EQ( size, rtBufferLength( large.get() ) );
    Ref<RT_BUFFER> drained = adopt( rtBufferCreate() );
    while ( rtBufferLength( large.get() ) )
    {
        rtBufferAppendLeading( drained.address(), large.get(), piece );
        rtBufferDelLeading( large.address(), piece );
    }
    EXPECT_EQ( size, rtBufferLength( drained.get() ) );
}

TEST( RtBuffer, AbortsForPartsThatAreNotInside )
{
    Ref<RT_BUFFER> some = buffer( "abc" );
    rtBufferRead( some.get(), 3, nullptr, 0 );
    EXPECT_EQ( "", bytes( adopt( rtBufferCreateFromBytesCopy( nullptr, 0 ) ) ) );
    const char *inSource = "inside( source, offset, length )";
    EXPECT_ABORT( rtBufferAppendInner( some.address(), some.get(), 2, 2 ), inSource );
    EXPECT_ABORT( rtBufferAppendOuter( some.address(), some.get(), INT64_MAX, 1 ), inSource );
    EXPECT_ABORT( rtBufferDelLeading( some.address(), 4 ), "inside( *buffer, 0, length )" );
    EXPECT_ABORT( rtBufferRead( some.get(), 0, nullptr, 1 ), "bytes || length == 0" );
}
