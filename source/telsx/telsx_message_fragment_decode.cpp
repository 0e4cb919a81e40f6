// From bytes to a fragment (RFC 3261, 7). The grammar of a head is all ASCII, so lines, names and values are cut as
// bytes, and header lines are kept as they are.
#include <algorithm>

#include "rsc/rsc.h"
#include "telsx/telsx_bytes.hpp"
#include "telsx/telsx_char.hpp"
#include "telsx/telsx_header_table.hpp"
#include "telsx/telsx_message_fragment.h"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_message_header.hpp"
#include "telsx/telsx_method.hpp"
#include "telsx/telsx_number.hpp"
#include "telsx/telsx_reason_phrase.h"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_version.hpp"

using namespace telsx;

// The compiler expects loops to go round, but few lines have more than one blank to trim, or a fold. Saying so, here and
// below, spares decodeHeaders half of its jumps.
static bool isWhite( char ch )
{
    if ( ch <= ' ' ) [[unlikely]]
        return ch == ' ' || ch == '\t';
    return false;
}

static Bytes trimmedLeft( Bytes bytes )
{
    while ( !bytes.empty() && isWhite( bytes.front() ) )
        bytes.remove_prefix( 1 );
    return bytes;
}

static Bytes trimmedRight( Bytes bytes )
{
    while ( !bytes.empty() && isWhite( bytes.back() ) )
        bytes.remove_suffix( 1 );
    return bytes;
}

enum class StartLine
{
    none,
    good,
    same, // good, and the encoder would write the same text
    bad
};

static StartLine goodOrSame( bool isSame ) { return isSame ? StartLine::same : StartLine::good; }

// Sets the start line if the first line is one. What looks like a start line must be valid.
static StartLine decodeStartLine( TELSX_MESSAGE_FRAGMENT frag, Text line, bool isAscii )
{
    Text rest = line;
    auto takePiece = [&rest]
    { return rest.take( std::find( rest.chs, rest.chs + rest.length, RT_CHAR( ' ' ) ) - rest.chs ); };
    Text first = takePiece();
    if ( !rest )
        return StartLine::none;
    rest.take( 1 );
    Text second = takePiece();
    bool hasThird = bool( rest );
    if ( hasThird )
        rest.take( 1 );

    if ( Ref<RT_STRING> method = hasThird ? tryDecodeMethod( first ) : Ref<RT_STRING>() )
    {
        int64_t length;
        frag->requestIri =
            adopt( rsc___TryConvertUriAtStart( second.chs, second.length, UINT32_MAX, &length ) );
        frag->version = tryDecodeVersion( rest );
        if ( length < second.length || !frag->requestIri || !frag->version )
            return StartLine::bad;
        frag->requestMethod = std::move( method );
        return goodOrSame( isAscii && isSharedVersion( frag->version.get() )
                           && rtStringEqualsChars( frag->requestIri.get(), second.chs, second.length ) );
    }
    // A version contains a slash, so it is never a method.
    frag->version = tryDecodeVersion( first );
    if ( !frag->version )
        return StartLine::none;
    int64_t sc = tryDecodeNumber( second );
    if ( !telsxStatusCodeOk( sc ) )
        return StartLine::bad;
    frag->responseStatusCode = sc;
    frag->responseReasonPhrase = adopt( rest.as( telsx___ReasonPhraseDecode ) );
    return goodOrSame( hasThird && second.length == 3 && isSharedVersion( frag->version.get() )
                       && runOf<classAlphanum | classLws>( rest ) == rest.length );
}

// The canonical form of a header name that is not known, or null if it is not a name.
static Ref<RT_STRING> tryDecodeOtherName( Bytes bytes )
{
    auto isInName = []( char ch ) { return isIn( static_cast<unsigned char>( ch ), classToken ); };
    if ( bytes.empty() || !std::all_of( bytes.begin(), bytes.end(), isInName ) )
        return {};
    return canonicalName( bytes.data(), lengthOf( bytes ) );
}

// Adds one header line, trimmed and with its folds undone, to the header of its name.
static bool decodeHeader( HeaderTable *table, Bytes text )
{
    const char *end = text.data() + text.size(), *colon = rt::findByte( text.data(), end, ':' );
    if ( colon == end )
        return false;
    Bytes nameBytes = trimmedRight( Bytes( text.data(), colon ) ),
          line = trimmedLeft( Bytes( colon + 1, end ) );
    int64_t begin = line.data() - table->bytes();
    int64_t number = scanKnownNameNumber( nameBytes.data(), nameBytes.size() );
    if ( number != -1 )
    {
        addLine( table, { knownNames[number].name, number }, begin, lengthOf( line ) );
        return true;
    }
    Ref<RT_STRING> other = tryDecodeOtherName( nameBytes );
    if ( !other )
        return false;
    addLine( table, { other.get(), -1 }, begin, lengthOf( line ) );
    return true;
}

static const char *findLineEnd( const char *at, const char *end )
{
    while ( ( at = rt::findByte( at, end, '\r' ) ) != end && at[1] != '\n' )
        [[unlikely]]++ at;
    return at;
}

// Takes the line at the start, and its line end.
static inline Bytes takeLine( const char *&at, const char *end )
{
    const char *begin = at, *after = findLineEnd( at, end );
    at = after == end ? end : after + lineEnd.size();
    return { begin, after };
}

// Decodes all header lines, which are in the table's bytes. A line that begins with white space continues the header
// before it, after one blank; it is moved there.
static bool decodeHeaders( HeaderTable *table, const char *at, const char *end )
{
    while ( at != end )
    {
        Bytes header = trimmedRight( trimmedLeft( takeLine( at, end ) ) );
        while ( at != end && isWhite( *at ) )
        {
            Bytes fold = trimmedRight( trimmedLeft( takeLine( at, end ) ) );
            if ( header.empty() )
                header = fold;
            else if ( !fold.empty() )
            {
                char *into = table->bytes() + ( header.data() + header.size() - table->bytes() );
                *into = ' ';
                std::memmove( into + 1, fold.data(), fold.size() );
                header = { header.data(), header.size() + 1 + fold.size() };
            }
        }
        if ( !header.empty() && !decodeHeader( table, header ) )
            return false;
    }
    return true;
}

// The value of Content-Length, or -1 if there is no such header; false if it is not a number.
static bool decodeContentLength( HeaderTable *headers, int64_t *contentLength )
{
    HeaderEntry *entry = findHeader( headers, headerName<"Content-Length">() );
    if ( !entry )
        return true;
    *contentLength = tryDecodeNumber( lastLineOf( headers, *entry ) );
    return *contentLength >= 0;
}

Ref<TELSX_MESSAGE_FRAGMENT> telsx::tryDecodeHead( Bytes head, int64_t *contentLength )
{
    if ( contentLength )
        *contentLength = -1;
    bool isAscii = rt___AsciiOk( head.data(), lengthOf( head ) );
    if ( !isAscii
         && !rt___Utf8Ok( reinterpret_cast<const unsigned char *>( head.data() ), lengthOf( head ) ) )
        return {};
    Ref<HeaderTable *> table = createHeaderTable( head, isAscii );
    const char *begin = table->bytes(), *end = begin + head.size(), *headers = begin;
    auto frag = adopt( rt::create<TELSX_MESSAGE_FRAGMENT_>( telsxMessageFragmentSort() ) );
    WideText firstLine;
    Bytes firstBytes = takeLine( headers, end );
    StartLine startLine = decodeStartLine( frag.get(), firstLine.read( firstBytes, isAscii ), isAscii );
    if ( startLine == StartLine::bad
         || !decodeHeaders( table.get(), startLine == StartLine::none ? begin : headers, end )
         || ( contentLength && !decodeContentLength( table.get(), contentLength ) ) )
        return {};
    if ( startLine == StartLine::same && headers == firstBytes.end() + lineEnd.size() )
        frag->startLineSize = headers - begin;
    frag->headers = std::move( table );
    return frag;
}

// Nowhere else does a carriage return follow a line feed.
std::size_t telsx::findHeadEnd( Bytes bytes, std::size_t from )
{
    std::size_t at = from;
    for ( ; bytes.size() - at >= 36; at += 32 )
    {
        auto pairs = [lineFeed = bytes.data() + at + 1]( int i )
        {
            return same( rt::ByteBlock::at( lineFeed + i ), rt::ByteBlock::of( '\n' ) )
                   & same( rt::ByteBlock::at( lineFeed + i + 1 ), rt::ByteBlock::of( '\r' ) );
        };
        rt::ByteBlock first = pairs( 0 ), second = pairs( 16 );
        if ( ( first | second ).mask() == 0 )
            continue;
        for ( uint32_t found = first.mask() | second.mask() << 16; found; found &= found - 1 )
        {
            std::size_t end = at + static_cast<std::size_t>( std::countr_zero( found ) );
            if ( bytes.substr( end, headEnd.size() ) == headEnd )
                return end;
        }
    }
    return bytes.find( headEnd, at );
}

TELSX_MESSAGE_FRAGMENT telsxMessageFragmentTryDecodeHeaders( RT_BUFFER buf, int64_t *contentLength )
{
    TELSX_ASSERT( buf );
    return tryDecodeHead( bytesOf( buf ), contentLength ).take();
}

TELSX_MESSAGE_FRAGMENT telsxMessageFragmentTryDecode( RT_BUFFER buf )
{
    TELSX_ASSERT( buf );
    Bytes bytes = bytesOf( buf );
    std::size_t end = findHeadEnd( bytes, 0 );
    Bytes head = bytes.substr( 0, end == Bytes::npos ? end : end + lineEnd.size() );
    Bytes body = end == Bytes::npos ? Bytes() : bytes.substr( end + headEnd.size() );

    int64_t contentLength;
    Ref<TELSX_MESSAGE_FRAGMENT> frag = tryDecodeHead( head, &contentLength );
    if ( !frag || contentLength > lengthOf( body ) )
        return nullptr;
    if ( contentLength != -1 )
        body = body.substr( 0, static_cast<std::size_t>( contentLength ) );
    if ( !body.empty() )
        frag->body = bufferOf( body );
    return frag.take();
}
