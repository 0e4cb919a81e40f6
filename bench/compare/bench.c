#include "bench.h"

#include <dlfcn.h>
#include <pthread.h>
#include <sched.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>
#include <unistd.h>

static const char *const jobs[JOBS] = { "screen", "route", "hop" };
static const char *const shapes[SHAPES] = { "same-name", "distinct", "via-parameters", "contacts" };

typedef struct MESSAGE
{
    const char *name;
    char *bytes;
    size_t length;
} MESSAGE;

#define MESSAGES 5
static MESSAGE messages[MESSAGES] = {
    { .name = "invite" }, { .name = "ok" }, { .name = "register" }, { .name = "options" }, { .name = "large" }
};

static void need( bool good, const char *what )
{
    if ( good )
        return;
    fprintf( stderr, "failed: %s\n", what );
    exit( 1 );
}

/* What the parsers hand over. The compiler must assume that it is used; checks print it. */

static bool printsValues;
static FILE *bytesTo;

static void printText( TEXT text )
{
    for ( int64_t i = 0; text.chars && i != text.length; ++i )
    {
        int ch = text.width == 4 ? (int)( (const uint32_t *)text.chars )[i] : ( (const char *)text.chars )[i];
        if ( ch == '\0' )
            break;
        putchar( ch );
    }
}

static void printAddress( const char *label, const ADDRESS *address )
{
    printf( "%s", label );
    printText( address->scheme );
    printf( ":" );
    printText( address->user );
    printf( "%s", address->user.chars ? "@" : "" );
    printText( address->host );
    if ( address->port )
        printf( ":%d", (int)address->port );
}

static void printLabelled( const char *label, TEXT text )
{
    printf( "%s", label );
    printText( text );
}

static void printValues( const VALUES *values )
{
    printLabelled( " via ", values->viaHost );
    printf( " %d", (int)values->viaPort );
    printLabelled( " ", values->viaBranch );
    printAddress( " from ", &values->from );
    printLabelled( " ", values->fromTag );
    printAddress( " to ", &values->to );
    printLabelled( " ", values->toTag );
    printLabelled( " call-id ", values->callId );
    printLabelled( values->callIdHost.chars ? "@" : "", values->callIdHost );
    printf( " cseq %d", (int)values->cseq );
    printLabelled( " ", values->method );
    printf( " max-forwards %d\n", (int)values->maxForwards );
}

void benchTakeValues( const VALUES *values )
{
    if ( printsValues )
        printValues( values );
    __asm__ volatile( "" : : "r"( values ) : "memory" );
}

void benchTakeBytes( const void *bytes, int64_t length )
{
    if ( bytesTo )
        fwrite( bytes, 1, (size_t)length, bytesTo );
    __asm__ volatile( "" : : "r"( bytes ), "r"( length ) : "memory" );
}

/* The messages. */

static char *allocate( size_t length )
{
    char *bytes = calloc( 1, length + 64 );
    need( bytes, "memory" );
    return bytes;
}

static void load( MESSAGE *message )
{
    char path[4096];
    snprintf( path, sizeof path, "%s/%s.sip", COMPARE_MESSAGES, message->name );
    FILE *file = fopen( path, "rb" );
    need( file && fseek( file, 0, SEEK_END ) == 0, path );
    message->length = (size_t)ftell( file );
    message->bytes = allocate( message->length );
    rewind( file );
    need( fread( message->bytes, 1, message->length, file ) == message->length, path );
    fclose( file );
}

/* A small request with n of the given shape. */
static MESSAGE shaped( SHAPE shape, int n )
{
    MESSAGE message = { .name = shapes[shape], .bytes = allocate( 1024 + (size_t)n * 40 ) };
    FILE *out = fmemopen( message.bytes, 1024 + (size_t)n * 40, "w" );
    need( out, "memory" );
    fprintf( out, "REGISTER sip:example.com SIP/2.0\r\nVia: SIP/2.0/UDP 192.0.2.34;branch=z9hG4bK-524c9f13" );
    for ( int i = 0; shape == SHAPE_VIA_PARAMS && i < n; ++i )
        fprintf( out, ";p%d=1", i );
    fprintf( out, "\r\nMax-Forwards: 70\r\nFrom: <sip:dora@example.com>;tag=a73kszlfl\r\n"
                  "To: <sip:dora@example.com>\r\nCall-ID: 1j9FpLxk3uxtm8tn@192.0.2.34\r\n"
                  "CSeq: 1826 REGISTER\r\n" );
    for ( int i = 0; shape == SHAPE_CONTACTS && i < n; ++i )
        fprintf( out, "%s<sip:u%d@192.0.2.1>%s", i ? "," : "Contact: ", i, i == n - 1 ? "\r\n" : "" );
    for ( int i = 0; shape == SHAPE_SAME_NAME && i < n; ++i )
        fprintf( out, "X-Note: %d\r\n", i );
    for ( int i = 0; shape == SHAPE_DISTINCT && i < n; ++i )
        fprintf( out, "X-Note-%d: 1\r\n", i );
    fprintf( out, "Content-Length: 0\r\n\r\n" );
    message.length = (size_t)ftell( out );
    fclose( out );
    return message;
}

/* Time. */

static double seconds( clockid_t clock )
{
    struct timespec now;
    clock_gettime( clock, &now );
    return (double)now.tv_sec + 1e-9 * (double)now.tv_nsec;
}

static int compareDoubles( const void *a, const void *b )
{
    double x = *(const double *)a, y = *(const double *)b;
    return ( x > y ) - ( x < y );
}

static double median( double *values, int n )
{
    qsort( values, (size_t)n, sizeof *values, compareDoubles );
    return values[n / 2];
}

static void pin( size_t core )
{
    cpu_set_t cores;
    CPU_ZERO( &cores );
    CPU_SET( core, &cores );
    sched_setaffinity( 0, sizeof cores, &cores );
}

/* Nanoseconds for one job by the clock, in a run of at least this many seconds. */
static double run( JOB job, const MESSAGE *message, double length, clockid_t clock )
{
    double start = seconds( clock ), now;
    int64_t n = 0;
    do
    {
        for ( int i = 0; i < 256; ++i )
            parser.work( job, message->bytes, message->length );
        n += 256;
        now = seconds( clock );
    } while ( now - start < length );
    return ( now - start ) * 1e9 / (double)n;
}

/* The modes. */

typedef void EACH( JOB job, const MESSAGE *message, void *context );

static void forEach( const char *job, const char *name, EACH *each, void *context )
{
    for ( JOB j = JOB_SCREEN; j < ( parser.hops ? JOBS : JOB_HOP ); ++j )
        for ( int i = 0; i < MESSAGES; ++i )
            if ( ( !job || strcmp( job, jobs[j] ) == 0 )
                 && ( !name || strcmp( name, messages[i].name ) == 0 ) )
                each( j, &messages[i], context );
}

static void check( JOB job, const MESSAGE *message, void *context )
{
    (void)context;
    char *before = allocate( message->length ), *bytes = NULL;
    size_t length = 0;
    memcpy( before, message->bytes, message->length );
    if ( job == JOB_HOP )
        bytesTo = open_memstream( &bytes, &length );
    need( parser.work( job, message->bytes, message->length ), "a job" );
    need( memcmp( before, message->bytes, message->length ) == 0, "the bytes are as they were" );
    free( before );

    printf( "%s %s", jobs[job], message->name );
    printsValues = job != JOB_SCREEN;
    if ( job == JOB_SCREEN )
        printf( "\n" );
    else if ( job == JOB_ROUTE )
        parser.work( JOB_ROUTE, message->bytes, message->length );
    else
    {
        fclose( bytesTo );
        bytesTo = NULL;
        need( parser.work( JOB_ROUTE, bytes, length ), "reading what was encoded" );
        free( bytes );
    }
    printsValues = false;
}

typedef struct TIMING
{
    double length;
    int runs;
} TIMING;

static void timeJob( JOB job, const MESSAGE *message, void *context )
{
    const TIMING *timing = context;
    double times[64];
    for ( int i = 0; i < timing->runs; ++i )
        times[i] = run( job, message, timing->length, CLOCK_THREAD_CPUTIME_ID );
    printf( "%s %s %.0f\n", jobs[job], message->name, median( times, timing->runs ) );
}

static void loop( JOB job, const MESSAGE *message, void *context )
{
    for ( int64_t n = *(const int64_t *)context; n > 0; --n )
        parser.work( job, message->bytes, message->length );
}

typedef void HEAP_READ( int64_t *calls, int64_t *bytes );

static void heap( JOB job, const MESSAGE *message, void *context )
{
    HEAP_READ *read;
    *(void **)&read = context;
    int64_t n = 1000, calls, bytes, callsThen, bytesThen;
    loop( job, message, &n );
    read( &calls, &bytes );
    loop( job, message, &n );
    read( &callsThen, &bytesThen );
    printf( "%s %s %.1f %.0f\n", jobs[job], message->name, (double)( callsThen - calls ) / (double)n,
            (double)( bytesThen - bytes ) / (double)n );
}

typedef struct WORKER
{
    pthread_barrier_t *barrier;
    size_t core;
    JOB job;
    MESSAGE message;
    double length;
    double rate;
} WORKER;

static void *work( void *context )
{
    WORKER *worker = context;
    pin( worker->core );
    pthread_barrier_wait( worker->barrier );
    worker->rate = 1 / run( worker->job, &worker->message, worker->length, CLOCK_MONOTONIC );
    return NULL;
}

/* Jobs per nanosecond of this many threads together, each on its own core and message. */
static double rate( size_t threads, JOB job, const MESSAGE *message, double length )
{
    pthread_t ids[2];
    WORKER workers[2];
    pthread_barrier_t barrier;
    pthread_barrier_init( &barrier, NULL, (unsigned)threads );
    for ( size_t i = 0; i < threads; ++i )
    {
        workers[i] = ( WORKER ){ &barrier, i, job, *message, length, 0 };
        workers[i].message.bytes = allocate( message->length );
        memcpy( workers[i].message.bytes, message->bytes, message->length );
        need( pthread_create( &ids[i], NULL, work, &workers[i] ) == 0, "a thread" );
    }
    double sum = 0;
    for ( size_t i = 0; i < threads; ++i )
    {
        pthread_join( ids[i], NULL );
        sum += workers[i].rate;
        free( workers[i].message.bytes );
    }
    pthread_barrier_destroy( &barrier );
    return sum;
}

static void threads( JOB job, const MESSAGE *message, void *context )
{
    const TIMING *timing = context;
    double ratios[64];
    for ( int i = 0; i < timing->runs; ++i )
    {
        double one = rate( 1, job, message, timing->length );
        ratios[i] = rate( 2, job, message, timing->length ) / one;
    }
    printf( "%s %s %.2f\n", jobs[job], message->name, median( ratios, timing->runs ) );
}

/* Nanoseconds for n, twice n and so on: the minimum of several passes, since a neighbour on the machine only adds. */
static void grow( void )
{
    for ( SHAPE shape = 0; shape < SHAPES; ++shape )
        for ( int n = 1000; n <= 8000; n *= 2 )
        {
            MESSAGE message = shaped( shape, n );
            int64_t count = parser.count( shape, message.bytes, message.length );
            double best = 1e9, spent = 0;
            for ( int pass = 0; count == n && ( pass < 3 || ( pass < 100 && spent < 0.3 ) ); ++pass )
            {
                double start = seconds( CLOCK_THREAD_CPUTIME_ID );
                parser.count( shape, message.bytes, message.length );
                double time = seconds( CLOCK_THREAD_CPUTIME_ID ) - start;
                best = time < best ? time : best;
                spent += time;
            }
            if ( count == n )
                printf( "%s %d %.0f\n", shapes[shape], n, best * 1e9 );
            else if ( count >= 0 )
                need( false, shapes[shape] );
            free( message.bytes );
        }
}

static void items( const char *name, int n, int64_t times )
{
    for ( SHAPE shape = 0; shape < SHAPES; ++shape )
        if ( strcmp( name, shapes[shape] ) == 0 )
        {
            MESSAGE message = shaped( shape, n );
            while ( times-- > 0 )
                need( parser.count( shape, message.bytes, message.length ) == n, name );
            free( message.bytes );
        }
}

static void stream( const TIMING *timing )
{
    enum
    {
        MANY = 10000,
        PIECE = 65536
    };
    for ( int i = 0; i < MESSAGES; ++i )
    {
        size_t length = messages[i].length * MANY;
        char *bytes = allocate( length );
        for ( size_t at = 0; at < length; at += messages[i].length )
            memcpy( bytes + at, messages[i].bytes, messages[i].length );
        double rates[64];
        for ( int j = 0; j < timing->runs; ++j )
        {
            double start = seconds( CLOCK_THREAD_CPUTIME_ID );
            need( parser.stream( bytes, length, PIECE ) == MANY, "the stream" );
            rates[j] = (double)length * 1e-9 / ( seconds( CLOCK_THREAD_CPUTIME_ID ) - start );
        }
        printf( "%s %.3f\n", messages[i].name, median( rates, timing->runs ) );
        free( bytes );
    }
}

static void *sleepOn( void *context )
{
    while ( pause() == -1 )
        ;
    return context;
}

int main( int argc, char **argv )
{
    const char *mode = argc > 1 ? argv[1] : "";
    const char *job = argc > 3 ? argv[3] : NULL, *name = argc > 4 ? argv[4] : NULL;
    int64_t number = argc > 2 ? atoll( argv[2] ) : 0;
    TIMING timing = { 0.3, number < 1 ? 1 : number > 64 ? 64 : (int)number };

    /* With a second thread the C library and the reference counts can take no shortcut. */
    pthread_t id;
    need( pthread_create( &id, NULL, sleepOn, NULL ) == 0, "a thread" );
    for ( int i = 0; i < MESSAGES; ++i )
        load( &messages[i] );
    parser.start();
    if ( strcmp( mode, "threads" ) != 0 )
        pin( (size_t)sysconf( _SC_NPROCESSORS_ONLN ) - 1 );

    if ( strcmp( mode, "check" ) == 0 )
        forEach( NULL, NULL, check, NULL );
    else if ( strcmp( mode, "time" ) == 0 )
        forEach( job, name, timeJob, &timing );
    else if ( strcmp( mode, "threads" ) == 0 )
        forEach( job, name, threads, &timing );
    else if ( strcmp( mode, "loop" ) == 0 )
        forEach( job, name, loop, &number );
    else if ( strcmp( mode, "heap" ) == 0 )
    {
        void *read = dlsym( RTLD_DEFAULT, "heapRead" );
        need( read, "heap needs the library that counts, preloaded" );
        forEach( NULL, NULL, heap, read );
    }
    else if ( strcmp( mode, "grow" ) == 0 )
        grow();
    else if ( strcmp( mode, "items" ) == 0 && name )
        items( job, atoi( name ), number );
    else if ( strcmp( mode, "stream" ) == 0 && parser.stream )
        stream( &timing );
    else
    {
        fprintf( stderr,
                 "usage: %s check | heap | grow | stream RUNS | (time | threads) RUNS [JOB [MESSAGE]] |"
                 " loop N [JOB [MESSAGE]] | items N SHAPE COUNT\n",
                 argv[0] );
        return 2;
    }
    return 0;
}
