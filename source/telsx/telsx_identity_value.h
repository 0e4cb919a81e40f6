/* Identity value: who a party is, as the network asserts it or the party prefers it. Element of
 * P-Asserted-Identity and P-Preferred-Identity.
 *
 *     PAssertedID-value = name-addr / addr-spec  ; RFC 3325
 *     PPreferredID-value = name-addr / addr-spec  ; RFC 3325
 *
 * (RFC 3325, 9.1 and 9.2) There are no parameters. Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_IDENTITY_VALUE_H
#define TELSX_TELSX_IDENTITY_VALUE_H

#include "telsx/telsx_object.h"

RT_BEGIN

TELSX_OBJECT( IdentityValue, IDENTITY_VALUE )

/* An identity with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_IDENTITY_VALUE telsxIdentityValueCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxIdentityValueIri( TELSX_IDENTITY_VALUE value );
RT_API void telsxIdentityValueSetIri( TELSX_IDENTITY_VALUE *value, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxIdentityValueDisplayName( TELSX_IDENTITY_VALUE value );
RT_API RT_BOOL telsxIdentityValueHasDisplayName( TELSX_IDENTITY_VALUE value );
RT_API void telsxIdentityValueSetDisplayName( TELSX_IDENTITY_VALUE *value, RT_STRING displayName );
RT_API void telsxIdentityValueDelDisplayName( TELSX_IDENTITY_VALUE *value );

/* For the library's own units. Encode gives the text, a new reference. TryDecode takes one whole value and
 * gives a new reference, or null for bad text. The skipper, telsx___SkipIdentityValue, is in telsx_skip.h. */
RT_API RT_STRING telsx___IdentityValueEncode( TELSX_IDENTITY_VALUE value );
RT_API TELSX_IDENTITY_VALUE telsx___IdentityValueTryDecode( const RT_CHAR *chs, int64_t length );
TELSX_FREE_FUNC( IdentityValue )
TELSX_COMPARE_FUNC( IdentityValue )

RT_END

#endif
