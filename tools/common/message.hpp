// What the program telsx and the examples share: the library's types, and its texts as they may go to a terminal.
#pragma once

#include <cstdint>
#include <cstdio>
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

inline Buffer toBuffer( std::string_view bytes )
{
    return Buffer( rtBufferCreateFromBytesCopy( bytes.data(), static_cast<int64_t>( bytes.size() ) ) );
}

inline std::string toBytes( const Buffer &buffer )
{
    return std::string( static_cast<const char *>( rtBufferBacking( buffer.get() ) ),
                        static_cast<std::size_t>( rtBufferLength( buffer.get() ) ) );
}

// How many bytes at the start of UTF-8 are a character with which a sender could steer a terminal or turn the direction
// of the text around (RFC 3987, 4.1), 0 for none.
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

// The bytes as they may go to a terminal. Steering characters become "\x1b" and the like, and so does every byte outside
// ASCII unless they are known to be UTF-8.
inline std::string printable( std::string_view bytes, bool utf8 )
{
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

// The same for bytes that may be UTF-8, and for a text of the library.
inline std::string printable( std::string_view bytes )
{
    return printable( bytes, bool( toString( bytes ) ) );
}
inline std::string printable( const String &text ) { return printable( toUtf8( text ), true ); }
