// Every decoder and encoder of structured values on any text: the type's name, a line feed, the text.
#include "values.hpp"
#include "fuzz.hpp"
#include "mutator.hpp"

using namespace fuzz;

const std::vector<std::string_view> fuzz::names = namesOf( values::all );

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    return runNamed( data, size, values::all,
                     []( const values::Type &type, std::string_view input )
                     { return values::broken( type, rt::textOf( text( input ) ) ); } );
}
