// docs/accepts.md is true: from the first column of its tables the library makes what the second column has. \n stands
// for CR LF there, \t for a tab, \xHH for a byte.
#include <fstream>
#include <set>

#include "../../fuzz/headers.hpp"
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

// All messages, then what is left in the decoder.
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

// The lines of a typed header. In a list, each value is set again to what it decodes to.
std::string linesOf( const headers::Kind &kind, Ref<RT_OBJ> header )
{
    std::set<int64_t> bad;
    for ( int64_t i = 0; kind.set && i < kind.length( header.get() ); ++i )
        if ( auto value = adopt( kind.at( header.get(), i ) ) )
            kind.set( header.address(), i, value.get() );
        else
            bad.insert( i );
    std::string result;
    auto raw = adopt( kind.encode( header.get() ) );
    for ( int64_t i = 0; i < telsxMessageHeaderLinesLength( raw.get() ); ++i )
        result += ( bad.contains( i )
                        ? "null"
                        : std::string( kind.name ) + ": " + utf8( telsxMessageHeaderLineAt( raw.get(), i ) ) )
                  + "\r\n";
    return result.empty() ? "empty\r\n" : result;
}

std::string ofHeaders( std::string_view lines )
{
    auto msg = message( "OPTIONS sip:a SIP/2.0\r\n" + std::string( lines ) + "\r\n\r\n" );
    if ( !msg )
        return "no message";
    std::string result;
    for ( const headers::Kind &kind : headers::all )
        if ( auto header = adopt( kind.tryDecodeFromMessage( msg.get() ) ) )
            result += linesOf( kind, header );
        else if ( kind.presentInMessage( msg.get() ) )
            result += "null\r\n";
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
