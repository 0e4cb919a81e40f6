// Does a proxy's work on one request and writes what it sends on, or the response that it sends instead, to standard
// output; what it reads in the request goes to standard error.
//
//     hop [--host HOST] [--source ADDRESS PORT] [FILE | -]
//
// HOST is the proxy's own host, by default proxy.example.com; ADDRESS and PORT are where the request came from. Without
// a file the request is the one below; "-" is standard input. Like a stateless proxy, hop does the same to the same
// request each time (RFC 3261, 16.11).
#include <cerrno>
#include <sstream>
#include <stdexcept>

#include "readings.hpp"

namespace
{

using Address = Owned<TELSX_SIP_IRI>; // null for one of another scheme
using IpAddress = Owned<NET_ADDRESS>;
using Routes = Owned<TELSX_HEADER_ROUTE>;
using To = Owned<TELSX_HEADER_TO>;
using Via = Owned<TELSX_VIA>;

const char sample[] = "INVITE sip:ren%C3%A9e@xn--mhle-0ra.example SIP/2.0\r\n"
                      "Via: SIP/2.0/UDP pc33.example.net:5060;branch=z9hG4bK87asdks7;rport\r\n"
                      "Route: <sip:proxy.example.com;lr>, <sip:gate.mill.example;lr>\r\n"
                      "Max-Forwards: 70\r\n"
                      "From: \"Tomás\" <sip:tomas@example.net>;tag=9fxced76sl\r\n"
                      "To: <sip:ren%C3%A9e@xn--mhle-0ra.example>\r\n"
                      "Call-ID: 2xTb9vxSit55XU7p8@example.net\r\n"
                      "CSeq: 1 INVITE\r\n"
                      "Contact: <sip:tomas@192.0.2.4>\r\n"
                      "\r\n";

// This proxy, and where the request came from; unknown without an IP address.
struct Place
{
    Address own; // what it puts into Record-Route
    IpAddress address;
    int64_t port = -1;
};

// A header that the message must have, or has.
template <class HANDLE>
Owned<HANDLE> need( const Message &message, const char *name, HANDLE ( *tryDecode )( TELSX_MESSAGE ) )
{
    Owned header( tryDecode( message.get() ) );
    if ( !header )
        throw std::runtime_error( std::string( "its " ) + name + " is missing or bad" );
    return header;
}

// The IP address that the text is, with or without brackets, or null.
IpAddress toIpAddress( const String &text )
{
    if ( !text )
        return {};
    int64_t length = rtStringLength( text.get() );
    bool inBrackets = length > 1 && rtStringBeginsWithChar( text.get(), '[' )
                      && rtStringCharAt( text.get(), length - 1 ) == ']';
    int64_t bracket = inBrackets ? 1 : 0;
    return IpAddress(
        netAddressTryCreateFromChars( rtStringBacking( text.get() ) + bracket, length - 2 * bracket ) );
}

// The host in the one form that is used for comparison.
String plainHost( const Address &address )
{
    Owned plain( telsxSipIriAddressOfRecord( address.get() ) );
    return Owned( telsxSipIriHost( plain.get() ) );
}

Address toAddress( const String &iri ) { return Address( telsxSipIriTryDecode( iri.get() ) ); }

bool isHere( const Address &address, const Place &place )
{
    return address && rtStringEquals( plainHost( address ).get(), plainHost( place.own ).get() );
}
bool isLoose( const Address &address ) { return address && telsxSipIriLr( address.get() ); }
bool isSecure( const Address &address ) { return address && telsxSipIriSecure( address.get() ); }

String targetOf( const Message &message ) { return Owned( telsxMessageRequestIri( message.get() ) ); }

int64_t lengthOf( const Routes &routes ) { return telsxHeaderRouteRoutesLength( routes.get() ); }

String iriAt( const Routes &routes, int64_t index )
{
    Owned route( telsxHeaderRouteTryDecodeRouteAt( routes.get(), index ) );
    if ( !route )
        throw std::runtime_error( "its Route holds a bad value" );
    return Owned( telsxRouteIri( route.get() ) );
}

// A text that is the same for a request, its CANCEL and the ACK of its failure, and for no other request if its client
// chooses branches as it must (RFC 3261, 8.1.1.7 and 16.11), as a token (FNV-1a).
std::string fingerprint( const Via &top, const Owned<TELSX_HEADER_FROM> &from,
                         const Owned<TELSX_HEADER_CALL_ID> &callId, const Owned<TELSX_HEADER_CSEQ> &cseq )
{
    std::string text = toUtf8( Owned( telsxViaToString( top.get() ) ) ) + '\n'
                       + toUtf8( Owned( telsxHeaderFromToString( from.get() ) ) ) + '\n'
                       + toUtf8( Owned( telsxHeaderCallIdToString( callId.get() ) ) ) + '\n'
                       + std::to_string( telsxHeaderCseqCseq( cseq.get() ) );
    uint64_t hash = 0xCBF29CE484222325;
    for ( char ch : text )
        hash = ( hash ^ static_cast<unsigned char>( ch ) ) * 0x100000001B3;
    char hex[17];
    std::snprintf( hex, sizeof hex, "%016llx", static_cast<unsigned long long>( hash ) );
    return hex;
}

// Notes in the top Via where the request came from: the address if the Via has another one or a name (RFC 3261,
// 18.2.1), address and port if it asks for them (RFC 3581, 4). What the sender put there itself is removed, or it could
// direct the responses at anybody.
void noteSource( Via &top, const Place &place )
{
    IpAddress told = toIpAddress( Owned( telsxViaHost( top.get() ) ) );
    bool asked = telsxViaHasRportEmpty( top.get() );
    telsxViaDelReceived( top.address() );
    telsxViaDelRport( top.address() );
    if ( asked || !netAddressEquals( told.get(), place.address.get() ) )
        telsxViaSetReceived( top.address(), place.address.get() );
    if ( asked )
        telsxViaSetRportNumeric( top.address(), place.port );
}

// Takes one hop from Max-Forwards; false if none is left (RFC 3261, 16.6, step 3).
bool countHop( Message &message )
{
    Owned header( telsxHeaderMaxForwardsCreate( 70 ) );
    if ( telsxHeaderMaxForwardsPresentInMessage( message.get() ) )
    {
        header = need( message, "Max-Forwards", telsxHeaderMaxForwardsTryDecodeFromMessage );
        int64_t hops = telsxHeaderMaxForwardsMaxForwards( header.get() );
        if ( hops == 0 )
            return false;
        telsxHeaderMaxForwardsSetMaxForwards( header.address(), hops - 1 );
    }
    telsxHeaderMaxForwardsEncodeToMessage( header.get(), message.address() );
    return true;
}

// Takes this proxy off the Route and brings the target and the Route into the form that the next hop understands (RFC
// 3261, 16.4 and 16.6, step 6). Returns the address to send to, secure if the target is.
Address followRoute( Message &message, const Place &place )
{
    Routes routes( telsxHeaderRouteCreate() );
    if ( telsxHeaderRoutePresentInMessage( message.get() ) )
        routes = need( message, "Route", telsxHeaderRouteTryDecodeFromMessage );

    // A strict router has replaced the target by this proxy's Record-Route; the target is last.
    Address target = toAddress( targetOf( message ) );
    if ( isHere( target, place ) && isLoose( target ) && !telsxSipIriHasUser( target.get() )
         && lengthOf( routes ) )
    {
        int64_t last = lengthOf( routes ) - 1;
        telsxMessageSetRequestIri( message.address(), iriAt( routes, last ).get() );
        telsxHeaderRouteDelRouteAt( routes.address(), last );
    }
    if ( lengthOf( routes ) && isHere( toAddress( iriAt( routes, 0 ) ), place ) )
        telsxHeaderRouteDelRouteAt( routes.address(), 0 );

    target = toAddress( targetOf( message ) );
    Address next = lengthOf( routes ) ? toAddress( iriAt( routes, 0 ) ) : target;
    if ( next && isSecure( target ) )
        telsxSipIriSetSecure( next.address(), 1 );

    // A strict router needs its own address as the target, and the target last.
    if ( lengthOf( routes ) && !isLoose( next ) )
    {
        String strict = iriAt( routes, 0 );
        telsxHeaderRouteDelRouteAt( routes.address(), 0 );
        Owned route( telsxRouteCreate( targetOf( message ).get() ) );
        telsxHeaderRouteAppendRoute( routes.address(), route.get() );
        telsxMessageSetRequestIri( message.address(), strict.get() );
    }

    if ( lengthOf( routes ) == 0 )
        telsxHeaderRouteRemoveFromMessage( message.address() );
    else
        telsxHeaderRouteEncodeToMessage( routes.get(), message.address() );
    return next;
}

// The transport for a request to the address.
String transportTo( const Address &next )
{
    if ( isSecure( next ) )
        return toString( "tls" );
    String transport( next ? telsxSipIriTransport( next.get() ) : nullptr );
    return transport ? transport : toString( "udp" );
}

// Makes later requests of the dialog pass through here too (RFC 3261, 16.6, step 4).
void recordRoute( Message &message, const Place &place, bool secure )
{
    Owned header( telsxHeaderRecordRouteCreate() );
    if ( telsxHeaderRecordRoutePresentInMessage( message.get() ) )
        header = need( message, "Record-Route", telsxHeaderRecordRouteTryDecodeFromMessage );
    Address own = place.own;
    telsxSipIriSetSecure( own.address(), secure );
    Owned route( telsxRouteCreate( String( telsxSipIriEncode( own.get() ) ).get() ) );
    telsxHeaderRecordRoutePrependRoute( header.address(), route.get() );
    telsxHeaderRecordRouteEncodeToMessage( header.get(), message.address() );
}

// The response without a body, sent back the way the request came (RFC 3261, 8.2.6).
Message respond( const Message &request, int64_t statusCode, To to, const std::string &tag )
{
    Owned version( telsxVersionCreateSip20() );
    Owned response( telsxMessageCreateResponse( version.get(), statusCode ) );
    for ( const char *name : { "Via", "From", "To", "Call-Id", "Cseq" } )
    {
        Owned header( telsxMessageHeaderCstr( request.get(), name, -1 ) );
        telsxMessageSetHeader( response.address(), header.get() );
    }
    if ( !telsxHeaderToHasTag( to.get() ) )
        telsxHeaderToSetTag( to.address(), toString( tag ).get() );
    telsxHeaderToEncodeToMessage( to.get(), response.address() );
    return response;
}

// The 420 for a request that needs an extension from its proxies; this one has none (RFC 3261, 16.3, step 5).
Message refuseExtensions( const Message &request, To to, const std::string &tag )
{
    auto required = need( request, "Proxy-Require", telsxHeaderProxyRequireTryDecodeFromMessage );
    Owned tags( telsxHeaderProxyRequireOptionTagsVector( required.get() ) );
    Owned unsupported( telsxHeaderUnsupportedCreate() );
    telsxHeaderUnsupportedSetOptionTagsVector( unsupported.address(), tags.get() );
    Message response = respond( request, 420, std::move( to ), tag );
    telsxHeaderUnsupportedEncodeToMessage( unsupported.get(), response.address() );
    return response;
}

// The 400 for a request with a CR or LF that does not end a line here: a peer that takes it for a line end would see
// other headers than this proxy did. Nothing if the response would contain one too.
Message refuseLineEnds( const Message &request, To to, const std::string &tag )
{
    Message response = respond( request, 400, std::move( to ), tag );
    if ( telsxMessageHasLoneLineEnds( response.get() ) )
        throw std::runtime_error( "a CR or LF stands alone in what a response repeats" );
    return response;
}

// What the proxy sends when it gets the message; what it reads there goes to the stream. Throws a std::runtime_error
// for bad messages.
Message hop( Message message, const Place &place, std::ostream &read )
{
    if ( !telsxMessageIsRequest( message.get() ) )
        throw std::runtime_error( "not a request" );
    auto vias = need( message, "Via", telsxHeaderViaTryDecodeFromMessage );
    Owned top( telsxHeaderViaViasLength( vias.get() ) ? telsxHeaderViaTryDecodeViaAt( vias.get(), 0 )
                                                      : nullptr );
    if ( !top )
        throw std::runtime_error( "its top Via is missing or bad" );
    auto from = need( message, "From", telsxHeaderFromTryDecodeFromMessage );
    auto to = need( message, "To", telsxHeaderToTryDecodeFromMessage );
    auto callId = need( message, "Call-Id", telsxHeaderCallIdTryDecodeFromMessage );
    auto cseq = need( message, "Cseq", telsxHeaderCseqTryDecodeFromMessage );
    auto show = [&read]( const char *name, const auto &value )
    {
        read << name << '\n';
        Reading{ read }( value.get() );
    };
    show( "top Via", top );
    show( "From", from );
    show( "To", to );
    show( "Call-Id", callId );
    show( "Cseq", cseq );

    std::string mark = fingerprint( top, from, callId, cseq );
    if ( place.address )
        noteSource( top, place );
    telsxHeaderViaSetViaAt( vias.address(), 0, top.get() );
    telsxHeaderViaEncodeToMessage( vias.get(), message.address() );
    std::string method = toUtf8( Owned( telsxMessageRequestMethod( message.get() ) ) );
    auto needsAnswer = [&method]( const char *fault )
    {
        if ( method == "ACK" )
            throw std::runtime_error( std::string( "an ACK has no answer, and this one " ) + fault );
    };
    if ( telsxMessageHasLoneLineEnds( message.get() ) )
    {
        needsAnswer( "a lone CR or LF" );
        return refuseLineEnds( message, std::move( to ), mark );
    }
    if ( !countHop( message ) )
    {
        needsAnswer( "no hop left" );
        return respond( message, 483, std::move( to ), mark );
    }
    if ( telsxHeaderProxyRequirePresentInMessage( message.get() ) && method != "ACK" )
        return refuseExtensions( message, std::move( to ), mark );
    Address next = followRoute( message, place );
    if ( method != "REGISTER" )
        recordRoute( message, place, isSecure( next ) );

    Owned version( telsxVersionCreateSip20() );
    Owned own( telsxViaCreate( version.get(), transportTo( next ).get(), plainHost( place.own ).get() ) );
    telsxViaSetBranch( own.address(), toString( "z9hG4bK" + mark ).get() );
    telsxHeaderViaPrependVia( vias.address(), own.get() );
    telsxHeaderViaEncodeToMessage( vias.get(), message.address() );
    return message;
}

// The port that the text stands for, or -1.
int64_t toPort( const String &text )
{
    int64_t port, digits;
    bool number = text && rtStringScanInt( text.get(), 0, -1, 10, &port, &digits )
                  && digits == rtStringLength( text.get() );
    return number && port <= 0xFFFF ? port : -1;
}

// False if the texts are not a host, an address and a port; the address may be null.
bool toPlace( const char *host, const char *address, const char *port, Place &place )
{
    String name = toString( host );
    if ( !name || !telsxHostOk( name.get() ) )
        return false;
    place.own = Address( telsxSipIriCreate( name.get() ) );
    telsxSipIriSetHost( place.own.address(), plainHost( place.own ).get() );
    telsxSipIriSetLr( place.own.address(), 1 );
    if ( !address )
        return true;
    place.address = toIpAddress( toString( address ) );
    place.port = toPort( toString( port ) );
    return place.address && place.port != -1;
}

} // namespace

int main( int argc, char **argv )
{
    const char *file = nullptr, *host = "proxy.example.com", *address = nullptr, *port = nullptr;
    for ( int i = 1; i < argc; ++i )
    {
        std::string_view word = argv[i];
        if ( word == "--host" && i + 1 < argc )
            host = argv[++i];
        else if ( word == "--source" && i + 2 < argc )
        {
            address = argv[++i];
            port = argv[++i];
        }
        else if ( !file && ( word == "-" || word.substr( 0, 1 ) != "-" ) )
            file = argv[i];
        else
        {
            std::cerr << "usage: hop [--host HOST] [--source ADDRESS PORT] [FILE | -]\n";
            return 2;
        }
    }
    if ( !file && !address )
    {
        address = "192.0.2.4";
        port = "49172";
    }
    std::string name = file ? file : "the sample";
    std::string bytes = sample;
    if ( file && !readAll( file, bytes ) )
    {
        std::cerr << "hop: " << name << ": " << std::strerror( errno ) << '\n';
        return 1;
    }

    Library library;
    Place place;
    if ( !toPlace( host, address, port, place ) )
    {
        std::cerr << "hop: that is no host, or no IP address and port\n";
        return 2;
    }
    Owned message( telsxMessageTryDecode( toBuffer( bytes ).get() ) );
    if ( !message )
    {
        std::cerr << "hop: " << name << ": not a whole SIP message, with CR LF at the end of each line\n";
        return 1;
    }
    std::ostringstream read;
    try
    {
        message = hop( std::move( message ), place, read );
    }
    catch ( const std::runtime_error &error )
    {
        std::cerr << "hop: " << name << ": " << error.what() << '\n';
        return 1;
    }
    std::cerr << read.str();
    std::cout << toBytes( Buffer( telsxMessageEncode( message.get() ) ) ) << std::flush;
    return std::cout ? 0 : 1;
}
