#include "digest.h"

#include <string.h>
#include <strings.h>

#include <nettle/base16.h>
#include <nettle/hmac.h>
#include <nettle/memops.h>
#include <nettle/nettle-meta.h>

typedef struct ALGORITHM
{
    const char *name;
    const struct nettle_hash *hash;
    int strength;
    bool session;
} ALGORITHM;

static const ALGORITHM *findAlgorithm( const char *name )
{
    static const ALGORITHM algorithms[] = {
        { "MD5", &nettle_md5, 1, false },
        { "MD5-sess", &nettle_md5, 1, true },
        { "SHA-256", &nettle_sha256, 2, false },
        { "SHA-256-sess", &nettle_sha256, 2, true },
        { "SHA-512-256", &nettle_sha512_256, 3, false },
        { "SHA-512-256-sess", &nettle_sha512_256, 3, true },
    };
    for ( size_t i = 0; i < sizeof algorithms / sizeof *algorithms; ++i )
        if ( strcasecmp( name ? name : "MD5", algorithms[i].name ) == 0 )
            return &algorithms[i];
    return NULL;
}

static void toHex( const uint8_t *bytes, size_t length, char hex[digestSize] )
{
    base16_encode_update( hex, length, bytes );
    hex[BASE16_ENCODE_LENGTH( length )] = 0;
}

/* The hash of the texts with colons between them; a null ends the texts. The result may be one of them. */
static void hashTexts( const struct nettle_hash *hash, const char *const texts[], char hex[digestSize] )
{
    union
    {
        struct md5_ctx md5;
        struct sha256_ctx sha256;
        struct sha512_ctx sha512;
    } context;
    hash->init( &context );
    for ( size_t i = 0; texts[i]; ++i )
    {
        if ( i )
            hash->update( &context, 1, (const uint8_t *)":" );
        hash->update( &context, strlen( texts[i] ), (const uint8_t *)texts[i] );
    }
    uint8_t bytes[SHA512_DIGEST_SIZE];
    hash->digest( &context, hash->digest_size, bytes );
    toHex( bytes, hash->digest_size, hex );
}
#define HASH( HASH, INTO, ... ) hashTexts( HASH, ( const char *const[] ){ __VA_ARGS__, NULL }, INTO )

int digestStrength( const char *algorithm )
{
    const ALGORITHM *found = findAlgorithm( algorithm );
    return found ? found->strength : 0;
}

void digestResponse( const DIGEST *digest, char hex[digestSize] )
{
    const ALGORITHM *algorithm = findAlgorithm( digest->algorithm );
    const struct nettle_hash *hash = algorithm->hash;
    char secret[digestSize], request[digestSize];
    HASH( hash, secret, digest->username, digest->realm, digest->password );
    if ( algorithm->session )
        HASH( hash, secret, secret, digest->nonce, digest->cnonce );
    HASH( hash, request, digest->method, digest->uri );
    if ( digest->qop )
        HASH( hash, hex, secret, digest->nonce, digest->nonceCount, digest->cnonce, digest->qop, request );
    else
        HASH( hash, hex, secret, digest->nonce, request );
}

void digestSeal( const char *key, const void *bytes, size_t length, char hex[digestSize] )
{
    struct hmac_sha256_ctx context;
    uint8_t seal[SHA256_DIGEST_SIZE];
    hmac_sha256_set_key( &context, strlen( key ), (const uint8_t *)key );
    hmac_sha256_update( &context, length, (const uint8_t *)bytes );
    hmac_sha256_digest( &context, sizeof seal, seal );
    toHex( seal, sizeof seal, hex );
}

bool digestEquals( const void *a, const void *b, size_t length ) { return memeql_sec( a, b, length ); }
