/* Date header: when a message was sent (RFC 3261, 20.17).
 *
 *     Date = "Date" HCOLON SIP-date
 *     SIP-date = wkday "," SP date1 SP time SP "GMT"
 *     date1 = 2DIGIT SP month SP 4DIGIT
 *     time = 2DIGIT ":" 2DIGIT ":" 2DIGIT
 *
 * The text must have exactly this form; the day must exist, and the weekday must match it. Headers sort by time. */
#ifndef TELSX_TELSX_HEADER_DATE_H
#define TELSX_TELSX_HEADER_DATE_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderDate, HEADER_DATE )
TELSX_FREE_FUNC( HeaderDate )

/* A header with this time, which is UTC, and a header with the current time. Aborts for null. Any time can be set, but
 * a time that is not rtTimeValid must not be encoded: what is written is then not a date, and encoding aborts if the
 * year, month or day is outside the bounds of rtTimeWeekday. */
RT_API TELSX_HEADER_DATE telsxHeaderDateCreate( RT_TIME tm );
RT_API TELSX_HEADER_DATE telsxHeaderDateCreateFromCurrentTime( void );

/* The time, never null. Set aborts for null and, like Create, accepts any other time. */
RT_API RT_TIME telsxHeaderDateTime( TELSX_HEADER_DATE hdr );
RT_API void telsxHeaderDateSetTime( TELSX_HEADER_DATE *hdr, RT_TIME tm );

RT_END

#endif
