// Changes inputs whose first line names what is tested: the fuzzer's own changes apply to what follows that line. Now
// and then, and if the name is not in the list, another name replaces it.
#include <algorithm>
#include <cstring>
#include <string>

#include "mutator.hpp"

std::size_t LLVMFuzzerCustomMutator( uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed )
{
    std::string_view input( reinterpret_cast<const char *>( data ), size ), rest = input;
    std::string name( input.substr( 0, input.find( '\n' ) ) );
    rest.remove_prefix( std::min( name.size() + 1, size ) );
    if ( seed % 16 == 0 || std::ranges::find( fuzz::names, name ) == fuzz::names.end() )
        name = fuzz::names[seed / 16 % fuzz::names.size()];
    if ( name.size() + 2 > maxSize )
        return size;
    name += '\n';
    std::size_t most = maxSize - name.size(), length = std::min( rest.size(), most );
    std::memmove( data + name.size(), rest.data(), length );
    std::copy( name.begin(), name.end(), data );
    return name.size() + LLVMFuzzerMutate( data + name.size(), length, most );
}
