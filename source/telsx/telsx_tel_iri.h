/* Tel IRI: a telephone number as an address, in parts.
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
 * (RFC 3966, 3, except that a local number needs no context, a value may be empty, and characters outside ASCII need no
 * escapes, as in RFC 3987.) Escapes are resolved (see telsx_iri_text.h). Addresses sort by the fields in the order
 * below, and are equal if all fields are, including case and separators; telsxTelIriEquivalent tells whether they are
 * the same number. */
#ifndef TELSX_TELSX_TEL_IRI_H
#define TELSX_TELSX_TEL_IRI_H

#include "telsx/telsx_sip_iri.h"

RT_BEGIN

/* Whether the text is a number, either global, with a plus sign, or local; a phone context, which is a global number or
 * a domain name in ASCII; an extension. They abort for null. */
RT_API RT_BOOL telsxTelIriNumberOk( RT_STRING number );
RT_API RT_BOOL telsxTelIriPhoneContextOk( RT_STRING phoneContext );
RT_API RT_BOOL telsxTelIriExtensionOk( RT_STRING extension );

TELSX_VALUE_OBJECT( TelIri, TEL_IRI )
TELSX_COMPARE_FUNC( TelIri )
TELSX_TO_STRING_FUNC( TelIri )

/* An address with this number and nothing else. Aborts unless telsxTelIriNumberOk. */
RT_API TELSX_TEL_IRI telsxTelIriCreate( RT_STRING number );

/* The address that the text is, such as the result of telsxContactIri; a new reference, or null if the text is not a tel
 * address. Any text may be passed; null aborts. */
RT_API TELSX_TEL_IRI telsxTelIriTryDecode( RT_STRING iri );

/* The address as a text for which telsxIriOk holds, for setters such as telsxContactSetIri; a new reference. The
 * subaddress, the extension and the context come first, then the other parameters, sorted by name. */
RT_API RT_STRING telsxTelIriEncode( TELSX_TEL_IRI telIri );

/* Whether the two are the same number (RFC 3966, 4), regardless of visual separators, case and the order of the
 * parameters. Each parameter must be in both. Takes O(n log n) for n parameters. Aborts for null. */
RT_API RT_BOOL telsxTelIriEquivalent( TELSX_TEL_IRI telIriA, TELSX_TEL_IRI telIriB );

/* A sip address at the host with the number as its user and with user=phone (RFC 3261, 19.1.6); a new reference. The
 * user includes the parameters and is in lower case, so that the users of equivalent numbers differ in their separators
 * only. Null if the number is local and has no context, since nobody else understands it. Aborts unless telsxHostOk.
 *
 * TryCreateFromSipIri returns the number of a sip or sips address; a new reference, or null if the address has no
 * user=phone or its user is not a number. */
RT_API TELSX_SIP_IRI telsxSipIriTryCreateFromTelIri( TELSX_TEL_IRI telIri, RT_STRING host );
RT_API TELSX_TEL_IRI telsxTelIriTryCreateFromSipIri( TELSX_SIP_IRI sipIri );

/* The number as it was written, never null. Set aborts unless telsxTelIriNumberOk. Digits returns the number without
 * visual separators, a new reference; IsGlobal tells whether it begins with a plus sign. */
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

/* The context in which a local number is valid, or null. Set aborts unless telsxTelIriPhoneContextOk. */
RT_API RT_STRING telsxTelIriPhoneContext( TELSX_TEL_IRI telIri );
RT_API RT_BOOL telsxTelIriHasPhoneContext( TELSX_TEL_IRI telIri );
RT_API void telsxTelIriSetPhoneContext( TELSX_TEL_IRI *telIri, RT_STRING phoneContext );
RT_API void telsxTelIriDelPhoneContext( TELSX_TEL_IRI *telIri );

/* All other parameters, by index and by name. The functions are the same as in telsx_sip_iri.h. */
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

RT_END

#endif
