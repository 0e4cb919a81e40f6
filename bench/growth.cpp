// What hostile messages cost as they get longer. Each family is a message in which one thing occurs n times. It is
// decoded, its headers and all their values are decoded to their types, everything is encoded again and released. Under
// callgrind each of these phases ends with a dump of the instructions that it took:
//
//     growth             lists the families
//     growth FAMILY N    prints the peak memory use in bytes
//
// Each length is run in a process of its own: what a run costs depends on what earlier ones left on the heap.
#include <valgrind/callgrind.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "heap.hpp"
#include "rt/rt_frame.hpp"
#include "telsx/telsx.h"

using rt::adopt;
using rt::Ref;

namespace
{

// Messages

constexpr std::string_view requestLine = "INVITE sip:a SIP/2.0\r\n";

std::string request( const std::string &headers ) { return std::string( requestLine ) + headers + "\r\n"; }

using Item = std::string ( * )( int index );

// A request with a header that has the items with indices below n, between the text before and the text after them.
std::string repeated( std::string_view front, Item item, int n, std::string_view after = "" )
{
    std::string headers( front );
    for ( int i = 0; i < n; ++i )
        headers += item( i );
    return request( headers += after );
}

std::string digits( int index ) { return std::to_string( 1'000'000 + index ); }

// Sixteen times one of two pairs of characters. All of these have the same hash if the hash multiplies by a number and
// adds a character, and the pairs are chosen for that number.
std::string chosen( int index, const char *zero, const char *one )
{
    std::string name;
    for ( int bit = 0; bit < 16; ++bit )
        name += index >> bit & 1 ? one : zero;
    return name;
}

// The permutation of nine letters with that number. All of these have the same hash if the hash only adds or joins.
std::string anagram( int index )
{
    std::string letters = "abcdefghi", name;
    for ( int left = 9; left > 0; index /= left-- )
    {
        auto at = static_cast<std::size_t>( index % left );
        name += letters[at];
        letters.erase( at, 1 );
    }
    return name;
}

struct Family
{
    const char *name;
    const char *header; // the name of the typed header that is decoded, or null for all headers as they are
    std::string ( *wire )( int n );
    int64_t ( *piece )(
        int64_t length ); // how many bytes of a stream are written at once; null for a datagram
};

int64_t allAtOnce( int64_t length ) { return length; }
int64_t byteByByte( int64_t ) { return 1; }

// clang-format off
#define REPEAT( FRONT, ITEM, ... ) \
    []( int n ) { return repeated( FRONT, []( [[maybe_unused]] int i ) -> std::string { return ITEM; }, n __VA_OPT__( , ) __VA_ARGS__ ); }
constexpr Family families[] = {
    { "headers of one name", "Route", REPEAT( "", "Route: <sip:a>\r\n" ), nullptr },
    { "headers of many names", nullptr, REPEAT( "", "X-" + digits( i ) + ": a\r\n" ), nullptr },
    { "header names, anagrams", nullptr, REPEAT( "", anagram( i ) + ": a\r\n" ), nullptr },
    { "header names, one h*31+c", nullptr, REPEAT( "", chosen( i, "an", "c0" ) + ": a\r\n" ), nullptr },
    { "folds of a Subject", "Subject", REPEAT( "Subject: a", "\r\n a", "\r\n" ), nullptr },
    { "parameters of a Via", "Via", REPEAT( "Via: SIP/2.0/UDP a", ";p" + digits( i ) + "=a", "\r\n" ), nullptr },
    { "parameters of a Via, one name", "Via", REPEAT( "Via: SIP/2.0/UDP a", ";branch=a", "\r\n" ), nullptr },
    { "values of a Contact", "Contact", REPEAT( "Contact: <sip:a>", ",<sip:a>", "\r\n" ), nullptr },
    { "bare addresses of a Contact", "Contact", REPEAT( "Contact: sip:a", ",sip:a", "\r\n" ), nullptr },
    { "commas of an address", "Contact", REPEAT( "Contact: sip:a", ",sip", "\r\n" ), nullptr },
    { "values of a Route", "Route", REPEAT( "Route: <sip:a>", ",<sip:a>", "\r\n" ), nullptr },
    { "values of an Accept", "Accept", REPEAT( "Accept: a/b", ",a/b", "\r\n" ), nullptr },
    { "tokens of an Allow", "Allow", REPEAT( "Allow: A", ",M" + digits( i ), "\r\n" ), nullptr },
    { "nested comments of a Server", "Server", []( int n ) { return repeated( "Server: ", []( int ) -> std::string { return "("; }, n, std::string( static_cast<std::size_t>( n ), ')' ) + "\r\n" ); }, nullptr },
    { "escapes of a display name", "From", REPEAT( "From: \"", "\\a", "\" <sip:a>\r\n" ), nullptr },
    { "escapes of an address", "From", REPEAT( "From: <sip:", "%20", "@a>\r\n" ), nullptr },
    { "parameters of an address", "From", REPEAT( "From: <sip:a", ";p" + digits( i ) + "=a", ">\r\n" ), nullptr },
    { "headers of an address", "From", REPEAT( "From: <sip:a?h", "&h" + digits( i ) + "=a", ">\r\n" ), nullptr },
    { "labels of a host", "Via", REPEAT( "Via: SIP/2.0/UDP a", ".a", "\r\n" ), nullptr },
    { "bytes of a token", "Event", REPEAT( "Event: a", "a", "\r\n" ), nullptr },
    { "messages of a stream", "Cseq", []( int n )
      {
          std::string stream;
          for ( int i = 0; i < n; ++i )
              stream += request( "CSeq: 1 INVITE\r\nl: 0\r\n" );
          return stream;
      }, allAtOnce },
    { "bytes that arrive one by one", "Subject", REPEAT( "Subject: a", "a", "\r\nl: 0\r\n" ), byteByByte },
};
// clang-format on

// Typed headers

struct Kind
{
    std::string_view name;
    RT_OBJ ( *tryDecode )( TELSX_MESSAGE message );
    int64_t ( *length )( RT_OBJ header );
    RT_OBJ ( *at )( RT_OBJ header, int64_t index );
    void ( *encode )( RT_OBJ header, TELSX_MESSAGE *message );
};

#define TELSX_KIND_WITH( NAME, SIP_NAME, LENGTH, AT )                                                   \
    { SIP_NAME,                                                                                         \
      []( TELSX_MESSAGE msg ) { return telsx##NAME##Obj( telsx##NAME##TryDecodeFromMessage( msg ) ); }, \
      []( [[maybe_unused]] RT_OBJ hdr ) -> int64_t { return LENGTH; },                                  \
      []( [[maybe_unused]] RT_OBJ hdr, [[maybe_unused]] int64_t index ) -> RT_OBJ { return AT; },       \
      []( RT_OBJ hdr, TELSX_MESSAGE *msg )                                                              \
      { telsx##NAME##EncodeToMessage( telsx##NAME##From( hdr ), msg ); } },
#define TELSX_KIND( NAME, SORT, SIP_NAME ) TELSX_KIND_WITH( NAME, SIP_NAME, 0, nullptr )
#define TELSX_KIND_OF_VALUES( NAME, SORT, SIP_NAME, WORD, VALUE )               \
    TELSX_KIND_WITH(                                                            \
        NAME, SIP_NAME, telsx##NAME##WORD##sLength( telsx##NAME##From( hdr ) ), \
        telsx##VALUE##Obj( telsx##NAME##TryDecode##WORD##At( telsx##NAME##From( hdr ), index ) ) )
#define TELSX_KIND_OF_TEXTS( NAME, SORT, SIP_NAME, WORD )                                    \
    TELSX_KIND_WITH( NAME, SIP_NAME, telsx##NAME##WORD##sLength( telsx##NAME##From( hdr ) ), \
                     rtStringObj( telsx##NAME##WORD##At( telsx##NAME##From( hdr ), index ) ) )
constexpr Kind kinds[] = {
#include "telsx/telsx_headers.def"
};

// Phases

class Run
{
public:
    Run( const Family &familyToRun, int n ) : family( familyToRun )
    {
        std::string wire = family.wire( n );
        bytes = adopt( rtBufferCreateFromBytesCopy( wire.data(), static_cast<int64_t>( wire.size() ) ) );
        if ( family.header )
            kind = std::find_if( std::begin( kinds ), std::end( kinds ),
                                 [&]( const Kind &each ) { return each.name == family.header; } );
        for ( auto *held : { &messages, &headers, &values, &encoded } )
            held->reserve( static_cast<std::size_t>( n ) + 2 );
    }

    void decode()
    {
        if ( !family.piece )
        {
            hold( messages, telsxMessageObj( telsxMessageTryDecode( bytes.get() ) ) );
            return;
        }
        auto decoder = adopt( telsxMessageStreamDecoderCreate() );
        int64_t length = rtBufferLength( bytes.get() ), piece = family.piece( length );
        for ( int64_t at = 0; at < length; at += piece )
        {
            telsxMessageStreamDecoderWriteInner( decoder.get(), bytes.get(), at, piece );
            while ( RT_OBJ message = telsxMessageObj( telsxMessageStreamDecoderRead( decoder.get() ) ) )
                hold( messages, message );
        }
    }

    void decodeTyped()
    {
        for ( RT_OBJ message : messages )
            if ( kind )
                decodeKind( telsxMessageFrom( message ) );
            else
                decodeNames( telsxMessageFrom( message ) );
    }

    void encode()
    {
        for ( std::size_t i = 0; i < messages.size(); ++i )
        {
            TELSX_MESSAGE message = telsxMessageFrom( messages[i] );
            if ( kind )
                kind->encode( headers[i], &message );
            messages[i] = telsxMessageObj( message );
            hold( encoded, rtBufferObj( telsxMessageEncode( message ) ) );
        }
    }

    void release()
    {
        for ( auto *held : { &values, &headers, &encoded, &messages } )
            std::for_each( held->begin(), held->end(), rtObjRelease );
    }

private:
    static void hold( std::vector<RT_OBJ> &held, RT_OBJ obj )
    {
        if ( !obj )
        {
            std::fputs( "growth: a message or a header does not decode\n", stderr );
            std::abort();
        }
        held.push_back( obj );
    }

    void decodeKind( TELSX_MESSAGE message )
    {
        RT_OBJ header = kind->tryDecode( message );
        hold( headers, header );
        if ( kind->name == "From" )
            decodeAddress( telsxHeaderFromFrom( header ) );
        for ( int64_t i = 0; i < kind->length( header ); ++i )
            hold( values, kind->at( header, i ) );
    }

    // In parts, as text again, and compared with itself.
    void decodeAddress( TELSX_HEADER_FROM from )
    {
        auto iri = adopt( telsxHeaderFromIri( from ) );
        auto address = telsxSipIriTryDecode( iri.get() );
        hold( values, telsxSipIriObj( address ) );
        hold( values, rtStringObj( telsxSipIriEncode( address ) ) );
        telsxSipIriEquivalent( address, address );
    }

    // A header without a type is looked up by its name, and its line is taken.
    void decodeNames( TELSX_MESSAGE message )
    {
        auto all = adopt( telsxMessageHeadersVector( message ) );
        for ( int64_t i = 0; i < rtVectorLength( all.get() ); ++i )
        {
            auto raw = adopt( telsxMessageHeaderFrom( rtVectorObjAt( all.get(), i ) ) );
            auto name = adopt( telsxMessageHeaderName( raw.get() ) );
            auto found = adopt( telsxMessageHeader( message, name.get() ) );
            hold( values, rtStringObj( telsxMessageHeaderLastLine( found.get() ) ) );
        }
    }

    const Family &family;
    const Kind *kind = nullptr;
    Ref<RT_BUFFER> bytes;
    std::vector<RT_OBJ> messages, headers, values, encoded;
};

void count( const std::string &label, const std::function<void()> &phase )
{
    CALLGRIND_ZERO_STATS;
    phase();
    CALLGRIND_DUMP_STATS_AT( label.c_str() );
}

void measure( const Family &family, int n )
{
    Run run( family, n );
    std::string label = std::string( family.name ) + "\t" + std::to_string( n ) + "\t";
    int64_t before = heap::used;
    heap::most = before;
    count( label + "decode", [&] { run.decode(); } );
    count( label + "typed", [&] { run.decodeTyped(); } );
    count( label + "encode", [&] { run.encode(); } );
    count( label + "release", [&] { run.release(); } );
    std::printf( "%smemory\t%lld\n", label.c_str(), static_cast<long long>( heap::most - before ) );
}

} // namespace

int main( int argc, char **argv )
{
    rtModuleStart( telsxModule() );
    for ( const Family &family : families )
        if ( argc == 1 )
            std::puts( family.name );
        else if ( argc == 3 && argv[1] == std::string_view( family.name ) )
            measure( family, std::atoi( argv[2] ) );
    rtModuleStop( telsxModule() );
}
