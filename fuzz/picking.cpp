// How inputs are changed whose first byte picks what is tested: by the fuzzer's own changes, but a tilde, which
// picks all, becomes another byte. All is tested with the seeds once; one at a time is faster.
#include "mutator.hpp"

std::size_t LLVMFuzzerCustomMutator( uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed )
{
    size = LLVMFuzzerMutate( data, size, maxSize );
    if ( size && data[0] == '~' )
        data[0] = static_cast<uint8_t>( seed );
    return size;
}
