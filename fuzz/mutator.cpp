#include "mutator.hpp"

#include <algorithm>
#include <random>
#include <string>

namespace
{

constexpr std::string_view names[] = {
#define TELSX_KIND( NAME, SORT, SIP_NAME ) SIP_NAME,
#include "telsx/telsx_headers.def"
#undef TELSX_KIND
    "Content-Length", "l", "v", "X", "cONTENT-type",
};

// Pieces of header values; sip.dict has shorter ones, which the fuzzer inserts by itself.
constexpr std::string_view words[] = {
    "SIP/2.0/UDP a;branch=z9hG4bK1",
    "<sip:a@b.c;lr>",
    "\"a \\\" b\" <sips:c>",
    ";a=\"b;c,d\"",
    ";received=[::1]",
    ", ",
    ",,",
    "*",
    "1 INVITE",
    "Mon, 01 Jan 2024 00:00:00 GMT",
    "399 a \"b\"",
    "Q.850;cause=16;text=\"t\"",
    "text/plain",
    "(a (b) \\) c)",
    "\xEF\xBB\xBF",
    "\xF4\x90\x80\x80",
};
constexpr std::string_view folds[] = { "\r\n ", "\r\n\t", "\n ", "\r ", "\r\n \r\n ", "\r\n" };
constexpr std::string_view ends[] = { "\r\n", "\n", "\r", "", "\r\r\n", " \r\n" };

class Random
{
public:
    explicit Random( unsigned seed ) : engine( seed ) {}

    // A number below the limit, or 0.
    std::size_t below( std::size_t limit ) { return limit ? engine() % limit : 0; }
    template <class LIST>
    auto &of( LIST &list )
    {
        return list[below( std::size( list ) )];
    }

private:
    std::minstd_rand engine;
};

// The lines of a message: the start line, headers with their folds, the body with the blank line.
using Lines = std::vector<std::string>;

Lines cut( std::string_view message )
{
    Lines lines;
    bool isBody = false;
    while ( !message.empty() )
    {
        isBody = isBody || ( lines.size() && ( message.starts_with( "\r\n" ) || message.front() == '\n' ) );
        std::size_t length =
            isBody ? message.size() : std::min( message.find( '\n' ), message.size() - 1 ) + 1;
        bool isFold = lines.size() > 1 && ( message.front() == ' ' || message.front() == '\t' );
        ( isFold ? lines.back() : lines.emplace_back() ) += message.substr( 0, length );
        message.remove_prefix( length );
    }
    lines.resize( std::max<std::size_t>( lines.size(), 2 ) );
    return lines;
}

// The first message, or what follows one of the blank lines: the next message of a stream, or one inside a body.
std::size_t pickOffset( std::string_view input, Random &random )
{
    static constexpr std::string_view blankLine = "\r\n\r\n";
    std::vector<std::size_t> offsets( 2, std::min( fuzz::messageOffset, input.size() ) );
    for ( std::size_t at = 0; ( at = input.find( blankLine, at ) ) != input.npos; )
        offsets.push_back( at += blankLine.size() );
    return random.of( offsets );
}

std::string newHeader( Random &random )
{
    std::string header( random.of( names ) );
    header += ": ";
    for ( std::size_t i = random.below( 4 ); i--; )
        header += random.of( words );
    return header + "\r\n";
}

std::string contentLength( std::size_t bodyLength, Random &random )
{
    const std::string is = std::to_string( bodyLength ), values[] = { is,
                                                                      is,
                                                                      is,
                                                                      std::to_string( bodyLength + 1 ),
                                                                      "0",
                                                                      "-1",
                                                                      "+" + is,
                                                                      "00" + is,
                                                                      "9223372036854775807",
                                                                      "18446744073709551616",
                                                                      "" };
    return "l: " + random.of( values ) + "\r\n";
}

void mutateBytes( std::string &text )
{
    std::size_t size = std::max<std::size_t>( text.size(), 1 );
    text.resize( size + 64, ' ' );
    text.resize( LLVMFuzzerMutate( reinterpret_cast<uint8_t *>( text.data() ), size, text.size() ) );
}

void change( Lines &lines, Random &random )
{
    std::size_t body = lines.size() - 1, bodyLength = std::max<std::size_t>( lines[body].size(), 2 ) - 2;
    std::string &line = random.of( lines ), copy = line;
    std::size_t place = random.below( line.size() - ( line.ends_with( "\r\n" ) ? 1 : 0 ) );
    auto at = lines.begin() + static_cast<std::ptrdiff_t>( 1 + random.below( body ) );
    switch ( random.below( 9 ) )
    {
        case 0: lines.insert( at, newHeader( random ) ); break;
        case 1: lines.insert( at, copy ); break;
        case 2: lines.erase( at ); break;
        case 3: std::swap( *at, line ); break;
        case 4: line.insert( place, random.of( words ) ); break;
        case 5: line.insert( place, random.of( folds ) ); break;
        case 6:
            line.erase( line.find_last_not_of( "\r\n" ) + 1 );
            line += random.of( ends );
            break;
        case 7: lines.insert( at, contentLength( bodyLength, random ) ); break;
        default: mutateBytes( line );
    }
}

} // namespace

std::size_t LLVMFuzzerCustomMutator( uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed )
{
    Random random( seed );
    if ( random.below( 4 ) == 0 )
        return LLVMFuzzerMutate( data, size, maxSize );
    std::string_view input( reinterpret_cast<const char *>( data ), size );
    std::size_t offset = pickOffset( input, random );
    Lines lines = cut( input.substr( offset ) );
    for ( std::size_t i = 1 + random.below( 4 ); i-- && lines.size() > 1; )
        change( lines, random );
    std::string whole( input.substr( 0, offset ) );
    for ( const std::string &line : lines )
        whole += line;
    size = std::min( whole.size(), maxSize );
    std::copy_n( whole.begin(), size, data );
    return size;
}
