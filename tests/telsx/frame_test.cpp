// What all object types have in common, the module, and the smallest type, the version.
#include <set>

#include "samples.hpp"

using namespace support;

namespace
{

// The functions of a type, for objects of any.
struct ObjectType
{
    std::string sortName;
    RT_SORT ( *sort )( void );
    RT_OBJ ( *sample )();
    void ( *retain )( RT_OBJ obj );
    void ( *release )( RT_OBJ obj );
    RT_OBJ ( *toAndFro )( RT_OBJ obj ); // From, then Obj
    RT_STRING ( *toString )( RT_OBJ obj );
    int64_t ( *compare )( RT_OBJ a, RT_OBJ b );
    RT_BOOL ( *equals )( RT_OBJ a, RT_OBJ b );
    RT_OBJ ( *copy )( RT_OBJ obj ); // null for a type that is not copied

    friend void PrintTo( const ObjectType &type, std::ostream *stream ) { *stream << type.sortName; }
};

} // namespace

#define HANDLE( SORT, OBJ ) reinterpret_cast<TELSX_##SORT>( OBJ )
#define OPERATIONS( NAME, SORT )                                                                           \
    "TELSX_" #SORT, telsx##NAME##Sort, [] { return telsx##NAME##Obj( sample<TELSX_##SORT>().take() ); },   \
        []( RT_OBJ obj ) { telsx##NAME##Retain( HANDLE( SORT, obj ) ); },                                  \
        []( RT_OBJ obj ) { telsx##NAME##Release( HANDLE( SORT, obj ) ); },                                 \
        []( RT_OBJ obj ) { return telsx##NAME##Obj( telsx##NAME##From( obj ) ); },                         \
        []( RT_OBJ obj ) { return telsx##NAME##ToString( HANDLE( SORT, obj ) ); },                         \
        []( RT_OBJ a, RT_OBJ b ) { return telsx##NAME##Compare( HANDLE( SORT, a ), HANDLE( SORT, b ) ); }, \
        []( RT_OBJ a, RT_OBJ b ) { return telsx##NAME##Equals( HANDLE( SORT, a ), HANDLE( SORT, b ) ); }
#define TELSX_TYPE( NAME, SORT ) \
    { OPERATIONS( NAME, SORT ),  \
      []( RT_OBJ obj ) { return telsx##NAME##Obj( telsx##NAME##CreateFrom( HANDLE( SORT, obj ) ) ); } },

static const ObjectType types[] = {
#include "telsx/telsx_objects.def"
    { OPERATIONS( MessageStreamDecoder, MESSAGE_STREAM_DECODER ), nullptr },
};

struct EveryType : testing::TestWithParam<ObjectType>
{
    const ObjectType &type = GetParam();
    Ref<RT_OBJ> object = adopt( type.sample() );
};

INSTANTIATE_TEST_SUITE_P( Telsx, EveryType, testing::ValuesIn( types ),
                          []( auto &test ) { return test.param.sortName; } );

TEST_P( EveryType, KnowsItsSort )
{
    RT_SORT sort = type.sort();
    EXPECT_EQ( sort, rtObjSort( object.get() ) );
    EXPECT_EQ( type.sortName, sort->name );
    EXPECT_EQ( &telsx___module, sort->module );
    EXPECT_EQ( object.get(), type.toAndFro( object.get() ) );
    EXPECT_EQ( nullptr, type.toAndFro( nullptr ) );

    static const std::set<std::string> withoutFree = { "TELSX_HEADER_EXPIRES", "TELSX_HEADER_MAX_FORWARDS",
                                                       "TELSX_HEADER_MIN_EXPIRES" },
                                       withoutCompare = { "TELSX_DIVERSION", "TELSX_MESSAGE",
                                                          "TELSX_MESSAGE_FRAGMENT",
                                                          "TELSX_MESSAGE_STREAM_DECODER", "TELSX_REASON" },
                                       withoutText = { "TELSX_HISTORY_INFO", "TELSX_IDENTITY_VALUE",
                                                       "TELSX_MESSAGE_HEADER", "TELSX_ROUTE",
                                                       "TELSX_WARNING_VALUE" };
    EXPECT_EQ( withoutFree.contains( sort->name ), !sort->freeFunc );
    EXPECT_EQ( withoutCompare.contains( sort->name ), !sort->compareFunc );
    EXPECT_EQ( withoutCompare.contains( sort->name ) || withoutText.contains( sort->name ),
               !sort->toStringFunc );
}

TEST_P( EveryType, CountsReferences )
{
    EXPECT_EQ( 1, object->count );
    type.retain( object.get() );
    EXPECT_EQ( 2, object->count );
    type.release( object.get() );
    EXPECT_EQ( 1, object->count );
}

TEST_P( EveryType, ComparesAndHasText )
{
    Ref<RT_OBJ> other = adopt( type.sample() );
    bool isByValue = type.sort()->compareFunc;
    EXPECT_TRUE( type.equals( object.get(), object.get() ) );
    EXPECT_EQ( isByValue, bool( type.equals( object.get(), other.get() ) ) );
    EXPECT_EQ( isByValue, type.compare( object.get(), other.get() ) == 0 );
    EXPECT_FALSE( type.equals( object.get(), nullptr ) );

    std::string text = utf8( type.toString( object.get() ) );
    EXPECT_EQ( text, utf8( type.toString( other.get() ) ) );
    EXPECT_EQ( !type.sort()->toStringFunc, text == type.sortName );
}

TEST_P( EveryType, IsCopiedWithoutWhatItRefersTo )
{
    if ( !type.copy )
        return;
    int64_t before = rtObjsAlive();
    Ref<RT_OBJ> copy = adopt( type.copy( object.get() ) );
    EXPECT_EQ( before == -1 ? -1 : before + 1, rtObjsAlive() );
    EXPECT_NE( object.get(), copy.get() );
    EXPECT_EQ( 1, copy->count );
    EXPECT_EQ( bool( type.sort()->compareFunc ), bool( type.equals( object.get(), copy.get() ) ) );
    EXPECT_EQ( utf8( type.toString( object.get() ) ), utf8( type.toString( copy.get() ) ) );
    object = {};
    EXPECT_FALSE( utf8( type.toString( copy.get() ) ).empty() );
}

TEST_P( EveryType, AbortsForNullAndForOtherTypes )
{
    EXPECT_ABORT( type.retain( nullptr ), "stdfunc retain: obj" );
    EXPECT_ABORT( type.release( nullptr ), "stdfunc release: obj" );
    EXPECT_ABORT( type.toString( nullptr ), "stdfunc tostring: obj" );
    EXPECT_ABORT( type.compare( nullptr, object.get() ), "stdfunc compare a: objA" );
    EXPECT_ABORT( type.compare( object.get(), nullptr ), "stdfunc compare b: objB" );
    EXPECT_ABORT( type.toAndFro( rtStringObj( str( "" ).get() ) ),
                  "stdfunc from: !obj || rtObjSort(obj)==&telsx___sort_" + type.sortName );
    if ( type.copy )
    {
        EXPECT_ABORT( type.copy( nullptr ), "source" );
    }
}

TEST( Module, DescribesItself )
{
    const RT_MODULE_RECORD *record = rtModuleRecord( telsxModule() );
    EXPECT_STREQ( "RT_MODULE", rtObjSort( telsxModule() )->name );
    EXPECT_EQ( "telsx", utf8( rtObjToString( telsxModule() ) ) );
    EXPECT_EQ( &telsx___module_record, record );
    EXPECT_EQ( 2, record->form );
    EXPECT_STREQ( "telsx", record->name );
    EXPECT_STREQ( "net rsc rt", record->modulesNeeded );
    EXPECT_THAT( record->buildTime, testing::MatchesRegex( "UTC ....-..-.. ..:..:.. \\([A-Z][a-z]+day\\)" ) );
}

TEST( Module, LeavesItsVersionToThoseWhoHoldIt )
{
    Ref<TELSX_VERSION> version = adopt( telsxVersionCreateSip20() );
    rtModuleStop( telsxModule() );
    EXPECT_EQ( nullptr, telsxVersionCreateSip20() );
    EXPECT_TRUE( telsxVersionIsSip20( version.get() ) );
    EXPECT_TRUE( rtModuleStart( telsxModule() ) );
    EXPECT_EQ( version, adopt( telsxVersionCreateSip20() ) );
}

TEST( Version, IsDecodedWhole )
{
    struct
    {
        const char *text, *version;
        bool isSip, isSip20;
    } cases[] = {
        { "SIP/2.0", "SIP/2.0", true, true },      { "sip / 2.0", "SIP/2.0", true, true },
        { "sip\t/ \t2.0", "SIP/2.0", true, true }, { "sIp/2.0A", "SIP/2.0a", true, false },
        { "SIP/3.0", "SIP/3.0", true, false },     { "SIPS/2.0", "SIPS/2.0", false, false },
    };
    for ( auto &[text, expected, isSip, isSip20] : cases )
    {
        Ref<TELSX_VERSION> version = adopt( applied( telsx___VersionTryDecode, text ) );
        ASSERT_TRUE( version ) << text;
        EXPECT_EQ( 1, telsxVersionObj( version.get() )->count ) << "a new object, also for SIP/2.0";
        EXPECT_EQ( expected, utf8( telsx___VersionEncode( version.get() ) ) );
        EXPECT_EQ( isSip, telsxVersionIsSip( version.get() ) ) << text;
        EXPECT_EQ( isSip20, telsxVersionIsSip20( version.get() ) ) << text;
    }
    for ( std::string_view text : list( "", "/", "SIP", "SIP/", "/2.0", "SIP 2.0", "SIP/2.0 ", " SIP/2.0",
                                        "SIP//2.0", "SIP/2.0/", "S\r\nIP/2.0", "SIP/2,0", "SÍP/2.0" ) )
        EXPECT_FALSE( adopt( applied( telsx___VersionTryDecode, text ) ) ) << text;
    EXPECT_ABORT( telsx___VersionTryDecode( nullptr, 1 ), "chs || length == 0" );
}

TEST( Version, SortsByNameFirst )
{
    auto version = []( const char *name, const char *number )
    { return adopt( telsxVersionCreate( str( name ).get(), str( number ).get() ) ); };
    EXPECT_EQ( version( "sip", "2.0" ), adopt( telsxVersionCreateSip20() ) );
    EXPECT_LT( version( "A", "9" ), version( "b", "1" ) );
    EXPECT_LT( version( "a", "1" ), version( "A", "9" ) );
    EXPECT_ABORT( telsx___VersionCompareFunc( rt::asObj( version( "a", "1" ).get() ), nullptr ), "verB" );
}
