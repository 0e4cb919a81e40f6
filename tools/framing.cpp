#include "framing.hpp"

#include <algorithm>

namespace tools
{

namespace
{

constexpr std::size_t maxStartLine = 8192; // a longer one is not taken for one

bool isBlank( char ch ) { return ch == ' ' || ch == '\t'; }
bool isLineEnd( char ch ) { return ch == '\r' || ch == '\n'; }
char lowered( char ch ) { return ch >= 'A' && ch <= 'Z' ? static_cast<char>( ch + 0x20 ) : ch; }

bool equalsLower( std::string_view text, std::string_view lower )
{
    return std::equal( text.begin(), text.end(), lower.begin(), lower.end(),
                       []( char a, char b ) { return lowered( a ) == b; } );
}

// Without blanks and line ends on both sides.
std::string_view trimmed( std::string_view text )
{
    auto drops = []( char ch ) { return isBlank( ch ) || isLineEnd( ch ); };
    while ( !text.empty() && drops( text.front() ) )
        text.remove_prefix( 1 );
    while ( !text.empty() && drops( text.back() ) )
        text.remove_suffix( 1 );
    return text;
}

} // namespace

Start startOf( std::string_view bytes )
{
    while ( !bytes.empty() && isLineEnd( bytes.front() ) )
        bytes.remove_prefix( 1 );
    std::string_view line = bytes.substr( 0, maxStartLine );
    std::size_t end = line.find( '\n' );
    line = line.substr( 0, end );
    std::string_view first = line.substr( 0, 4 );
    if ( std::any_of( first.begin(), first.end(),
                      []( char ch ) { return static_cast<unsigned char>( ch ) < ' '; } ) )
        return Start::No;
    if ( end == std::string_view::npos )
        return bytes.size() < maxStartLine ? Start::Unknown : Start::No;
    line = trimmed( line );
    std::string_view last = line.substr( line.find_last_of( ' ' ) + 1 );
    bool found = equalsLower( first, "sip/" ) || equalsLower( last.substr( 0, 4 ), "sip/" );
    return found ? Start::Yes : Start::No;
}

bool isKeepAlive( std::string_view bytes )
{
    constexpr std::string_view magicCookie = "\x21\x12\xA4\x42"; // RFC 8489, 5
    return ( bytes.size() >= 20 && static_cast<unsigned char>( bytes[0] ) < 4
             && bytes.substr( 4, 4 ) == magicCookie )
           || std::all_of( bytes.begin(), bytes.end(),
                           []( char ch ) { return isLineEnd( ch ) || isBlank( ch ) || ch == '\0'; } );
}

std::optional<std::string_view> headerValue( std::string_view message, std::string_view name,
                                             std::string_view compact )
{
    // The first line is the start line.
    for ( std::size_t at = message.find( '\n' ); at != std::string_view::npos; at = message.find( '\n', at ) )
    {
        std::string_view rest = message.substr( ++at );
        if ( rest.empty() || isLineEnd( rest[0] ) )
            break;
        // Most lines are told apart by their first letter.
        char first = lowered( rest[0] );
        if ( first != name[0] && ( compact.empty() || first != compact[0] ) )
            continue;
        std::size_t colon = rest.substr( 0, name.size() + maxStartLine ).find_first_of( ":\n" );
        if ( colon == std::string_view::npos || rest[colon] != ':' )
            continue;
        std::string_view found = trimmed( rest.substr( 0, colon ) );
        if ( !equalsLower( found, name ) && !equalsLower( found, compact ) )
            continue;
        std::size_t end = colon;
        do
            end = rest.find( '\n', end + 1 );
        while ( end < rest.size() - 1 && isBlank( rest[end + 1] ) );
        return trimmed( rest.substr( colon + 1, end == std::string_view::npos ? end : end - colon - 1 ) );
    }
    return std::nullopt;
}

void Cutter::add( std::string_view piece )
{
    if ( lost )
    {
        // A first line may come in several pieces.
        Start start = startOf( piece );
        if ( start == Start::No && held() == 0 )
            return;
        if ( start == Start::Yes )
            lose();
    }
    if ( begin > bytes.size() / 2 )
    {
        bytes.erase( 0, begin );
        begin = 0;
    }
    bytes += piece;
}

std::optional<Cut> Cutter::next( bool atEnd )
{
    if ( length == unknown && !measure( atEnd ) )
        return std::nullopt;
    if ( kind == Kind::File && held() > length )
    {
        // If no message follows, the bytes belong to this one, which is what is wrong with it.
        std::string_view after = rest().substr( length );
        bool blank = after.find_first_not_of( "\r\n" ) == std::string_view::npos;
        Start start = blank ? Start::Yes : startOf( after );
        if ( start == Start::Unknown && !atEnd )
            return std::nullopt;
        if ( start != Start::Yes )
            length = toTheEnd;
    }
    if ( held() >= length || atEnd )
        return cut( std::min( length, held() ) );
    loseTooLong();
    return std::nullopt;
}

// Finds the length of the message; false if there is none or more bytes must come.
bool Cutter::measure( bool atEnd )
{
    if ( std::size_t lineEnds = std::min( rest().find_first_not_of( "\r\n" ), held() ) )
        skip( lineEnds );
    if ( held() == 0 )
    {
        if ( bytes.capacity() > keptMemory )
            bytes = {};
        else
            bytes.clear();
        begin = 0;
        return false;
    }
    if ( kind == Kind::Stream && searched == 0 )
    {
        Start start = startOf( rest() );
        if ( start == Start::Unknown && !atEnd )
            return false;
        if ( lost && start != Start::Yes )
        {
            lose();
            return false;
        }
        // What is no message is given out once, so that somebody can tell what it is.
        lost = start == Start::No;
        if ( lost )
        {
            length = held();
            return true;
        }
    }

    std::size_t end = bytes.find( "\r\n\r\n", begin + searched );
    if ( end == std::string::npos )
    {
        searched = held() < 3 ? 0 : held() - 3;
        if ( atEnd )
            length = toTheEnd;
        else
            loseTooLong();
        return atEnd;
    }
    std::size_t head = end + 4 - begin;
    auto value = headerValue( rest().substr( 0, head ), "content-length", "l" );
    bool number =
        value && !value->empty() && value->find_first_not_of( "0123456789" ) == std::string_view::npos;
    lacksLength = kind == Kind::Stream && !value;
    if ( !number )
        length = kind == Kind::File ? toTheEnd : head;
    else
        length = value->size() > 9 ? toTheEnd : head + std::stoul( std::string( *value ) );
    return true;
}

Cut Cutter::cut( std::size_t count )
{
    Cut result{ rest().substr( 0, count ), lacksLength };
    messageOffset = offsetNow;
    messageLine = lineNow;
    messageColumn = columnNow;
    skip( count );
    length = unknown;
    lacksLength = false;
    return result;
}

// Goes past bytes, which stay in memory until more are added.
void Cutter::skip( std::size_t count )
{
    if ( kind == Kind::File )
        for ( char ch : rest().substr( 0, count ) )
        {
            if ( ch == '\n' )
            {
                ++lineNow;
                columnNow = 1;
            }
            else if ( ( ch & 0xC0 ) != 0x80 )
                ++columnNow;
        }
    offsetNow += static_cast<int64_t>( count );
    begin += count;
    searched = 0;
}

void Cutter::loseTooLong()
{
    if ( held() <= maxMessage )
        return;
    ++longOnes;
    lose();
}

void Cutter::lose()
{
    skip( held() );
    bytes = {};
    begin = 0;
    length = unknown;
    lacksLength = false;
    lost = true;
}

} // namespace tools
