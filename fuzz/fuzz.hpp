// What the fuzz targets share. Each target states properties that hold for every input.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string_view>

#include "rt/rt_frame.hpp"
#include "telsx/telsx.h"

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size );

namespace fuzz
{

using rt::adopt;
using rt::Ref;

inline void require( bool holds, const char *property )
{
    if ( !holds )
    {
        std::fprintf( stderr, "fuzz: does not hold: %s\n", property );
        std::abort();
    }
}

inline Ref<RT_BUFFER> buffer( std::string_view bytes )
{
    return adopt( rtBufferCreateFromBytesCopy( bytes.data(), static_cast<int64_t>( bytes.size() ) ) );
}

inline std::string_view bytes( const Ref<RT_BUFFER> &from )
{
    return { static_cast<const char *>( rtBufferBacking( from.get() ) ),
             static_cast<std::size_t>( rtBufferLength( from.get() ) ) };
}

// The text in UTF-8, or, if it is none, in 8-bit characters.
inline Ref<RT_STRING> text( std::string_view bytes )
{
    auto length = static_cast<int64_t>( bytes.size() );
    auto utf8 = adopt( rtStringTryCreateFromUtf8( bytes.data(), length ) );
    return utf8 ? utf8 : adopt( rtStringCreateFromCstr( bytes.data(), length ) );
}

// Runs a test of the entry of a list at the place that a byte says. A tilde means all entries, so that seeds
// outlast changes of the list.
template <class LIST, class TEST>
void forPicked( uint8_t byte, const LIST &list, TEST test )
{
    if ( byte != '~' )
        test( list[byte % std::size( list )] );
    else
        for ( const auto &entry : list )
            test( entry );
}

// A property that broken found, of the thing of that name.
inline void requireNone( const char *broken, std::string_view name )
{
    if ( broken )
    {
        std::fprintf( stderr, "fuzz: %.*s\n", static_cast<int>( name.size() ), name.data() );
        require( false, broken );
    }
}

// The module runs as long as the process.
struct Module
{
    Module() { rtModuleStart( telsxModule() ); }
    ~Module() { rtModuleStop( telsxModule() ); }
};

// Runs a test of one input, which must leave no object behind.
template <class TEST>
int run( TEST test )
{
    static Module module;
    int64_t before = rtObjsAlive();
    test();
    require( rtObjsAlive() == before, "every object is released" );
    return 0;
}

} // namespace fuzz
