/* SIP IRI: an address with the scheme sip or sips, in parts.
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
 * (RFC 3261, 19.1.1 and 25.1, and RFC 5118 for IPv6 addresses, except that a user may hold number signs, a value may be
 * empty, a header may have no value, and characters outside ASCII need no escapes, as in RFC 3987.)
 *
 * Messages and headers hold an address as one text; this type is decoded from that text and encoded to it. Users,
 * passwords, names and values have their escapes resolved (see telsx_iri_text.h). Addresses sort by the fields in the
 * order below, and are equal if all fields are, including their case; telsxSipIriEquivalent tells whether they are the
 * same address. */
#ifndef TELSX_TELSX_SIP_IRI_H
#define TELSX_TELSX_SIP_IRI_H

#include "rt/rt.h"
#include "telsx/telsx_object.h"

RT_BEGIN

TELSX_VALUE_OBJECT( SipIri, SIP_IRI )
TELSX_COMPARE_FUNC( SipIri )
TELSX_TO_STRING_FUNC( SipIri )

/* A sip address with this host and nothing else. Aborts unless telsxHostOk. */
RT_API TELSX_SIP_IRI telsxSipIriCreate( RT_STRING host );

/* The address that the text is, such as the result of telsxContactIri; a new reference, or null if the text is not a sip
 * or sips address. Any text may be passed; null aborts. */
RT_API TELSX_SIP_IRI telsxSipIriTryDecode( RT_STRING iri );

/* The address as a text for which telsxIriOk holds, for setters such as telsxContactSetIri; a new reference. Characters
 * are escaped where they must be. The parameters that have a field come first. */
RT_API RT_STRING telsxSipIriEncode( TELSX_SIP_IRI sipIri );

/* Whether the two are the same address (RFC 3261, 19.1.4). Users, passwords, methods and the values of headers are
 * case-sensitive; everything else is not. IPv6 addresses are compared as addresses (RFC 5954, 4). User, password, port,
 * transport, user parameter, method, TTL, maddr and each header must be the same in both or absent from both; a default
 * is not the same as an absent value. Any other parameter must be the same only if both have it. An escape is the same
 * as its character unless that is reserved, which means one of ;/?:@&=+$, here. The relation is symmetric but not
 * transitive. Takes O(n log n) for n parameters and headers. Aborts for null. */
RT_API RT_BOOL telsxSipIriEquivalent( TELSX_SIP_IRI sipIriA, TELSX_SIP_IRI sipIriB );

/* The form under which a registrar keeps bindings (RFC 3261, 10.3, step 5): without parameters, headers and unnecessary
 * escapes, with the host in lower case or, for an IPv6 address, in its canonical form (RFC 5952). Two users are the same
 * if these forms are equal. A new reference. */
RT_API TELSX_SIP_IRI telsxSipIriAddressOfRecord( TELSX_SIP_IRI sipIri );

/* Whether the scheme is sips. */
RT_API RT_BOOL telsxSipIriSecure( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetSecure( TELSX_SIP_IRI *sipIri, RT_BOOL secure );

/* The user, or null. Set aborts unless telsxIriNameOk. It does not escape a semicolon, which begins a parameter in a
 * telephone number (RFC 3261, 19.1.6). */
RT_API RT_STRING telsxSipIriUser( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasUser( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetUser( TELSX_SIP_IRI *sipIri, RT_STRING user );
RT_API void telsxSipIriDelUser( TELSX_SIP_IRI *sipIri );

/* The password, possibly empty, or null. It is written only if there is a user. Set aborts unless telsxIriTextOk. */
RT_API RT_STRING telsxSipIriPassword( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasPassword( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetPassword( TELSX_SIP_IRI *sipIri, RT_STRING password );
RT_API void telsxSipIriDelPassword( TELSX_SIP_IRI *sipIri );

/* The host, never null, and the port, or -1 if there is none. A domain name is in its Unicode form, and an IPv6 address
 * has its brackets. SetHost aborts unless telsxHostOk, and SetPort unless telsxPortOk. */
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

/* The kind of user, such as phone, in lower case, or null: the parameter user. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxSipIriUserParam( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasUserParam( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetUserParam( TELSX_SIP_IRI *sipIri, RT_STRING userParam );
RT_API void telsxSipIriDelUserParam( TELSX_SIP_IRI *sipIri );

/* The method of a request made from the address, or null. Set aborts unless telsxMethodOk. */
RT_API RT_STRING telsxSipIriMethod( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasMethod( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetMethod( TELSX_SIP_IRI *sipIri, RT_STRING method );
RT_API void telsxSipIriDelMethod( TELSX_SIP_IRI *sipIri );

/* The time to live of a multicast packet, or -1 if there is none. Set aborts unless telsxTtlOk. */
RT_API int64_t telsxSipIriTtl( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasTtl( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetTtl( TELSX_SIP_IRI *sipIri, int64_t ttl );
RT_API void telsxSipIriDelTtl( TELSX_SIP_IRI *sipIri );

/* The host to contact instead of the host above, in the same form, or null. Set aborts unless telsxHostOk. */
RT_API RT_STRING telsxSipIriMaddr( TELSX_SIP_IRI sipIri );
RT_API RT_BOOL telsxSipIriHasMaddr( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetMaddr( TELSX_SIP_IRI *sipIri, RT_STRING maddr );
RT_API void telsxSipIriDelMaddr( TELSX_SIP_IRI *sipIri );

/* Whether the address is that of a loose router (RFC 3261, 16.12): the parameter lr. A value of lr, as in lr=on, has no
 * meaning and is kept until Lr is set. */
RT_API RT_BOOL telsxSipIriLr( TELSX_SIP_IRI sipIri );
RT_API void telsxSipIriSetLr( TELSX_SIP_IRI *sipIri, RT_BOOL lr );

/* All other parameters, in the order in which their names first occur, each name once. They include a parameter that has
 * the name of a field above but a value that the field does not take; when the address is written, a field takes
 * precedence over a parameter of its name.
 *
 * By index, which must be valid: the name, in lower case; the value, or null if there is none. SetParamValueAt replaces
 * the value, or removes it if it is given null, and aborts unless the value is null or telsxIriTextOk. DelParamAt
 * removes the parameter. */
RT_API int64_t telsxSipIriParamsLength( TELSX_SIP_IRI sipIri );
RT_API RT_STRING telsxSipIriParamNameAt( TELSX_SIP_IRI sipIri, int64_t index );
RT_API RT_STRING telsxSipIriParamValueAt( TELSX_SIP_IRI sipIri, int64_t index );
RT_API void telsxSipIriSetParamValueAt( TELSX_SIP_IRI *sipIri, int64_t index, RT_STRING value );
RT_API void telsxSipIriDelParamAt( TELSX_SIP_IRI *sipIri, int64_t index );
RT_API void telsxSipIriClearParams( TELSX_SIP_IRI *sipIri );

/* By name, in any case: whether there is such a parameter; its value, which is an empty text if it is empty, or null if
 * there is no value or no such parameter. SetParam replaces the value or appends the parameter, without a value if it is
 * given null, and aborts unless the value is null or telsxIriTextOk. DelParam removes the parameter if it is there. All
 * abort unless the name is telsxIriNameOk. */
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

/* The headers of a request made from the address, in their order. A name may occur more than once. These functions are
 * the same as for parameters. */
RT_API int64_t telsxSipIriHeadersLength( TELSX_SIP_IRI sipIri );
RT_API RT_STRING telsxSipIriHeaderNameAt( TELSX_SIP_IRI sipIri, int64_t index );
RT_API RT_STRING telsxSipIriHeaderValueAt( TELSX_SIP_IRI sipIri, int64_t index );
RT_API void telsxSipIriSetHeaderValueAt( TELSX_SIP_IRI *sipIri, int64_t index, RT_STRING value );
RT_API void telsxSipIriDelHeaderAt( TELSX_SIP_IRI *sipIri, int64_t index );
RT_API void telsxSipIriClearHeaders( TELSX_SIP_IRI *sipIri );

/* By name, in any case, where a compact form is another name: whether there is such a header; the value of the first.
 * SetHeader replaces the value of the first, or appends a header, and removes all others with the name. AppendHeader
 * appends a header. DelHeader removes all with the name. They abort as for parameters. */
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

RT_END

#endif
