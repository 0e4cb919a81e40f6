// Every decoder and encoder of structured values on any text.
//
// The first byte picks the type; behind it stands the text.
#include "values.hpp"
#include "fuzz.hpp"

using namespace fuzz;

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    if ( size == 0 )
        return 0;
    return run(
        [&]
        {
            Ref<RT_STRING> input = text( { reinterpret_cast<const char *>( data ) + 1, size - 1 } );
            forPicked( data[0], values::all,
                       [&]( const values::Type &type )
                       { requireNone( values::broken( type, rt::textOf( input ) ), type.name ); } );
        } );
}
