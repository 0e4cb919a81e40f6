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

TELSX_VALUE_OBJECT( IdentityValue, IDENTITY_VALUE )
TELSX_COMPARE_FUNC( IdentityValue )

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

RT_END

#endif
