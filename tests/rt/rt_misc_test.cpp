// Charset and times.
#include <chrono>
#include <cstdio>
#include <sstream>

#include "model.hpp"

using namespace support;

// Decodes from a block of exactly the size.
static std::string decoded( const std::string &text )
{
    std::vector<char> exact( text.begin(), text.end() );
    auto *chars = reinterpret_cast<const unsigned char *>( exact.data() );
    Ref<RT_STRING> string = adopt( rtStringTryCreateFromUtf8( exact.data(), std::ssize( exact ) ) );
    EXPECT_EQ( bool( string ), rt___Utf8Ok( chars, std::ssize( exact ) ) );
    EXPECT_TRUE( !string || rtStringLength( string.get() ) == rt___Utf8Length( chars, std::ssize( exact ) ) );
    EXPECT_EQ( utf8( string ),
               utf8( rtCharsetBufferToStringWithFlags( RT_CHARSET_UTF8, buffer( text ).get(), 1 ) ) );
    return utf8( string );
}

TEST( RtCharset, IsStrictAtEveryBoundary )
{
    const std::string good =
        "\x01 \x7F \xC2\x80 \xDF\xBF \xE0\xA0\x80 \xED\x9F\xBF \xEE\x80\x80 \xEF\xBF\xBF "
        "\xF0\x90\x80\x80 \xF4\x8F\xBF\xBF";
    const std::string bad = "\x80 \xBF \xC0\x80 \xC1\xBF \xC2 \xC2\x7F \xC2\xC0 \xE0\x9F\xBF \xE0\xA0 "
                            "\xE1\x80\xC0 \xED\xA0\x80 \xED\xBF\xBF "
                            "\xF0\x8F\xBF\xBF \xF0\x90\x80 \xF1\x80\x80\x7F \xF4\x90\x80\x80 "
                            "\xF5\x80\x80\x80 \xF8\x88\x80\x80\x80 \xFE \xFF";
    for ( std::size_t before : { 0U, 1U, 15U, 16U, 17U, 40U } )
        for ( std::size_t after : { 0U, 1U, 16U } )
        {
            SCOPED_TRACE( before );
            std::string front( before, 'a' ), back( after, 'z' );
            std::istringstream goodOnes( good ), badOnes( bad );
            for ( std::string sequence; goodOnes >> sequence; )
                EXPECT_EQ( front + sequence + back, decoded( front + sequence + back ) );
            for ( std::string sequence; badOnes >> sequence; )
                EXPECT_EQ( "(null)", decoded( front + sequence + back ) ) << front + sequence;
        }
    EXPECT_EQ( "", decoded( "" ) );
    EXPECT_EQ( std::string( 3, '\0' ), decoded( std::string( 3, '\0' ) ) );
    EXPECT_ABORT( rtCharsetStringToBuffer( 43, str( "" ).get() ), "charset == RT_CHARSET_UTF8" );
}

TEST( RtCharset, CarriesEveryCodePoint )
{
    std::vector<RT_CHAR> all;
    for ( RT_CHAR ch = 0; ch <= 0x10FFFF; ++ch )
        if ( ch < 0xD800 || ch > 0xDFFF )
            all.push_back( ch );
    std::string bytes = utf8( rtStringCreateFromCharsCopy( all.data(), std::ssize( all ) ) );
    EXPECT_EQ( 0x80 + 2 * ( 0x800 - 0x80 ) + 3 * ( 0x10000 - 0x800 - 0x800 ) + 4 * 0x100000,
               std::ssize( bytes ) );
    EXPECT_TRUE( rtStringEqualsChars( str( bytes ).get(), all.data(), std::ssize( all ) ) );
}

TEST( RtCharset, ReplacesWhatIsNoCharacter )
{
    for ( RT_CHAR bad : { 0xD800u, 0xDFFFu, 0x110000u, 0xFFFFFFFFu } )
        EXPECT_EQ( "\uFFFD", utf8( rtStringCreateFromCharsCopy( &bad, 1 ) ) );
    Ref<RT_BUFFER> some = buffer( "a" );
    rtBufferAppendUtf8( some.address(), str( "é" ).get() );
    rtBufferAppendUtf8( some.address(), str( "" ).get() );
    EXPECT_EQ( "aé", bytes( some ) );
}

static Ref<RT_TIME> time( const char *text )
{
    int year, month, day, hour, minute, second;
    EXPECT_EQ( 6, std::sscanf( text, "%d-%d-%d %d:%d:%d", &year, &month, &day, &hour, &minute, &second ) );
    Ref<RT_TIME> made = adopt( rtTimeCreate() );
    rtTimeSetYear( made.address(), year );
    rtTimeSetMonth( made.address(), month );
    rtTimeSetDay( made.address(), day );
    rtTimeSetHour( made.address(), hour );
    rtTimeSetMinute( made.address(), minute );
    rtTimeSetSecond( made.address(), second );
    return made;
}

TEST( RtTime, IsValidAsTheCalendarSays )
{
    const char *valid[] = { "0000-01-01 00:00:00", "9999-12-31 23:59:59", "2011-01-31 00:00:00",
                            "2012-02-29 00:00:00", "2000-02-29 00:00:00", "2011-01-01 23:59:60" };
    const char *invalid[] = { "-001-01-01 00:00:00", "10000-01-01 00:00:00", "2011-00-01 00:00:00",
                              "2011-13-01 00:00:00", "2011-257-1 00:00:00",  "2011-01-00 00:00:00",
                              "2011-1-257 00:00:00", "2011-01-32 00:00:00",  "2011-04-31 00:00:00",
                              "2011-02-31 00:00:00", "2011-02-29 00:00:00",  "1900-02-29 00:00:00",
                              "2011-01-01 23:59:61", "2011-01-01 22:59:60",  "2011-01-01 23:58:60",
                              "2011-01-01 24:00:00", "2011-01-01 00:60:00",  "2011-01-01 -1:00:00",
                              "2011-01-01 00:-1:00", "2011-01-01 00:00:-1" };
    for ( const char *text : valid )
        EXPECT_TRUE( rtTimeValid( time( text ).get() ) ) << text;
    for ( const char *text : invalid )
        EXPECT_FALSE( rtTimeValid( time( text ).get() ) ) << text;
}

TEST( RtTime, KnowsTheWeekday )
{
    const std::pair<const char *, int64_t> cases[] = {
        { "1970-01-01 0:0:0", 3 }, { "2000-02-29 0:0:0", 1 }, { "9999-12-31 0:0:0", 4 },
        { "0000-01-01 0:0:0", 5 }, { "-1-12-31 0:0:0", 4 },   { "-1000000-01-01 0:0:0", 5 }
    };
    for ( auto &[text, weekday] : cases )
        EXPECT_EQ( weekday, rtTimeWeekday( time( text ).get() ) ) << text;
    EXPECT_ABORT( rtTimeWeekday( time( "2011-13-1 0:0:0" ).get() ), "within( time->month, 1, 12 )" );

    // Day by day through 400 years.
    using namespace std::chrono;
    for ( sys_days day = 1800y / 1 / 1; day < sys_days( 2200y / 1 / 1 ); day += days( 1 ) )
    {
        year_month_day date = day;
        Ref<RT_TIME> made = adopt( rtTimeCreate() );
        rtTimeSetYear( made.address(), int( date.year() ) );
        rtTimeSetMonth( made.address(), unsigned( date.month() ) );
        rtTimeSetDay( made.address(), unsigned( date.day() ) );
        ASSERT_TRUE( rtTimeValid( made.get() ) );
        ASSERT_EQ( weekday( day ).iso_encoding() - 1, rtTimeWeekday( made.get() ) );
    }
}

TEST( RtTime, OrdersTheEarlierFirst )
{
    auto make = []( const char *text ) { return rtTimeObj( time( text ).take() ); };
    model::expectAscending( make, "1999-12-31 23:59:59", "2000-1-1 0:0:0", "2000-1-1 0:0:1", "2000-1-1 0:1:0",
                            "2000-1-1 1:0:0", "2000-1-2 0:0:0", "2000-2-1 0:0:0" );
    Ref<RT_TIME> now = adopt( rtTimeNow() );
    EXPECT_TRUE( rtTimeValid( now.get() ) );
    EXPECT_LT( rtTimeCompare( time( "2020-1-1 0:0:0" ).get(), now.get() ), 0 );
    EXPECT_EQ( "0000-01-01 00:00:00", utf8( rtTimeToString( adopt( rtTimeCreate() ).get() ) ) );
}

TEST( RtMemory, WhatNoMemoryHoldsAborts )
{
    auto expectAbort = []( auto create ) { EXPECT_DEATH( create(), ": out of memory: " ); };
    str( "a" ); // its block, once freed, makes later allocations look for one of their size
    Ref<RT_STRING> string = str( "a" );
    Ref<RT_BUFFER> bytes = buffer( "a" );
    for ( int64_t length : { INT64_MAX, INT64_MAX / 4, INT64_MAX / 4 - 16 } )
    {
        expectAbort( [=] { rtStringCreateFromCstr( "", length ); } );
        expectAbort( [&] { rtStringAppendCstr( string.address(), "", length ); } );
    }
    expectAbort( [&] { rtBufferAppendBytes( bytes.address(), "", INT64_MAX ); } );
    expectAbort( [] { rtVectorCreateWithCapacity( INT64_MAX ); } );
    expectAbort( [] { rtVectorCreateWithCapacity( INT64_MAX / 8 + 1 ); } );
}
