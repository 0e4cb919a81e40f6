// Every skipper, predicate, normaliser, encoder and decoder of the elements on any text: the element's name, a line
// feed, and UTF-8. Bytes that are not UTF-8 make code points of three bytes each, so that every text can be expressed.
#include "elements.hpp"
#include "fuzz.hpp"
#include "mutator.hpp"

using namespace fuzz;

const std::vector<std::string_view> fuzz::names = namesOf( elements::all );

static Ref<RT_STRING> decode( std::string_view bytes )
{
    if ( auto text = adopt( rtStringTryCreateFromUtf8( bytes.data(), std::ssize( bytes ) ) ) )
        return text;
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    for ( std::size_t i = 2; i < bytes.size(); i += 3 )
    {
        auto byte = [&]( std::size_t at ) { return static_cast<unsigned char>( bytes[at] ); };
        auto ch = static_cast<RT_CHAR>( byte( i - 2 ) << 16 | byte( i - 1 ) << 8 | byte( i ) );
        rtStringAppendChar( text.address(), ch % 0x110000 );
    }
    return text;
}

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    return runNamed( data, size, elements::all,
                     []( const elements::Element &element, std::string_view input )
                     { return elements::broken( element, rt::textOf( decode( input ) ) ); } );
}
