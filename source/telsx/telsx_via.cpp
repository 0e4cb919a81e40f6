// Via value (RFC 3261, 20.42; RFC 3581).
#include "telsx/telsx_via.h"

#include "telsx/telsx_branch.h"
#include "telsx/telsx_char.hpp"
#include "telsx/telsx_host.hpp"
#include "telsx/telsx_number.hpp"
#include "telsx/telsx_port.h"
#include "telsx/telsx_transport.hpp"
#include "telsx/telsx_ttl.h"
#include "telsx/telsx_value.hpp"
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
    int64_t rportNumeric; // rport with one; never both
    Ref<RT_STRING> branch;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static auto fields( auto &self )
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

TELSX_DEFINE_OBJECT( Via, VIA, telsx___ViaFreeFunc, telsx___ViaCompareFunc, telsx___ViaToStringFunc )
TELSX_DEFINE_FREE_FUNC( Via, via )
TELSX_DEFINE_COMPARE_FUNC( Via, via )
TELSX_DEFINE_TO_STRING_FUNC( Via, via )
TELSX_DEFINE_FIELD( Via, via, Version, version, version )
TELSX_DEFINE_NORMAL_FIELD( Via, via, Transport, transport, telsxTransportOk( transport ),
                           telsxTransportNormalize )
TELSX_DEFINE_FIELD( Via, via, Host, host, telsxHostOk( host ) )
TELSX_DEFINE_FIELD( Via, via, Port, port, telsxPortOk( port ) )
TELSX_DEFINE_OPTION( Via, via, Port, port )
TELSX_DEFINE_FIELD( Via, via, Ttl, ttl, telsxTtlOk( ttl ) )
TELSX_DEFINE_OPTION( Via, via, Ttl, ttl )
TELSX_DEFINE_FIELD( Via, via, Maddr, maddr, telsxHostOk( maddr ) )
TELSX_DEFINE_OPTION( Via, via, Maddr, maddr )
TELSX_DEFINE_FIELD( Via, via, Received, received, received )
TELSX_DEFINE_OPTION( Via, via, Received, received )
TELSX_DEFINE_FIELD( Via, via, Branch, branch, telsxBranchOk( branch ) )
TELSX_DEFINE_OPTION( Via, via, Branch, branch )
TELSX_DEFINE_FIELD( Via, via, GenericParams, genericParams, genericParams )

static TELSX_VIA create( Ref<TELSX_VERSION> version, Ref<RT_STRING> transport, Ref<RT_STRING> host )
{
    TELSX_VIA via = rt::create<TELSX_VIA_>( telsxViaSort() );
    via->version = std::move( version );
    via->transport = std::move( transport );
    via->host = std::move( host );
    via->genericParams = adopt( telsxGenericParamsCreate() );
    return via;
}

TELSX_VIA telsxViaCreate( TELSX_VERSION version, RT_STRING transport, RT_STRING host )
{
    TELSX_ASSERT( version );
    TELSX_ASSERT( telsxTransportOk( transport ) );
    TELSX_ASSERT( telsxHostOk( host ) );
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
    auto version = adopt( telsx___VersionEncode( via->version.get() ) );
    auto transport = transportInUpperCase( via->transport.get() );
    auto host = adopt( telsx___HostEncode( via->host.get() ) );
    Ref<RT_STRING> maddr, received;
    Pieces pieces;
    pieces.add( version, "/", transport, " ", host );
    if ( rt::present( via->port ) )
        pieces.add( ":", via->port );
    if ( rt::present( via->ttl ) )
        pieces.add( ";ttl=", via->ttl );
    if ( via->maddr )
        pieces.add( ";maddr=", maddr = adopt( telsx___HostEncode( via->maddr.get() ) ) );
    if ( via->received )
        pieces.add( ";received=", received = adopt( netAddressToStringShrink( via->received.get() ) ) );
    if ( via->rportEmpty )
        pieces.add( ";rport" );
    else if ( rt::present( via->rportNumeric ) )
        pieces.add( ";rport=", via->rportNumeric );
    if ( via->branch )
        pieces.add( ";branch=", via->branch );
    Ref<RT_STRING> text = pieces.joined();
    appendGenericParams( text, via->genericParams.get(),
                         { { literal<"ttl">(), rt::present( via->ttl ) },
                           { literal<"maddr">(), rt::present( via->maddr ) },
                           { literal<"received">(), rt::present( via->received ) },
                           { literal<"rport">(), bool( telsxViaHasRport( via ) ) },
                           { literal<"branch">(), rt::present( via->branch ) } } );
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
    auto version = adopt( rest.take( telsx___SkipVersion ).as( telsx___VersionTryDecode ) );
    if ( !version || !rest.take( telsx___SkipSlash ) )
        return {};
    Text transport = rest.take( telsx___SkipTransport );
    if ( !transport || !rest.take( telsx___SkipLws ) )
        return {};
    Text hostText = rest.take( telsx___SkipHost );
    Ref<RT_STRING> host = hostText ? hostOf( hostText ) : Ref<RT_STRING>();
    if ( !host )
        return {};
    auto via = adopt( create( std::move( version ), transportInLowerCase( transport ), std::move( host ) ) );
    if ( rest.take( telsx___SkipColon ) )
    {
        via->port = rest.take( telsx___SkipPort ).as( telsx___PortTryDecode );
        if ( !rt::present( via->port ) )
            return {};
    }

    ParamReader param( rest );
    while ( param.next() )
    {
        if ( param.is<"ttl">( telsx___SkipTtl ) )
            param.store( via->ttl, param.value.as( telsx___TtlTryDecode ) );
        if ( param.is<"maddr">( telsx___SkipHost ) )
            param.store( via->maddr, hostOf( param.value ) );
        if ( param.is<"received">( skipAddress ) )
            param.store( via->received, param.value.as( netAddressTryCreateFromChars ) );
        if ( param.isBare<"rport">() && param.storeFlag( via->rportEmpty ) )
            via->rportNumeric = -1;
        if ( param.is<"rport">( telsx___SkipPort )
             && param.store( via->rportNumeric, param.value.as( telsx___PortTryDecode ) ) )
            via->rportEmpty = 0;
        if ( param.is<"branch">( telsx___SkipBranch ) )
            param.store( via->branch, param.value.copy() );
        param.storeGeneric( via->genericParams );
    }
    return param.failed() ? nullptr : via.take();
}

// Of SIP/2.0.
static constexpr int64_t versionLength = 7;

int64_t telsx::skipVia( Text text, ViaPlaces &places )
{
    Text rest = text;
    auto at = [&text, &rest] { return static_cast<uint16_t>( text.length - rest.length ); };
    places = {};
    if ( !rest.take( telsx___SkipVersion ) || !rest.take( telsx___SkipSlash ) )
        return 0;
    bool isPlain = at() == versionLength + 1 && text.length <= UINT16_MAX;
    if ( !rest.take( telsx___SkipTransport ) )
        return 0;
    places.transportEnd = at();
    if ( !rest.take( telsx___SkipLws ) )
        return 0;
    isPlain = isPlain && at() == places.transportEnd + 1;
    if ( !rest.take( telsx___SkipHost ) )
        return 0;
    places.hostEnd = places.portEnd = at();
    if ( int64_t colon = telsx___SkipColon( rest.chs, rest.length ) )
    {
        rest.take( colon );
        isPlain = isPlain && colon == 1;
        if ( !rest.take( telsx___SkipPort ) )
            return 0;
        places.portEnd = at();
    }
    for ( ;; )
    {
        Text param = rest;
        if ( !param.take( telsx___SkipSemi ) )
            break;
        int64_t length = telsx___SkipViaParams( param.chs, param.length );
        if ( !length )
            break;
        rest = param.behind( length );
        param = param.first( length );
        auto begin = static_cast<uint16_t>( param.chs - text.chs );
        if ( beginsInAnyCase<"branch=">( param ) && length > 7 && isIn( param.chs[7], classToken ) )
            places.branch = static_cast<uint16_t>( begin + 7 ), places.branchEnd = at();
        else if ( beginsInAnyCase<"rport">( param )
                  && ( length == 5 || ( length > 6 && param.chs[5] == '=' ) ) )
            places.rport = static_cast<uint16_t>( length == 5 ? at() : begin + 6 ), places.rportEnd = at();
        else
            isPlain = false;
    }
    places.areKnown = isPlain;
    return text.length - rest.length;
}

TELSX_VIA telsx::tryDecodeVia( Text text, const ViaPlaces &places )
{
    auto between = [text]( int64_t begin, int64_t end ) { return text.first( end ).behind( begin ); };
    bool hasPort = places.portEnd > places.hostEnd, hasNumericRport = places.rportEnd > places.rport;
    int64_t port = hasPort ? tryDecodeNumber( between( places.hostEnd + 1, places.portEnd ) ) : -1,
            rport = hasNumericRport ? tryDecodeNumber( between( places.rport, places.rportEnd ) ) : -1;
    if ( !places.areKnown || ( hasPort && port == -1 ) || ( hasNumericRport && rport == -1 ) )
        return text.as( telsx___ViaTryDecode );
    Ref<RT_STRING> host = hostOf( between( places.transportEnd + 1, places.hostEnd ) );
    if ( !host )
        return nullptr;
    TELSX_VIA via = create( adopt( text.first( versionLength ).as( telsx___VersionTryDecode ) ),
                            transportInLowerCase( between( versionLength + 1, places.transportEnd ) ),
                            std::move( host ) );
    via->port = port;
    via->rportNumeric = rport;
    via->rportEmpty = places.rport && !hasNumericRport;
    if ( places.branch )
        via->branch = between( places.branch, places.branchEnd ).copy();
    return via;
}
