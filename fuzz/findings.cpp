// The findings of any bytes say what the decoders say, at places that are there, and what can be saved of a message is
// one.
#include <map>
#include <string>

#include "fuzz.hpp"
#include "mutator.hpp"

using namespace fuzz;

const std::size_t fuzz::messageOffset = 0;

namespace
{

using Message = Ref<TELSX_MESSAGE>;

std::string asciiOf( RT_STRING given )
{
    Ref<RT_STRING> string = adopt( given );
    return std::string( rtStringBacking( string.get() ),
                        rtStringBacking( string.get() ) + rtStringLength( string.get() ) );
}

// How many of each header's values cannot be read, or 1 for the header as a whole.
std::map<std::string, int> unreadable( const Message &message )
{
    std::map<std::string, int> counts;
    TELSX_MESSAGE msg = message.get();
#define UNREADABLE( NAME, SIP_NAME, VALUES )                            \
    if ( auto hdr = adopt( telsx##NAME##TryDecodeFromMessage( msg ) ) ) \
    {                                                                   \
        VALUES                                                          \
    }                                                                   \
    else if ( telsx##NAME##PresentInMessage( msg ) )                    \
        counts[SIP_NAME] = 1;
#define TELSX_KIND( NAME, SORT, SIP_NAME ) UNREADABLE( NAME, SIP_NAME, )
#define TELSX_KIND_OF_VALUES( NAME, SORT, SIP_NAME, WORD, VALUE )         \
    UNREADABLE(                                                           \
        NAME, SIP_NAME,                                                   \
        for ( int64_t i = 0; i < telsx##NAME##WORD##sLength( hdr.get() ); \
              ++i ) if ( !adopt( telsx##NAME##TryDecode##WORD##At( hdr.get(), i ) ) )++ counts[SIP_NAME]; )
#include "telsx/telsx_headers.def"
#undef TELSX_KIND
    return counts;
}

void requirePlaces( const Ref<RT_VECTOR> &findings, std::string_view input )
{
    int64_t last = 0, line = 1;
    for ( int64_t i = 0; i < rtVectorLength( findings.get() ); ++i )
    {
        auto finding = adopt( telsxFindingFrom( rtVectorObjAt( findings.get(), i ) ) );
        int64_t offset = telsxFindingOffset( finding.get() );
        require( offset >= last && offset <= static_cast<int64_t>( input.size() ),
                 "places are inside the bytes and in order" );
        for ( ; last < offset; ++last )
            line += input[static_cast<std::size_t>( last )] == '\n';
        require( telsxFindingLine( finding.get() ) == line, "the line counts the line feeds" );
        std::string_view before = input.substr( 0, static_cast<std::size_t>( offset ) );
        auto bytesBefore = static_cast<int64_t>( before.size() - ( before.rfind( '\n' ) + 1 ) );
        int64_t column = telsxFindingColumn( finding.get() );
        require( column >= 1 + bytesBefore / 4 && column <= 1 + bytesBefore, "the column counts characters" );
    }
}

void test( std::string_view input )
{
    Ref<RT_BUFFER> bytesIn = buffer( input );
    Message message = adopt( telsxMessageTryDecode( bytesIn.get() ) );
    Ref<RT_VECTOR> findings = adopt( telsxMessageFindings( bytesIn.get() ) );
    requirePlaces( findings, input );
    auto finder = adopt( telsxFinderCreate() );
    for ( int i = 0; i < 2; ++i )
        require( rtVectorEquals( findings.get(),
                                 adopt( telsxFinderFindings( finder.get(), bytesIn.get() ) ).get() ),
                 "a finder finds the same, also what it has seen before" );

    int errors = 0;
    std::map<std::string, int> warnings;
    for ( int64_t i = 0; i < rtVectorLength( findings.get() ); ++i )
    {
        auto finding = adopt( telsxFindingFrom( rtVectorObjAt( findings.get(), i ) ) );
        int64_t severity = telsxFindingSeverity( finding.get() );
        errors += severity == TELSX_FINDING_SEVERITY_ERROR;
        if ( severity == TELSX_FINDING_SEVERITY_WARNING )
            ++warnings[asciiOf( telsxFindingHeaderName( finding.get() ) )];
    }
    require( errors == !message, "there is an error if and only if there is no message" );
    require( message || rtVectorLength( findings.get() ) == 1, "an error is the only finding" );
    require( !message || warnings == unreadable( message ),
             "a warning tells each header that is unreadable" );

    Message loose = adopt( telsxMessageTryDecodeLoosely( bytesIn.get() ) );
    if ( !loose )
        return;
    for ( auto &[name, count] : unreadable( loose ) )
        require( !message || unreadable( message )[name] == count, "what stays unreadable are values" );
    Ref<RT_BUFFER> encoded = adopt( telsxMessageEncode( loose.get() ) );
    require( bool( adopt( telsxMessageTryDecode( encoded.get() ) ) ), "what was saved of a message is one" );
}

} // namespace

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    return run( [&] { test( { reinterpret_cast<const char *>( data ), size } ); } );
}
