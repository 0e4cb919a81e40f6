/* SIP IRI: an address of the scheme sip or sips, in its parts.
 *
 *     SIP-URI = "sip:" [ userinfo ] hostport uri-parameters [ headers ]
 *     SIPS-URI = "sips:" [ userinfo ] hostport uri-parameters [ headers ]
 *     userinfo = ( user / telephone-subscriber ) [ ":" password ] "@"
 *     uri-parameters = *( ";" uri-parameter )
 *     uri-parameter = transport-param / user-param / method-param / ttl-param / maddr-param / lr-param / other-param
 *     other-param = pname [ "=" pvalue ]
 *     headers = "?" header *( "&" header )
 *     header = hname "=" hvalue
 *
 * (RFC 3261, 19.1.1 and 25.1; RFC 5118 for IPv6 addresses; wider there where a number sign may stand in a user, a
 * value may be empty, a header may have no value and characters outside ASCII need no escapes, RFC 3987.)
 *
 * An address in a message or a header is a text; this is made from that text and gives it back. Users, passwords,
 * names and values have their escapes resolved, as telsx_iri_text.h tells. IRIs sort by the fields in the order below,
 * and are equal when all fields are, case included. Whether two of them are the same address is another question, which
 * telsxSipIriEquivalent answers. */
#ifndef TELSX_TELSX_SIP_IRI_H
#define TELSX_TELSX_SIP_IRI_H

#include "rt/rt.h"
#include "telsx/telsx_object.h"

RT_BEGIN

TELSX_OBJECT( SipIri, SIP_IRI )

/* A sip address with this host and nothing else. Aborts unless telsxHostOk. */
RT_API TELSX_SIP_IRI telsxSipIriCreate( RT_STRING host );

/* The parts of an address, from the text that getters such as telsxContactIri give; a new reference, or null if the
 * text is no sip or sips address. Any text may be given; null aborts. */
RT_API TELSX_SIP_IRI telsxSipIriTryDecode( RT_STRING iri );

/* The address as a text for which telsxIriOk holds, for setters such as telsxContactSetIri; a new reference. What must
 * be escaped is, the fields below stand before the other parameters, and nothing else changes. */
RT_API RT_STRING telsxSipIriEncode( TELSX_SIP_IRI sipIri );

/* Whether the two are the same address (RFC 3261, 19.1.4). The case of users, passwords, methods and of the values of
 * headers counts, that of all else does not; IPv6 addresses are compared as such (RFC 5954, 4). User, password, port,
 * transport, user parameter, method, TTL, maddr and all headers must be in both or in neither, whatever the default;
 * any other parameter counts only if both have it. An escape is the same as its character unless that is reserved, one
 * of ;/?:@&=+$, as it stands. The relation is symmetric but not transitive. Takes O(n log n); null aborts. */
RT_API RT_BOOL telsxSipIriEquivalent( TELSX_SIP_IRI sipIriA, TELSX_SIP_IRI sipIriB );

/* The form that a registrar keeps bindings under (RFC 3261, 10.3, step 5): without parameters, headers and needless
 * escapes, the host in lower case, an IPv6 address in its canonical form (RFC 5952). Two of them are the same if they
 * are equal. A new reference. */
RT_API TELSX_SIP_IRI telsxSipIriAddressOfRecord( TELSX_SIP_IRI sipIri );

/* Whether the scheme is sips. */
RT_API RT_BOOL telsxSipIriSecure( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetSecure( TELSX_SIP_IRI *sipIri, RT_BOOL secure );

/* The user, or null. Set aborts unless telsxIriNameOk; it escapes only what must be, so that a semicolon begins a
 * parameter of a telephone number (RFC 3261, 19.1.6). */
RT_API RT_STRING telsxSipIriUser( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasUser( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetUser( TELSX_SIP_IRI *sipIri, RT_STRING user );
RT_API void telsxSipIriDelUser( TELSX_SIP_IRI *sipIri );

/* The password, possibly empty, or null. It is written only beside a user. Set aborts unless telsxIriTextOk. */
RT_API RT_STRING telsxSipIriPassword( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasPassword( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetPassword( TELSX_SIP_IRI *sipIri, RT_STRING password );
RT_API void telsxSipIriDelPassword( TELSX_SIP_IRI *sipIri );

/* The host, never null, a domain name in its Unicode form, an IPv6 address with its brackets; and the port, -1 if
 * there is none. Set aborts unless telsxHostOk and telsxPortOk. */
RT_API RT_STRING telsxSipIriHost( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetHost( TELSX_SIP_IRI *sipIri, RT_STRING host );
RT_API int64_t telsxSipIriPort( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasPort( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetPort( TELSX_SIP_IRI *sipIri, int64_t port );
RT_API void telsxSipIriDelPort( TELSX_SIP_IRI *sipIri );

/* The transport, in lower case, or null. Set aborts unless telsxTransportOk. */
RT_API RT_STRING telsxSipIriTransport( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasTransport( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetTransport( TELSX_SIP_IRI *sipIri, RT_STRING transport );
RT_API void telsxSipIriDelTransport( TELSX_SIP_IRI *sipIri );

/* What the user is, such as phone, in lower case, or null: the parameter user. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxSipIriUserParam( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasUserParam( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetUserParam( TELSX_SIP_IRI *sipIri, RT_STRING userParam );
RT_API void telsxSipIriDelUserParam( TELSX_SIP_IRI *sipIri );

/* The method of the request that the address makes, or null. Set aborts unless telsxMethodOk. */
RT_API RT_STRING telsxSipIriMethod( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasMethod( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetMethod( TELSX_SIP_IRI *sipIri, RT_STRING method );
RT_API void telsxSipIriDelMethod( TELSX_SIP_IRI *sipIri );

/* The time to live of a multicast packet, -1 if there is none. Set aborts unless telsxTtlOk. */
RT_API int64_t telsxSipIriTtl( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasTtl( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetTtl( TELSX_SIP_IRI *sipIri, int64_t ttl );
RT_API void telsxSipIriDelTtl( TELSX_SIP_IRI *sipIri );

/* The address that is contacted instead of the host, in the same form, or null. Set aborts unless telsxHostOk. */
RT_API RT_STRING telsxSipIriMaddr( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasMaddr( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetMaddr( TELSX_SIP_IRI *sipIri, RT_STRING maddr );
RT_API void telsxSipIriDelMaddr( TELSX_SIP_IRI *sipIri );

/* Whether the element with this address is a loose router (RFC 3261, 16.12): the parameter lr. A value of it, such as
 * in lr=on, says nothing, and stays until Lr is set. */
RT_API RT_BOOL telsxSipIriLr( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetLr( TELSX_SIP_IRI *sipIri, RT_BOOL lr );

/* All other parameters, also one with the name of a field above and a value that the field does not take. One stands
 * for each name, in the order in which the names came; a field wins over a parameter of its name when the address is
 * written. The length; the name, in lower case, and the value of the one at the index, which must be valid, null if it
 * has none; SetParamValueAt gives it another value, or none for null, and DelParamAt takes it out. Set aborts unless
 * the value is null or telsxIriTextOk. */
RT_API int64_t telsxSipIriParamsLength( TELSX_SIP_IRI sipIri );
RT_API RT_STRING telsxSipIriParamNameAt( TELSX_SIP_IRI sipIri, int64_t index );
RT_API RT_STRING telsxSipIriParamValueAt( TELSX_SIP_IRI sipIri, int64_t index );
RT_API void telsxSipIriSetParamValueAt( TELSX_SIP_IRI *sipIri, int64_t index, RT_STRING value );
RT_API void telsxSipIriDelParamAt( TELSX_SIP_IRI *sipIri, int64_t index );
RT_API void telsxSipIriClearParams( TELSX_SIP_IRI *sipIri );

/* The parameter of the name, in any case, among these: whether there is one; its value, null if it has none or there is
 * no such parameter, while an empty value is an empty text; SetParam changes it or appends it, without a value for null,
 * and aborts unless the name is telsxIriNameOk and the value null or telsxIriTextOk. Deleting an absent name changes
 * nothing. */
RT_API RT_BOOL telsxSipIriHasParam( TELSX_SIP_IRI sipIri, RT_STRING name );
RT_API RT_BOOL telsxSipIriHasParamCstr( TELSX_SIP_IRI sipIri, const char *name, int64_t length );
RT_API RT_BOOL telsxSipIriHasParamWcstr( TELSX_SIP_IRI sipIri, const wchar_t *name, int64_t length );
RT_API RT_STRING telsxSipIriParamValue( TELSX_SIP_IRI sipIri, RT_STRING name );
RT_API RT_STRING telsxSipIriParamValueCstr( TELSX_SIP_IRI sipIri, const char *name, int64_t length );
RT_API RT_STRING telsxSipIriParamValueWcstr( TELSX_SIP_IRI sipIri, const wchar_t *name, int64_t length );
RT_API void telsxSipIriSetParam( TELSX_SIP_IRI *sipIri, RT_STRING name, RT_STRING value );
RT_API void telsxSipIriSetParamCstr( TELSX_SIP_IRI *sipIri, const char *name, int64_t length,
                                     RT_STRING value );
RT_API void telsxSipIriSetParamWcstr( TELSX_SIP_IRI *sipIri, const wchar_t *name, int64_t length,
                                      RT_STRING value );
RT_API void telsxSipIriDelParam( TELSX_SIP_IRI *sipIri, RT_STRING name );
RT_API void telsxSipIriDelParamCstr( TELSX_SIP_IRI *sipIri, const char *name, int64_t length );
RT_API void telsxSipIriDelParamWcstr( TELSX_SIP_IRI *sipIri, const wchar_t *name, int64_t length );

/* The headers of the request that the address makes, in their order; a name may stand more than once. The functions of
 * an index are as for parameters. */
RT_API int64_t telsxSipIriHeadersLength( TELSX_SIP_IRI sipIri );
RT_API RT_STRING telsxSipIriHeaderNameAt( TELSX_SIP_IRI sipIri, int64_t index );
RT_API RT_STRING telsxSipIriHeaderValueAt( TELSX_SIP_IRI sipIri, int64_t index );
RT_API void telsxSipIriSetHeaderValueAt( TELSX_SIP_IRI *sipIri, int64_t index, RT_STRING value );
RT_API void telsxSipIriDelHeaderAt( TELSX_SIP_IRI *sipIri, int64_t index );
RT_API void telsxSipIriClearHeaders( TELSX_SIP_IRI *sipIri );

/* The headers of the name, in any case; a compact form is another name. Whether there is one; the value of the first;
 * SetHeader changes the first or appends one, and takes out all others of the name; AppendHeader appends one; DelHeader
 * takes out all. They abort as for parameters. */
RT_API RT_BOOL telsxSipIriHasHeader( TELSX_SIP_IRI sipIri, RT_STRING name );
RT_API RT_BOOL telsxSipIriHasHeaderCstr( TELSX_SIP_IRI sipIri, const char *name, int64_t length );
RT_API RT_BOOL telsxSipIriHasHeaderWcstr( TELSX_SIP_IRI sipIri, const wchar_t *name, int64_t length );
RT_API RT_STRING telsxSipIriHeaderValue( TELSX_SIP_IRI sipIri, RT_STRING name );
RT_API RT_STRING telsxSipIriHeaderValueCstr( TELSX_SIP_IRI sipIri, const char *name, int64_t length );
RT_API RT_STRING telsxSipIriHeaderValueWcstr( TELSX_SIP_IRI sipIri, const wchar_t *name, int64_t length );
RT_API void telsxSipIriSetHeader( TELSX_SIP_IRI *sipIri, RT_STRING name, RT_STRING value );
RT_API void telsxSipIriSetHeaderCstr( TELSX_SIP_IRI *sipIri, const char *name, int64_t length,
                                      RT_STRING value );
RT_API void telsxSipIriSetHeaderWcstr( TELSX_SIP_IRI *sipIri, const wchar_t *name, int64_t length,
                                       RT_STRING value );
RT_API void telsxSipIriAppendHeader( TELSX_SIP_IRI *sipIri, RT_STRING name, RT_STRING value );
RT_API void telsxSipIriAppendHeaderCstr( TELSX_SIP_IRI *sipIri, const char *name, int64_t length,
                                         RT_STRING value );
RT_API void telsxSipIriAppendHeaderWcstr( TELSX_SIP_IRI *sipIri, const wchar_t *name, int64_t length,
                                          RT_STRING value );
RT_API void telsxSipIriDelHeader( TELSX_SIP_IRI *sipIri, RT_STRING name );
RT_API void telsxSipIriDelHeaderCstr( TELSX_SIP_IRI *sipIri, const char *name, int64_t length );
RT_API void telsxSipIriDelHeaderWcstr( TELSX_SIP_IRI *sipIri, const wchar_t *name, int64_t length );

/* For the library's own units: Encode and TryDecode as above, the latter from code points. */
RT_API RT_STRING telsx___SipIriEncode( TELSX_SIP_IRI sipIri );
RT_API TELSX_SIP_IRI telsx___SipIriTryDecode( const RT_CHAR *chs, int64_t length );
TELSX_FREE_FUNC( SipIri )
TELSX_COMPARE_FUNC( SipIri )
TELSX_TO_STRING_FUNC( SipIri )

RT_END

#endif
