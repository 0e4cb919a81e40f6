// What the examples share besides tools/common: reading bytes, and showing a message on a terminal.
#pragma once

#include <cstring>
#include <iostream>

#include "text_listing.hpp"

// The whole of a file, of standard input for "-"; false and errno if it can't be read.
inline bool readAll( const char *name, std::string &bytes )
{
    std::FILE *file = std::strcmp( name, "-" ) == 0 ? stdin : std::fopen( name, "rb" );
    if ( !file )
        return false;
    bytes.clear();
    char piece[4096];
    while ( std::size_t length = std::fread( piece, 1, sizeof piece, file ) )
        bytes.append( piece, length );
    bool whole = !std::ferror( file );
    std::fclose( file );
    return whole;
}

// Prints the start line's fields, every header with its lines, and the size of the body.
inline void show( const Message &message )
{
    TextListing listing( std::cout );
    listRaw( message, listing );
}
