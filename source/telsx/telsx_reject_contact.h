/* Reject-Contact value: features that a caller does not want in a contact.
 *
 *     rc-value = "*" *( SEMI rc-params )
 *     rc-params = feature-param / generic-param
 *
 * (RFC 3841, 10) */
#ifndef TELSX_TELSX_REJECT_CONTACT_H
#define TELSX_TELSX_REJECT_CONTACT_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( RejectContact, REJECT_CONTACT )
TELSX_COMPARE_FUNC( RejectContact )
TELSX_TO_STRING_FUNC( RejectContact )

/* A value without features. */
RT_API TELSX_REJECT_CONTACT telsxRejectContactCreate( void );

/* The features (RFC 3840) and all other parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxRejectContactGenericParams( TELSX_REJECT_CONTACT rejectContact );
RT_API void telsxRejectContactSetGenericParams( TELSX_REJECT_CONTACT *rejectContact,
                                                TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipRejectContact( const RT_CHAR *chs, int64_t length );

RT_END

#endif
