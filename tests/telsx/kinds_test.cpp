// The typed headers that are sets or lists of words, and dates.
#include "telsx/object_tables.hpp"

using namespace support;

TEST( Kinds, SetsTakeTextInThreeForms )
{
    auto hdr = adopt( telsxHeaderAllowCreate() );
    telsxHeaderAllowSetMethodCstr( hdr.address(), "ab", 1 );
    telsxHeaderAllowSetMethodWcstr( hdr.address(), L"bc", 1 );
    EXPECT_TRUE( telsxHeaderAllowHasMethodCstr( hdr.get(), "b", -1 ) );
    EXPECT_TRUE( telsxHeaderAllowHasMethodWcstr( hdr.get(), L"ab", 1 ) );
    telsxHeaderAllowDelMethodCstr( hdr.address(), "ac", 1 );
    telsxHeaderAllowDelMethodWcstr( hdr.address(), L"bc", 1 );
    EXPECT_EQ( 0, telsxHeaderAllowMethodsLength( hdr.get() ) );
    EXPECT_ABORT( telsxHeaderAllowHasMethodCstr( hdr.get(), "", 0 ), "telsxMethodOk( element )" );
}

TEST( Kinds, ContentEncodingIsAList )
{
    auto text = []( const auto &hdr ) { return utf8( telsxHeaderContentEncodingToString( hdr.get() ) ); };
    Ref<TELSX_HEADER_CONTENT_ENCODING> original = adopt( telsxHeaderContentEncodingCreate() ), hdr = original;
    telsxHeaderContentEncodingAppendContentCoding( hdr.address(), str( "GZIP" ).get() );
    telsxHeaderContentEncodingPrependContentCoding( hdr.address(), str( "A" ).get() );
    telsxHeaderContentEncodingInsertContentCoding( hdr.address(), 1, str( "B" ).get() );
    telsxHeaderContentEncodingInsertContentCoding( hdr.address(), 3, str( "gzip" ).get() );
    EXPECT_EQ( "a,b,gzip,gzip", text( hdr ) );
    EXPECT_EQ( "", text( original ) );
    // The header's own vector, passed back to it
    Ref<RT_VECTOR> own = adopt( telsxHeaderContentEncodingContentCodingsVector( hdr.get() ) );
    telsxHeaderContentEncodingDelContentCodingAt( hdr.address(), 2 );
    EXPECT_EQ( "a,b,gzip", text( hdr ) );
    telsxHeaderContentEncodingSetContentCodingsVector( hdr.address(), own.get() );
    EXPECT_EQ( "a,b,gzip,gzip", text( hdr ) );
    EXPECT_ABORT( telsxHeaderContentEncodingSetContentCodingAt( hdr.address(), 0, str( "a b" ).get() ),
                  "telsxContentCodingOk( contentCoding )" );
}

static Ref<RT_OBJ> date( const std::string &line ) { return read( named( headers::all, "Date" ), line ); }

TEST( Kinds, DatesStandCharacterByCharacter )
{
    const std::string line = "Sat, 13 Nov 2010 23:29:00 GMT";
    ASSERT_TRUE( date( line ) );
    for ( std::size_t i = 0; i < line.size(); ++i )
    {
        EXPECT_FALSE( date( line.substr( 0, i ) ) ) << i;
        for ( char other : { 'x', '\t', '-' } )
        {
            std::string changed = line;
            changed[i] = other;
            EXPECT_FALSE( date( changed ) ) << changed;
        }
    }
}

TEST( Kinds, DatesHoldTimes )
{
    Ref<RT_TIME> before = adopt( rtTimeNow() );
    auto hdr = adopt( telsxHeaderDateCreateFromCurrentTime() );
    Ref<RT_TIME> now = adopt( telsxHeaderDateTime( hdr.get() ) ), after = adopt( rtTimeNow() );
    EXPECT_LE( before, now );
    EXPECT_LE( now, after );
    EXPECT_TRUE( date( utf8( telsxHeaderDateToString( hdr.get() ) ) ) );

    // An invalid time is written as it is, unless it has no month.
    Ref<RT_TIME> time = adopt( rtTimeCreate() );
    rtTimeSetHour( time.address(), 99 );
    telsxHeaderDateSetTime( hdr.address(), time.get() );
    EXPECT_EQ( "Sat, 01 Jan 0000 99:00:00 GMT", utf8( telsxHeaderDateToString( hdr.get() ) ) );
    for ( int64_t month : { 0, 13, -2'000'000'000 } )
    {
        rtTimeSetMonth( time.address(), month );
        auto none = adopt( telsxHeaderDateCreate( time.get() ) );
        EXPECT_ABORT( telsxHeaderDateEncode( none.get() ), "within( time->month, 1, 12 )" );
    }
}
