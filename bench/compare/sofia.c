#include <stdlib.h>
#include <string.h>

#include <sofia-sip/msg_addr.h>
#include <sofia-sip/msg_header.h>
#include <sofia-sip/msg_mclass.h>
#include <sofia-sip/sip.h>
#include <sofia-sip/sip_header.h>
#include <sofia-sip/sip_parser.h>
#include <sofia-sip/su_alloc.h>

#include "bench.h"

static void start( void ) {}

static msg_t *decode( const char *bytes, size_t length, sip_t **sip )
{
    msg_t *msg = msg_make( sip_default_mclass(), 0, bytes, (ssize_t)length );
    *sip = msg ? sip_object( msg ) : NULL;
    if ( *sip && !msg_has_error( msg ) && msg_is_complete( msg ) )
        return msg;
    msg_destroy( msg );
    return NULL;
}

static TEXT text( const char *chars ) { return ( TEXT ){ chars, -1, 1 }; }

static int64_t number( const char *digits ) { return digits ? strtol( digits, NULL, 10 ) : 0; }

static ADDRESS address( const url_t *url )
{
    return ( ADDRESS ){ .scheme = text( url->url_scheme ),
                        .user = text( url->url_user ),
                        .host = text( url->url_host ),
                        .port = number( url->url_port ) };
}

static bool route( const sip_t *sip )
{
    if ( !sip->sip_via || !sip->sip_from || !sip->sip_to || !sip->sip_call_id || !sip->sip_cseq )
        return false;
    VALUES values = { .viaHost = text( sip->sip_via->v_host ),
                      .viaPort = number( sip->sip_via->v_port ),
                      .viaBranch = text( sip->sip_via->v_branch ),
                      .from = address( sip->sip_from->a_url ),
                      .fromTag = text( sip->sip_from->a_tag ),
                      .to = address( sip->sip_to->a_url ),
                      .toTag = text( sip->sip_to->a_tag ),
                      .callId = text( sip->sip_call_id->i_id ),
                      .cseq = sip->sip_cseq->cs_seq,
                      .method = text( sip->sip_cseq->cs_method_name ),
                      .maxForwards = sip->sip_max_forwards ? (int64_t)sip->sip_max_forwards->mf_count : -1 };
    benchTakeValues( &values );
    return true;
}

/* As its own transports do: only what has no text yet is encoded, and the pieces are listed; here they are joined. */
static bool encode( msg_t *msg )
{
    msg_iovec_t pieces[256];
    if ( msg_prepare( msg ) < 0 )
        return false;
    size_t n = (size_t)msg_iovec( msg, pieces, 256 ), length = 0;
    for ( size_t i = 0; i < n; ++i )
        length += pieces[i].mv_len;
    char *bytes = malloc( length );
    if ( n == 0 || n > 256 || !bytes )
        return false;
    char *at = bytes;
    for ( size_t i = 0; i < n; at += pieces[i].mv_len, ++i )
        memcpy( at, pieces[i].mv_base, pieces[i].mv_len );
    benchTakeBytes( bytes, (int64_t)length );
    free( bytes );
    return true;
}

static bool hop( msg_t *msg, sip_t *sip )
{
    if ( sip->sip_request )
    {
        sip_via_t *own =
            sip_via_create( msg_home( msg ), OWN_HOST, "5060", NULL, "branch=" OWN_BRANCH, NULL );
        if ( !own || !sip->sip_max_forwards
             || msg_header_insert( msg, (msg_pub_t *)sip, (msg_header_t *)own ) < 0 )
            return false;
        --sip->sip_max_forwards->mf_count;
        msg_fragment_clear( sip->sip_max_forwards->mf_common );
    }
    else
        msg_header_remove( msg, (msg_pub_t *)sip, (msg_header_t *)sip->sip_via );
    return msg_serialize( msg, (msg_pub_t *)sip ) >= 0 && encode( msg );
}

static bool work( JOB job, char *bytes, size_t length )
{
    sip_t *sip;
    msg_t *msg = decode( bytes, length, &sip );
    if ( !msg )
        return false;
    bool good = job == JOB_SCREEN || ( route( sip ) && ( job == JOB_ROUTE || hop( msg, sip ) ) );
    msg_destroy( msg );
    return good;
}

static int64_t count( SHAPE shape, char *bytes, size_t length )
{
    sip_t *sip;
    msg_t *msg = decode( bytes, length, &sip );
    int64_t n = 0;
    if ( !msg )
        return 0;
    if ( shape == SHAPE_SAME_NAME || shape == SHAPE_DISTINCT )
        for ( const sip_unknown_t *i = sip->sip_unknown; i; i = i->un_next )
            ++n;
    else if ( shape == SHAPE_CONTACTS )
        for ( const sip_contact_t *i = sip->sip_contact; i; i = i->m_next )
            ++n;
    else
        for ( const msg_param_t *i = sip->sip_via->v_params; i && *i; ++i )
            n += **i == 'p';
    msg_destroy( msg );
    return n;
}

const PARSER parser = { .start = start, .hops = true, .work = work, .count = count };
