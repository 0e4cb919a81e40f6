/* The frame of the comparison: one program for each parser, all doing the same jobs on the same messages. */
#ifndef COMPARE_BENCH_H
#define COMPARE_BENCH_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

/* What is done with a message; each job includes the one before it.
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

/* A text as the parser hands it out: 1 or 4 bytes per character, with a length or, with -1, up to a zero. Without
 * characters it is absent. */
typedef struct TEXT
{
    const void *chars;
    int64_t length;
    int64_t width;
} TEXT;

/* An address in parts, again as the parser hands it out. */
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
    TEXT callId, callIdHost; /* the latter if the parser splits at the @ */
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

/* The bytes may be changed until the function returns, and must then be as before; a zero follows them. Functions may
 * run in several threads at once. */
typedef struct PARSER
{
    void ( *start )( void );
    bool hops; /* whether there is an encoder, and so the job hop */
    bool ( *work )( JOB job, char *bytes, size_t length );
    /* Decodes and walks the n, and returns how many there are; -1 if they stay one text. */
    int64_t ( *count )( SHAPE shape, char *bytes, size_t length );
    /* Decodes a stream of messages that comes in pieces of the size, and returns how many there are; may be null. */
    int64_t ( *stream )( const char *bytes, size_t length, size_t piece );
} PARSER;

extern const PARSER parser;

#endif
