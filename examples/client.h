/* A client's side of transactions over UDP (RFC 3261, 17.1), with the server's challenges answered (22.2 and 22.3). */
#ifndef EXAMPLES_CLIENT_H
#define EXAMPLES_CLIENT_H

#include <stdbool.h>
#include <stdio.h>

#include <telsx/telsx.h>

typedef struct CLIENT
{
    const char *user, *password; /* null if challenges are not to be answered */
    int socket;
    char nonce[256]; /* of the last answer, if it is not too long */
    unsigned count;  /* how often it was used */
} CLIENT;

/* A text of the library, a new reference. The bytes must be valid UTF-8. */
RT_STRING clientText( const char *utf8 );

/* A random text of 16 hex digits, a new reference. */
RT_STRING clientRandomText( void );

/* Releases an object, if there is one. */
void clientRelease( void *object );

/* Defines FUNCTION, which returns the first value of the message's header, a new reference, or null if there is none that
 * can be read. */
#define CLIENT_DEFINE_FIRST( FUNCTION, VALUE, NAME )                                     \
    static VALUE FUNCTION( TELSX_MESSAGE msg )                                           \
    {                                                                                    \
        void *header = telsxHeader##NAME##TryDecodeFromMessage( msg );                   \
        bool some = header && telsxHeader##NAME##NAME##sLength( header ) > 0;            \
        VALUE first = some ? telsxHeader##NAME##TryDecode##NAME##At( header, 0 ) : NULL; \
        clientRelease( header );                                                         \
        return first;                                                                    \
    }

/* The header as it is in another message, if it is there. */
void clientTakeOver( TELSX_MESSAGE *msg, TELSX_MESSAGE from, const char *name );

/* Writes the message's bytes to standard output. */
void clientShow( TELSX_MESSAGE msg );

/* From now on the client talks to this IP address; false if it can't. */
bool clientOpen( CLIENT *client, const char *address, const char *port );
void clientClose( CLIENT *client );

/* Gives the request, which has a Via, a branch of its own. */
void clientSetNewBranch( TELSX_MESSAGE *request );

/* Sends the message once, and shows it. */
void clientSend( CLIENT *client, TELSX_MESSAGE msg );

/* Gives the request a branch of its own and sends it until its final response arrives, which it returns, a new
 * reference; null if there is none in time. Challenges are answered: the request then has other credentials and the next
 * number. Shows everything sent and received. */
TELSX_MESSAGE clientExchange( CLIENT *client, TELSX_MESSAGE *request );

#endif
