/* Date header: when a message was sent (RFC 3261, 20.17).
 *
 *     Date = "Date" HCOLON SIP-date
 *     SIP-date = wkday "," SP date1 SP time SP "GMT"
 *     date1 = 2DIGIT SP month SP 4DIGIT
 *     time = 2DIGIT ":" 2DIGIT ":" 2DIGIT
 *
 * The text is taken in exactly this form; the day must exist and its weekday must fit. Headers sort by
 * time. */
#ifndef TELSX_TELSX_HEADER_DATE_H
#define TELSX_TELSX_HEADER_DATE_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderDate, HEADER_DATE )
TELSX_FREE_FUNC( HeaderDate )

/* A header with this time, which is UTC; and one with the current time. Null aborts. Any time can be set, but one that is not
 * rtTimeValid must not be encoded: whatever encodes it writes no date, or aborts if its year, month or day is out of
 * the bounds of rtTimeWeekday. */
RT_API TELSX_HEADER_DATE telsxHeaderDateCreate( RT_TIME tm );
RT_API TELSX_HEADER_DATE telsxHeaderDateCreateFromCurrentTime( void );

/* The time, never null. Set aborts for null, and takes any other time as Create does. */
RT_API RT_TIME telsxHeaderDateTime( TELSX_HEADER_DATE hdr );
RT_API void telsxHeaderDateSetTime( TELSX_HEADER_DATE *hdr, RT_TIME tm );

RT_END

#endif
