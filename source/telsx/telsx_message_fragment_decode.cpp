// From bytes to a fragment (RFC 3261, 7). The grammar of a head is all ASCII, so lines, names and values are
// cut as bytes, and only what is kept becomes text.
#include <algorithm>

#include "rsc/rsc.h"
#include "telsx/telsx_known_names.hpp"
#include "telsx/telsx_message_fragment.h"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_message_header.hpp"
#include "telsx/telsx_method.h"
#include "telsx/telsx_number.hpp"
#include "telsx/telsx_reason_phrase.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

// The string of bytes that are known to be UTF-8.
static Ref<RT_STRING> stringOf( Bytes bytes )
{
    return adopt( rtStringTryCreateFromUtf8( bytes.data(), lengthOf( bytes ) ) );
}

// Takes the front up to the delimiter away, and the delimiter; all that is left if there is none.
static Bytes takeUpTo( Bytes &rest, Bytes delimiter )
{
    std::size_t end = rest.find( delimiter );
    Bytes front = rest.substr( 0, end );
    rest = end == Bytes::npos ? Bytes() : rest.substr( end + delimiter.size() );
    return front;
}

static bool isWhite( char ch ) { return ch == ' ' || ch == '\t'; }

static Bytes trimmed( Bytes bytes )
{
    while ( !bytes.empty() && isWhite( bytes.front() ) )
        bytes.remove_prefix( 1 );
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
static StartLine decodeStartLine( Ref<TELSX_MESSAGE_FRAGMENT> &frag, RT_STRING line )
{
    Text rest = textOf( line );
    auto takePiece = [&rest]
    {
        Text piece = rest.first( std::find( rest.chs, rest.chs + rest.length, RT_CHAR( ' ' ) ) - rest.chs );
        rest = rest.behind( piece.length );
        return piece;
    };
    Text first = takePiece();
    if ( !rest )
        return StartLine::none;
    rest.take( 1 );
    Text second = takePiece();
    bool hasThird = bool( rest );
    if ( hasThird )
        rest.take( 1 );

    if ( auto version = adopt( telsx___VersionTryDecode( first.chs, first.length ) ) )
    {
        int64_t sc = tryDecodeNumber( second );
        if ( !telsxStatusCodeOk( sc ) )
            return StartLine::bad;
        auto phrase = adopt( telsx___ReasonPhraseDecode( rest.chs, rest.length ) );
        telsxMessageFragmentSetResponseWithReasonPhrase( frag.address(), version.get(), sc, phrase.get() );
        return StartLine::good;
    }
    if ( !hasThird || !covers( telsx___SkipMethod, first ) )
        return StartLine::none;
    auto iri = adopt( rscTryConvertFromUri( second.copy().get() ) );
    auto version = adopt( telsx___VersionTryDecode( rest.chs, rest.length ) );
    if ( !iri || !version )
        return StartLine::bad;
    telsxMessageFragmentSetRequest( frag.address(), version.get(), first.copy().get(), iri.get() );
    return StartLine::good;
}

// The canonical name, or null for what is no name.
static Ref<RT_STRING> tryDecodeName( Bytes bytes )
{
    if ( RT_STRING known = findKnownName( bytes ) )
        return share( known );
    Ref<RT_STRING> name = stringOf( bytes );
    return telsxMessageHeaderNameOk( name.get() ) ? adopt( telsxMessageHeaderNameNormalize( name.get() ) )
                                                  : Ref<RT_STRING>();
}

// One header line, with its folds undone, becomes one line more of the header of its name. The fragment is
// nobody else's yet, and so are its headers: they are changed where they are.
static bool decodeHeader( Ref<TELSX_MESSAGE_FRAGMENT> &frag, Bytes text )
{
    std::size_t colon = text.find( ':' );
    if ( colon == Bytes::npos )
        return false;
    Ref<RT_STRING> name = tryDecodeName( trimmed( text.substr( 0, colon ) ) );
    if ( !name )
        return false;
    Ref<RT_STRING> line = stringOf( trimmed( text.substr( colon + 1 ) ) );
    if ( RT_OBJ header = rt___DictValueBorrowed( frag->headers.get(), name.get() ) )
        rtVectorAppendString( telsxMessageHeaderFrom( header )->lines.address(), line.get() );
    else
    {
        Ref<TELSX_MESSAGE_HEADER> created = adopt( createHeader( name.get(), line ) );
        rtDictSetStringKey( frag->headers.address(), name.get(), rt::asObj( created.get() ) );
    }
    return true;
}

// All header lines. A line that begins with white space goes on with the header before it, behind one blank.
static bool decodeHeaders( Ref<TELSX_MESSAGE_FRAGMENT> &frag, Bytes lines )
{
    Bytes current;
    Ref<RT_BUFFER> folded;
    while ( !lines.empty() )
    {
        Bytes line = takeUpTo( lines, lineEnd );
        bool goesOn = !line.empty() && isWhite( line.front() );
        if ( !goesOn && !current.empty() )
        {
            if ( !decodeHeader( frag, current ) )
                return false;
            current = {};
        }
        Bytes part = trimmed( line );
        if ( current.empty() )
            current = part;
        else if ( !part.empty() )
        {
            if ( !folded || bytesOf( folded.get() ).data() != current.data() )
                folded = bufferOf( current );
            rtBufferAppendBytes( folded.address(), " ", 1 );
            rtBufferAppendBytes( folded.address(), part.data(), lengthOf( part ) );
            current = bytesOf( folded.get() );
        }
    }
    return current.empty() || decodeHeader( frag, current );
}

// The value of Content-Length, -1 if there is no such header; nothing if it is no number.
static bool decodeContentLength( TELSX_MESSAGE_FRAGMENT frag, int64_t *contentLength )
{
    RT_OBJ header = rt___DictValueBorrowed( frag->headers.get(), literal<"Content-Length">() );
    if ( !header )
        return true;
    Ref<RT_STRING> line = adopt( telsxMessageHeaderLastLine( telsxMessageHeaderFrom( header ) ) );
    *contentLength = tryDecodeNumber( textOf( line ) );
    return *contentLength >= 0;
}

Ref<TELSX_MESSAGE_FRAGMENT> telsx::tryDecodeHead( Bytes head, int64_t *contentLength )
{
    if ( contentLength )
        *contentLength = -1;
    if ( !rt___Utf8Ok( reinterpret_cast<const unsigned char *>( head.data() ), lengthOf( head ) ) )
        return {};
    Ref<TELSX_MESSAGE_FRAGMENT> frag = adopt( telsxMessageFragmentCreate() );
    Bytes behindFirst = head;
    StartLine startLine = decodeStartLine( frag, stringOf( takeUpTo( behindFirst, lineEnd ) ).get() );
    if ( startLine == StartLine::bad )
        return {};
    if ( !decodeHeaders( frag, startLine == StartLine::good ? behindFirst : head ) )
        return {};
    if ( contentLength && !decodeContentLength( frag.get(), contentLength ) )
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
