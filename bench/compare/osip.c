#include <stdlib.h>

#include <osipparser2/osip_message.h>
#include <osipparser2/osip_parser.h>
#include <osipparser2/osip_port.h>

#include "bench.h"

static void start( void ) { parser_init(); }

static osip_message_t *decode( const char *bytes, size_t length )
{
    osip_message_t *msg;
    if ( osip_message_init( &msg ) != 0 )
        return NULL;
    if ( osip_message_parse( msg, bytes, length ) == 0 )
        return msg;
    osip_message_free( msg );
    return NULL;
}

static TEXT text( const char *chars ) { return ( TEXT ){ chars, -1, 1 }; }

static TEXT value( const osip_generic_param_t *param ) { return text( param ? param->gvalue : NULL ); }

static int64_t number( const char *digits ) { return digits ? osip_atoi( digits ) : 0; }

static ADDRESS address( const osip_uri_t *uri )
{
    return ( ADDRESS ){ .scheme = text( uri->scheme ),
                        .user = text( uri->username ),
                        .host = text( uri->host ),
                        .port = number( uri->port ) };
}

static bool route( osip_message_t *msg )
{
    osip_via_t *via = osip_list_get( &msg->vias, 0 );
    if ( !via || !msg->from || !msg->to || !msg->call_id || !msg->cseq )
        return false;
    osip_generic_param_t *branch = NULL, *fromTag = NULL, *toTag = NULL;
    osip_header_t *maxForwards = NULL;
    char name[] = "branch";
    osip_via_param_get_byname( via, name, &branch );
    osip_from_get_tag( msg->from, &fromTag );
    osip_to_get_tag( msg->to, &toTag );
    osip_message_get_max_forwards( msg, 0, &maxForwards );
    VALUES values = { .viaHost = text( via->host ),
                      .viaPort = number( via->port ),
                      .viaBranch = value( branch ),
                      .from = address( msg->from->url ),
                      .fromTag = value( fromTag ),
                      .to = address( msg->to->url ),
                      .toTag = value( toTag ),
                      .callId = text( msg->call_id->number ),
                      .callIdHost = text( msg->call_id->host ),
                      .cseq = (int64_t)strtoul( msg->cseq->number, NULL, 10 ),
                      .method = text( msg->cseq->method ),
                      .maxForwards = maxForwards ? number( maxForwards->hvalue ) : -1 };
    benchTakeValues( &values );
    return true;
}

static bool forwardRequest( osip_message_t *msg )
{
    osip_header_t *maxForwards = NULL;
    osip_message_get_max_forwards( msg, 0, &maxForwards );
    osip_via_t *own;
    if ( !maxForwards || osip_via_init( &own ) != 0 )
        return false;
    osip_via_set_version( own, osip_strdup( "2.0" ) );
    osip_via_set_protocol( own, osip_strdup( "UDP" ) );
    osip_via_set_host( own, osip_strdup( OWN_HOST ) );
    osip_via_set_port( own, osip_strdup( "5060" ) );
    osip_via_set_branch( own, osip_strdup( OWN_BRANCH ) );
    osip_list_add( &msg->vias, own, 0 );

    char digits[16];
    snprintf( digits, sizeof digits, "%d", osip_atoi( maxForwards->hvalue ) - 1 );
    osip_free( maxForwards->hvalue );
    maxForwards->hvalue = osip_strdup( digits );
    return true;
}

static bool hop( osip_message_t *msg )
{
    if ( MSG_IS_REQUEST( msg ) && !forwardRequest( msg ) )
        return false;
    if ( MSG_IS_RESPONSE( msg ) )
    {
        osip_via_t *via = osip_list_get( &msg->vias, 0 );
        osip_list_remove( &msg->vias, 0 );
        osip_via_free( via );
    }
    osip_message_force_update( msg );
    char *bytes;
    size_t length;
    if ( osip_message_to_str( msg, &bytes, &length ) != 0 )
        return false;
    benchTakeBytes( bytes, (int64_t)length );
    osip_free( bytes );
    return true;
}

static bool work( JOB job, char *bytes, size_t length )
{
    osip_message_t *msg = decode( bytes, length );
    if ( !msg )
        return false;
    bool good = job == JOB_SCREEN || ( route( msg ) && ( job == JOB_ROUTE || hop( msg ) ) );
    osip_message_free( msg );
    return good;
}

/* Its own way through a list, which does not start over for each element. */
static int64_t countList( osip_list_t *list )
{
    osip_list_iterator_t at;
    int64_t n = 0;
    for ( void *i = osip_list_get_first( list, &at ); i; i = osip_list_get_next( &at ) )
        ++n;
    return n;
}

static int64_t count( SHAPE shape, char *bytes, size_t length )
{
    osip_message_t *msg = decode( bytes, length );
    if ( !msg )
        return 0;
    int64_t n;
    if ( shape == SHAPE_CONTACTS )
        n = countList( &msg->contacts );
    else if ( shape == SHAPE_VIA_PARAMS )
        n = countList( &( (osip_via_t *)osip_list_get( &msg->vias, 0 ) )->via_params ) - 1; /* branch */
    else
        n = countList( &msg->headers ) - 1; /* Max-Forwards */
    osip_message_free( msg );
    return n;
}

const PARSER parser = { .start = start, .hops = true, .work = work, .count = count };
