/* Calendar times, proleptic Gregorian, UTC. The fields may hold any numbers; only Valid tells whether they form a time.
 * A time that others hold too is never changed: functions that change a time take the address of its handle. */
#ifndef RT_RT_TIME_H
#define RT_RT_TIME_H

#include "rt/rt_object.h"

RT_BEGIN

/* The earlier time sorts first. The text is "YYYY-MM-DD hh:mm:ss". */
RT_OBJECT_TYPE( RT_API, rtTime, RT_TIME )

/* The current time, and 0000-01-01 00:00:00; new references. */
RT_API RT_TIME rtTimeNow( void );
RT_API RT_TIME rtTimeCreate( void );

/* The fields: the year, the month from 1, the day from 1, hour, minute, second. */
RT_API int64_t rtTimeYear( RT_TIME time );
RT_API int64_t rtTimeMonth( RT_TIME time );
RT_API int64_t rtTimeDay( RT_TIME time );
RT_API int64_t rtTimeHour( RT_TIME time );
RT_API int64_t rtTimeMinute( RT_TIME time );
RT_API int64_t rtTimeSecond( RT_TIME time );
RT_API void rtTimeSetYear( RT_TIME *time, int64_t year );
RT_API void rtTimeSetMonth( RT_TIME *time, int64_t month );
RT_API void rtTimeSetDay( RT_TIME *time, int64_t day );
RT_API void rtTimeSetHour( RT_TIME *time, int64_t hour );
RT_API void rtTimeSetMinute( RT_TIME *time, int64_t minute );
RT_API void rtTimeSetSecond( RT_TIME *time, int64_t second );

/* Whether the fields form a time: a year from 0 to 9999, a day that the month has, and 00:00:00 to 23:59:59 or the leap
 * second 23:59:60. */
RT_API RT_BOOL rtTimeValid( RT_TIME time );

/* The day of the week, 0 for Monday to 6 for Sunday. Aborts unless the year is from -1000000 to 1000000, the
 * month from 1 to 12 and the day from 1 to 31. */
RT_API int64_t rtTimeWeekday( RT_TIME time );

RT_END

#endif
