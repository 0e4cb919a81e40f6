// What the examples share: owning what the library returns, and showing a message on a terminal.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

#include <telsx/telsx.h>

// Who is given a new reference releases it: Owned does so at the end of its block. It may be null.
template <class HANDLE, void ( *RELEASE )( HANDLE )>
using Owned =
    std::unique_ptr<std::remove_pointer_t<HANDLE>, std::integral_constant<void ( * )( HANDLE ), RELEASE>>;

using Buffer = Owned<RT_BUFFER, rtBufferRelease>;
using Decoder = Owned<TELSX_MESSAGE_STREAM_DECODER, telsxMessageStreamDecoderRelease>;
using IpAddress = Owned<NET_ADDRESS, netAddressRelease>;
using Message = Owned<TELSX_MESSAGE, telsxMessageRelease>;
using Object = Owned<RT_OBJ, rtObjRelease>;
using Parameter = Owned<TELSX_GENERIC_PARAM, telsxGenericParamRelease>;
using Parameters = Owned<TELSX_GENERIC_PARAMS, telsxGenericParamsRelease>;
using String = Owned<RT_STRING, rtStringRelease>;
using Vector = Owned<RT_VECTOR, rtVectorRelease>;
using Version = Owned<TELSX_VERSION, telsxVersionRelease>;

// What changes an object takes the address of its handle, and leaves there the handle of the changed one:
// telsxViaSetPort( AddressOf( via ), 5060 ).
template <class OWNED>
class AddressOf
{
public:
    explicit AddressOf( OWNED &object ) : owned( object ), handle( object.release() ) {}
    ~AddressOf() { owned.reset( handle ); }
    AddressOf( const AddressOf & ) = delete;
    AddressOf &operator=( const AddressOf & ) = delete;

    operator typename OWNED::pointer *() { return &handle; }

private:
    OWNED &owned;
    typename OWNED::pointer handle;
};

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

// A text of the library from UTF-8, null if it is none, and back.
inline String toString( std::string_view utf8 )
{
    return String( rtStringTryCreateFromUtf8( utf8.data(), static_cast<int64_t>( utf8.size() ) ) );
}

inline std::string toUtf8( const String &text )
{
    return toBytes( Buffer( rtCharsetStringToBuffer( RT_CHARSET_UTF8, text.get() ) ) );
}

// The bytes as they may go to a terminal. Control characters, with which a sender could steer it, become
// "\x1b" and the like, and so does every byte outside ASCII if the bytes aren't UTF-8.
inline std::string printable( std::string_view bytes )
{
    bool utf8 = toString( bytes ) != nullptr;
    auto at = [bytes]( std::size_t i ) { return static_cast<unsigned char>( bytes[i] ); };
    std::string result;
    for ( std::size_t i = 0; i < bytes.size(); )
    {
        bool highControl = utf8 && at( i ) == 0xC2 && at( i + 1 ) < 0xA0; // U+0080 to U+009F
        bool control = at( i ) < 0x20 || at( i ) == 0x7F || ( !utf8 && at( i ) >= 0x80 );
        for ( std::size_t end = i + ( highControl ? 2 : 1 ); i < end; ++i )
        {
            char escape[5];
            std::snprintf( escape, sizeof escape, "\\x%02x", at( i ) );
            result += control || highControl ? escape : std::string( 1, bytes[i] );
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
                  << "  method   " << printable( String( telsxMessageRequestMethod( message.get() ) ) )
                  << '\n'
                  << "  target   " << printable( String( telsxMessageRequestIri( message.get() ) ) ) << '\n';
    }
    else
    {
        std::cout << "response\n"
                  << "  status   " << telsxMessageResponseStatusCode( message.get() ) << '\n'
                  << "  phrase   " << printable( String( telsxMessageResponseReasonPhrase( message.get() ) ) )
                  << '\n';
    }
    Version version( telsxMessageVersion( message.get() ) );
    std::cout << "  version  " << printable( String( telsxVersionToString( version.get() ) ) ) << '\n';

    std::cout << "headers\n";
    Vector headers( telsxMessageHeadersVector( message.get() ) );
    for ( int64_t i = 0; i < rtVectorLength( headers.get() ); ++i )
    {
        Object object( rtVectorObjAt( headers.get(), i ) );
        TELSX_MESSAGE_HEADER header = telsxMessageHeaderFrom( object.get() ); // borrowed from the object
        std::cout << "  " << printable( String( telsxMessageHeaderName( header ) ) ) << '\n';
        for ( int64_t line = 0; line < telsxMessageHeaderLinesLength( header ); ++line )
            std::cout << "    " << printable( String( telsxMessageHeaderLineAt( header, line ) ) ) << '\n';
    }

    Buffer body( telsxMessageBody( message.get() ) );
    std::cout << "body\n  " << ( body ? rtBufferLength( body.get() ) : 0 ) << " bytes\n";
}
