// What the examples share: reading bytes, and showing a message on a terminal.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>
#include <string_view>

#include <telsx/telsx.hpp>

using telsx::Owned;
using telsx::toString;
using telsx::toUtf8;

using Buffer = Owned<RT_BUFFER>;
using Message = Owned<TELSX_MESSAGE>;
using String = Owned<RT_STRING>;

// The library may be called while one of these exists.
struct Library
{
    Library() { rtModuleStart( telsxModule() ); }
    ~Library() { rtModuleStop( telsxModule() ); }
};

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

inline Buffer toBuffer( std::string_view bytes )
{
    return Buffer( rtBufferCreateFromBytesCopy( bytes.data(), static_cast<int64_t>( bytes.size() ) ) );
}

inline std::string toBytes( const Buffer &buffer )
{
    return std::string( static_cast<const char *>( rtBufferBacking( buffer.get() ) ),
                        static_cast<std::size_t>( rtBufferLength( buffer.get() ) ) );
}

// The number of bytes at the start of the UTF-8 that form a character with which a sender could control a terminal or
// reverse the direction of the text (RFC 3987, 4.1), or 0.
inline std::size_t steeringBytes( std::string_view utf8 )
{
    auto ch = static_cast<unsigned char>( utf8[0] );
    if ( ch < 0x20 || ch == 0x7F )
        return 1;
    if ( ch == 0xC2 && static_cast<unsigned char>( utf8[1] ) < 0xA0 ) // U+0080 to U+009F
        return 2;
    for ( std::string_view mark :
          { "\xD8\x9C", "\xE2\x80\x8E", "\xE2\x80\x8F", "\xE2\x80\xAA", "\xE2\x80\xAB", "\xE2\x80\xAC",
            "\xE2\x80\xAD", "\xE2\x80\xAE", "\xE2\x81\xA6", "\xE2\x81\xA7", "\xE2\x81\xA8", "\xE2\x81\xA9" } )
        if ( utf8.substr( 0, mark.size() ) == mark )
            return mark.size();
    return 0;
}

// The bytes as they may go to a terminal. Control characters become "\x1b" and the like, and so does every byte outside
// ASCII if the bytes are not UTF-8.
inline std::string printable( std::string_view bytes )
{
    bool utf8 = bool( toString( bytes ) );
    std::string result;
    for ( std::size_t i = 0; i < bytes.size(); )
    {
        auto ch = static_cast<unsigned char>( bytes[i] );
        std::size_t escaped = utf8 ? steeringBytes( bytes.substr( i ) ) : ch < 0x20 || ch >= 0x7F;
        if ( !escaped )
            result += bytes[i++];
        for ( std::size_t end = i + escaped; i < end; ++i )
        {
            char escape[5];
            std::snprintf( escape, sizeof escape, "\\x%02x", static_cast<unsigned char>( bytes[i] ) );
            result += escape;
        }
    }
    return result;
}

// The same for a text of the library.
inline std::string printable( const String &text ) { return printable( toUtf8( text ) ); }

// Prints the start line's fields, every header with its lines, and the size of the body.
inline void show( const Message &message )
{
    if ( telsxMessageIsRequest( message.get() ) )
    {
        std::cout << "request\n"
                  << "  method   " << printable( Owned( telsxMessageRequestMethod( message.get() ) ) ) << '\n'
                  << "  target   " << printable( Owned( telsxMessageRequestIri( message.get() ) ) ) << '\n';
    }
    else
    {
        std::cout << "response\n"
                  << "  status   " << telsxMessageResponseStatusCode( message.get() ) << '\n'
                  << "  phrase   " << printable( Owned( telsxMessageResponseReasonPhrase( message.get() ) ) )
                  << '\n';
    }
    Owned version( telsxMessageVersion( message.get() ) );
    std::cout << "  version  " << printable( Owned( telsxVersionToString( version.get() ) ) ) << '\n';

    std::cout << "headers\n";
    Owned headers( telsxMessageHeadersVector( message.get() ) );
    for ( int64_t i = 0; i < rtVectorLength( headers.get() ); ++i )
    {
        Owned object( rtVectorObjAt( headers.get(), i ) );
        TELSX_MESSAGE_HEADER header = telsxMessageHeaderFrom( object.get() ); // borrowed from the object
        std::cout << "  " << printable( Owned( telsxMessageHeaderName( header ) ) ) << '\n';
        for ( int64_t line = 0; line < telsxMessageHeaderLinesLength( header ); ++line )
            std::cout << "    " << printable( Owned( telsxMessageHeaderLineAt( header, line ) ) ) << '\n';
    }

    Owned body( telsxMessageBody( message.get() ) );
    std::cout << "body\n  " << ( body ? rtBufferLength( body.get() ) : 0 ) << " bytes\n";
}
