// Stands in for the fuzzer where there is none: runs a target over all files of the folders given, each in a heap block
// of exactly its size, so that a sanitizer sees a read past the end.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>

#include "fuzz.hpp"

int main( int argc, char **argv )
{
    int inputs = 0;
    for ( int i = 1; i < argc; ++i )
    {
        for ( const auto &entry : std::filesystem::recursive_directory_iterator( argv[i] ) )
        {
            if ( !entry.is_regular_file() )
                continue;
            std::cerr << entry.path().string() << '\n';
            std::ifstream file( entry.path(), std::ios::binary );
            std::string bytes( std::istreambuf_iterator<char>( file ), {} );
            auto block = std::make_unique<uint8_t[]>( bytes.size() );
            std::copy( bytes.begin(), bytes.end(), block.get() );
            LLVMFuzzerTestOneInput( block.get(), bytes.size() );
            ++inputs;
        }
    }
    std::cout << inputs << " inputs\n";
    return inputs ? 0 : 1;
}
