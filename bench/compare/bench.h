/* The frame of the comparison: one program for each parser, which do the same jobs on the same messages. */
#ifndef COMPARE_BENCH_H
#define COMPARE_BENCH_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

/* What is done with a message; each job holds the one before it.
 *
 *     screen  bytes to the parser's message object, which is released
 *     route   reads VALUES and hands them to benchTakeValues
 *     hop     a proxy's edit, and the whole message as bytes to benchTakeBytes: a request gets a new top Via and
 *             one hop less, a response loses its top Via */
typedef enum JOB
{
    JOB_SCREEN,
    JOB_ROUTE,
    JOB_HOP,
    JOBS
} JOB;

/* The Via that a hop adds: SIP/2.0/UDP, this host, port and branch. */
#define OWN_HOST "198.51.100.1"
#define OWN_PORT 5060
#define OWN_BRANCH "z9hG4bK-own-0123456789abcdef"

/* A text as the parser hands it out: of 1 or 4 bytes a character, with a length or, with -1, up to the zero.
 * Without characters it is absent. */
typedef struct TEXT
{
    const void *chars;
    int64_t length;
    int64_t width;
} TEXT;

/* An address in its parts, again as the parser hands them out. */
typedef struct ADDRESS
{
    TEXT scheme, user, host;
    int64_t port; /* 0: none */
} ADDRESS;

typedef struct VALUES
{
    TEXT viaHost, viaBranch;
    int64_t viaPort; /* 0: none */
    ADDRESS from, to;
    TEXT fromTag, toTag;
    TEXT callId, callIdHost; /* the latter where the parser cuts at the @ */
    TEXT method;
    int64_t cseq, maxForwards; /* -1: none */
} VALUES;

void benchTakeValues( const VALUES *values );
void benchTakeBytes( const void *bytes, int64_t length );

/* Messages with n of the same. */
typedef enum SHAPE
{
    SHAPE_SAME_NAME,
    SHAPE_DISTINCT,
    SHAPE_VIA_PARAMS,
    SHAPE_CONTACTS,
    SHAPES
} SHAPE;

/* The bytes may be changed until the function returns, and then must be as they were; behind them stands a
 * zero. Functions may run in several threads at once. */
typedef struct PARSER
{
    void ( *start )( void );
    bool hops; /* whether there is an encoder, and so the job hop */
    bool ( *work )( JOB job, char *bytes, size_t length );
    /* Decodes and walks the n, and tells how many they are; -1 where they stay one text. */
    int64_t ( *count )( SHAPE shape, char *bytes, size_t length );
    /* Decodes a stream of messages that come in pieces of the size and tells how many they are; may be null. */
    int64_t ( *stream )( const char *bytes, size_t length, size_t piece );
} PARSER;

extern const PARSER parser;

#endif
