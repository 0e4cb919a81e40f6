// A program with its own abort function, which sees breaches of contract in all libraries and continues after them:
// what it is told about them, and which unit they are said to be in.
#include <csetjmp>

#include "../../fuzz/elements.hpp"
#include "rsc/rsc.h"
#include "support/support.hpp"
#include "telsx/telsx.h"

using namespace support;

namespace
{

struct Abort
{
    const char *message, *file, *expression;
};

} // namespace

static Abort last;
static std::jmp_buf back;
static bool jumps;

void rt___Abort( const char *message, const char *file, int64_t, const char *expression )
{
    last = { message, file, expression };
    if ( jumps )
        std::longjmp( back, 1 );
    throw last;
}

// The call must abort in that unit; the program continues whether it leaves by a jump or by an exception.
template <class CALL>
static void expectAbort( CALL call, const std::string &unit, const char *expression,
                         const char *message = nullptr )
{
    for ( bool jump : { true, false } )
    {
        jumps = jump;
        last = { nullptr, "nowhere", "nothing" };
        try
        {
            if ( !setjmp( back ) )
                call();
        }
        catch ( const Abort & )
        {
            EXPECT_FALSE( jumps );
        }
        EXPECT_TRUE( unit.empty() || last.file == "source/" + unit ) << last.file;
        EXPECT_STREQ( expression, last.expression );
        EXPECT_STREQ( message, last.message );
    }
}

TEST( Aborts, AreTheProgramsInAllLibraries )
{
    expectAbort( [] { rtObjSort( nullptr ); }, "rt/rt_object", "obj" );
    expectAbort( [] { netDnsIdnaDomainNameOk( nullptr ); }, "net/net_dns_idna", "name" );
    expectAbort( [] { rscTryConvertToUri( nullptr ); }, "rsc/rsc_iri", "iri" );
    expectAbort( [] { telsxViaFrom( telsxModule() ); }, "telsx/telsx_via",
                 "!obj || rtObjSort(obj)==&telsx___sort_TELSX_VIA", "stdfunc from" );
    // No lock is held.
    expectAbort( [] { rtModuleStop( telsxModule() ); }, "rt/rt_module", "started" );
    EXPECT_TRUE( rtModuleStart( telsxModule() ) );
    rtModuleStop( telsxModule() );
}

// The unit of an element.
static std::string unitOf( const std::string &element )
{
    std::string unit = "telsx/telsx";
    for ( char ch : element )
        unit += ch >= 'A' && ch <= 'Z' ? std::string( "_" ) + static_cast<char>( ch + 0x20 )
                                       : std::string( 1, ch );
    return unit;
}

TEST( Aborts, OfElementsStandInTheirUnits )
{
    // Elements not listed here have their own unit, or are in telsx_skip if they have no predicate.
    const std::pair<const char *, const char *> others[] = {
        { "telsx/telsx_skip",
          " Token TokenNodot Method ProtocolName ProtocolVersion QuotableString DisplayName WarnAgent "
          "Server UserAgent " },
        { "telsx/telsx_host", " DomainLabel Hostname IpV6Reference HostPort " },
        { "telsx/telsx_iri", " AddrSpec Uric " },
        { "telsx/telsx_warn_agent", " Pseudonym " },
        { "rsc/rsc_iri", " Iri Port " },
        { "net/net_address", " IpV4Address IpV6Address " },
    };
    RT_CHAR ch = 'a';
    for ( const elements::Element &element : elements::all )
    {
        SCOPED_TRACE( element.name );
        std::string own = unitOf( std::string( element.name ) ),
                    unit = element.ok || element.numberOk ? own : "telsx/telsx_skip";
        for ( auto &[other, names] : others )
            if ( std::string( names ).find( " " + std::string( element.name ) + " " ) != std::string::npos )
                unit = other;
        auto expectAborts = [&ch]( auto *function, const std::string &there )
        {
            if ( !function )
                return;
            expectAbort( [&] { function( &ch, -1 ); }, there, "length >= 0" );
            expectAbort( [&] { function( nullptr, 20 ); }, there, "chs || length == 0" );
        };
        expectAborts( element.skip, unit );
        expectAborts( element.tryDecode, {} );
        expectAborts( element.tryDecodeNumber, {} );
        if ( !element.ok )
            continue;
        std::string parameter( element.name );
        parameter[0] = static_cast<char>( parameter[0] + 0x20 );
        for ( auto [name, shorter] : { std::pair( "ReasonCause", "cause" ),
                                       { "HistoryInfoIndex", "index" },
                                       { "PriorityValue", "priority" },
                                       { "ReasonProtocol", "protocol" },
                                       { "ReasonText", "text" } } )
            if ( name == std::string_view( element.name ) )
                parameter = shorter;
        expectAbort( [&] { element.ok( nullptr ); }, own, parameter.c_str() );
    }
}

TEST( Aborts, NameTheParameterThatIsNull )
{
    ASSERT_TRUE( rtModuleStart( telsxModule() ) );
    Ref<TELSX_HEADER_FROM> from = adopt( telsxHeaderFromCreate( str( "sip:a" ).get() ) );
    Ref<TELSX_HEADER_ALLOW> allow = adopt( telsxHeaderAllowCreate() );
    Ref<TELSX_GENERIC_PARAMS> params = adopt( telsxGenericParamsCreate() );
    Ref<TELSX_MESSAGE_HEADER> header = adopt( telsxMessageHeaderCreateCstr( "a", -1 ) );
    Ref<TELSX_MESSAGE_FRAGMENT> frag = adopt( telsxMessageFragmentCreate() );
    expectAbort( [&] { telsxHeaderFromSetTag( from.address(), nullptr ); }, "telsx/telsx_header_from",
                 "tag" );
    expectAbort( [] { telsxHeaderCallIdCreate( nullptr ); }, "telsx/telsx_header_call_id", "callId" );
    expectAbort( [&] { telsxHeaderAllowHasMethod( allow.get(), nullptr ); }, "telsx/telsx_header_allow",
                 "element" );
    expectAbort( [&] { telsxGenericParamsHasParam( params.get(), nullptr ); }, "telsx/telsx_generic_params",
                 "name" );
    expectAbort( [&] { telsxMessageHeaderAppendLine( header.address(), nullptr ); },
                 "telsx/telsx_message_header", "value" );
    expectAbort( [&] { telsxMessageFragmentHasHeader( frag.get(), nullptr ); },
                 "telsx/telsx_message_fragment", "name" );
    rtModuleStop( telsxModule() );
}
