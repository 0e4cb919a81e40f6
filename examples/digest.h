/* Digest authentication as the examples use it (RFC 7616, 3.4; RFC 8760): MD5, SHA-256 and SHA-512-256, each also as a
 * session. Hashes come from Nettle. All texts are UTF-8 and end in zero. */
#ifndef EXAMPLES_DIGEST_H
#define EXAMPLES_DIGEST_H

#include <stdbool.h>
#include <stddef.h>

#include <rt/rt.h>

RT_BEGIN

/* The longest hash in hex digits, and a zero. */
enum
{
    digestSize = 65
};

/* What a response is made of. */
typedef struct DIGEST
{
    const char *algorithm; /* null stands for MD5 */
    const char *username, *realm, *password;
    const char *method; /* empty for the server's rspauth */
    const char *uri, *nonce;
    const char *qop; /* null without one; then the count is not used, and the next only for a session */
    const char *nonceCount, *cnonce;
} DIGEST;

/* 0 for an unknown algorithm; a stronger one has a greater number. */
int digestStrength( const char *algorithm );

/* The response in lower-case hex digits. The algorithm must be known. */
void digestResponse( const DIGEST *digest, char hex[digestSize] );

/* The HMAC-SHA-256 of the bytes in hex digits, which only someone who knows the key can make. */
void digestSeal( const char *key, const void *bytes, size_t length, char hex[digestSize] );

/* Whether so many bytes are the same. The time that this takes does not depend on how many are. */
bool digestEquals( const void *a, const void *b, size_t length );

RT_END

#endif
