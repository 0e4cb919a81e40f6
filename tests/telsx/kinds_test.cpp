// The typed headers that are sets or lists of words, and dates.
#include "telsx/object_tables.hpp"
#include "telsx/samples.hpp"

using namespace support;

static Ref<RT_VECTOR> strings( std::initializer_list<const char *> texts )
{
    Ref<RT_VECTOR> vector = adopt( rtVectorCreate() );
    for ( const char *text : texts )
        rtVectorAppendString( vector.address(), str( text ).get() );
    return vector;
}

namespace
{

template <class HANDLE>
struct Set
{
    const char *condition; // of its elements
    HANDLE ( *create )( void );
    int64_t ( *length )( HANDLE hdr );
    RT_STRING ( *at )( HANDLE hdr, int64_t index );
    RT_VECTOR ( *vector )( HANDLE hdr );
    RT_BOOL ( *has )( HANDLE hdr, RT_STRING element );
    void ( *set )( HANDLE *hdr, RT_STRING element );
    void ( *del )( HANDLE *hdr, RT_STRING element );
    void ( *clear )( HANDLE *hdr );
    void ( *setVector )( HANDLE *hdr, RT_VECTOR vec );
};

} // namespace

#define SET( NAME, WORD )                                                                \
    Set<decltype( telsx##NAME##Create() )>                                               \
    {                                                                                    \
        "telsx" #WORD "Ok( element )", telsx##NAME##Create, telsx##NAME##WORD##sLength,  \
            telsx##NAME##WORD##At, telsx##NAME##WORD##sVector, telsx##NAME##Has##WORD,   \
            telsx##NAME##Set##WORD, telsx##NAME##Del##WORD, telsx##NAME##Clear##WORD##s, \
            telsx##NAME##Set##WORD##sVector                                              \
    }

// The elements with a comma behind each.
template <class HANDLE>
static std::string elements( const Set<HANDLE> &set, const Ref<HANDLE> &hdr )
{
    std::string text;
    for ( int64_t i = 0; i < set.length( hdr.get() ); ++i )
        text += utf8( set.at( hdr.get(), i ) ) + ",";
    EXPECT_EQ( set.length( hdr.get() ), rtVectorLength( adopt( set.vector( hdr.get() ) ).get() ) );
    return text;
}

template <class HANDLE>
static void expectSet( const Set<HANDLE> &set, bool isCaseKept )
{
    SCOPED_TRACE( set.condition );
    Ref<HANDLE> original = adopt( set.create() ), hdr = original;
    for ( const char *element : { "B", "a", "b", "B" } )
        set.set( hdr.address(), str( element ).get() );
    EXPECT_EQ( isCaseKept ? "B,a,b," : "b,a,", elements( set, hdr ) );
    EXPECT_EQ( "", elements( set, original ) );
    EXPECT_TRUE( set.has( hdr.get(), str( "a" ).get() ) );
    EXPECT_EQ( !isCaseKept, bool( set.has( hdr.get(), str( "A" ).get() ) ) );
    EXPECT_FALSE( set.has( original.get(), str( "a" ).get() ) );

    Ref<HANDLE> fuller = hdr;
    set.del( hdr.address(), str( "absent" ).get() );
    set.del( hdr.address(), str( "B" ).get() );
    EXPECT_EQ( isCaseKept ? "a,b," : "a,", elements( set, hdr ) );
    EXPECT_EQ( isCaseKept ? "B,a,b," : "b,a,", elements( set, fuller ) );

    // Whatever has a text can stand in the vector.
    Ref<RT_VECTOR> vector = strings( { "X", "x" } ), badVector = vector;
    rtVectorAppend( vector.address(), rt::asObj( sample<TELSX_HEADER_PRIORITY>().get() ) );
    rtVectorAppend( badVector.address(), rt::asObj( sample<TELSX_HEADER_CSEQ>().get() ) );
    EXPECT_ABORT( set.setVector( hdr.address(), badVector.get() ), set.condition );
    set.setVector( hdr.address(), vector.get() );
    EXPECT_EQ( isCaseKept ? "X,x,non-urgent," : "x,non-urgent,", elements( set, hdr ) );
    set.clear( hdr.address() );
    EXPECT_EQ( "", elements( set, hdr ) );

    HANDLE none = nullptr;
    Ref<RT_STRING> good = str( "a" ), bad = str( "a b" );
    EXPECT_ABORT( set.has( none, good.get() ), "hdr" );
    EXPECT_ABORT( set.set( nullptr, good.get() ), "hdr" );
    EXPECT_ABORT( set.clear( &none ), "*hdr" );
    EXPECT_ABORT( set.setVector( &none, nullptr ), "vec" );
    EXPECT_ABORT( set.has( hdr.get(), bad.get() ), set.condition );
    EXPECT_ABORT( set.set( hdr.address(), bad.get() ), set.condition );
    EXPECT_ABORT( set.del( hdr.address(), bad.get() ), set.condition );
}

TEST( Kinds, Sets )
{
    expectSet( SET( HeaderAllow, Method ), true );
    expectSet( SET( HeaderAllowEvents, EventType ), true );
    expectSet( SET( HeaderInReplyTo, CallId ), true );
    expectSet( SET( HeaderPrivacy, PrivValue ), false );
    expectSet( SET( HeaderProxyRequire, OptionTag ), false );
    expectSet( SET( HeaderRequire, OptionTag ), false );
    expectSet( SET( HeaderSupported, OptionTag ), false );
    expectSet( SET( HeaderUnsupported, OptionTag ), false );
    EXPECT_EQ( read( named( headers::all, "Allow" ), "a,b" ),
               read( named( headers::all, "Allow" ), "b\na" ) );
}

#define EXPECT_CHARS_OF_SET( NAME, WORD )                                                                \
    do                                                                                                   \
    {                                                                                                    \
        SCOPED_TRACE( #NAME );                                                                           \
        auto hdr = adopt( telsx##NAME##Create() );                                                       \
        telsx##NAME##Set##WORD##Cstr( hdr.address(), "ab", 1 );                                          \
        telsx##NAME##Set##WORD##Wcstr( hdr.address(), L"b", -1 );                                        \
        EXPECT_EQ( 2, telsx##NAME##WORD##sLength( hdr.get() ) );                                         \
        EXPECT_TRUE( telsx##NAME##Has##WORD##Cstr( hdr.get(), "b", -1 ) );                               \
        EXPECT_TRUE( telsx##NAME##Has##WORD##Wcstr( hdr.get(), L"ab", 1 ) );                             \
        EXPECT_FALSE( telsx##NAME##Has##WORD##Wcstr( hdr.get(), L"ab", -1 ) );                           \
        telsx##NAME##Del##WORD##Cstr( hdr.address(), "a", -1 );                                          \
        telsx##NAME##Del##WORD##Wcstr( hdr.address(), L"b", -1 );                                        \
        EXPECT_EQ( 0, telsx##NAME##WORD##sLength( hdr.get() ) );                                         \
        EXPECT_ABORT( telsx##NAME##Has##WORD##Cstr( hdr.get(), "", 0 ), "telsx" #WORD "Ok( element )" ); \
    } while ( false )

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
    EXPECT_EQ( 4, telsxHeaderContentEncodingContentCodingsLength( hdr.get() ) );
    EXPECT_EQ( "b", utf8( telsxHeaderContentEncodingContentCodingAt( hdr.get(), 1 ) ) );

    // The header's own vector, given back to it
    Ref<RT_VECTOR> own = adopt( telsxHeaderContentEncodingContentCodingsVector( hdr.get() ) );
    telsxHeaderContentEncodingSetContentCodingAt( hdr.address(), 0, str( "C" ).get() );
    telsxHeaderContentEncodingDelContentCodingAt( hdr.address(), 2 );
    EXPECT_EQ( "c,b,gzip", text( hdr ) );
    telsxHeaderContentEncodingSetContentCodingsVector( hdr.address(), own.get() );
    EXPECT_EQ( "a,b,gzip,gzip", text( hdr ) );
    telsxHeaderContentEncodingSetContentCodingsVector( hdr.address(), strings( { "X", "x" } ).get() );
    EXPECT_EQ( "x,x", text( hdr ) );

    Ref<RT_STRING> bad = str( "a b" );
    EXPECT_ABORT( telsxHeaderContentEncodingSetContentCodingAt( hdr.address(), 0, bad.get() ),
                  "telsxContentCodingOk( contentCoding )" );
    rtVectorAppend( own.address(), rt::asObj( own.get() ) );
    EXPECT_ABORT( telsxHeaderContentEncodingSetContentCodingsVector( hdr.address(), own.get() ),
                  "rtVectorContainsOnly( vec, rtStringSort() )" );
    telsxHeaderContentEncodingClearContentCodings( hdr.address() );
    EXPECT_EQ( original, hdr );
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

    // A time that is none is written as it stands, unless it has no month.
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
