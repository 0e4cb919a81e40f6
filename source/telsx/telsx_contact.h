/* Contact value: an address at which a party can be reached.
 *
 *     contact-param = ( name-addr / addr-spec ) *( SEMI contact-params )  ; RFC 3261
 *     contact-params = c-p-q / c-p-expires / hi-param / c-p-instance / contact-extension
 *     c-p-q = "q" EQUAL qvalue
 *     c-p-expires = "expires" EQUAL delta-seconds
 *     hi-param = ( "rc" / "mp" / "np" ) EQUAL index-val
 *     c-p-instance = "+sip.instance" EQUAL DQUOTE "<" instance-val ">" DQUOTE
 *
 * (RFC 3261, 25.1; RFC 7044, 10.3; RFC 5626, 10) The address is always written in angle brackets. Values sort by the
 * fields in the order below. */
#ifndef TELSX_TELSX_CONTACT_H
#define TELSX_TELSX_CONTACT_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( Contact, CONTACT )
TELSX_COMPARE_FUNC( Contact )
TELSX_TO_STRING_FUNC( Contact )

/* A contact with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_CONTACT telsxContactCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxContactIri( TELSX_CONTACT contact );
RT_API void telsxContactSetIri( TELSX_CONTACT *contact, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxContactDisplayName( TELSX_CONTACT contact );
RT_API RT_BOOL telsxContactHasDisplayName( TELSX_CONTACT contact );
RT_API void telsxContactSetDisplayName( TELSX_CONTACT *contact, RT_STRING displayName );
RT_API void telsxContactDelDisplayName( TELSX_CONTACT *contact );

/* The weight in thousandths, 0 to 1000, or -1 if there is none. Set aborts unless telsxQvalueOk. */
RT_API int64_t telsxContactQvalue( TELSX_CONTACT contact );
RT_API RT_BOOL telsxContactHasQvalue( TELSX_CONTACT contact );
RT_API void telsxContactSetQvalue( TELSX_CONTACT *contact, int64_t qvalue );
RT_API void telsxContactDelQvalue( TELSX_CONTACT *contact );

/* How long the address is valid, in seconds, or -1 if absent. Set aborts unless telsxDeltaSecondsOk. */
RT_API int64_t telsxContactExpires( TELSX_CONTACT contact );
RT_API RT_BOOL telsxContactHasExpires( TELSX_CONTACT contact );
RT_API void telsxContactSetExpires( TELSX_CONTACT *contact, int64_t expires );
RT_API void telsxContactDelExpires( TELSX_CONTACT *contact );

/* The History-Info indices that rc, mp and np name (RFC 7044), or null. Set aborts unless telsxHistoryInfoIndexOk. */
RT_API RT_STRING telsxContactRc( TELSX_CONTACT contact );
RT_API RT_BOOL telsxContactHasRc( TELSX_CONTACT contact );
RT_API void telsxContactSetRc( TELSX_CONTACT *contact, RT_STRING rc );
RT_API void telsxContactDelRc( TELSX_CONTACT *contact );
RT_API RT_STRING telsxContactMp( TELSX_CONTACT contact );
RT_API RT_BOOL telsxContactHasMp( TELSX_CONTACT contact );
RT_API void telsxContactSetMp( TELSX_CONTACT *contact, RT_STRING mp );
RT_API void telsxContactDelMp( TELSX_CONTACT *contact );
RT_API RT_STRING telsxContactNp( TELSX_CONTACT contact );
RT_API RT_BOOL telsxContactHasNp( TELSX_CONTACT contact );
RT_API void telsxContactSetNp( TELSX_CONTACT *contact, RT_STRING np );
RT_API void telsxContactDelNp( TELSX_CONTACT *contact );

/* The name of the device with its angle brackets, such as <urn:x>, or null. Set aborts unless
 * telsxSipInstanceOk. */
RT_API RT_STRING telsxContactSipInstance( TELSX_CONTACT contact );
RT_API RT_BOOL telsxContactHasSipInstance( TELSX_CONTACT contact );
RT_API void telsxContactSetSipInstance( TELSX_CONTACT *contact, RT_STRING sipInstance );
RT_API void telsxContactDelSipInstance( TELSX_CONTACT *contact );

/* All other parameters, never null. When the value is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxContactGenericParams( TELSX_CONTACT contact );
RT_API void telsxContactSetGenericParams( TELSX_CONTACT *contact, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
