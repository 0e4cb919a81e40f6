// Every skipper, predicate, normaliser, encoder and decoder of the elements on any text.
//
// The first byte picks the element, by its lower seven bits. Behind it stands UTF-8; if the eighth bit is
// set, or the rest is no UTF-8, it is code points of three bytes each, so that there is no text that can't be
// said.
#include "elements.hpp"
#include "fuzz.hpp"

using namespace fuzz;

static rt::Ref<RT_STRING> decode( const uint8_t *data, std::size_t size, bool isUtf8 )
{
    auto bytes = reinterpret_cast<const char *>( data );
    if ( isUtf8 )
        if ( auto text = adopt( rtStringTryCreateFromUtf8( bytes, static_cast<int64_t>( size ) ) ) )
            return text;
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    for ( ; size >= 3; data += 3, size -= 3 )
        rtStringAppendChar( text.address(),
                            static_cast<RT_CHAR>( data[0] << 16 | data[1] << 8 | data[2] ) % 0x110000 );
    return text;
}

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    if ( size == 0 )
        return 0;
    static_assert( std::size( elements::all ) <= 0x80 );
    const elements::Element &element = elements::all[( data[0] & 0x7F ) % std::size( elements::all )];
    return run(
        [&]
        {
            Ref<RT_STRING> text = decode( data + 1, size - 1, data[0] < 0x80 );
            if ( const char *property = elements::broken( element, rt::textOf( text ) ) )
            {
                std::fprintf( stderr, "fuzz: %s\n", element.name );
                require( false, property );
            }
        } );
}
