// docs/accepts.md tells the truth: the library makes of what stands in the first column of its tables what stands in
// the second. \n stands for CR LF there, \t for a tab, \xHH for a byte.
#include <fstream>
#include <set>

#include "telsx_support.hpp"

namespace
{

using namespace support;

std::string unescaped( std::string_view text )
{
    std::string result;
    for ( ; !text.empty(); text.remove_prefix( 1 ) )
    {
        std::string_view escape = text.substr( 0, 2 );
        if ( escape == "\\n" || escape == "\\t" )
            result += escape == "\\n" ? "\r\n" : "\t";
        else if ( escape == "\\x" )
            result += static_cast<char>( std::stoi( std::string( text.substr( 2, 2 ) ), nullptr, 16 ) );
        else
        {
            result += text.front();
            continue;
        }
        text.remove_prefix( escape == "\\x" ? 3 : 1 );
    }
    return result;
}

std::string ofDatagram( std::string_view datagram )
{
    auto msg = adopt( telsxMessageTryDecode( buffer( datagram ).get() ) );
    return msg ? bytes( adopt( telsxMessageEncode( msg.get() ) ) ) : "null";
}

// All messages, then what the decoder is left with.
std::string ofStream( std::string_view stream )
{
    auto decoder = adopt( telsxMessageStreamDecoderCreate() );
    telsxMessageStreamDecoderWrite( decoder.get(), buffer( stream ).get() );
    std::string result;
    while ( auto msg = adopt( telsxMessageStreamDecoderRead( decoder.get() ) ) )
        result += bytes( adopt( telsxMessageEncode( msg.get() ) ) );
    if ( telsxMessageStreamDecoderError( decoder.get() ) )
        return result + "null";
    return result + ( telsxMessageStreamDecoderLength( decoder.get() ) ? "..." : "" );
}

// The lines of a typed header.
template <class HEADER>
std::string linesOf( const char *name, Ref<HEADER> header, TELSX_MESSAGE_HEADER ( *encode )( HEADER ),
                     const std::set<int64_t> &bad = {} )
{
    std::string result;
    auto raw = adopt( encode( header.get() ) );
    for ( int64_t i = 0; i < telsxMessageHeaderLinesLength( raw.get() ); ++i )
        result += bad.contains( i )
                      ? "null\r\n"
                      : name + ( ": " + utf8( telsxMessageHeaderLineAt( raw.get(), i ) ) ) + "\r\n";
    return result.empty() ? "empty\r\n" : result;
}

// Of a list, which is given back what each of its values decodes to.
template <class HEADER, class VALUE>
std::string linesOf( const char *name, Ref<HEADER> header, TELSX_MESSAGE_HEADER ( *encode )( HEADER ),
                     int64_t ( *lengthOf )( HEADER ), VALUE ( *tryDecodeAt )( HEADER, int64_t ),
                     void ( *setAt )( HEADER *, int64_t, VALUE ) )
{
    std::set<int64_t> bad;
    for ( int64_t i = 0; i < lengthOf( header.get() ); ++i )
        if ( auto value = adopt( tryDecodeAt( header.get(), i ) ) )
            setAt( header.address(), i, value.get() );
        else
            bad.insert( i );
    return linesOf( name, header, encode, bad );
}

std::string ofHeaders( std::string_view lines )
{
    auto decoded = adopt( telsxMessageTryDecode(
        buffer( "OPTIONS sip:a SIP/2.0\r\n" + std::string( lines ) + "\r\n\r\n" ).get() ) );
    TELSX_MESSAGE msg = decoded.get();
    if ( !msg )
        return "no message";
    std::string result;
#define LINES( NAME, SIP_NAME, ... )                                            \
    if ( auto header = adopt( telsx##NAME##TryDecodeFromMessage( msg ) ) )      \
        result += linesOf( SIP_NAME, header, telsx##NAME##Encode __VA_ARGS__ ); \
    else if ( telsx##NAME##PresentInMessage( msg ) )                            \
        result += "null\r\n";
#define TELSX_KIND( NAME, SORT, SIP_NAME ) LINES( NAME, SIP_NAME )
#define TELSX_KIND_OF_VALUES( NAME, SORT, SIP_NAME, WORD, VALUE )                          \
    LINES( NAME, SIP_NAME, , telsx##NAME##WORD##sLength, telsx##NAME##TryDecode##WORD##At, \
           telsx##NAME##Set##WORD##At )
#include "telsx/telsx_headers.def"
    return result.substr( 0, result.size() - 2 );
}

// An address through its parts.
std::string ofAddress( std::string_view text )
{
    auto iri = str( text );
    if ( auto sip = adopt( telsxSipIriTryDecode( iri.get() ) ) )
        return utf8( telsxSipIriEncode( sip.get() ) );
    auto tel = adopt( telsxTelIriTryDecode( iri.get() ) );
    return tel ? utf8( telsxTelIriEncode( tel.get() ) ) : "null";
}

TEST( Accepts, TheDocumentTellsTheTruth )
{
    std::ifstream document( DOCUMENTS "/accepts.md" );
    std::string ( *apply )( std::string_view ) = nullptr;
    int rows = 0;
    for ( std::string line; std::getline( document, line ); )
    {
        if ( line.starts_with( "| Datagram" ) )
            apply = ofDatagram;
        if ( line.starts_with( "| Stream" ) )
            apply = ofStream;
        if ( line.starts_with( "| Header" ) )
            apply = ofHeaders;
        if ( line.starts_with( "| Address" ) )
            apply = ofAddress;
        if ( !line.starts_with( "| `" ) )
            continue;
        std::size_t cell = line.find( "` | `" );
        std::size_t end = line.find( '`', cell + 5 );
        ASSERT_TRUE( cell != line.npos && end != line.npos ) << line;
        std::string given = line.substr( 3, cell - 3 ), expected = line.substr( cell + 5, end - cell - 5 );
        EXPECT_EQ( unescaped( expected ), apply( unescaped( given ) ) ) << line;
        ++rows;
    }
    EXPECT_GT( rows, 0 );
}

} // namespace
