#include "json.hpp"

#include <cstdio>
#include <utility>

#include "common/message.hpp"

namespace tools
{

void Json::separate()
{
    if ( !std::exchange( first, false ) )
        out += ',';
}

Json &Json::begin( char bracket )
{
    separate();
    out += bracket;
    first = true;
    return *this;
}

Json &Json::end( char bracket )
{
    out += bracket;
    first = false;
    return *this;
}

Json &Json::name( std::string_view name )
{
    text( name );
    out += ':';
    first = true;
    return *this;
}

Json &Json::text( std::string_view utf8 )
{
    separate();
    out += '"';
    String string = ::toString( utf8 );
    if ( !string ) // each byte as a character, of which the others than ASCII are told by U+FFFD
    {
        std::u32string chars;
        for ( char ch : utf8 )
            chars += static_cast<unsigned char>( ch ) < 0x80 ? static_cast<char32_t>( ch ) : U'\uFFFD';
        string = telsx::toString( chars );
    }
    std::string bytes = toUtf8( string );
    for ( std::size_t i = 0; i < bytes.size(); )
    {
        std::size_t steering = steeringBytes( std::string_view( bytes ).substr( i ) );
        if ( steering == 0 )
        {
            if ( bytes[i] == '"' || bytes[i] == '\\' )
                out += '\\';
            out += bytes[i++];
            continue;
        }
        // All of these are below U+10000.
        Owned one = ::toString( std::string_view( bytes ).substr( i, steering ) );
        char escape[8];
        std::snprintf( escape, sizeof escape, "\\u%04x", static_cast<unsigned>( telsx::toView( one )[0] ) );
        out += escape;
        i += steering;
    }
    out += '"';
    return *this;
}

Json &Json::number( int64_t number ) { return literal( std::to_string( number ) ); }

Json &Json::literal( std::string_view json )
{
    separate();
    out += json;
    return *this;
}

std::string Json::take()
{
    first = true;
    return std::exchange( out, {} );
}

} // namespace tools
