/* Priority header: how urgent a request is (RFC 3261, 20.26).
 *
 *     Priority = "Priority" HCOLON priority-value
 *     priority-value = "emergency" / "urgent" / "normal" / "non-urgent" / other-priority
 *
 * Any token is a value. */
#ifndef TELSX_TELSX_HEADER_PRIORITY_H
#define TELSX_TELSX_HEADER_PRIORITY_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderPriority, HEADER_PRIORITY )
TELSX_FREE_FUNC( HeaderPriority )

/* A header with this value, or with one of the four values of the grammar. Create aborts unless
 * telsxPriorityValueOk. */
RT_API TELSX_HEADER_PRIORITY telsxHeaderPriorityCreate( RT_STRING priorityValue );
RT_API TELSX_HEADER_PRIORITY telsxHeaderPriorityCreateEmergency( void );
RT_API TELSX_HEADER_PRIORITY telsxHeaderPriorityCreateUrgent( void );
RT_API TELSX_HEADER_PRIORITY telsxHeaderPriorityCreateNormal( void );
RT_API TELSX_HEADER_PRIORITY telsxHeaderPriorityCreateNonUrgent( void );

/* The value, in lower case, never null. Set aborts unless telsxPriorityValueOk. */
RT_API RT_STRING telsxHeaderPriorityPriorityValue( TELSX_HEADER_PRIORITY hdr );
RT_API void telsxHeaderPrioritySetPriorityValue( TELSX_HEADER_PRIORITY *hdr, RT_STRING priorityValue );
RT_API void telsxHeaderPrioritySetEmergency( TELSX_HEADER_PRIORITY *hdr );
RT_API void telsxHeaderPrioritySetUrgent( TELSX_HEADER_PRIORITY *hdr );
RT_API void telsxHeaderPrioritySetNormal( TELSX_HEADER_PRIORITY *hdr );
RT_API void telsxHeaderPrioritySetNonUrgent( TELSX_HEADER_PRIORITY *hdr );

/* Whether it is the value of that name. */
RT_API RT_BOOL telsxHeaderPriorityIsEmergency( TELSX_HEADER_PRIORITY hdr );
RT_API RT_BOOL telsxHeaderPriorityIsUrgent( TELSX_HEADER_PRIORITY hdr );
RT_API RT_BOOL telsxHeaderPriorityIsNormal( TELSX_HEADER_PRIORITY hdr );
RT_API RT_BOOL telsxHeaderPriorityIsNonUrgent( TELSX_HEADER_PRIORITY hdr );

RT_END

#endif
