/* P-Preferred-Identity header: who a party wants to be (RFC 3325, 9.2).
 *
 *     PPreferredID = "P-Preferred-Identity" HCOLON PPreferredID-value *( COMMA PPreferredID-value )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_identity_value.h);
 * each is written on a line of its own. Two headers compare by these texts. A raw header without lines is
 * bad text; one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_P_PREFERRED_IDENTITY_H
#define TELSX_TELSX_HEADER_P_PREFERRED_IDENTITY_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_identity_value.h"

RT_BEGIN

TELSX_HEADER( HeaderPPreferredIdentity, HEADER_P_PREFERRED_IDENTITY )
TELSX_FREE_FUNC( HeaderPPreferredIdentity )

/* A header without values. */
RT_API TELSX_HEADER_P_PREFERRED_IDENTITY telsxHeaderPPreferredIdentityCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderPPreferredIdentityIdentityValuesLength( TELSX_HEADER_P_PREFERRED_IDENTITY hdr );
RT_API TELSX_IDENTITY_VALUE
telsxHeaderPPreferredIdentityTryDecodeIdentityValueAt( TELSX_HEADER_P_PREFERRED_IDENTITY hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value; null aborts. */
RT_API void telsxHeaderPPreferredIdentitySetIdentityValueAt( TELSX_HEADER_P_PREFERRED_IDENTITY *hdr,
                                                             int64_t index,
                                                             TELSX_IDENTITY_VALUE identityValue );
RT_API void telsxHeaderPPreferredIdentityDelIdentityValueAt( TELSX_HEADER_P_PREFERRED_IDENTITY *hdr,
                                                             int64_t index );
RT_API void telsxHeaderPPreferredIdentityPrependIdentityValue( TELSX_HEADER_P_PREFERRED_IDENTITY *hdr,
                                                               TELSX_IDENTITY_VALUE identityValue );
RT_API void telsxHeaderPPreferredIdentityAppendIdentityValue( TELSX_HEADER_P_PREFERRED_IDENTITY *hdr,
                                                              TELSX_IDENTITY_VALUE identityValue );
RT_API void telsxHeaderPPreferredIdentityInsertIdentityValue( TELSX_HEADER_P_PREFERRED_IDENTITY *hdr,
                                                              int64_t index,
                                                              TELSX_IDENTITY_VALUE identityValue );
RT_API void telsxHeaderPPreferredIdentityClearIdentityValues( TELSX_HEADER_P_PREFERRED_IDENTITY *hdr );

RT_END

#endif
