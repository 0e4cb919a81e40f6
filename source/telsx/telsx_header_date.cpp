// Date header (RFC 3261, 20.17).
#include "telsx/telsx_header_date.h"

#include "telsx/telsx_date.hpp"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_number.hpp"
#include "telsx/telsx_skip.h"

using namespace telsx;

struct TELSX_HEADER_DATE_
{
    RT_OBJECT object;
    Ref<RT_TIME> time; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.time ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderDate, HEADER_DATE, hdr, "Date" )
TELSX_DEFINE_GETTER( HeaderDate, hdr, Time, time )

void telsxHeaderDateSetTime( TELSX_HEADER_DATE *hdr, RT_TIME tm )
{
    TELSX_ASSERT_HANDLE( hdr );
    TELSX_ASSERT( tm );
    rt::put( TELSX_OWN( hdr )->time, tm );
}

TELSX_HEADER_DATE telsxHeaderDateCreate( RT_TIME tm )
{
    TELSX_ASSERT( tm );
    TELSX_HEADER_DATE hdr = rt::create<TELSX_HEADER_DATE_>( telsxHeaderDateSort() );
    hdr->time = share( tm );
    return hdr;
}

TELSX_HEADER_DATE telsxHeaderDateCreateFromCurrentTime( void )
{
    return telsxHeaderDateCreate( adopt( rtTimeNow() ).get() );
}

TELSX_MESSAGE_HEADER telsxHeaderDateEncode( TELSX_HEADER_DATE hdr )
{
    TELSX_ASSERT( hdr );
    RT_TIME time = hdr->time.get();
    // Must come before the month is used: rtTimeWeekday aborts if there is no such month.
    const char *weekday = weekdayNames[rtTimeWeekday( time )].data();
    Ref<RT_STRING> line = adopt( rtStringCreateFromFormatCstr(
        "%~s, %02i %~s %04i %02i:%02i:%02i GMT", -1, rtStringCreateFromCstr( weekday, -1 ), rtTimeDay( time ),
        rtStringCreateFromCstr( monthNames[rtTimeMonth( time ) - 1].data(), -1 ), rtTimeYear( time ),
        rtTimeHour( time ), rtTimeMinute( time ), rtTimeSecond( time ) ) );
    return createHeader( literal<"Date">(), line );
}

// Takes exactly this many digits from the front; false if there are more or fewer, or if the value is out of bounds.
static bool takeNumber( Text &rest, int64_t digits, int64_t least, int64_t most, int64_t &number )
{
    Text run = rest.take( telsx___SkipDigits );
    number = tryDecodeNumber( run );
    return run.length == digits && number >= least && number <= most;
}

static bool takeLiteral( Text &rest, RT_STRING words )
{
    return bool( rest.take(
        telsx___SkipChars( rest.chs, rest.length, rtStringBacking( words ), rtStringLength( words ) ) ) );
}

// Takes the name from the front; false if there is none.
static bool takeName( Text &rest, int64_t ( *skip )( const RT_CHAR *, int64_t, int64_t * ), int64_t &number )
{
    return bool( rest.take( skip( rest.chs, rest.length, &number ) ) );
}

static TELSX_HEADER_DATE decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    int64_t weekday, day, month, year, hour, minute, second;
    bool taken = takeName( rest, telsx___SkipWkday, weekday ) && takeLiteral( rest, literal<", ">() )
                 && takeNumber( rest, 2, 1, 31, day ) && takeLiteral( rest, literal<" ">() )
                 && takeName( rest, telsx___SkipMonth, month ) && takeLiteral( rest, literal<" ">() )
                 && takeNumber( rest, 4, 0, 9999, year ) && takeLiteral( rest, literal<" ">() )
                 && takeNumber( rest, 2, 0, 23, hour ) && takeLiteral( rest, literal<":">() )
                 && takeNumber( rest, 2, 0, 59, minute ) && takeLiteral( rest, literal<":">() )
                 && takeNumber( rest, 2, 0, 61, second ) && takeLiteral( rest, literal<" GMT">() ) && !rest;
    if ( !taken )
        return nullptr;
    Ref<RT_TIME> time = adopt( rtTimeCreate() );
    rtTimeSetDay( time.address(), day );
    rtTimeSetMonth( time.address(), month );
    rtTimeSetYear( time.address(), year );
    rtTimeSetHour( time.address(), hour );
    rtTimeSetMinute( time.address(), minute );
    rtTimeSetSecond( time.address(), second );
    if ( !rtTimeValid( time.get() ) || rtTimeWeekday( time.get() ) != weekday )
        return nullptr;
    return telsxHeaderDateCreate( time.get() );
}
