// From bytes to a fragment (RFC 3261, 7). The grammar of a head is all ASCII, so lines, names and values are
// cut as bytes, and only what is kept becomes text.
#include <algorithm>

#include "rsc/rsc.h"
#include "telsx/telsx_char.hpp"
#include "telsx/telsx_header_table.hpp"
#include "telsx/telsx_message_fragment.h"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_method.hpp"
#include "telsx/telsx_number.hpp"
#include "telsx/telsx_reason_phrase.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

// Takes the front up to the delimiter away, and the delimiter; all that is left if there is none.
static Bytes takeUpTo( Bytes &rest, Bytes delimiter )
{
    std::size_t end = rest.find( delimiter );
    Bytes front = rest.substr( 0, end );
    rest = end == Bytes::npos ? Bytes() : rest.substr( end + delimiter.size() );
    return front;
}

static bool isWhite( char ch ) { return ch == ' ' || ch == '\t'; }

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
    bad
};

// Sets the start line if the first line is one. What looks like a start line must be a good one.
static StartLine decodeStartLine( TELSX_MESSAGE_FRAGMENT frag, Text line )
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

    if ( auto version = adopt( first.as( telsx___VersionTryDecode ) ) )
    {
        int64_t sc = tryDecodeNumber( second );
        if ( !telsxStatusCodeOk( sc ) )
            return StartLine::bad;
        frag->version = std::move( version );
        frag->responseStatusCode = sc;
        frag->responseReasonPhrase = adopt( rest.as( telsx___ReasonPhraseDecode ) );
        return StartLine::good;
    }
    if ( !hasThird || !covers( telsx___SkipMethod, first ) )
        return StartLine::none;
    int64_t length;
    frag->requestIri = adopt( rsc___TryConvertUriAtStart( second.chs, second.length, UINT32_MAX, &length ) );
    frag->version = adopt( rest.as( telsx___VersionTryDecode ) );
    if ( length < second.length || !frag->requestIri || !frag->version )
        return StartLine::bad;
    frag->requestMethod = stringOfMethod( first );
    return StartLine::good;
}

// The name of a header that is not known, in canonical form, or null for what is no name. All of a token is
// ASCII.
static Ref<RT_STRING> tryDecodeOtherName( Bytes bytes )
{
    auto isInName = []( char ch ) { return isIn( static_cast<unsigned char>( ch ), classToken ); };
    if ( bytes.empty() || !std::all_of( bytes.begin(), bytes.end(), isInName ) )
        return {};
    Ref<RT_STRING> name;
    RT_CHAR *into = rt::newString( lengthOf( bytes ), name.address() );
    char before = '-';
    for ( char ch : bytes )
    {
        char lower = lowerAscii( ch );
        bool isCapital = before == '-' && lower >= 'a' && lower <= 'z';
        *into++ = static_cast<RT_CHAR>( isCapital ? lower - 0x20 : lower );
        before = ch;
    }
    return name;
}

// One header line, trimmed and with its folds undone, becomes one line more of the header of its name.
static bool decodeHeader( HeaderTable *table, Bytes text )
{
    std::size_t colon = 0;
    while ( colon < text.size() && text[colon] != ':' )
        ++colon;
    if ( colon == text.size() )
        return false;
    Bytes nameBytes = trimmedRight( text.substr( 0, colon ) );
    Bytes line = trimmedLeft( text.substr( colon + 1 ) );
    int64_t begin = line.data() - bytesOf( table->bytes.get() ).data();
    int64_t number = knownNameNumber( nameBytes.data(), nameBytes.size() );
    if ( number != -1 )
    {
        addLine( table, { const_cast<RT_STRING>( knownNames[number].name ), number }, begin,
                 lengthOf( line ) );
        return true;
    }
    Ref<RT_STRING> other = tryDecodeOtherName( nameBytes );
    if ( !other )
        return false;
    addLine( table, { other.get(), -1 }, begin, lengthOf( line ) );
    return true;
}

// All header lines, which stand in the table's bytes. A line that begins with white space goes on with the
// header before it, behind one blank; it is moved there.
static bool decodeHeaders( HeaderTable *table, unsigned char *bytes )
{
    Bytes lines = bytesOf( table->bytes.get() ), current;
    while ( !lines.empty() )
    {
        Bytes line = takeUpTo( lines, lineEnd );
        bool goesOn = !line.empty() && isWhite( line.front() );
        if ( !goesOn && !current.empty() )
        {
            if ( !decodeHeader( table, current ) )
                return false;
            current = {};
        }
        Bytes part = trimmedRight( trimmedLeft( line ) );
        if ( current.empty() )
            current = part;
        else if ( !part.empty() )
        {
            unsigned char *end =
                bytes + ( current.data() + current.size() - bytesOf( table->bytes.get() ).data() );
            *end = ' ';
            std::memmove( end + 1, part.data(), part.size() );
            current = { current.data(), current.size() + 1 + part.size() };
        }
    }
    return current.empty() || decodeHeader( table, current );
}

// The value of Content-Length, -1 if there is no such header; false if it is no number.
static bool decodeContentLength( HeaderTable *headers, int64_t *contentLength )
{
    HeaderEntry *entry = findHeader( headers, headerName<"Content-Length">() );
    if ( !entry )
        return true;
    Ref<RT_STRING> line = stringOf( lastLineOf( headers, *entry ) );
    *contentLength = tryDecodeNumber( textOf( line ) );
    return *contentLength >= 0;
}

Ref<TELSX_MESSAGE_FRAGMENT> telsx::tryDecodeHead( Bytes head, int64_t *contentLength )
{
    if ( contentLength )
        *contentLength = -1;
    if ( !rt___Utf8Ok( reinterpret_cast<const unsigned char *>( head.data() ), lengthOf( head ) ) )
        return {};
    auto frag = adopt( rt::create<TELSX_MESSAGE_FRAGMENT_>( telsxMessageFragmentSort() ) );
    Bytes lines = head;
    Ref<RT_STRING> firstLine = stringOf( takeUpTo( lines, lineEnd ) );
    StartLine startLine = decodeStartLine( frag.get(), textOf( firstLine ) );
    if ( startLine == StartLine::bad )
        return {};
    if ( startLine == StartLine::none )
        lines = head;

    Ref<RT_BUFFER> copy = adopt( rtBufferCreate() );
    unsigned char *bytes = rt___BufferExtend( copy.address(), lengthOf( lines ) );
    if ( !lines.empty() )
        std::memcpy( bytes, lines.data(), lines.size() );
    frag->headers = createHeaderTable( copy );
    if ( !decodeHeaders( frag->headers.get(), bytes ) )
        return {};
    if ( contentLength && !decodeContentLength( frag->headers.get(), contentLength ) )
        return {};
    return frag;
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
    std::size_t end = bytes.find( headEnd );
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
