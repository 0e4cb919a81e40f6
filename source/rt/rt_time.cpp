// Times: six numbers, checked by the calendar of the standard library.
#include "rt/rt_time.h"

#include <chrono>
#include <ctime>

#include "rt/rt_frame.hpp"
#include "rt/rt_string.h"

struct RT_TIME_
{
    RT_OBJECT object;
    int64_t year, month, day, hour, minute, second;

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.year, self.month, self.day, self.hour, self.minute, self.second );
    }
};

static int64_t compareFunc( RT_OBJ objA, RT_OBJ objB )
{
    return rt::compareFields( rtTimeFrom( objA ), rtTimeFrom( objB ) );
}

static RT_STRING toStringFunc( RT_OBJ obj )
{
    RT_TIME time = rtTimeFrom( obj );
    return rtStringCreateFromFormatCstr( "%04i-%02i-%02i %02i:%02i:%02i", -1, time->year, time->month,
                                         time->day, time->hour, time->minute, time->second );
}

RT_DEFINE_STDFUNCS( rt, nullptr, Time, RT_TIME, nullptr, compareFunc, toStringFunc )

#define RT_DEFINE_TIME_FIELD( NAME, FIELD )              \
    int64_t rtTime##NAME( RT_TIME time )                 \
    {                                                    \
        RT_ASSERT( time );                               \
        return time->FIELD;                              \
    }                                                    \
    void rtTimeSet##NAME( RT_TIME *time, int64_t FIELD ) \
    {                                                    \
        RT_ASSERT( time );                               \
        RT_ASSERT( *time );                              \
        rt::own( time )->FIELD = FIELD;                  \
    }

RT_DEFINE_TIME_FIELD( Year, year )
RT_DEFINE_TIME_FIELD( Month, month )
RT_DEFINE_TIME_FIELD( Day, day )
RT_DEFINE_TIME_FIELD( Hour, hour )
RT_DEFINE_TIME_FIELD( Minute, minute )
RT_DEFINE_TIME_FIELD( Second, second )

static RT_TIME create( int64_t year, int64_t month, int64_t day, int64_t hour, int64_t minute,
                       int64_t second )
{
    RT_TIME time = rt::create<RT_TIME_>( rtTimeSort() );
    RT_TIME_::fields( *time ) = std::tie( year, month, day, hour, minute, second );
    return time;
}

RT_TIME rtTimeCreate( void ) { return create( 0, 1, 1, 0, 0, 0 ); }

RT_TIME rtTimeNow( void )
{
    timespec now;
    clock_gettime( CLOCK_REALTIME, &now );
    tm utc;
    gmtime_r( &now.tv_sec, &utc );
    return create( utc.tm_year + 1900, utc.tm_mon + 1, utc.tm_mday, utc.tm_hour, utc.tm_min, utc.tm_sec );
}

static bool within( int64_t value, int64_t least, int64_t most ) { return value >= least && value <= most; }

// The date, moved to a year that the standard library can handle: the calendar, weekdays included, repeats every 400
// years.
static std::chrono::year_month_day dateOf( RT_TIME time )
{
    using namespace std::chrono;
    return year( static_cast<int>( time->year % 400 ) + 2000 ) / month( static_cast<unsigned>( time->month ) )
           / day( static_cast<unsigned>( time->day ) );
}

RT_BOOL rtTimeValid( RT_TIME time )
{
    RT_ASSERT( time );
    bool inDay =
        within( time->hour, 0, 23 ) && within( time->minute, 0, 59 ) && within( time->second, 0, 59 );
    bool leapSecond = time->hour == 23 && time->minute == 59 && time->second == 60;
    return ( inDay || leapSecond ) && within( time->year, 0, 9999 ) && within( time->month, 1, 12 )
           && within( time->day, 1, 31 ) && dateOf( time ).ok();
}

int64_t rtTimeWeekday( RT_TIME time )
{
    RT_ASSERT( time );
    RT_ASSERT( within( time->year, -1'000'000, 1'000'000 ) );
    RT_ASSERT( within( time->month, 1, 12 ) );
    RT_ASSERT( within( time->day, 1, 31 ) );
    std::chrono::weekday weekday = std::chrono::sys_days( dateOf( time ) );
    return weekday.iso_encoding() - 1;
}
