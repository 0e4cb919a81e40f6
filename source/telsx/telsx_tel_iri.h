/* Tel IRI: a telephone number as an address, in its parts.
 *
 *     telephone-uri = "tel:" telephone-subscriber
 *     telephone-subscriber = global-number / local-number
 *     global-number = global-number-digits *par
 *     local-number = local-number-digits *par context *par
 *     global-number-digits = "+" *phonedigit DIGIT *phonedigit
 *     local-number-digits = *phonedigit-hex ( HEXDIG / "*" / "#" ) *phonedigit-hex
 *     phonedigit = DIGIT / visual-separator, visual-separator = "-" / "." / "(" / ")"
 *     par = parameter / ";ext=" 1*phonedigit / ";isub=" 1*uric
 *     context = ";phone-context=" ( domainname / global-number-digits )
 *
 * (RFC 3966, 3; wider there where a local number needs no context, a value may be empty and characters outside ASCII
 * need no escapes, RFC 3987.) Escapes are resolved, as telsx_iri_text.h tells. IRIs sort by the fields in the order
 * below, and are equal when all fields are, case and separators included; telsxTelIriEquivalent asks whether they are
 * the same number. */
#ifndef TELSX_TELSX_TEL_IRI_H
#define TELSX_TELSX_TEL_IRI_H

#include "telsx/telsx_sip_iri.h"

RT_BEGIN

/* Whether the text is a number, global with a plus or local without; a phone context, which is a global number or a
 * domain name in ASCII; an extension. Null aborts. */
RT_API RT_BOOL telsxTelIriNumberOk( RT_STRING number );
RT_API RT_BOOL telsxTelIriPhoneContextOk( RT_STRING phoneContext );
RT_API RT_BOOL telsxTelIriExtensionOk( RT_STRING extension );

TELSX_OBJECT( TelIri, TEL_IRI )

/* An address with this number and nothing else. Aborts unless telsxTelIriNumberOk. */
RT_API TELSX_TEL_IRI telsxTelIriCreate( RT_STRING number );

/* The parts of an address, from the text that getters such as telsxContactIri give; a new reference, or null if the
 * text is no tel address. Any text may be given; null aborts. */
RT_API TELSX_TEL_IRI telsxTelIriTryDecode( RT_STRING iri );

/* The address as a text for which telsxIriOk holds, for setters such as telsxContactSetIri; a new reference. The
 * subaddress, the extension and the context stand first, then the other parameters by their names. */
RT_API RT_STRING telsxTelIriEncode( TELSX_TEL_IRI telIri );

/* Whether the two are the same number (RFC 3966, 4): neither visual separators nor case nor the order of the parameters
 * count, and each parameter must be in both. Takes O(n log n); null aborts. */
RT_API RT_BOOL telsxTelIriEquivalent( TELSX_TEL_IRI telIriA, TELSX_TEL_IRI telIriB );

/* The number in a sip address at a host, as its user, with user=phone (RFC 3261, 19.1.6): in lower case and with its
 * parameters, so that equal numbers make equal users but for their separators. Null if the number is local and has no
 * context, which nobody else understands. A new reference; aborts unless telsxHostOk.
 *
 * And back: the number of a sip or sips address with user=phone, or null if it has no such parameter or its user is no
 * number. A new reference. */
RT_API TELSX_SIP_IRI telsxSipIriTryCreateFromTelIri( TELSX_TEL_IRI telIri, RT_STRING host );
RT_API TELSX_TEL_IRI telsxTelIriTryCreateFromSipIri( TELSX_SIP_IRI sipIri );

/* The number as it was written, never null. Set aborts unless telsxTelIriNumberOk. Digits gives it without visual
 * separators; IsGlobal tells whether it begins with a plus. */
RT_API RT_STRING telsxTelIriNumber( TELSX_TEL_IRI telIri );
RT_API void telsxTelIriSetNumber( TELSX_TEL_IRI *telIri, RT_STRING number );
RT_API RT_STRING telsxTelIriDigits( TELSX_TEL_IRI telIri );
RT_API RT_BOOL telsxTelIriIsGlobal( TELSX_TEL_IRI telIri );

/* The extension, or null. Set aborts unless telsxTelIriExtensionOk. */
RT_API RT_STRING telsxTelIriExtension( TELSX_TEL_IRI telIri );
RT_API RT_BOOL telsxTelIriHasExtension( TELSX_TEL_IRI telIri );
RT_API void telsxTelIriSetExtension( TELSX_TEL_IRI *telIri, RT_STRING extension );
RT_API void telsxTelIriDelExtension( TELSX_TEL_IRI *telIri );

/* The ISDN subaddress, or null. Set aborts unless telsxIriNameOk. */
RT_API RT_STRING telsxTelIriIsub( TELSX_TEL_IRI telIri );
RT_API RT_BOOL telsxTelIriHasIsub( TELSX_TEL_IRI telIri );
RT_API void telsxTelIriSetIsub( TELSX_TEL_IRI *telIri, RT_STRING isub );
RT_API void telsxTelIriDelIsub( TELSX_TEL_IRI *telIri );

/* Where a local number holds, or null. Set aborts unless telsxTelIriPhoneContextOk. */
RT_API RT_STRING telsxTelIriPhoneContext( TELSX_TEL_IRI telIri );
RT_API RT_BOOL telsxTelIriHasPhoneContext( TELSX_TEL_IRI telIri );
RT_API void telsxTelIriSetPhoneContext( TELSX_TEL_IRI *telIri, RT_STRING phoneContext );
RT_API void telsxTelIriDelPhoneContext( TELSX_TEL_IRI *telIri );

/* All other parameters, by index and by name: as in telsx_sip_iri.h. */
RT_API int64_t telsxTelIriParamsLength( TELSX_TEL_IRI telIri );
RT_API RT_STRING telsxTelIriParamNameAt( TELSX_TEL_IRI telIri, int64_t index );
RT_API RT_STRING telsxTelIriParamValueAt( TELSX_TEL_IRI telIri, int64_t index );
RT_API void telsxTelIriSetParamValueAt( TELSX_TEL_IRI *telIri, int64_t index, RT_STRING value );
RT_API void telsxTelIriDelParamAt( TELSX_TEL_IRI *telIri, int64_t index );
RT_API void telsxTelIriClearParams( TELSX_TEL_IRI *telIri );
RT_API RT_BOOL telsxTelIriHasParam( TELSX_TEL_IRI telIri, RT_STRING name );
RT_API RT_BOOL telsxTelIriHasParamCstr( TELSX_TEL_IRI telIri, const char *name, int64_t length );
RT_API RT_BOOL telsxTelIriHasParamWcstr( TELSX_TEL_IRI telIri, const wchar_t *name, int64_t length );
RT_API RT_STRING telsxTelIriParamValue( TELSX_TEL_IRI telIri, RT_STRING name );
RT_API RT_STRING telsxTelIriParamValueCstr( TELSX_TEL_IRI telIri, const char *name, int64_t length );
RT_API RT_STRING telsxTelIriParamValueWcstr( TELSX_TEL_IRI telIri, const wchar_t *name, int64_t length );
RT_API void telsxTelIriSetParam( TELSX_TEL_IRI *telIri, RT_STRING name, RT_STRING value );
RT_API void telsxTelIriSetParamCstr( TELSX_TEL_IRI *telIri, const char *name, int64_t length,
                                     RT_STRING value );
RT_API void telsxTelIriSetParamWcstr( TELSX_TEL_IRI *telIri, const wchar_t *name, int64_t length,
                                      RT_STRING value );
RT_API void telsxTelIriDelParam( TELSX_TEL_IRI *telIri, RT_STRING name );
RT_API void telsxTelIriDelParamCstr( TELSX_TEL_IRI *telIri, const char *name, int64_t length );
RT_API void telsxTelIriDelParamWcstr( TELSX_TEL_IRI *telIri, const wchar_t *name, int64_t length );

/* For the library's own units: Encode and TryDecode as above, the latter from code points. */
RT_API RT_STRING telsx___TelIriEncode( TELSX_TEL_IRI telIri );
RT_API TELSX_TEL_IRI telsx___TelIriTryDecode( const RT_CHAR *chs, int64_t length );
TELSX_FREE_FUNC( TelIri )
TELSX_COMPARE_FUNC( TelIri )
TELSX_TO_STRING_FUNC( TelIri )

RT_END

#endif
