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

static constexpr char blankBytes[2 + rt::scanSlack] = " ";
static constexpr Bytes blank = blankBytes;

// A known name as it goes out, with colon and blank, and which bits of two blocks it takes.
struct alignas( 16 ) NameBlocks
{
    char bytes[32] = {}, mask[32] = {};
};
static constexpr auto nameBlocks = []
{
    std::array<NameBlocks, knownCount> all = {};
    for ( std::size_t i = 0; i < all.size(); ++i )
    {
        Bytes name = knownNames[i].bytes;
        for ( std::size_t at = 0; at < name.size() + nameEnd.size(); ++at )
        {
            all[i].bytes[at] = at < name.size() ? name[at] : nameEnd[at - name.size()];
            all[i].mask[at] = ~0;
        }
    }
    return all;
}();

// The name of an entry as it goes out.
struct OutName
{
    int64_t number;
    RT_STRING other;  // if it is not known
    int64_t size = 0; // with colon and blank, if it is known

    explicit OutName( const HeaderEntry &entry ) : number( entry.number ), other( entry.name )
    {
        if ( number != -1 )
            size = lengthOf( knownNames[number].bytes ) + lengthOf( nameEnd );
    }
    const NameBlocks &blocks() const { return nameBlocks[static_cast<std::size_t>( number )]; }

    // Whether it stands there.
    bool isAt( const char *at ) const
    {
        auto isSame = [&, this]( int i )
        {
            auto bytes = rt::ByteBlock::at( at + i ) & rt::ByteBlock::at( blocks().mask + i );
            return same( bytes, rt::ByteBlock::at( blocks().bytes + i ) ).mask() == 0xFFFF;
        };
        return isSame( 0 ) && ( size <= 16 || isSame( 16 ) );
    }
};

// What the text is written to: once to learn its size, and then into a buffer of that size. rt::scanSlack bytes more than
// the given ones can be read.
struct Counter
{
    int64_t size = 0;

    void add( Bytes bytes ) { size += lengthOf( bytes ); }
    void add( RT_STRING string ) { size += rt___StringUtf8Length( string ); }
    void add( const OutName &name ) { size += name.number != -1 ? name.size : otherSize( name ); }
    void addLine( const OutName &name, Bytes line )
    {
        add( name );
        size += lengthOf( line ) + lengthOf( lineEnd );
    }

private:
    static int64_t otherSize( const OutName &name )
    {
        return textOf( name.other ).length + lengthOf( nameEnd );
    }
};

// Bytes are copied when others come that don't follow them in memory. So all lines of a message between two that were
// changed are copied at once, which halves the time of the encoder.
class Writer
{
public:
    explicit Writer( unsigned char *into ) : at( into ) {}

    void add( Bytes bytes )
    {
        if ( bytes.data() != end )
            startAt( bytes.data() );
        end = bytes.end();
    }
    void add( RT_STRING string )
    {
        startAt( nullptr );
        at += rt___StringUtf8Encode( string, at );
    }
    void add( const OutName &name )
    {
        if ( name.number != -1 )
            return add( Bytes( name.blocks().bytes, static_cast<std::size_t>( name.size ) ) );
        add( name.other );
        add( nameEnd );
    }

    // A line that came in: the table's bytes before it are mostly its name, and those after it the line end.
    void addLine( const OutName &name, Bytes line )
    {
        const char *from = line.data();
        if ( name.number != -1 && name.isAt( from - name.size ) )
            from -= name.size;
        else
            add( name );
        bool isEnded = std::memcmp( line.end(), lineEnd.data(), lineEnd.size() ) == 0;
        add( Bytes( from, isEnded ? line.end() + lineEnd.size() : line.end() ) );
        if ( !isEnded )
            add( lineEnd );
    }

    unsigned char *finish()
    {
        startAt( nullptr );
        return at;
    }

private:
    // Copies what waits.
    [[gnu::noinline]] void startAt( const char *next )
    {
        rt::copy( begin, end - begin, at );
        at += end - begin;
        begin = end = next;
    }

    unsigned char *at;
    const char *begin = nullptr, *end = nullptr; // what waits
};

template <class OUTPUT, class... PIECE>
static void write( OUTPUT &to, const PIECE &...pieces )
{
    ( to.add( pieces ), ... );
}

// The lines of a header that was decoded and not replaced go out as they came, any other's as its object has them.
template <class OUTPUT>
static void writeHeader( OUTPUT &to, HeaderTable *table, const HeaderEntry &entry )
{
    OutName name( entry );
    if ( entry.first.begin == -1 )
    {
        RT_VECTOR lines = entry.header->lines.get();
        for ( int64_t i = 0; i < rtVectorLength( lines ); ++i )
            write( to, name, rtStringFrom( rt___VectorObjBorrowed( lines, i ) ), lineEnd );
        return;
    }
    to.addLine( name, table->lineOf( entry.first ) );
    for ( int64_t next = entry.first.next; next != -1; next = table->moreLines[next].next )
        to.addLine( name, table->lineOf( table->moreLines[next] ) );
}

// All but the body. The true length stands where the fragment has that header, else behind all others.
template <class OUTPUT>
static void write( OUTPUT &to, TELSX_MESSAGE_FRAGMENT frag, const StartLine &startLine, Bytes bodyLength )
{
    static constexpr int64_t lengthNumber = knownNumber<"Content-Length">();
    HeaderTable *table = frag->headers.get();
    if ( const auto &[first, second, third] = startLine; first )
        write( to, first.get(), blank, second.get(), blank, third.get(), lineEnd );
    else if ( frag->startLineSize != -1 )
        to.add( Bytes( table->bytes(), static_cast<std::size_t>( frag->startLineSize ) ) );
    for ( const HeaderEntry &entry : table->entries )
    {
        if ( !entry.name )
            continue;
        bool isLength = entry.number == lengthNumber,
             isTrue = !isLength
                      || ( entry.first.begin != -1 && entry.last == -1
                           && table->lineOf( entry.first ) == bodyLength );
        if ( isTrue )
            writeHeader( to, table, entry );
        else
            write( to, OutName( entry ), bodyLength, lineEnd );
    }
    if ( !table->is[lengthNumber] )
        write( to, knownNames[lengthNumber].bytes, nameEnd, bodyLength, lineEnd );
    to.add( lineEnd );
}

RT_BUFFER telsxMessageFragmentEncode( TELSX_MESSAGE_FRAGMENT frag )
{
    TELSX_ASSERT( frag );
    StartLine startLine;
    if ( frag->startLineSize == -1 && !telsxMessageFragmentIsNeitherRequestNorResponse( frag ) )
        startLine = startLineOf( frag );
    Bytes body = frag->body ? bytesOf( frag->body.get() ) : Bytes();
    Decimal bodyLength( lengthOf( body ) );

    Counter counter;
    write( counter, frag, startLine, bodyLength.chars() );
    unsigned char *into;
    RT_BUFFER encoded = rt___BufferCreateWithLength( counter.size + lengthOf( body ), &into );
    Writer writer( into );
    write( writer, frag, startLine, bodyLength.chars() );
    rt::copyItems( writer.finish(), reinterpret_cast<const unsigned char *>( body.data() ),
                   lengthOf( body ) );
    return encoded;
}
