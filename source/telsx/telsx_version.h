/* Protocol version: what stands in a start line and in a Via value.
 *
 *     version = protocol-name SLASH protocol-version
 *     protocol-name = token
 *     protocol-version = token
 *
 * (RFC 3261, 25.1, sent-protocol; SIP-Version is the one with the name SIP.) */
#ifndef TELSX_TELSX_VERSION_H
#define TELSX_TELSX_VERSION_H

#include "telsx/telsx_object.h"

RT_BEGIN

TELSX_OBJECT( Version, VERSION )

/* A version with this name, kept in upper case, and this version, kept in lower case. Aborts unless
 * telsxProtocolNameOk and telsxProtocolVersionOk. */
RT_API TELSX_VERSION telsxVersionCreate( RT_STRING protocolName, RT_STRING protocolVersion );

/* The version SIP/2.0. All callers share one object, so this allocates nothing. Null before the module is started. */
RT_API TELSX_VERSION telsxVersionCreateSip20( void );

/* Whether the name is SIP; whether it is SIP/2.0. */
RT_API RT_BOOL telsxVersionIsSip( TELSX_VERSION version );
RT_API RT_BOOL telsxVersionIsSip20( TELSX_VERSION version );

/* The name, in upper case, never null. Set aborts unless telsxProtocolNameOk. */
RT_API RT_STRING telsxVersionProtocolName( TELSX_VERSION version );
RT_API void telsxVersionSetProtocolName( TELSX_VERSION *version, RT_STRING protocolName );

/* The version, in lower case, never null. Set aborts unless telsxProtocolVersionOk. */
RT_API RT_STRING telsxVersionProtocolVersion( TELSX_VERSION version );
RT_API void telsxVersionSetProtocolVersion( TELSX_VERSION *version, RT_STRING protocolVersion );

/* For the library's own units. TryDecode takes the code points of one whole version and returns a new reference, or
 * null for bad text. Encode returns a text such as SIP/2.0. */
RT_API TELSX_VERSION telsx___VersionTryDecode( const RT_CHAR *chs, int64_t length );
RT_API RT_STRING telsx___VersionEncode( TELSX_VERSION version );
RT_API void telsx___VersionStartup( void );
RT_API void telsx___VersionShutdown( void );
TELSX_FREE_FUNC( Version )
TELSX_COMPARE_FUNC( Version )
TELSX_TO_STRING_FUNC( Version )

RT_END

#endif
