// Sofia-SIP and libosip2 read what telsx writes, and telsx reads what Sofia-SIP writes: the fields agree.
#include <cmath>
#include <cstring>
#include <ranges>
#include <vector>

#include <osipparser2/osip_message.h>
#include <osipparser2/osip_parser.h>
#include <sofia-sip/msg_addr.h>
#include <sofia-sip/sip_extra.h>
#include <sofia-sip/sip_header.h>
#include <sofia-sip/sip_parser.h>
#include <sofia-sip/sip_protos.h>
#include <sofia-sip/sip_status.h>
#include <sofia-sip/su_alloc.h>

#include "rsc/rsc.h"
#include "support/support.hpp"
#include "telsx/telsx.h"

namespace
{

using support::adopt;
using support::buffer;
using support::bytes;
using support::Ref;
using support::str;

struct Via
{
    std::string transport, host;
    int64_t port = -1;
    std::string branch;
};

struct Party
{
    std::string name, iri, tag;
    int64_t expires = -1, qvalue = -1; // of a Contact
};

// Texts are UTF-8, addresses are IRIs; an absent text is empty, an absent number -1.
struct Content
{
    std::string method = {}, iri = {}; // of a request
    int64_t status = -1;               // of a response
    std::vector<Via> vias = {};
    Party from = {}, to = {};
    std::string callId = {};
    int64_t cseq = -1;
    std::string cseqMethod = {};
    int64_t maxForwards = -1;
    std::vector<Party> contacts = {};
    std::vector<std::string> routes = {};
    std::string body = {};
    // Headers that libosip2 has no type for.
    int64_t sessionExpires = -1;
    std::string refresher = {};
};

std::string show( const Party &party )
{
    return '"' + party.name + "\" <" + party.iri + "> tag " + party.tag + " expires "
           + std::to_string( party.expires ) + " q " + std::to_string( party.qvalue ) + '\n';
}

std::string show( const Content &content )
{
    std::string text = content.method + ' ' + content.iri + ' ' + std::to_string( content.status ) + '\n';
    for ( const Via &via : content.vias )
        text += "via " + via.transport + ' ' + via.host + ' ' + std::to_string( via.port ) + ' ' + via.branch
                + '\n';
    text += "from " + show( content.from ) + "to " + show( content.to ) + "call " + content.callId + '\n'
            + std::to_string( content.cseq ) + ' ' + content.cseqMethod + ", hops "
            + std::to_string( content.maxForwards ) + '\n';
    for ( const Party &contact : content.contacts )
        text += "contact " + show( contact );
    for ( const std::string &route : content.routes )
        text += "route " + route + '\n';
    return text + "session " + std::to_string( content.sessionExpires ) + ' ' + content.refresher + '\n'
           + content.body;
}

const Via edge = { "udp", "203.0.113.5", 5060, "z9hG4bKd3c0b1a7f2e45" };
const Via phone = { "tcp", "[2001:db8::34]", -1, "z9hG4bKqz71mmr04" };
const Party dora = { "Dora \"Doe\" \\ Bürger", "sip:dora@mühle.example", "4k7m2xw0pe" };
const Party emil = { "", "sip:em%40il@example.org:5064;transport=tcp", "" };

const Content contents[] = {
    { .method = "INVITE",
      .iri = "sip:emil@[2001:db8::7]:5064;transport=tcp;lr",
      .vias = { edge, phone },
      .from = dora,
      .to = emil,
      .callId = "7719350826144071935@192.0.2.34",
      .cseq = 2041,
      .cseqMethod = "INVITE",
      .maxForwards = 0,
      .contacts = { { "Dora, at her desk; or not", "sip:dora@192.0.2.34:5066;transport=udp", "" } },
      .routes = { "sip:edge2.example.org;lr", "sip:edge1.example.com;lr;x=%22" },
      .body = "v=0\r\n\r\n\xff not text",
      .sessionExpires = 1200,
      .refresher = "uas" },
    { .status = 302,
      .vias = { phone },
      .from = emil,
      .to = dora,
      .callId = "a",
      .cseq = 2147483647,
      .cseqMethod = "INVITE",
      .contacts = { { "", "sip:a@example.com?subject=a%20b", "", 0, 1000 },
                    { "", "tel:+15550142233;phone-context=example.com", "", 3600, 5 },
                    { "", "mailto:dora@example.com", "", -1, 0 } } },
    { .method = "SUBSCRIBE",
      .iri = "tel:+15550142233",
      .vias = { edge },
      .from = dora,
      .to = emil,
      .callId = "b@b",
      .cseq = 1,
      .cseqMethod = "SUBSCRIBE",
      .maxForwards = 255 },
    { .method = "REFER",
      .iri = "sip:example.com",
      .vias = { edge },
      .from = emil,
      .to = dora,
      .callId = "c(<>)/\"\\[]{}?@c",
      .cseq = 0,
      .cseqMethod = "REFER",
      .maxForwards = 70 },
};

std::string utf8( const Ref<RT_STRING> &string ) { return string ? support::utf8( string ) : ""; }
std::string utf8( RT_STRING string ) { return utf8( adopt( string ) ); }
std::string toUri( const std::string &iri ) { return utf8( rscTryConvertToUri( str( iri ).get() ) ); }
std::string toIri( const std::string &uri ) { return utf8( rscTryConvertFromUri( str( uri ).get() ) ); }

// telsx

template <auto CREATE, auto SET_NAME, auto SET_TAG = nullptr>
auto make( const Party &party )
{
    auto made = adopt( CREATE( str( party.iri ).get() ) );
    if ( !party.name.empty() )
        SET_NAME( made.address(), str( party.name ).get() );
    if constexpr ( SET_TAG != nullptr )
        if ( !party.tag.empty() )
            SET_TAG( made.address(), str( party.tag ).get() );
    return made;
}

std::string telsxWrite( const Content &content )
{
    auto sip = adopt( telsxVersionCreateSip20() );
    auto msg =
        adopt( content.method.empty() ? telsxMessageCreateResponse( sip.get(), content.status )
                                      : telsxMessageCreateRequest( sip.get(), str( content.method ).get(),
                                                                   str( content.iri ).get() ) );
    auto add = [&msg]( auto header, auto encode ) { encode( header.get(), msg.address() ); };

    auto vias = adopt( telsxHeaderViaCreate() );
    for ( const Via &via : content.vias )
    {
        auto made = adopt( telsxViaCreate( sip.get(), str( via.transport ).get(), str( via.host ).get() ) );
        if ( via.port != -1 )
            telsxViaSetPort( made.address(), via.port );
        telsxViaSetBranch( made.address(), str( via.branch ).get() );
        telsxHeaderViaAppendVia( vias.address(), made.get() );
    }
    add( vias, telsxHeaderViaEncodeToMessage );

    auto from =
        make<telsxHeaderFromCreate, telsxHeaderFromSetDisplayName, telsxHeaderFromSetTag>( content.from );
    add( from, telsxHeaderFromEncodeToMessage );
    auto to = make<telsxHeaderToCreate, telsxHeaderToSetDisplayName, telsxHeaderToSetTag>( content.to );
    add( to, telsxHeaderToEncodeToMessage );
    add( adopt( telsxHeaderCallIdCreate( str( content.callId ).get() ) ), telsxHeaderCallIdEncodeToMessage );
    add( adopt( telsxHeaderCseqCreate( content.cseq, str( content.cseqMethod ).get() ) ),
         telsxHeaderCseqEncodeToMessage );
    if ( content.maxForwards != -1 )
        add( adopt( telsxHeaderMaxForwardsCreate( content.maxForwards ) ),
             telsxHeaderMaxForwardsEncodeToMessage );

    auto contacts = adopt( telsxHeaderContactCreate() );
    for ( const Party &contact : content.contacts )
    {
        auto made = make<telsxContactCreate, telsxContactSetDisplayName>( contact );
        if ( contact.expires != -1 )
            telsxContactSetExpires( made.address(), contact.expires );
        if ( contact.qvalue != -1 )
            telsxContactSetQvalue( made.address(), contact.qvalue );
        telsxHeaderContactAppendContact( contacts.address(), made.get() );
    }
    if ( !content.contacts.empty() )
        add( contacts, telsxHeaderContactEncodeToMessage );

    auto routes = adopt( telsxHeaderRouteCreate() );
    for ( const std::string &route : content.routes )
        telsxHeaderRouteAppendRoute( routes.address(),
                                     adopt( telsxRouteCreate( str( route ).get() ) ).get() );
    if ( !content.routes.empty() )
        add( routes, telsxHeaderRouteEncodeToMessage );

    if ( content.sessionExpires != -1 )
    {
        auto header = adopt( telsxHeaderSessionExpiresCreate( content.sessionExpires ) );
        telsxHeaderSessionExpiresSetRefresher( header.address(), str( content.refresher ).get() );
        add( header, telsxHeaderSessionExpiresEncodeToMessage );
    }
    auto type = adopt( telsxMessageHeaderCreateCstr( "Content-Type", -1 ) );
    telsxMessageHeaderAppendLineCstr( type.address(), "application/octet-stream", -1 );
    telsxMessageSetHeader( msg.address(), type.get() );
    telsxMessageSetBody( msg.address(), buffer( content.body ).get() );
    return bytes( adopt( telsxMessageEncode( msg.get() ) ) );
}

template <auto NAME, auto IRI, auto TAG>
Party read( auto handle )
{
    return handle ? Party{ utf8( NAME( handle.get() ) ), utf8( IRI( handle.get() ) ),
                           utf8( TAG( handle.get() ) ) }
                  : Party{};
}

Content telsxRead( const std::string &wire )
{
    auto msg = adopt( telsxMessageTryDecode( buffer( wire ).get() ) );
    if ( !msg )
        return {};
    auto get = [&msg]( auto decode ) { return adopt( decode( msg.get() ) ); };
    Content content;
    if ( telsxMessageIsRequest( msg.get() ) )
    {
        content.method = utf8( telsxMessageRequestMethod( msg.get() ) );
        content.iri = utf8( telsxMessageRequestIri( msg.get() ) );
    }
    else
        content.status = telsxMessageResponseStatusCode( msg.get() );

    auto vias = get( telsxHeaderViaTryDecodeFromMessage );
    for ( int64_t i = 0; vias && i < telsxHeaderViaViasLength( vias.get() ); ++i )
        if ( auto via = adopt( telsxHeaderViaTryDecodeViaAt( vias.get(), i ) ) )
            content.vias.push_back( { utf8( telsxViaTransport( via.get() ) ),
                                      utf8( telsxViaHost( via.get() ) ), telsxViaPort( via.get() ),
                                      utf8( telsxViaBranch( via.get() ) ) } );
    content.from = read<telsxHeaderFromDisplayName, telsxHeaderFromIri, telsxHeaderFromTag>(
        get( telsxHeaderFromTryDecodeFromMessage ) );
    content.to = read<telsxHeaderToDisplayName, telsxHeaderToIri, telsxHeaderToTag>(
        get( telsxHeaderToTryDecodeFromMessage ) );
    if ( auto callId = get( telsxHeaderCallIdTryDecodeFromMessage ) )
        content.callId = utf8( telsxHeaderCallIdCallId( callId.get() ) );
    if ( auto cseq = get( telsxHeaderCseqTryDecodeFromMessage ) )
    {
        content.cseq = telsxHeaderCseqCseq( cseq.get() );
        content.cseqMethod = utf8( telsxHeaderCseqMethod( cseq.get() ) );
    }
    if ( auto maxForwards = get( telsxHeaderMaxForwardsTryDecodeFromMessage ) )
        content.maxForwards = telsxHeaderMaxForwardsMaxForwards( maxForwards.get() );
    auto contacts = get( telsxHeaderContactTryDecodeFromMessage );
    for ( int64_t i = 0; contacts && i < telsxHeaderContactContactsLength( contacts.get() ); ++i )
        if ( auto contact = adopt( telsxHeaderContactTryDecodeContactAt( contacts.get(), i ) ) )
            content.contacts.push_back(
                { utf8( telsxContactDisplayName( contact.get() ) ), utf8( telsxContactIri( contact.get() ) ),
                  "", telsxContactExpires( contact.get() ), telsxContactQvalue( contact.get() ) } );
    auto routes = get( telsxHeaderRouteTryDecodeFromMessage );
    for ( int64_t i = 0; routes && i < telsxHeaderRouteRoutesLength( routes.get() ); ++i )
        if ( auto route = adopt( telsxHeaderRouteTryDecodeRouteAt( routes.get(), i ) ) )
            content.routes.push_back( utf8( telsxRouteIri( route.get() ) ) );
    if ( auto expires = get( telsxHeaderSessionExpiresTryDecodeFromMessage ) )
    {
        content.sessionExpires = telsxHeaderSessionExpiresDeltaSeconds( expires.get() );
        content.refresher = utf8( telsxHeaderSessionExpiresRefresher( expires.get() ) );
    }
    if ( auto body = get( telsxMessageBody ) )
        content.body = bytes( body );
    return content;
}

// What the others hand out as it is in the message.

std::string text( const char *chars ) { return chars ? chars : ""; }
int64_t number( const char *digits ) { return digits ? std::stoll( digits ) : -1; }
int64_t qvalue( const char *decimal ) { return decimal ? std::lround( std::stod( decimal ) * 1000 ) : -1; }

std::string lower( std::string word )
{
    for ( char &ch : word )
        ch = static_cast<char>( std::tolower( static_cast<unsigned char>( ch ) ) );
    return word;
}

std::string quoted( const std::string &plain )
{
    std::string result = "\"";
    for ( char ch : plain )
        result += ch == '"' || ch == '\\' ? std::string( { '\\', ch } ) : std::string( 1, ch );
    return result + '"';
}

std::string unquoted( const std::string &name )
{
    if ( name.empty() || name[0] != '"' )
        return name;
    std::string result;
    for ( std::size_t i = 1; i + 1 < name.size(); ++i )
        result += name[i] == '\\' ? name[++i] : name[i];
    return result;
}

// Sofia-SIP

std::string nameAddr( const Party &party )
{
    std::string result =
        ( party.name.empty() ? "" : quoted( party.name ) + ' ' ) + '<' + toUri( party.iri ) + '>';
    result += party.tag.empty() ? "" : ";tag=" + party.tag;
    result += party.expires == -1 ? "" : ";expires=" + std::to_string( party.expires );
    char q[16];
    std::snprintf( q, sizeof q, ";q=%.3f", static_cast<double>( party.qvalue ) / 1000 );
    return result + ( party.qvalue == -1 ? "" : q );
}

std::string sofiaWrite( const Content &content )
{
    msg_t *msg = msg_create( sip_default_mclass(), 0 );
    sip_t *sip = sip_object( msg );
    auto add = [msg, sip]( msg_hclass_t *kind, const std::string &value )
    { EXPECT_EQ( 0, sip_add_make( msg, sip, kind, value.c_str() ) ) << value; };
    if ( content.method.empty() )
        add( sip_status_class, "SIP/2.0 " + std::to_string( content.status ) + " Moved" );
    else
        add( sip_request_class, content.method + ' ' + toUri( content.iri ) + " SIP/2.0" );
    for ( const Via &via : std::ranges::reverse_view( content.vias ) ) // each becomes the top one
        add( sip_via_class, "SIP/2.0/" + via.transport + ' ' + via.host
                                + ( via.port == -1 ? "" : ':' + std::to_string( via.port ) )
                                + ";branch=" + via.branch );
    add( sip_from_class, nameAddr( content.from ) );
    add( sip_to_class, nameAddr( content.to ) );
    add( sip_call_id_class, content.callId );
    add( sip_cseq_class, std::to_string( content.cseq ) + ' ' + content.cseqMethod );
    if ( content.maxForwards != -1 )
        add( sip_max_forwards_class, std::to_string( content.maxForwards ) );
    for ( const Party &contact : content.contacts )
        add( sip_contact_class, nameAddr( contact ) );
    for ( const std::string &route : content.routes )
        add( sip_route_class, '<' + toUri( route ) + '>' );
    if ( content.sessionExpires != -1 )
        add( sip_session_expires_class,
             std::to_string( content.sessionExpires ) + ";refresher=" + content.refresher );
    msg_header_insert(
        msg, nullptr,
        reinterpret_cast<msg_header_t *>( sip_payload_create(
            msg_home( msg ), content.body.data(), static_cast<isize_t>( content.body.size() ) ) ) );
    EXPECT_EQ( 0, sip_complete_message( msg ) );
    size_t length;
    const char *wire = msg_as_string( msg_home( msg ), msg, nullptr, 0, &length );
    std::string result( wire, length );
    msg_destroy( msg );
    return result;
}

Content sofiaRead( const std::string &wire )
{
    msg_t *msg = msg_make( sip_default_mclass(), 0, wire.data(), static_cast<ssize_t>( wire.size() ) );
    const sip_t *sip = sip_object( msg );
    if ( !sip || !sip->sip_from || !sip->sip_to || !sip->sip_call_id || !sip->sip_cseq )
        return {};
    auto iri = [msg]( const url_t *url ) { return toIri( text( url_as_string( msg_home( msg ), url ) ) ); };
    Content content;
    if ( sip->sip_request )
    {
        content.method = text( sip->sip_request->rq_method_name );
        content.iri = iri( sip->sip_request->rq_url );
    }
    else
        content.status = sip->sip_status->st_status;
    for ( const sip_via_t *via = sip->sip_via; via; via = via->v_next )
        content.vias.push_back( { lower( text( std::strrchr( via->v_protocol, '/' ) + 1 ) ),
                                  text( via->v_host ), number( via->v_port ), text( via->v_branch ) } );
    auto party = [iri]( const sip_addr_t *addr ) {
        return Party{ unquoted( text( addr->a_display ) ), iri( addr->a_url ), text( addr->a_tag ) };
    };
    content.from = party( sip->sip_from );
    content.to = party( sip->sip_to );
    content.callId = text( sip->sip_call_id->i_id );
    content.cseq = sip->sip_cseq->cs_seq;
    content.cseqMethod = text( sip->sip_cseq->cs_method_name );
    if ( sip->sip_max_forwards )
        content.maxForwards = static_cast<int64_t>( sip->sip_max_forwards->mf_count );
    for ( const sip_contact_t *contact = sip->sip_contact; contact; contact = contact->m_next )
        content.contacts.push_back( { unquoted( text( contact->m_display ) ), iri( contact->m_url ), "",
                                      number( contact->m_expires ), qvalue( contact->m_q ) } );
    for ( const sip_route_t *route = sip->sip_route; route; route = route->r_next )
        content.routes.push_back( iri( route->r_url ) );
    if ( sip->sip_session_expires )
    {
        content.sessionExpires = static_cast<int64_t>( sip->sip_session_expires->x_delta );
        content.refresher = text( sip->sip_session_expires->x_refresher );
    }
    if ( sip->sip_payload )
        content.body.assign( sip->sip_payload->pl_data, sip->sip_payload->pl_len );
    msg_destroy( msg );
    return content;
}

// libosip2

// It takes the brackets off an IPv6 address in a Via.
std::string bracketed( const std::string &host )
{
    return host.find( ':' ) == std::string::npos ? host : '[' + host + ']';
}

Content osipRead( const std::string &wire )
{
    osip_message_t *msg;
    osip_message_init( &msg );
    if ( osip_message_parse( msg, wire.data(), wire.size() ) != 0 )
        return {};
    auto iri = []( const osip_uri_t *uri )
    {
        char *chars = nullptr;
        osip_uri_to_str( uri, &chars );
        std::string result = toIri( text( chars ) );
        osip_free( chars );
        return result;
    };
    auto param = []( osip_list_t *params, const char *name )
    {
        osip_generic_param_t *found = nullptr;
        osip_generic_param_get_byname( params, std::string( name ).data(), &found );
        return found ? found->gvalue : nullptr;
    };
    auto party = [iri, param]( osip_from_t *from )
    {
        return Party{ unquoted( text( from->displayname ) ), iri( from->url ),
                      text( param( &from->gen_params, "tag" ) ),
                      number( param( &from->gen_params, "expires" ) ),
                      qvalue( param( &from->gen_params, "q" ) ) };
    };
    Content content;
    if ( MSG_IS_REQUEST( msg ) )
    {
        content.method = text( msg->sip_method );
        content.iri = iri( msg->req_uri );
    }
    else
        content.status = msg->status_code;
    for ( int i = 0; i < osip_list_size( &msg->vias ); ++i )
    {
        auto *via = static_cast<osip_via_t *>( osip_list_get( &msg->vias, i ) );
        content.vias.push_back( { lower( text( via->protocol ) ), bracketed( text( via->host ) ),
                                  number( via->port ), text( param( &via->via_params, "branch" ) ) } );
    }
    content.from = party( msg->from );
    content.to = party( msg->to );
    content.callId =
        text( msg->call_id->number ) + ( msg->call_id->host ? '@' + text( msg->call_id->host ) : "" );
    content.cseq = number( msg->cseq->number );
    content.cseqMethod = text( msg->cseq->method );
    osip_header_t *maxForwards = nullptr;
    osip_message_get_max_forwards( msg, 0, &maxForwards );
    content.maxForwards = maxForwards ? number( maxForwards->hvalue ) : -1;
    for ( int i = 0; i < osip_list_size( &msg->contacts ); ++i )
        content.contacts.push_back(
            party( static_cast<osip_from_t *>( osip_list_get( &msg->contacts, i ) ) ) );
    for ( int i = 0; i < osip_list_size( &msg->routes ); ++i )
        content.routes.push_back(
            iri( static_cast<osip_from_t *>( osip_list_get( &msg->routes, i ) )->url ) );
    if ( auto *body = static_cast<osip_body_t *>( osip_list_get( &msg->bodies, 0 ) ) )
        content.body.assign( body->body, body->length );
    osip_message_free( msg );
    return content;
}

class CrossReading : public testing::Test
{
    void SetUp() override
    {
        rtModuleStart( telsxModule() );
        parser_init();
    }
    void TearDown() override { rtModuleStop( telsxModule() ); }
};

TEST_F( CrossReading, SofiaReadsTelsx )
{
    for ( const Content &content : contents )
    {
        std::string wire = telsxWrite( content );
        EXPECT_EQ( show( content ), show( sofiaRead( wire ) ) ) << wire;
    }
}

TEST_F( CrossReading, OsipReadsTelsx )
{
    for ( Content content : contents )
    {
        std::string wire = telsxWrite( content );
        content.sessionExpires = -1;
        content.refresher = "";
        EXPECT_EQ( show( content ), show( osipRead( wire ) ) ) << wire;
    }
}

TEST_F( CrossReading, TelsxReadsSofia )
{
    for ( const Content &content : contents )
    {
        std::string wire = sofiaWrite( content );
        EXPECT_EQ( show( content ), show( telsxRead( wire ) ) ) << wire;
    }
}

} // namespace
