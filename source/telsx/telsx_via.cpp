// Via value (RFC 3261, 20.42; RFC 3581).
#include "telsx/telsx_via.h"

#include "telsx/telsx_branch.h"
#include "telsx/telsx_char.hpp"
#include "telsx/telsx_host.hpp"
#include "telsx/telsx_port.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_transport.hpp"
#include "telsx/telsx_ttl.h"
#include "telsx/telsx_value.hpp"
#include "telsx/telsx_version.hpp"
#include "telsx/telsx_via.hpp"

using namespace telsx;

struct TELSX_VIA_
{
    RT_OBJECT object;
    Ref<TELSX_VERSION> version; // never null
    Ref<RT_STRING> transport;   // lower case, never null
    Ref<RT_STRING> host;        // never null
    int64_t port;
    int64_t ttl;
    Ref<RT_STRING> maddr;
    Ref<NET_ADDRESS> received;
    RT_BOOL rportEmpty;   // rport without a value
    int64_t rportNumeric; // rport with a value; never both
    Ref<RT_STRING> branch;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.version, self.transport, self.host, self.port, self.ttl, self.maddr,
                         self.received, self.rportEmpty, self.rportNumeric, self.branch, self.genericParams );
    }
    static auto order( auto &self )
    {
        return std::tie( self.version, self.transport, self.host, self.port, self.ttl, self.maddr,
                         self.received, self.branch, self.genericParams );
    }
};

TELSX_DEFINE_VALUE_OBJECT( Via, VIA, via )
TELSX_DEFINE_FIELD( Via, via, Version, version, version )
TELSX_DEFINE_NORMAL_FIELD( Via, via, Transport, transport, telsxTransportOk( transport ),
                           telsxTransportNormalize )
TELSX_DEFINE_FIELD( Via, via, Host, host, telsxHostOk( host ) )
TELSX_DEFINE_OPTIONAL_FIELD( Via, via, Port, port, telsxPortOk( port ) )
TELSX_DEFINE_OPTIONAL_FIELD( Via, via, Ttl, ttl, telsxTtlOk( ttl ) )
TELSX_DEFINE_OPTIONAL_FIELD( Via, via, Maddr, maddr, telsxHostOk( maddr ) )
TELSX_DEFINE_OPTIONAL_FIELD( Via, via, Received, received, received )
TELSX_DEFINE_OPTIONAL_FIELD( Via, via, Branch, branch, telsxBranchOk( branch ) )
TELSX_DEFINE_FIELD( Via, via, GenericParams, genericParams, genericParams )

static TELSX_VIA create( Ref<TELSX_VERSION> version, Ref<RT_STRING> transport, Ref<RT_STRING> host )
{
    TELSX_VIA via = rt::create<TELSX_VIA_>( telsxViaSort() );
    via->version = std::move( version );
    via->transport = std::move( transport );
    via->host = std::move( host );
    via->genericParams = noGenericParams();
    return via;
}

TELSX_VIA telsxViaCreate( TELSX_VERSION version, RT_STRING transport, RT_STRING host )
{
    TELSX_ASSERT( version );
    TELSX_ASSERT_OK( telsxTransportOk, transport );
    TELSX_ASSERT_OK( telsxHostOk, host );
    return create( share( version ), adopt( telsxTransportNormalize( transport ) ), share( host ) );
}

TELSX_VIA telsxViaCreateWithPort( TELSX_VERSION version, RT_STRING transport, RT_STRING host, int64_t port )
{
    TELSX_VIA via = telsxViaCreate( version, transport, host );
    TELSX_ASSERT( telsxPortOk( port ) );
    via->port = port;
    return via;
}

TELSX_VIA telsxViaCreateDummy( TELSX_VERSION version )
{
    return telsxViaCreate( version, literal<"udp">(), literal<"localhost">() );
}

// rport: with a value, without one, or absent.

TELSX_DEFINE_GETTER( Via, via, RportNumeric, rportNumeric )

RT_BOOL telsxViaHasRport( TELSX_VIA via )
{
    return telsxViaHasRportNumeric( via ) || telsxViaHasRportEmpty( via );
}

RT_BOOL telsxViaHasRportNumeric( TELSX_VIA via ) { return telsxViaRportNumeric( via ) != -1; }

RT_BOOL telsxViaHasRportEmpty( TELSX_VIA via )
{
    TELSX_ASSERT( via );
    return via->rportEmpty;
}

static void setRport( TELSX_VIA via, RT_BOOL rportEmpty, int64_t rportNumeric )
{
    via->rportEmpty = rportEmpty;
    via->rportNumeric = rportNumeric;
}

void telsxViaSetRportNumeric( TELSX_VIA *via, int64_t rport )
{
    TELSX_ASSERT_HANDLE( via );
    TELSX_ASSERT( telsxPortOk( rport ) );
    setRport( TELSX_OWN( via ), 0, rport );
}

void telsxViaSetRportEmpty( TELSX_VIA *via )
{
    TELSX_ASSERT_HANDLE( via );
    setRport( TELSX_OWN( via ), 1, -1 );
}

void telsxViaDelRport( TELSX_VIA *via )
{
    TELSX_ASSERT_HANDLE( via );
    setRport( TELSX_OWN( via ), 0, -1 );
}

RT_STRING telsx___ViaEncode( TELSX_VIA via )
{
    TELSX_ASSERT( via );
    Ref<RT_STRING> text = textWithRoom( 96 );
    append( text, adopt( telsx___VersionEncode( via->version.get() ) ), '/',
            transportInUpperCase( via->transport.get() ), ' ', encodedHost( via->host ) );
    if ( rt::present( via->port ) )
        append( text, ':', Decimal( via->port ) );
    ParamWriter params( text );
    params.write<"ttl">( via->ttl, telsx___TtlEncode );
    params.write<"maddr">( via->maddr, telsx___HostEncode );
    params.write<"received">( via->received, netAddressToStringShrink );
    params.writeMark<"rport">( via->rportEmpty );
    params.write<"rport">( via->rportNumeric, telsx___PortEncode );
    params.write<"branch">( via->branch );
    params.writeGeneric( via->genericParams );
    return text.take();
}

static int64_t skipAddress( const RT_CHAR *chs, int64_t length )
{
    int64_t v6 = telsx___SkipIpV6Address( chs, length );
    return v6 ? v6 : telsx___SkipIpV4Address( chs, length );
}

TELSX_VIA telsx___ViaTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    auto version = tryDecodeVersion( rest.take( telsx___SkipVersion ) );
    if ( !version || !rest.take( telsx___SkipSlash ) )
        return nullptr;
    Text transport = rest.take( telsx___SkipTransport );
    if ( !transport || !rest.take( telsx___SkipLws ) )
        return nullptr;
    Text hostText = rest.take( telsx___SkipHost );
    Ref<RT_STRING> host = hostText ? hostOf( hostText ) : Ref<RT_STRING>();
    if ( !host )
        return nullptr;
    auto via = adopt( create( std::move( version ), transportInLowerCase( transport ), std::move( host ) ) );
    if ( rest.take( telsx___SkipColon ) )
    {
        via->port = rest.take( telsx___SkipPort ).as( telsx___PortTryDecode );
        if ( !rt::present( via->port ) )
            return nullptr;
    }

    ParamReader param( rest );
    while ( param.next() )
    {
        param.read<"ttl">( via->ttl, telsx___SkipTtl, telsx___TtlTryDecode );
        if ( param.is<"maddr">( telsx___SkipHost ) )
            param.store( via->maddr, hostOf( param.value ) );
        param.read<"received">( via->received, skipAddress, netAddressTryCreateFromChars );
        if ( param.isBare<"rport">() && param.storeFlag( via->rportEmpty ) )
            via->rportNumeric = -1;
        if ( param.read<"rport">( via->rportNumeric, telsx___SkipPort, telsx___PortTryDecode ) )
            via->rportEmpty = 0;
        param.read<"branch">( via->branch, telsx___SkipBranch );
        param.storeGeneric( via->genericParams );
    }
    return param.failed() ? nullptr : via.take();
}

static constexpr int64_t versionLength = 7; // of SIP/2.0

// The usual form, see ViaPlaces; 0 if the value has another one.
static int64_t skipUsual( Text text, ViaPlaces &places )
{
    Text rest = text;
    auto at = [&text, &rest] { return static_cast<uint32_t>( text.length - rest.length ); };
    auto take = [&rest]( RT_CHAR ch ) { return rest && rest.chs[0] == ch && rest.take( 1 ); };
    if ( text.length > UINT32_MAX || text.length <= versionLength
         || !equals<"SIP/2.0/">( rest.take( versionLength + 1 ) ) || !rest.take( runOf<classToken>( rest ) ) )
        return 0;
    places.transportEnd = at();
    if ( !take( ' ' ) || !rest.take( telsx___SkipHost ) )
        return 0;
    places.hostEnd = at();
    if ( take( ':' ) && !rest.take( telsx___SkipPort ) )
        return 0;
    places.portEnd = at();
    while ( take( ';' ) )
    {
        if ( !places.branch && beginsInAnyCase<"branch=">( rest ) )
        {
            rest.take( 7 );
            places.branch = at();
            if ( !rest.take( runOf<classToken>( rest ) ) )
                return 0;
            places.branchEnd = at();
        }
        else if ( !places.received && beginsInAnyCase<"received=">( rest ) )
        {
            rest.take( 9 );
            places.received = at();
            if ( !rest.take( skipAddress ) )
                return 0;
            places.receivedEnd = at();
        }
        else if ( !places.rport && beginsInAnyCase<"rport">( rest ) )
        {
            rest.take( 5 );
            bool hasValue = take( '=' );
            places.rport = at();
            if ( hasValue && !rest.take( telsx___SkipPort ) )
                return 0;
            places.rportEnd = at();
        }
        else
            return 0;
    }
    return rest && rest.chs[0] != ',' ? 0 : at();
}

int64_t telsx::skipVia( Text text, ViaPlaces &places )
{
    places = {};
    if ( int64_t usual = skipUsual( text, places ) )
        return usual;
    places = {};
    return telsx___SkipVia( text.chs, text.length );
}

TELSX_VIA telsx::tryDecodeVia( Text text, const ViaPlaces &places )
{
    auto between = [text]( int64_t begin, int64_t end ) { return text.first( end ).after( begin ); };
    auto number = [&between]( int64_t begin, int64_t end )
    { return between( begin, end ).as( telsx___PortTryDecode ); };
    if ( !places.transportEnd )
        return text.as( telsx___ViaTryDecode );
    bool hasPort = places.portEnd > places.hostEnd, hasNumericRport = places.rportEnd > places.rport;
    int64_t port = hasPort ? number( places.hostEnd + 1, places.portEnd ) : -1;
    int64_t rport = hasNumericRport ? number( places.rport, places.rportEnd ) : -1;
    Ref<NET_ADDRESS> received;
    if ( places.received )
        received = adopt( between( places.received, places.receivedEnd ).as( netAddressTryCreateFromChars ) );
    if ( hasPort != rt::present( port ) || hasNumericRport != rt::present( rport )
         || ( places.received != 0 ) != bool( received ) )
        return text.as( telsx___ViaTryDecode );
    Ref<RT_STRING> host = hostOf( between( places.transportEnd + 1, places.hostEnd ) );
    if ( !host )
        return nullptr;
    TELSX_VIA via = create( tryDecodeVersion( text.first( versionLength ) ),
                            transportInLowerCase( between( versionLength + 1, places.transportEnd ) ),
                            std::move( host ) );
    via->port = port;
    via->rportNumeric = rport;
    via->rportEmpty = places.rport && !hasNumericRport;
    via->received = std::move( received );
    if ( places.branch )
        via->branch = between( places.branch, places.branchEnd ).copy();
    return via;
}
