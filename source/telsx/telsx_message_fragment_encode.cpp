// From a fragment to bytes (RFC 3261, 7), straight into one buffer.
#include <array>
#include <cstring>

#include "rsc/rsc.h"
#include "telsx/telsx_message_fragment.h"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_message_header.hpp"
#include "telsx/telsx_reason_phrase.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

static constexpr char blankBytes[2 + rt::scanSlack] = " ";
static constexpr Bytes blank = blankBytes;

// What goes out, in pieces: bytes, behind which rt::scanSlack more can be read, and strings. Bytes that follow each other
// in memory become one piece, so that all lines of a header table between two that were changed are copied at once.
class Output
{
public:
    Output() { pieces.start( firstPieces, std::ssize( firstPieces ) ); }
    Output( const Output & ) = delete;
    ~Output() { pieces.clear(); }

    void add( const char *from, int64_t length )
    {
        if ( from != end )
        {
            endPiece();
            begin = from;
        }
        end = from + length;
    }
    void add( Bytes bytes ) { add( bytes.data(), lengthOf( bytes ) ); }
    void add( RT_STRING string )
    {
        endPiece();
        begin = end = nullptr;
        pieces.append( { nullptr, string, textOf( string ).length } );
    }
    template <class... PIECE>
    void add( const PIECE &...more ) requires( sizeof...( more ) > 2 )
    {
        ( add( more ), ... );
    }

    // All that was added, and then the body.
    RT_BUFFER encoded( Bytes body )
    {
        endPiece();
        // Most strings are ASCII, which is seen when they are written.
        if ( RT_BUFFER buffer = tryWrite( body ) )
            return buffer;
        for ( Piece &piece : pieces )
            if ( piece.string )
                piece.length = rt___StringUtf8Length( piece.string );
        return tryWrite( body );
    }

private:
    struct Piece
    {
        const char *bytes;
        RT_STRING string; // or null
        int64_t length;   // in bytes
    };

    void endPiece()
    {
        if ( begin != end )
            pieces.append( { begin, nullptr, end - begin } );
    }

    RT_BUFFER tryWrite( Bytes body )
    {
        int64_t size = lengthOf( body );
        for ( const Piece &piece : pieces )
            size += piece.length;
        unsigned char *at;
        Ref<RT_BUFFER> buffer = adopt( rt___BufferCreateWithLength( size, &at ) );
        for ( const Piece &piece : pieces )
        {
            if ( piece.string && !rt___StringTryUtf8Encode( piece.string, piece.length, at ) )
                return nullptr;
            if ( piece.bytes )
                rt::copy( piece.bytes, piece.length, at );
            at += piece.length;
        }
        rt::copyItems( at, reinterpret_cast<const unsigned char *>( body.data() ), lengthOf( body ) );
        return buffer.take();
    }

    const char *begin = nullptr, *end = nullptr; // of the last piece if that is of bytes
    rt::Array<Piece> pieces;
    Piece firstPieces[32];
};

// The three words of a start line that is not the one that came in.
using StartLine = std::array<Ref<RT_STRING>, 3>;

static StartLine startLineOf( TELSX_MESSAGE_FRAGMENT frag )
{
    Ref<RT_STRING> version = adopt( telsx___VersionEncode( frag->version.get() ) );
    if ( telsxMessageFragmentIsRequest( frag ) )
    {
        RT_STRING uri = rscTryConvertToUri( frag->requestIri.get() );
        TELSX_ASSERT( uri );
        return { frag->requestMethod, adopt( uri ), version };
    }
    return { version, joined( Decimal( frag->responseStatusCode ) ),
             adopt( telsx___ReasonPhraseEncode( frag->responseReasonPhrase.get() ) ) };
}

static void addName( Output &output, const HeaderEntry &entry )
{
    if ( entry.number != -1 )
        output.add( knownNames[entry.number].bytes );
    else
        output.add( entry.name );
    output.add( nameEnd );
}

// The lines of a header that was decoded and not replaced go out as they came, any other's as its object has them.
static void addHeader( Output &output, HeaderTable *table, const HeaderEntry &entry )
{
    if ( entry.first.begin == -1 )
    {
        RT_VECTOR lines = entry.header->lines.get();
        for ( int64_t i = 0; i < rtVectorLength( lines ); ++i )
        {
            addName( output, entry );
            output.add( rtStringFrom( rt___VectorObjBorrowed( lines, i ) ) );
            output.add( lineEnd );
        }
        return;
    }
    int64_t nameLength =
        entry.number != -1 ? lengthOf( knownNames[entry.number].bytes ) : textOf( entry.name ).length;
    for ( const HeaderLine *line = &entry.first;; line = &table->moreLines[line->next] )
    {
        if ( table->isWritten )
            output.add( table->writtenLine( *line, nameLength ) );
        else
        {
            addName( output, entry );
            output.add( table->lineOf( *line ) );
            output.add( lineEnd );
        }
        if ( line->next == -1 )
            return;
    }
}

// The true length stands where the fragment has that header, else behind all others.
static void addLength( Output &output, HeaderTable *table, const HeaderEntry *entry, Bytes bodyLength )
{
    static constexpr Bytes name = knownNames[knownNumber<"Content-Length">()].bytes;
    if ( entry && entry->first.begin != -1 && entry->last == -1
         && table->lineOf( entry->first ) == bodyLength )
        return addHeader( output, table, *entry );
    output.add( name, nameEnd, bodyLength, lineEnd );
}

RT_BUFFER telsxMessageFragmentEncode( TELSX_MESSAGE_FRAGMENT frag )
{
    TELSX_ASSERT( frag );
    HeaderTable *table = frag->headers.get();
    Output output;
    StartLine startLine;
    if ( frag->startLineSize != -1 )
        output.add( table->bytes(), frag->startLineSize );
    else if ( !telsxMessageFragmentIsNeitherRequestNorResponse( frag ) )
    {
        startLine = startLineOf( frag );
        const auto &[first, second, third] = startLine;
        output.add( first.get(), blank, second.get(), blank, third.get(), lineEnd );
    }
    Bytes body = frag->body ? bytesOf( frag->body.get() ) : Bytes();
    Decimal bodyLength( lengthOf( body ) );
    static constexpr int64_t lengthNumber = knownNumber<"Content-Length">();
    for ( const HeaderEntry &entry : table->entries )
        if ( entry.name && entry.number == lengthNumber )
            addLength( output, table, &entry, bodyLength.chars() );
        else if ( entry.name )
            addHeader( output, table, entry );
    if ( !table->is[lengthNumber] )
        addLength( output, table, nullptr, bodyLength.chars() );
    output.add( lineEnd );
    return output.encoded( body );
}
