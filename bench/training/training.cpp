// What the libraries are trained with (CMakeLists.txt): the work of proxies, registrars, clients and readers of captures
// on the messages that they mostly see. What is rare does not happen here, so that the compiler knows it. Functions are
// called as C programs call them. The messages are not those that anything is measured with.
#include <cstring>
#include <string_view>
#include <utility>

#include <sys/random.h>

#include "telsx/telsx.h"

// The seed of the dictionaries is the same in each run, and so the counts are.
ssize_t getrandom( void *into, std::size_t size, unsigned )
{
    std::memset( into, 0x5A, size );
    return static_cast<ssize_t>( size );
}

namespace
{

// Short requests of a dialog and their responses, an INVITE with a body, registrations.
constexpr std::string_view usual[] = {
    "INVITE sip:nora@198.51.100.44:5070;transport=udp SIP/2.0\r\n"
    "Via: SIP/2.0/UDP 203.0.113.71:5060;branch=z9hG4bK31f4.8c07aa21.0\r\n"
    "Via: SIP/2.0/UDP 192.0.2.118:49732;received=203.0.113.9;rport=49732;branch=z9hG4bK-524287-1\r\n"
    "Record-Route: <sip:203.0.113.71;lr;ftag=b82e0d51>\r\n"
    "Max-Forwards: 69\r\n"
    "From: \"Pavel Novak\" <sip:pavel@example.org>;tag=b82e0d51\r\n"
    "To: <sip:nora@example.org>\r\n"
    "Call-ID: 86895YjRhN2M0ZGUxZjA0\r\n"
    "CSeq: 1 INVITE\r\n"
    "Contact: <sip:pavel@192.0.2.118:49732>\r\n"
    "Allow: INVITE, ACK, CANCEL, OPTIONS, BYE, REFER, NOTIFY, INFO, SUBSCRIBE, UPDATE\r\n"
    "Supported: replaces, timer, outbound\r\n"
    "User-Agent: Larch 4.2\r\n"
    "Content-Type: application/sdp\r\n"
    "Content-Length: 53\r\n\r\n"
    "v=0\r\no=- 4 1 IN IP4 192.0.2.118\r\ns=-\r\nc=IN IP4 0.0.0.0",
    "ACK sip:nora@198.51.100.44:5070 SIP/2.0\r\n"
    "Via: SIP/2.0/UDP 192.0.2.118:49732;branch=z9hG4bK-524287-2;rport\r\n"
    "Max-Forwards: 70\r\n"
    "Route: <sip:203.0.113.71;lr;ftag=b82e0d51>\r\n"
    "From: \"Pavel Novak\" <sip:pavel@example.org>;tag=b82e0d51\r\n"
    "To: <sip:nora@example.org>;tag=7f01\r\n"
    "Call-ID: 86895YjRhN2M0ZGUxZjA0\r\n"
    "CSeq: 1 ACK\r\n"
    "Content-Length: 0\r\n\r\n",
    "BYE sip:pavel@192.0.2.118:49732 SIP/2.0\r\n"
    "Via: SIP/2.0/TCP gw7.example.net;branch=z9hG4bKnashds7;alias\r\n"
    "Max-Forwards: 70\r\n"
    "From: sip:nora@example.org;tag=7f01\r\n"
    "To: Pavel <sip:pavel@example.org>;tag=b82e0d51\r\n"
    "Call-ID: 86895YjRhN2M0ZGUxZjA0\r\n"
    "CSeq: 231 BYE\r\n"
    "Reason: Q.850;cause=16;text=\"Normal call clearing\"\r\n"
    "Content-Length: 0\r\n\r\n",
    "OPTIONS sip:gw7.example.net SIP/2.0\r\n"
    "Via: SIP/2.0/UDP 198.51.100.3:5060;branch=z9hG4bK7f3a55e1;rport\r\n"
    "Max-Forwards: 70\r\n"
    "From: <sip:probe@198.51.100.3>;tag=as5c1e\r\n"
    "To: <sip:gw7.example.net>\r\n"
    "Call-ID: 3f0d9c2b7a1e@198.51.100.3:5060\r\n"
    "CSeq: 102 OPTIONS\r\n"
    "Contact: <sip:probe@198.51.100.3:5060>\r\n"
    "User-Agent: Probe\r\n"
    "Accept: application/sdp\r\n"
    "Content-Length: 0\r\n\r\n",
    "REGISTER sip:example.org SIP/2.0\r\n"
    "Via: SIP/2.0/TLS 192.0.2.118:40112;rport;branch=z9hG4bKPj8cb0f3ad\r\n"
    "Max-Forwards: 70\r\n"
    "From: \"Pavel\" <sip:pavel@example.org>;tag=d1f0c9a2\r\n"
    "To: \"Pavel\" <sip:pavel@example.org>\r\n"
    "Call-ID: yUs71kQd0VnXwT\r\n"
    "CSeq: 48120 REGISTER\r\n"
    "Contact: <sip:pavel@192.0.2.118:40112;transport=tls>;reg-id=1;q=1.0;"
    "+sip.instance=\"<urn:uuid:00000000-0000-1000-8000-000A95A0E128>\"\r\n"
    "Expires: 600\r\n"
    "Supported: path, gruu\r\n"
    "Content-Length: 0\r\n\r\n",
    "SIP/2.0 200 OK\r\n"
    "Via: SIP/2.0/TLS 192.0.2.118:40112;rport=40112;received=203.0.113.9;branch=z9hG4bKPj8cb0f3ad\r\n"
    "From: \"Pavel\" <sip:pavel@example.org>;tag=d1f0c9a2\r\n"
    "To: \"Pavel\" <sip:pavel@example.org>;tag=1ce8.9d0b\r\n"
    "Call-ID: yUs71kQd0VnXwT\r\n"
    "CSeq: 48120 REGISTER\r\n"
    "Contact: <sip:pavel@192.0.2.118:40112;transport=tls>;expires=600, "
    "<sip:pavel@192.0.2.7>;expires=112;q=0.5\r\n"
    "Server: Registrar (1.6)\r\n"
    "Content-Length: 0\r\n\r\n",
    "SIP/2.0 180 Ringing\r\n"
    "Via: SIP/2.0/UDP 203.0.113.71:5060;branch=z9hG4bK31f4.8c07aa21.0;received=203.0.113.71\r\n"
    "Via: SIP/2.0/UDP 192.0.2.118:49732;received=203.0.113.9;rport=49732;branch=z9hG4bK-524287-1\r\n"
    "Record-Route: <sip:203.0.113.71;lr;ftag=b82e0d51>\r\n"
    "From: \"Pavel Novak\" <sip:pavel@example.org>;tag=b82e0d51\r\n"
    "To: <sip:nora@example.org>;tag=7f01\r\n"
    "Call-ID: 86895YjRhN2M0ZGUxZjA0\r\n"
    "CSeq: 1 INVITE\r\n"
    "Contact: <sip:nora@198.51.100.44:5070>\r\n"
    "Content-Length: 0\r\n\r\n",
    "SIP/2.0 200 OK\r\n"
    "Via: SIP/2.0/UDP 203.0.113.71:5060;branch=z9hG4bK31f4.8c07aa21.0\r\n"
    "Via: SIP/2.0/UDP 192.0.2.118:49732;received=203.0.113.9;rport=49732;branch=z9hG4bK-524287-1\r\n"
    "Record-Route: <sip:203.0.113.71;lr;ftag=b82e0d51>\r\n"
    "From: \"Pavel Novak\" <sip:pavel@example.org>;tag=b82e0d51\r\n"
    "To: <sip:nora@example.org>;tag=7f01\r\n"
    "Call-ID: 86895YjRhN2M0ZGUxZjA0\r\n"
    "CSeq: 1 INVITE\r\n"
    "Contact: <sip:nora@198.51.100.44:5070>\r\n"
    "Allow: INVITE, ACK, BYE, CANCEL, UPDATE\r\n"
    "Session-Expires: 1800;refresher=uac\r\n"
    "Content-Type: application/sdp\r\n"
    "Content-Length: 31\r\n\r\n"
    "v=0\r\no=- 9 9 IN IP4 198.51.100.4",
    "SUBSCRIBE sips:pavel@example.org SIP/2.0\r\n"
    "Via: SIP/2.0/TLS [2001:db8::9:7]:5061;branch=z9hG4bK-d8754z-5e10\r\n"
    "Via: SIP/2.0/WSS 5r0q3v.invalid;branch=z9hG4bK4086173\r\n"
    "Via: SIP/2.0/UDP edge.ims.example.net;branch=z9hG4bKa.b;received=198.51.100.210\r\n"
    "Via: SIP/2.0/UDP 198.51.100.77;branch=z9hG4bKc.d;i=77\r\n"
    "Record-Route: <sips:edge.example.net:5061;transport=tcp;lr>, <sip:scscf.ims.example.net;lr;x=0a1>\r\n"
    "Max-Forwards: 66\r\n"
    "From: \"N. King (Desk)\" <sips:+15551230199@example.net;user=phone>;tag=314159\r\n"
    "To: <sips:pavel@example.org>\r\n"
    "Call-ID: f81d4fae-7dec-11d0-a765-00a0c91e6bf6@edge.example.net\r\n"
    "CSeq: 17 SUBSCRIBE\r\n"
    "Event: presence\r\n"
    "Expires: 3600\r\n"
    "P-Asserted-Identity: <tel:+15551230199>\r\n"
    "Contact: <sips:+15551230199@[2001:db8::9:7]:5061;transport=tls;ob>;+g.oma.sip-im\r\n"
    "Accept: application/pidf+xml\r\n"
    "Content-Length: 0\r\n\r\n",
};

// Owns a reference, which it releases as a C program does, with the function for the type.
template <class HANDLE, void ( *RELEASE )( HANDLE )>
class Held
{
public:
    explicit Held( HANDLE given ) : handle( given ) {}
    Held( Held &&other ) noexcept : handle( std::exchange( other.handle, nullptr ) ) {}
    ~Held()
    {
        if ( handle )
            RELEASE( handle );
    }

    explicit operator bool() const { return handle != nullptr; }
    HANDLE get() const { return handle; }
    HANDLE *address() { return &handle; }

private:
    HANDLE handle;
};

using Buffer = Held<RT_BUFFER, rtBufferRelease>;
using CallId = Held<TELSX_HEADER_CALL_ID, telsxHeaderCallIdRelease>;
using Contact = Held<TELSX_CONTACT, telsxContactRelease>;
using Contacts = Held<TELSX_HEADER_CONTACT, telsxHeaderContactRelease>;
using Cseq = Held<TELSX_HEADER_CSEQ, telsxHeaderCseqRelease>;
using From = Held<TELSX_HEADER_FROM, telsxHeaderFromRelease>;
using MaxForwards = Held<TELSX_HEADER_MAX_FORWARDS, telsxHeaderMaxForwardsRelease>;
using Message = Held<TELSX_MESSAGE, telsxMessageRelease>;
using RecordRoutes = Held<TELSX_HEADER_RECORD_ROUTE, telsxHeaderRecordRouteRelease>;
using Route = Held<TELSX_ROUTE, telsxRouteRelease>;
using Routes = Held<TELSX_HEADER_ROUTE, telsxHeaderRouteRelease>;
using SipIri = Held<TELSX_SIP_IRI, telsxSipIriRelease>;
using String = Held<RT_STRING, rtStringRelease>;
using To = Held<TELSX_HEADER_TO, telsxHeaderToRelease>;
using Vector = Held<RT_VECTOR, rtVectorRelease>;
using Version = Held<TELSX_VERSION, telsxVersionRelease>;
using Via = Held<TELSX_VIA, telsxViaRelease>;
using Vias = Held<TELSX_HEADER_VIA, telsxHeaderViaRelease>;

// What is read of texts, so that nothing is read for nothing.
int64_t codePoints;

void read( RT_STRING string )
{
    if ( String text( string ); text && rtStringBacking( text.get() ) )
        codePoints += rtStringLength( text.get() );
}

void readAddress( RT_STRING iri )
{
    String text( iri );
    if ( SipIri parts( telsxSipIriTryDecode( text.get() ) ); parts )
    {
        read( telsxSipIriUser( parts.get() ) );
        read( telsxSipIriHost( parts.get() ) );
        if ( telsxSipIriHasPort( parts.get() ) && telsxSipIriSecure( parts.get() ) )
            codePoints += telsxSipIriPort( parts.get() );
    }
}

void readVia( const Via &via )
{
    read( telsxViaTransport( via.get() ) );
    read( telsxViaHost( via.get() ) );
    if ( telsxViaHasPort( via.get() ) )
        codePoints += telsxViaPort( via.get() );
    if ( telsxViaHasBranch( via.get() ) )
        read( telsxViaBranch( via.get() ) );
    if ( telsxViaHasRport( via.get() ) && telsxViaHasRportNumeric( via.get() ) )
        codePoints += telsxViaRportNumeric( via.get() );
}

// What a registrar and a client read besides.
void readLists( const Message &message )
{
    if ( Contacts contacts( telsxHeaderContactTryDecodeFromMessage( message.get() ) ); contacts )
        for ( int64_t i = 0; i < telsxHeaderContactContactsLength( contacts.get() ); ++i )
            if ( Contact contact( telsxHeaderContactTryDecodeContactAt( contacts.get(), i ) ); contact )
                readAddress( telsxContactIri( contact.get() ) );
    if ( RecordRoutes routes( telsxHeaderRecordRouteTryDecodeFromMessage( message.get() ) ); routes )
        for ( int64_t i = 0; i < telsxHeaderRecordRouteRoutesLength( routes.get() ); ++i )
            if ( Route route( telsxHeaderRecordRouteTryDecodeRouteAt( routes.get(), i ) ); route )
                readAddress( telsxRouteIri( route.get() ) );
    if ( Routes routes( telsxHeaderRouteTryDecodeFromMessage( message.get() ) ); routes )
        if ( Route route( telsxHeaderRouteTryDecodeRouteAt( routes.get(), 0 ) ); route )
            readAddress( telsxRouteIri( route.get() ) );
}

// A request gets the proxy's own Via and one hop less, a response loses its top Via.
void pass( Message &message, Vias &vias )
{
    if ( telsxMessageIsResponse( message.get() ) )
    {
        telsxHeaderViaDelViaAt( vias.address(), 0 );
        if ( telsxHeaderViaViasLength( vias.get() ) == 0 )
            telsxHeaderViaRemoveFromMessage( message.address() );
        else
            telsxHeaderViaEncodeToMessage( vias.get(), message.address() );
        return;
    }
    Version version( telsxVersionCreateSip20() );
    String transport( rtStringCreateFromCstr( "TCP", -1 ) ),
        host( rtStringCreateFromCstr( "203.0.113.250", -1 ) );
    Via own( telsxViaCreateWithPort( version.get(), transport.get(), host.get(), 5060 ) );
    String branch( rtStringCreateFromCstr( "z9hG4bK0f1e2d3c4b5a6978", -1 ) );
    telsxViaSetBranch( own.address(), branch.get() );
    telsxHeaderViaPrependVia( vias.address(), own.get() );
    telsxHeaderViaEncodeToMessage( vias.get(), message.address() );
    MaxForwards hops( telsxHeaderMaxForwardsTryDecodeFromMessage( message.get() ) );
    telsxHeaderMaxForwardsSetMaxForwards( hops.address(),
                                          telsxHeaderMaxForwardsMaxForwards( hops.get() ) - 1 );
    telsxHeaderMaxForwardsEncodeToMessage( hops.get(), message.address() );
}

Buffer bufferOf( std::string_view bytes )
{
    return Buffer( rtBufferCreateFromBytesCopy( bytes.data(), static_cast<int64_t>( bytes.size() ) ) );
}

// The work of a proxy; false if the bytes are no message or a header that it needs can't be read.
bool forward( std::string_view bytes )
{
    Message message( telsxMessageTryDecode( bufferOf( bytes ).get() ) );
    if ( !message )
        return false;
    Vias vias( telsxHeaderViaTryDecodeFromMessage( message.get() ) );
    Via top( vias && telsxHeaderViaViasLength( vias.get() ) > 0
                 ? telsxHeaderViaTryDecodeViaAt( vias.get(), 0 )
                 : nullptr );
    From from( telsxHeaderFromTryDecodeFromMessage( message.get() ) );
    To to( telsxHeaderToTryDecodeFromMessage( message.get() ) );
    CallId callId( telsxHeaderCallIdTryDecodeFromMessage( message.get() ) );
    Cseq cseq( telsxHeaderCseqTryDecodeFromMessage( message.get() ) );
    MaxForwards hops( telsxHeaderMaxForwardsTryDecodeFromMessage( message.get() ) );
    if ( !top || !from || !to || !callId || !cseq || !hops != telsxMessageIsResponse( message.get() ) )
        return false;
    readVia( top );
    readAddress( telsxHeaderFromIri( from.get() ) );
    readAddress( telsxHeaderToIri( to.get() ) );
    read( telsxHeaderFromTag( from.get() ) );
    read( telsxHeaderToTag( to.get() ) );
    read( telsxHeaderCallIdCallId( callId.get() ) );
    read( telsxHeaderCseqMethod( cseq.get() ) );
    codePoints += telsxHeaderCseqCseq( cseq.get() );
    if ( hops )
        codePoints += telsxHeaderMaxForwardsMaxForwards( hops.get() );
    readLists( message );
    pass( message, vias );
    Buffer sent( telsxMessageEncode( message.get() ) );
    return rtBufferBacking( sent.get() ) && rtBufferLength( sent.get() ) > 0;
}

// The usual messages as a stream, in pieces of a segment's size; the number of messages that came out.
std::size_t stream()
{
    constexpr std::size_t piece = 1460;
    Held<TELSX_MESSAGE_STREAM_DECODER, telsxMessageStreamDecoderRelease> decoder(
        telsxMessageStreamDecoderCreate() );
    std::size_t messages = 0;
    for ( std::string_view bytes : usual )
        for ( ; !bytes.empty(); bytes.remove_prefix( bytes.size() < piece ? bytes.size() : piece ) )
        {
            telsxMessageStreamDecoderWrite( decoder.get(), bufferOf( bytes.substr( 0, piece ) ).get() );
            while ( Message message{ telsxMessageStreamDecoderRead( decoder.get() ) } )
                ++messages;
        }
    return messages;
}

} // namespace

int main()
{
    constexpr int times = 1000;
    rtModuleStart( telsxModule() );
    Held<TELSX_FINDER, telsxFinderRelease> finder( telsxFinderCreate() );
    bool good = true;
    for ( int i = 0; i < times; ++i )
    {
        for ( std::string_view bytes : usual )
        {
            good = good && forward( bytes );
            Vector findings( telsxFinderFindings( finder.get(), bufferOf( bytes ).get() ) );
        }
        good = good && stream() == std::size( usual );
    }
    return good && codePoints > 0 ? 0 : 1;
}
