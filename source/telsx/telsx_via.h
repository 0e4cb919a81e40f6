/* Via value: one hop that a message has taken.
 *
 *     via-parm = sent-protocol LWS sent-by *( SEMI via-params )
 *     sent-protocol = protocol-name SLASH protocol-version SLASH transport
 *     sent-by = host [ COLON port ]
 *     via-params = via-ttl / via-maddr / via-received / via-branch / response-port / via-extension
 *     via-ttl = "ttl" EQUAL ttl
 *     via-maddr = "maddr" EQUAL host
 *     via-received = "received" EQUAL ( IPv4address / IPv6address )
 *     via-branch = "branch" EQUAL token
 *     response-port = "rport" [ EQUAL 1*DIGIT ]
 *
 * (RFC 3261, 25.1; RFC 3581, 3) Values sort by the fields in the order below; rport takes no part. */
#ifndef TELSX_TELSX_VIA_H
#define TELSX_TELSX_VIA_H

#include "net/net.h"
#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_version.h"

RT_BEGIN

TELSX_VALUE_OBJECT( Via, VIA )
TELSX_COMPARE_FUNC( Via )
TELSX_TO_STRING_FUNC( Via )

/* A Via with these fields and nothing else; the dummy has transport UDP and host localhost. They abort for a null
 * version, and unless telsxTransportOk, telsxHostOk and telsxPortOk. */
RT_API TELSX_VIA telsxViaCreate( TELSX_VERSION version, RT_STRING transport, RT_STRING host );
RT_API TELSX_VIA telsxViaCreateWithPort( TELSX_VERSION version, RT_STRING transport, RT_STRING host,
                                         int64_t port );
RT_API TELSX_VIA telsxViaCreateDummy( TELSX_VERSION version );

/* Protocol name and version, never null. */
RT_API TELSX_VERSION telsxViaVersion( TELSX_VIA via );
RT_API void telsxViaSetVersion( TELSX_VIA *via, TELSX_VERSION version );

/* The transport, in lower case, never null. Set aborts unless telsxTransportOk. */
RT_API RT_STRING telsxViaTransport( TELSX_VIA via );
RT_API void telsxViaSetTransport( TELSX_VIA *via, RT_STRING transport );

/* The host that sent the message, never null, and its port, or -1 if there is none. SetHost aborts unless telsxHostOk,
 * and SetPort unless telsxPortOk. */
RT_API RT_STRING telsxViaHost( TELSX_VIA via );
RT_API void telsxViaSetHost( TELSX_VIA *via, RT_STRING host );
RT_API int64_t telsxViaPort( TELSX_VIA via );
RT_API RT_BOOL telsxViaHasPort( TELSX_VIA via );
RT_API void telsxViaSetPort( TELSX_VIA *via, int64_t port );
RT_API void telsxViaDelPort( TELSX_VIA *via );

/* The time to live of a multicast packet, or -1 if there is none. Set aborts unless telsxTtlOk. */
RT_API int64_t telsxViaTtl( TELSX_VIA via );
RT_API RT_BOOL telsxViaHasTtl( TELSX_VIA via );
RT_API void telsxViaSetTtl( TELSX_VIA *via, int64_t ttl );
RT_API void telsxViaDelTtl( TELSX_VIA *via );

/* The multicast address, or null. Set aborts unless telsxHostOk. */
RT_API RT_STRING telsxViaMaddr( TELSX_VIA via );
RT_API RT_BOOL telsxViaHasMaddr( TELSX_VIA via );
RT_API void telsxViaSetMaddr( TELSX_VIA *via, RT_STRING maddr );
RT_API void telsxViaDelMaddr( TELSX_VIA *via );

/* The address that the message came from, or null. Set aborts for null. */
RT_API NET_ADDRESS telsxViaReceived( TELSX_VIA via );
RT_API RT_BOOL telsxViaHasReceived( TELSX_VIA via );
RT_API void telsxViaSetReceived( TELSX_VIA *via, NET_ADDRESS received );
RT_API void telsxViaDelReceived( TELSX_VIA *via );

/* The branch, in its original case, or null. Set aborts unless telsxBranchOk. */
RT_API RT_STRING telsxViaBranch( TELSX_VIA via );
RT_API RT_BOOL telsxViaHasBranch( TELSX_VIA via );
RT_API void telsxViaSetBranch( TELSX_VIA *via, RT_STRING branch );
RT_API void telsxViaDelBranch( TELSX_VIA *via );

/* The port that the message came from: rport with a value, rport without a value, or no rport at all. The number is -1
 * unless there is a value. Each setter replaces the other form. SetRportNumeric aborts unless telsxPortOk. */
RT_API int64_t telsxViaRportNumeric( TELSX_VIA via );
RT_API RT_BOOL telsxViaHasRport( TELSX_VIA via );
RT_API RT_BOOL telsxViaHasRportNumeric( TELSX_VIA via );
RT_API RT_BOOL telsxViaHasRportEmpty( TELSX_VIA via );
RT_API void telsxViaSetRportNumeric( TELSX_VIA *via, int64_t rport );
RT_API void telsxViaSetRportEmpty( TELSX_VIA *via );
RT_API void telsxViaDelRport( TELSX_VIA *via );

/* All other parameters, never null. When the value is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxViaGenericParams( TELSX_VIA via );
RT_API void telsxViaSetGenericParams( TELSX_VIA *via, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
