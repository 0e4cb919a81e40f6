// From a fragment to bytes (RFC 3261, 7), straight into one buffer.
#include <array>
#include <cstring>

#include "rsc/rsc.h"
#include "telsx/telsx_bytes.hpp"
#include "telsx/telsx_message_fragment.h"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_message_header.hpp"
#include "telsx/telsx_reason_phrase.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

static constexpr Bytes colon = ": ", blank = " ";

// The three words of a start line.
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

// Bytes with rt::scanSlack more readable after them; as many may be written after an encoded message.
struct WithSlack
{
    Bytes bytes;
};

// Outputs: the text is written once to learn its size, and then into a buffer of that size.
struct Counter
{
    std::size_t size = 0;

    void add( Bytes bytes ) { size += bytes.size(); }
    void add( WithSlack piece ) { size += piece.bytes.size(); }
    void add( RT_STRING string ) { size += static_cast<std::size_t>( rt___StringUtf8Length( string ) ); }
};
struct Writer
{
    unsigned char *at;

    void add( Bytes bytes )
    {
        std::memcpy( at, bytes.data(), bytes.size() );
        at += bytes.size();
    }
    void add( WithSlack piece )
    {
        rt::copy( piece.bytes.data(), lengthOf( piece.bytes ), at );
        at += piece.bytes.size();
    }
    void add( RT_STRING string ) { at += rt___StringUtf8Encode( string, at ); }
};

template <class OUTPUT, class... PIECE>
static void write( OUTPUT &to, const PIECE &...pieces )
{
    ( to.add( pieces ), ... );
}

// The lines of a header that was decoded and not replaced go out as they came; those of any other are its object's.
template <class OUTPUT, class NAME>
static void writeHeader( OUTPUT &to, const NAME &name, HeaderTable *table, const HeaderEntry &entry )
{
    if ( entry.first.begin == -1 )
    {
        RT_VECTOR lines = entry.header->lines.get();
        for ( int64_t i = 0; i < rtVectorLength( lines ); ++i )
            write( to, name, colon, rtStringFrom( rt___VectorObjBorrowed( lines, i ) ), lineEnd );
        return;
    }
    write( to, name, colon, WithSlack{ table->lineOf( entry.first ) }, lineEnd );
    for ( int64_t next = entry.first.next; next != -1; next = table->moreLines[next].next )
        write( to, name, colon, WithSlack{ table->lineOf( table->moreLines[next] ) }, lineEnd );
}

// Content-Length, with the true length, goes where the fragment has that header, or after all others.
template <class OUTPUT>
static void write( OUTPUT &to, TELSX_MESSAGE_FRAGMENT frag, const StartLine &startLine, Bytes bodyLength )
{
    static constexpr int64_t lengthNumber = knownNumber<"Content-Length">();
    auto writeLength = [&] { write( to, knownNames[lengthNumber].bytes, colon, bodyLength, lineEnd ); };
    HeaderTable *headers = frag->headers.get();
    if ( const auto &[first, second, third] = startLine; first )
        write( to, first.get(), blank, second.get(), blank, third.get(), lineEnd );
    for ( const HeaderEntry &entry : headers->entries )
        if ( entry.number == lengthNumber && entry.name )
            writeLength();
        else if ( entry.number != -1 && entry.name )
            writeHeader( to, WithSlack{ knownNames[entry.number].bytes }, headers, entry );
        else if ( entry.name )
            writeHeader( to, entry.name, headers, entry );
    if ( !headers->is[lengthNumber] )
        writeLength();
    write( to, lineEnd );
    if ( frag->body )
        write( to, bytesOf( frag->body.get() ) );
}

RT_BUFFER telsxMessageFragmentEncode( TELSX_MESSAGE_FRAGMENT frag )
{
    TELSX_ASSERT( frag );
    StartLine startLine;
    if ( !telsxMessageFragmentIsNeitherRequestNorResponse( frag ) )
        startLine = startLineOf( frag );
    Decimal bodyLength( frag->body ? rtBufferLength( frag->body.get() ) : 0 );

    Counter counter;
    write( counter, frag, startLine, bodyLength.chars() );
    Writer writer;
    RT_BUFFER encoded = rt___BufferCreateWithLength( static_cast<int64_t>( counter.size ), &writer.at );
    write( writer, frag, startLine, bodyLength.chars() );
    return encoded;
}
