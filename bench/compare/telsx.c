#include <telsx/telsx.h>

#include "bench.h"

/* The parts of our own Via that are always the same; per thread, since threads that share nothing need not wait for
 * each other's counts. */
static _Thread_local RT_STRING ownTransport, ownHost;
static TELSX_VERSION ownVersion;

static void start( void )
{
    rtModuleStart( telsxModule() );
    ownVersion = telsxVersionCreateSip20();
}

static TELSX_MESSAGE decode( const char *bytes, size_t length )
{
    RT_BUFFER buffer = rtBufferCreateFromBytesCopy( bytes, (int64_t)length );
    TELSX_MESSAGE msg = telsxMessageTryDecode( buffer );
    rtBufferRelease( buffer );
    return msg;
}

static TEXT text( RT_STRING string )
{
    return string ? ( TEXT ){ rtStringBacking( string ), rtStringLength( string ), sizeof( RT_CHAR ) }
                  : ( TEXT ){ 0 };
}

/* The parts of an address, of which the strings go to the last argument, to be released; false if it is no SIP address. */
static bool address( RT_STRING iri, ADDRESS *parts, RT_STRING strings[2] )
{
    TELSX_SIP_IRI sipIri = telsxSipIriTryDecode( iri );
    rtStringRelease( iri );
    if ( !sipIri )
        return false;
    strings[0] = telsxSipIriUser( sipIri );
    strings[1] = telsxSipIriHost( sipIri );
    *parts = ( ADDRESS ){ .scheme = { telsxSipIriSecure( sipIri ) ? "sips" : "sip", -1, 1 },
                          .user = text( strings[0] ),
                          .host = text( strings[1] ),
                          .port = telsxSipIriHasPort( sipIri ) ? telsxSipIriPort( sipIri ) : 0 };
    telsxSipIriRelease( sipIri );
    return true;
}

static void encode( TELSX_MESSAGE msg )
{
    RT_BUFFER buffer = telsxMessageEncode( msg );
    benchTakeBytes( rtBufferBacking( buffer ), rtBufferLength( buffer ) );
    rtBufferRelease( buffer );
}

static void forwardRequest( TELSX_MESSAGE *msg, TELSX_HEADER_VIA *vias,
                            TELSX_HEADER_MAX_FORWARDS *maxForwards )
{
    if ( !ownHost )
    {
        ownTransport = rtStringCreateFromCstr( "UDP", -1 );
        ownHost = rtStringCreateFromCstr( OWN_HOST, -1 );
    }
    TELSX_VIA own = telsxViaCreateWithPort( ownVersion, ownTransport, ownHost, OWN_PORT );
    RT_STRING branch = rtStringCreateFromCstr( OWN_BRANCH, -1 );
    telsxViaSetBranch( &own, branch );
    rtStringRelease( branch );
    telsxHeaderViaPrependVia( vias, own );
    telsxViaRelease( own );
    telsxHeaderViaEncodeToMessage( *vias, msg );

    telsxHeaderMaxForwardsSetMaxForwards( maxForwards,
                                          telsxHeaderMaxForwardsMaxForwards( *maxForwards ) - 1 );
    telsxHeaderMaxForwardsEncodeToMessage( *maxForwards, msg );
}

static void forwardResponse( TELSX_MESSAGE *msg, TELSX_HEADER_VIA *vias )
{
    telsxHeaderViaDelViaAt( vias, 0 );
    if ( telsxHeaderViaViasLength( *vias ) > 0 )
        telsxHeaderViaEncodeToMessage( *vias, msg );
    else
        telsxHeaderViaRemoveFromMessage( msg );
}

#define RELEASE( NAME, HANDLE ) ( ( HANDLE ) ? telsx##NAME##Release( HANDLE ) : (void)0 )
#define RELEASE_STRING( HANDLE ) ( ( HANDLE ) ? rtStringRelease( HANDLE ) : (void)0 )

static bool route( JOB job, TELSX_MESSAGE *msg )
{
    TELSX_HEADER_VIA vias = telsxHeaderViaTryDecodeFromMessage( *msg );
    TELSX_VIA top =
        vias && telsxHeaderViaViasLength( vias ) > 0 ? telsxHeaderViaTryDecodeViaAt( vias, 0 ) : NULL;
    TELSX_HEADER_FROM from = telsxHeaderFromTryDecodeFromMessage( *msg );
    TELSX_HEADER_TO to = telsxHeaderToTryDecodeFromMessage( *msg );
    TELSX_HEADER_CALL_ID callId = telsxHeaderCallIdTryDecodeFromMessage( *msg );
    TELSX_HEADER_CSEQ cseq = telsxHeaderCseqTryDecodeFromMessage( *msg );
    TELSX_HEADER_MAX_FORWARDS maxForwards = telsxHeaderMaxForwardsTryDecodeFromMessage( *msg );
    bool request = telsxMessageIsRequest( *msg );
    RT_STRING strings[4] = { NULL };
    ADDRESS fromAddress, toAddress;
    bool good = top && from && to && callId && cseq && ( maxForwards || !request )
                && address( telsxHeaderFromIri( from ), &fromAddress, strings )
                && address( telsxHeaderToIri( to ), &toAddress, strings + 2 );
    if ( good )
    {
        RT_STRING host = telsxViaHost( top ), branch = telsxViaBranch( top );
        RT_STRING fromTag = telsxHeaderFromTag( from ), toTag = telsxHeaderToTag( to );
        RT_STRING call = telsxHeaderCallIdCallId( callId ), method = telsxHeaderCseqMethod( cseq );
        VALUES values = { .viaHost = text( host ),
                          .viaPort = telsxViaHasPort( top ) ? telsxViaPort( top ) : 0,
                          .viaBranch = text( branch ),
                          .from = fromAddress,
                          .fromTag = text( fromTag ),
                          .to = toAddress,
                          .toTag = text( toTag ),
                          .callId = text( call ),
                          .cseq = telsxHeaderCseqCseq( cseq ),
                          .method = text( method ),
                          .maxForwards =
                              maxForwards ? telsxHeaderMaxForwardsMaxForwards( maxForwards ) : -1 };
        benchTakeValues( &values );
        rtStringRelease( method );
        rtStringRelease( call );
        RELEASE_STRING( toTag );
        RELEASE_STRING( fromTag );
        RELEASE_STRING( branch );
        rtStringRelease( host );

        if ( job == JOB_HOP && request )
            forwardRequest( msg, &vias, &maxForwards );
        else if ( job == JOB_HOP )
            forwardResponse( msg, &vias );
        if ( job == JOB_HOP )
            encode( *msg );
    }
    for ( int i = 0; i < 4; ++i )
        RELEASE_STRING( strings[i] );
    RELEASE( HeaderMaxForwards, maxForwards );
    RELEASE( HeaderCseq, cseq );
    RELEASE( HeaderCallId, callId );
    RELEASE( HeaderTo, to );
    RELEASE( HeaderFrom, from );
    RELEASE( Via, top );
    RELEASE( HeaderVia, vias );
    return good;
}

static bool work( JOB job, char *bytes, size_t length )
{
    TELSX_MESSAGE msg = decode( bytes, length );
    if ( !msg )
        return false;
    bool good = job == JOB_SCREEN || route( job, &msg );
    telsxMessageRelease( msg );
    return good;
}

static int64_t countLines( TELSX_MESSAGE msg )
{
    TELSX_MESSAGE_HEADER header = telsxMessageHeaderCstr( msg, "X-Note", -1 );
    int64_t n = telsxMessageHeaderLinesLength( header );
    for ( int64_t i = 0; i < n; ++i )
        rtStringRelease( telsxMessageHeaderLineAt( header, i ) );
    telsxMessageHeaderRelease( header );
    return n;
}

static int64_t countHeaders( TELSX_MESSAGE msg )
{
    RT_VECTOR headers = telsxMessageHeadersVector( msg );
    int64_t n = 0;
    for ( int64_t i = 0; i < rtVectorLength( headers ); ++i )
    {
        TELSX_MESSAGE_HEADER header = telsxMessageHeaderFrom( rtVectorObjAt( headers, i ) );
        RT_STRING name = telsxMessageHeaderName( header );
        n += rtStringBeginsWithChar( name, 'X' );
        rtStringRelease( name );
    }
    rtVectorRelease( headers );
    return n;
}

static int64_t countViaParams( TELSX_MESSAGE msg )
{
    TELSX_HEADER_VIA vias = telsxHeaderViaTryDecodeFromMessage( msg );
    TELSX_VIA top = telsxHeaderViaTryDecodeViaAt( vias, 0 );
    TELSX_GENERIC_PARAMS params = telsxViaGenericParams( top );
    int64_t n = telsxGenericParamsLength( params );
    for ( int64_t i = 0; i < n; ++i )
        telsxGenericParamRelease( telsxGenericParamsParamAt( params, i ) );
    telsxGenericParamsRelease( params );
    telsxViaRelease( top );
    telsxHeaderViaRelease( vias );
    return n;
}

static int64_t countContacts( TELSX_MESSAGE msg )
{
    TELSX_HEADER_CONTACT header = telsxHeaderContactTryDecodeFromMessage( msg );
    int64_t n = telsxHeaderContactContactsLength( header );
    for ( int64_t i = 0; i < n; ++i )
        telsxContactRelease( telsxHeaderContactTryDecodeContactAt( header, i ) );
    telsxHeaderContactRelease( header );
    return n;
}

static int64_t count( SHAPE shape, char *bytes, size_t length )
{
    static int64_t ( *const counts[SHAPES] )( TELSX_MESSAGE ) = { countLines, countHeaders, countViaParams,
                                                                  countContacts };
    TELSX_MESSAGE msg = decode( bytes, length );
    if ( !msg )
        return 0;
    int64_t n = counts[shape]( msg );
    telsxMessageRelease( msg );
    return n;
}

static int64_t stream( const char *bytes, size_t length, size_t piece )
{
    TELSX_MESSAGE_STREAM_DECODER decoder = telsxMessageStreamDecoderCreate();
    int64_t n = 0;
    for ( size_t at = 0; at < length; at += piece )
    {
        size_t size = length - at < piece ? length - at : piece;
        RT_BUFFER buffer = rtBufferCreateFromBytesCopy( bytes + at, (int64_t)size );
        telsxMessageStreamDecoderWrite( decoder, buffer );
        rtBufferRelease( buffer );
        for ( TELSX_MESSAGE msg; ( msg = telsxMessageStreamDecoderRead( decoder ) );
              telsxMessageRelease( msg ) )
            ++n;
    }
    telsxMessageStreamDecoderRelease( decoder );
    return n;
}

const PARSER parser = { .start = start, .hops = true, .work = work, .count = count, .stream = stream };
