// The head of a message with places.
#include "telsx/telsx_finding_head.hpp"

#include <algorithm>

#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_skip.h"

namespace telsx
{

static bool isWhite( char ch ) { return ch == ' ' || ch == '\t'; }

static Bytes trimmed( Bytes bytes )
{
    while ( !bytes.empty() && isWhite( bytes.front() ) )
        bytes.remove_prefix( 1 );
    while ( !bytes.empty() && isWhite( bytes.back() ) )
        bytes.remove_suffix( 1 );
    return bytes;
}

RT_CHAR takeChar( Bytes &bytes )
{
    auto begin = reinterpret_cast<const unsigned char *>( bytes.data() );
    RT_CHAR ch = begin[0];
    std::size_t size = 1;
    if ( ch >= 0x80 )
    {
        while ( size < 4 && size < bytes.size() && !rt___Utf8Ok( begin, int64_t( size ) ) )
            ++size;
        if ( rt___Utf8Ok( begin, int64_t( size ) ) )
            rt___Utf8Decode( begin, int64_t( size ), &ch );
        else
        {
            ch = 0xFFFD;
            size = 1;
        }
    }
    bytes.remove_prefix( size );
    return ch;
}

static Bytes takeLine( Bytes &rest )
{
    std::size_t end = rest.find( lineEnd );
    Bytes line = rest.substr( 0, end );
    rest.remove_prefix( end == Bytes::npos ? rest.size() : end + lineEnd.size() );
    return line;
}

static Bytes takeFoldedLine( Bytes &rest )
{
    Bytes line = takeLine( rest );
    while ( !rest.empty() && isWhite( rest.front() ) )
    {
        Bytes fold = takeLine( rest );
        line = { line.data(), static_cast<std::size_t>( fold.data() + fold.size() - line.data() ) };
    }
    return line;
}

// The first line of the headers is no fold, whatever it begins with.
Bytes lineAround( Bytes message, int64_t place )
{
    std::size_t firstHeader = message.find( lineEnd ) + lineEnd.size(), begin = std::size_t( place );
    do
        begin = message.rfind( lineEnd, begin - lineEnd.size() - 1 ) + lineEnd.size();
    while ( begin > firstHeader && isWhite( message[begin] ) );
    Bytes rest = message.substr( begin );
    return takeFoldedLine( rest );
}

// A fold may stand between the name and the colon.
static int64_t numberOfName( Bytes line )
{
    std::size_t begin = line.find_first_not_of( " \t\r\n" ), colon = line.find( ':' );
    if ( begin == Bytes::npos || colon == Bytes::npos || begin >= colon )
        return -1;
    std::size_t last = line.find_last_not_of( " \t\r\n", colon - 1 );
    return knownNameNumber( line.data() + begin, last + 1 - begin );
}

Head::Head( Bytes message ) : all( message )
{
    std::size_t end = findHeadEnd( message, 0 );
    bytes = message.substr( 0, end == Bytes::npos ? end : end + lineEnd.size() );
    body = end == Bytes::npos ? Bytes() : message.substr( end + headEnd.size() );
    isAscii = rt___AsciiOk( bytes.data(), lengthOf( bytes ) );

    Bytes rest = bytes;
    auto placed = [this]( Bytes line )
    {
        int64_t begin = line.data() - all.data();
        return HeadLine{ begin, begin + lengthOf( line ), numberOfName( line ) };
    };
    first = placed( takeLine( rest ) );
    while ( !rest.empty() )
    {
        Bytes line = takeFoldedLine( rest );
        if ( !trimmed( line ).empty() )
            lines.append( placed( line ) );
    }
}

Bytes Head::bytesOf( const HeadLine &line ) const
{
    return all.substr( std::size_t( line.begin ), std::size_t( line.end - line.begin ) );
}

void PlacedText::append( Bytes piece, int64_t place )
{
    if ( chs.length() > 0 )
    {
        chs.append( ' ' );
        places.append( end );
    }
    end = place + lengthOf( piece );
    if ( rt___AsciiOk( piece.data(), lengthOf( piece ) ) )
    {
        RT_CHAR *ch = chs.extend( lengthOf( piece ) );
        int64_t *at = places.extend( lengthOf( piece ) );
        for ( std::size_t i = 0; i < piece.size(); ++i )
        {
            ch[i] = static_cast<unsigned char>( piece[i] );
            at[i] = place + static_cast<int64_t>( i );
        }
        return;
    }
    for ( Bytes rest = piece; !rest.empty(); )
    {
        places.append( end - lengthOf( rest ) );
        chs.append( takeChar( rest ) );
    }
}

PlacedText Head::startLine() const
{
    PlacedText text;
    text.append( bytesOf( first ), first.begin );
    return text;
}

PlacedText placedText( Bytes line, Bytes message )
{
    PlacedText text;
    while ( !line.empty() )
        if ( Bytes piece = trimmed( takeLine( line ) ); !piece.empty() )
            text.append( piece, piece.data() - message.data() );
    return text;
}

Text valueOf( const PlacedText &line )
{
    Text text = line.text();
    text.take( std::find( text.chs, text.chs + text.length, RT_CHAR( ':' ) ) - text.chs );
    text.take( std::min<int64_t>( text.length, 1 ) );
    text.take( telsx___SkipLws );
    return text;
}

} // namespace telsx
