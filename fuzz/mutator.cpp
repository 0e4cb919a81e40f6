#include "mutator.hpp"

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace
{

constexpr std::string_view names[] = {
#define TELSX_KIND( NAME, SORT, SIP_NAME ) SIP_NAME,
#include "telsx/telsx_headers.def"
#undef TELSX_KIND
    "Content-Length",
    "Content-Type",
};

// Pieces of header values; sip.dict holds shorter ones, which the fuzzer puts in by itself.
constexpr std::string_view words[] = {
    "SIP/2.0/UDP a;branch=z9hG4bK1",
    "<sip:a@b.c;lr>",
    "\"a \\\" b\" <sips:c>",
    ";tag=1",
    ";q=0.5",
    ";a=\"b;c,d\"",
    ";expires=60",
    ";rport",
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

class Random
{
public:
    explicit Random( unsigned seed ) : engine( seed ) {}

    // A number below the limit, or 0.
    std::size_t below( std::size_t limit ) { return limit ? engine() % limit : 0; }
    bool once( std::size_t in ) { return below( in ) == 0; }

    template <class LIST>
    auto &of( LIST &list )
    {
        return list[below( std::size( list ) )];
    }

private:
    std::minstd_rand engine;
};

struct Message
{
    std::string front; // what stands before it in the input
    std::string startLine;
    std::vector<std::string> headers; // with their folds and their line ends
    std::string body;                 // with the blank line

    std::string whole() const
    {
        std::string text = front + startLine;
        for ( const std::string &header : headers )
            text += header;
        return text + body;
    }
};

constexpr std::string_view blankLine = "\r\n\r\n";

std::string_view takeLine( std::string_view &rest )
{
    std::string_view line = rest.substr( 0, std::min( rest.find( '\n' ), rest.size() - 1 ) + 1 );
    rest.remove_prefix( line.size() );
    return line;
}

Message cut( std::string_view input, std::size_t offset )
{
    offset = std::min( offset, input.size() );
    std::string_view rest = input.substr( offset );
    Message message{ .front = std::string( input.substr( 0, offset ) ),
                     .startLine = std::string( takeLine( rest ) ),
                     .headers = {},
                     .body = {} };
    while ( !rest.empty() && rest.front() != '\n' && !rest.starts_with( "\r\n" ) )
    {
        std::string_view line = takeLine( rest );
        bool isFold = line.front() == ' ' || line.front() == '\t';
        if ( isFold && !message.headers.empty() )
            message.headers.back() += line;
        else
            message.headers.emplace_back( line );
    }
    message.body = rest;
    return message;
}

// The first message, or what stands behind one of the blank lines: the next message of a stream, or one that
// is a body.
std::size_t pickOffset( std::string_view input, Random &random )
{
    std::vector<std::size_t> offsets = { fuzz::messageOffset, fuzz::messageOffset };
    for ( std::size_t at = 0; ( at = input.find( blankLine, at ) ) != input.npos; )
        offsets.push_back( at += blankLine.size() );
    return random.of( offsets );
}

std::string name( Random &random )
{
    if ( random.once( 4 ) )
        return { static_cast<char>( 'a' + random.below( 26 ) ) };
    std::string picked( random.of( names ) );
    if ( random.once( 4 ) )
        for ( char &ch : picked )
            ch = static_cast<char>( random.once( 2 ) ? std::toupper( ch ) : std::tolower( ch ) );
    return picked;
}

std::string newHeader( Random &random )
{
    std::string header = name( random ) + ": ";
    for ( std::size_t i = random.below( 4 ); i--; )
        header += random.of( words );
    return header + "\r\n";
}

void insert( Message &message, const std::string &header, Random &random )
{
    message.headers.insert( message.headers.begin()
                                + static_cast<std::ptrdiff_t>( random.below( message.headers.size() + 1 ) ),
                            header );
}

// One of the headers; a message without any is given one.
std::string &pickHeader( Message &message, Random &random )
{
    if ( message.headers.empty() )
        message.headers.push_back( newHeader( random ) );
    return random.of( message.headers );
}

// Takes one of the headers out, of which there is one.
std::string takeHeader( Message &message, Random &random )
{
    auto at = message.headers.begin() + static_cast<std::ptrdiff_t>( random.below( message.headers.size() ) );
    std::string header = std::move( *at );
    message.headers.erase( at );
    return header;
}

// A place in the header, before its line end if it has one.
std::size_t pickPlace( const std::string &header, Random &random )
{
    return random.below( header.size() - ( header.ends_with( "\r\n" ) ? 1 : 0 ) );
}

void mutateBytes( std::string &text )
{
    std::size_t size = std::max<std::size_t>( text.size(), 1 );
    text.resize( size + 64, ' ' );
    text.resize( LLVMFuzzerMutate( reinterpret_cast<uint8_t *>( text.data() ), size, text.size() ) );
}

// Each change of a message.

void add( Message &message, Random &random ) { insert( message, newHeader( random ), random ); }
void duplicate( Message &message, Random &random )
{
    insert( message, std::string( pickHeader( message, random ) ), random );
}
void remove( Message &message, Random &random )
{
    if ( !message.headers.empty() )
        takeHeader( message, random );
}
void swap( Message &message, Random &random )
{
    std::string &header = pickHeader( message, random );
    std::swap( header, random.of( message.headers ) );
}
void move( Message &message, Random &random )
{
    if ( !message.headers.empty() )
        insert( message, takeHeader( message, random ), random );
}
void rename( Message &message, Random &random )
{
    std::string &header = pickHeader( message, random );
    header.replace( 0, std::min( header.find_first_of( ": \t\r" ), header.size() ), name( random ) );
}
void putWord( Message &message, Random &random )
{
    std::string &header = pickHeader( message, random );
    header.insert( pickPlace( header, random ), random.of( words ) );
}
void fold( Message &message, Random &random )
{
    static constexpr std::string_view folds[] = { "\r\n ", "\r\n\t", "\n ", "\r ", "\r\n \r\n ", "\r\n" };
    std::string &header = pickHeader( message, random );
    header.insert( pickPlace( header, random ), random.of( folds ) );
}
void changeLineEnd( Message &message, Random &random )
{
    static constexpr std::string_view ends[] = { "\r\n", "\n", "\r", "", "\r\r\n", " \r\n" };
    std::string &line = random.once( 4 ) ? message.startLine : pickHeader( message, random );
    line.erase( line.find_last_not_of( "\r\n" ) + 1 );
    line += random.of( ends );
}
void repeatPart( Message &message, Random &random )
{
    std::string &header = pickHeader( message, random );
    std::size_t at = pickPlace( header, random ),
                length = 1 + random.below( std::min<std::size_t>( header.size() - at, 32 ) );
    std::string part = header.substr( at, length ), many;
    for ( std::size_t i = std::size_t{ 1 } << random.below( 10 ); i--; )
        many += part;
    header.insert( at, many );
}
void repeatHeader( Message &message, Random &random )
{
    std::string &header = pickHeader( message, random ), part = header;
    for ( std::size_t i = std::size_t{ 1 } << random.below( 6 ); i--; )
        header += part;
}
void setContentLength( Message &message, Random &random )
{
    std::size_t length = message.body.size() - std::min<std::size_t>( message.body.size(), 2 );
    const std::string values[] = {
        std::to_string( length ),
        std::to_string( length ),
        std::to_string( length ),
        std::to_string( length + 1 ),
        std::to_string( length / 2 ),
        "0",
        "-1",
        "+" + std::to_string( length ),
        "00" + std::to_string( length ),
        "9223372036854775807",
        "18446744073709551616",
        "",
    };
    std::string line =
        ( random.once( 4 ) ? "l:" : "Content-Length: " ) + std::string( random.of( values ) ) + "\r\n";
    if ( random.once( 2 ) )
        pickHeader( message, random ) = line;
    else
        insert( message, line, random );
}
void mutateStartLine( Message &message, Random & ) { mutateBytes( message.startLine ); }
void mutateHeader( Message &message, Random &random ) { mutateBytes( pickHeader( message, random ) ); }
void mutateBody( Message &message, Random & ) { mutateBytes( message.body ); }

constexpr void ( *changes[] )( Message &message, Random &random ) = {
    add,          duplicate,    remove,           swap,
    move,         rename,       rename,           putWord,
    putWord,      fold,         changeLineEnd,    repeatPart,
    repeatHeader, mutateHeader, setContentLength, mutateHeader,
    mutateBody,   mutateHeader, mutateStartLine,
};

std::string_view view( const uint8_t *data, std::size_t size )
{
    return { reinterpret_cast<const char *>( data ), size };
}

std::size_t write( const std::string &text, uint8_t *out, std::size_t maxSize )
{
    std::size_t size = std::min( text.size(), maxSize );
    std::copy_n( text.begin(), size, out );
    return size;
}

} // namespace

std::size_t LLVMFuzzerCustomMutator( uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed )
{
    Random random( seed );
    if ( random.once( 4 ) )
        return LLVMFuzzerMutate( data, size, maxSize );
    std::string_view input = view( data, size );
    Message message = cut( input, pickOffset( input, random ) );
    for ( std::size_t i = 1 + random.below( 4 ); i--; )
        random.of( changes )( message, random );
    return write( message.whole(), data, maxSize );
}

std::size_t LLVMFuzzerCustomCrossOver( const uint8_t *data1, std::size_t size1, const uint8_t *data2,
                                       std::size_t size2, uint8_t *out, std::size_t maxOutSize,
                                       unsigned seed )
{
    Random random( seed );
    std::string_view first = view( data1, size1 ), second = view( data2, size2 );
    Message message = cut( first, pickOffset( first, random ) ),
            other = cut( second, pickOffset( second, random ) );
    switch ( random.below( 5 ) )
    {
        case 0: message.startLine = other.startLine; break;
        case 1: message.body = other.body; break;
        case 2: message.body += other.startLine + Message{ {}, {}, other.headers, other.body }.whole(); break;
        default:
            for ( const std::string &header : other.headers )
                if ( random.once( 2 ) )
                    insert( message, header, random );
    }
    return write( message.whole(), out, maxOutSize );
}
