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

// What stands between a name and its line, and the blank of a start line.
static constexpr Bytes nameEnd = ": ", blank = " ";

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

// What a head consists of besides the fragment's headers.
struct OutputHead
{
    StartLine startLine; // empty if the bytes of the headers begin with it, or if there is none
    Bytes startLineBytes;
    Bytes bodyLength;
    HeaderTable *headers;
};

static constexpr int64_t lengthNumber = knownNumber<"Content-Length">();

// The lines of a header: that of Content-Length is the true length, those of a header that was decoded and not replaced go
// out as they came, and those of any other are its object's.
template <class LINE>
static void eachLine( const OutputHead &head, const HeaderEntry &entry, LINE line )
{
    if ( entry.number == lengthNumber )
        line( head.bodyLength );
    else if ( entry.first.begin == -1 )
        for ( int64_t i = 0; i < rtVectorLength( entry.header->lines.get() ); ++i )
            line( rtStringFrom( rt___VectorObjBorrowed( entry.header->lines.get(), i ) ) );
    else
        for ( const HeaderLine *one = &entry.first;; one = &head.headers->moreLines[one->next] )
        {
            line( head.headers->lineOf( *one ) );
            if ( one->next == -1 )
                break;
        }
}

// All pieces of a head in order.
template <class OUTPUT>
static void write( OUTPUT &to, const OutputHead &head )
{
    static constexpr HeaderEntry contentLength = {
        literal<"Content-Length">(), nullptr, {}, -1, lengthNumber
    };
    to.add( head.startLineBytes );
    if ( const auto &[first, second, third] = head.startLine; first )
    {
        to.add( first.get() );
        to.addConstant( blank );
        to.add( second.get() );
        to.addConstant( blank );
        to.add( third.get() );
        to.addConstant( lineEnd );
    }
    auto writeHeader = [&]( const HeaderEntry &entry )
    { eachLine( head, entry, [&]( auto line ) { to.addLine( entry, line ); } ); };
    for ( const HeaderEntry &entry : head.headers->entries )
        if ( entry.name )
            writeHeader( entry );
    if ( !head.headers->is[lengthNumber] )
        writeHeader( contentLength );
    to.addConstant( lineEnd );
}

// Outputs: the head is written once to learn its size, and then into a buffer of that size. Most texts are ASCII and have
// as many bytes as code points, so a text is looked at only once: if another is among them, all is done again with
// exact sizes.
enum class Sizes
{
    ascii,
    exact
};

template <Sizes SIZES>
struct Counter
{
    int64_t size = 0;

    void add( Bytes bytes ) { size += lengthOf( bytes ); }
    void addConstant( Bytes bytes ) { add( bytes ); }
    void add( RT_STRING string )
    {
        size += SIZES == Sizes::ascii ? textOf( string ).length : rt___StringUtf8Length( string );
    }
    template <class LINE>
    void addLine( const HeaderEntry &entry, LINE line )
    {
        size += entry.number != -1 ? lengthOf( knownNames[entry.number].bytes ) : textOf( entry.name ).length;
        size += lengthOf( nameEnd ) + lengthOf( lineEnd );
        add( line );
    }
};

template <Sizes SIZES>
struct Writer
{
    unsigned char *at;
    bool hasRoom = true; // no text so far has more bytes than were counted

    // After the bytes, rt::scanSlack more are readable, and as many may be written after an encoded message.
    void add( Bytes bytes )
    {
        rt::copy( bytes.data(), lengthOf( bytes ), at );
        at += bytes.size();
    }
    void addConstant( Bytes bytes )
    {
        std::memcpy( at, bytes.data(), bytes.size() );
        at += bytes.size();
    }
    void add( RT_STRING string )
    {
        if constexpr ( SIZES == Sizes::exact )
            at += rt___StringUtf8Encode( string, at );
        else
        {
            hasRoom = rt___StringTryNarrow( string, at ) && hasRoom;
            at += textOf( string ).length;
        }
    }
    template <class LINE>
    void addLine( const HeaderEntry &entry, LINE line )
    {
        if ( entry.number != -1 )
            add( knownNames[entry.number].bytes );
        else
            add( entry.name );
        addConstant( nameEnd );
        add( line );
        addConstant( lineEnd );
    }
};

// The encoded message, or null if the sizes are wrong.
template <Sizes SIZES>
static RT_BUFFER tryEncode( const OutputHead &head, Bytes body )
{
    Counter<SIZES> counter;
    write( counter, head );
    unsigned char *into;
    RT_BUFFER encoded = rt___BufferCreateWithLength( counter.size + lengthOf( body ), &into );
    Writer<SIZES> writer = { into };
    write( writer, head );
    rt::copyItems( writer.at, reinterpret_cast<const unsigned char *>( body.data() ), lengthOf( body ) );
    if ( writer.hasRoom )
        return encoded;
    rtBufferRelease( encoded );
    return nullptr;
}

[[gnu::cold]] static RT_BUFFER encodeExactly( const OutputHead &head, Bytes body )
{
    return tryEncode<Sizes::exact>( head, body );
}

RT_BUFFER telsxMessageFragmentEncode( TELSX_MESSAGE_FRAGMENT frag )
{
    TELSX_ASSERT( frag );
    Bytes body = frag->body ? bytesOf( frag->body.get() ) : Bytes();
    const Decimal bodyLength( lengthOf( body ) );
    OutputHead head = { {}, {}, bodyLength.chars(), frag->headers.get() };
    if ( frag->startLineSize != -1 )
        head.startLineBytes = { head.headers->bytes(), static_cast<std::size_t>( frag->startLineSize ) };
    else if ( !telsxMessageFragmentIsNeitherRequestNorResponse( frag ) )
        head.startLine = startLineOf( frag );
    RT_BUFFER encoded = tryEncode<Sizes::ascii>( head, body );
    return encoded ? encoded : encodeExactly( head, body );
}
