/* Its message object refers to the bytes of the caller, who passes them in a buffer. It has no encoder for a decoded
 * message. */
#include <stdint.h>

#include <re.h>

#include "bench.h"

static void start( void ) { libre_init(); }

static struct sip_msg *decode( char *bytes, size_t length )
{
    /* One for each thread, so that no decoding pays for it. */
    static _Thread_local struct mbuf *buffer;
    if ( !buffer )
    {
        buffer = mbuf_alloc( 16 );
        mem_deref( buffer->buf );
    }
    buffer->buf = (uint8_t *)bytes;
    buffer->size = buffer->end = length;
    buffer->pos = 0;
    struct sip_msg *msg;
    return sip_msg_decode( &msg, buffer ) == 0 ? msg : NULL;
}

static TEXT text( const struct pl *pl ) { return ( TEXT ){ pl->p, (int64_t)pl->l, 1 }; }

static ADDRESS address( const struct uri *uri )
{
    return ( ADDRESS ){ .scheme = text( &uri->scheme ),
                        .user = text( &uri->user ),
                        .host = text( &uri->host ),
                        .port = uri->port };
}

static bool route( const struct sip_msg *msg )
{
    struct pl host, port;
    if ( !pl_isset( &msg->from.auri ) || !pl_isset( &msg->to.auri ) || !pl_isset( &msg->callid )
         || uri_decode_hostport( &msg->via.sentby, &host, &port ) != 0 )
        return false;
    VALUES values = { .viaHost = text( &host ),
                      .viaPort = sa_port( &msg->via.addr ),
                      .viaBranch = text( &msg->via.branch ),
                      .from = address( &msg->from.uri ),
                      .fromTag = text( &msg->from.tag ),
                      .to = address( &msg->to.uri ),
                      .toTag = text( &msg->to.tag ),
                      .callId = text( &msg->callid ),
                      .cseq = msg->cseq.num,
                      .method = text( &msg->cseq.met ),
                      .maxForwards = pl_isset( &msg->maxfwd ) ? (int64_t)pl_u32( &msg->maxfwd ) : -1 };
    benchTakeValues( &values );
    return true;
}

static bool work( JOB job, char *bytes, size_t length )
{
    struct sip_msg *msg = decode( bytes, length );
    if ( !msg )
        return false;
    bool good = job == JOB_SCREEN || route( msg );
    mem_deref( msg );
    return good;
}

static int64_t count( SHAPE shape, char *bytes, size_t length )
{
    if ( shape != SHAPE_SAME_NAME && shape != SHAPE_DISTINCT )
        return -1;
    struct sip_msg *msg = decode( bytes, length );
    int64_t n = 0;
    for ( const struct le *i = msg ? msg->hdrl.head : NULL; i; i = i->next )
        n += *( (const struct sip_hdr *)i->data )->name.p == 'X';
    mem_deref( msg );
    return n;
}

const PARSER parser = { .start = start, .work = work, .count = count };
