// The typed headers that are sets or lists of words, and dates.
#include "telsx/object_tables.hpp"

using namespace support;

#define EXPECT_CHARS_OF_SET( NAME, WORD )                                                                \
    {                                                                                                    \
        auto hdr = adopt( telsx##NAME##Create() );                                                       \
        telsx##NAME##Set##WORD##Cstr( hdr.address(), "ab", 1 );                                          \
        telsx##NAME##Set##WORD##Wcstr( hdr.address(), L"bc", 1 );                                        \
        EXPECT_TRUE( telsx##NAME##Has##WORD##Cstr( hdr.get(), "b", -1 ) ) << #NAME;                      \
        EXPECT_TRUE( telsx##NAME##Has##WORD##Wcstr( hdr.get(), L"ab", 1 ) ) << #NAME;                    \
        telsx##NAME##Del##WORD##Cstr( hdr.address(), "ac", 1 );                                          \
        telsx##NAME##Del##WORD##Wcstr( hdr.address(), L"bc", 1 );                                        \
        EXPECT_EQ( 0, telsx##NAME##WORD##sLength( hdr.get() ) ) << #NAME;                                \
        EXPECT_ABORT( telsx##NAME##Has##WORD##Cstr( hdr.get(), "", 0 ), "telsx" #WORD "Ok( element )" ); \
    }

TEST( Kinds, SetsOfCharacters )
{
    EXPECT_CHARS_OF_SET( HeaderAllow, Method );
    EXPECT_CHARS_OF_SET( HeaderPrivacy, PrivValue );
    EXPECT_CHARS_OF_SET( HeaderRequire, OptionTag );
    EXPECT_CHARS_OF_SET( HeaderSupported, OptionTag );
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
