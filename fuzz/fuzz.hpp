// What the fuzz targets share. Each target states properties that hold for every input.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

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

// The text as UTF-8 or, if it is not UTF-8, as 8-bit characters.
inline Ref<RT_STRING> text( std::string_view bytes )
{
    auto length = static_cast<int64_t>( bytes.size() );
    auto utf8 = adopt( rtStringTryCreateFromUtf8( bytes.data(), length ) );
    return utf8 ? utf8 : adopt( rtStringCreateFromCstr( bytes.data(), length ) );
}

// Reports the property that does not hold for the thing with this name, if there is one.
inline void requireNone( const char *broken, std::string_view name )
{
    if ( broken )
    {
        std::fprintf( stderr, "fuzz: %.*s\n", static_cast<int>( name.size() ), name.data() );
        require( false, broken );
    }
}

// The module runs as long as the process does.
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

// Runs a test for the entry of the list that the input's first line names, on what follows that line. A tilde names all
// entries, any other name none.
template <class LIST, class TEST>
int runNamed( const uint8_t *data, std::size_t size, const LIST &list, TEST test )
{
    std::string_view input( reinterpret_cast<const char *>( data ), size ),
        name = input.substr( 0, input.find( '\n' ) );
    input.remove_prefix( std::min( name.size() + 1, size ) );
    for ( const auto &entry : list )
        if ( name == entry.name || name == "~" )
            run( [&] { requireNone( test( entry, input ), entry.name ); } );
    return 0;
}

// The names of a list for naming.cpp.
template <class LIST>
std::vector<std::string_view> namesOf( const LIST &list )
{
    std::vector<std::string_view> names;
    for ( const auto &entry : list )
        names.emplace_back( entry.name );
    return names;
}

} // namespace fuzz
