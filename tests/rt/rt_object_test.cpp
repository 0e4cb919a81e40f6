// What all types have in common, and modules.
#include "support/support.hpp"

using namespace support;

// The functions of a type under names that are the same for all types, its text when it is filled, how to fill it and
// how to change it then.
#define KIND( NAME, HANDLE, TEXT, FILL, CHANGE )                                      \
    struct NAME                                                                       \
    {                                                                                 \
        static constexpr auto create = rt##NAME##Create;                              \
        static constexpr auto sort = rt##NAME##Sort;                                  \
        static constexpr auto retain = rt##NAME##Retain, release = rt##NAME##Release; \
        static constexpr auto obj = rt##NAME##Obj;                                    \
        static constexpr auto from = rt##NAME##From;                                  \
        static constexpr auto toString = rt##NAME##ToString;                          \
        static constexpr auto compare = rt##NAME##Compare;                            \
        static constexpr auto equals = rt##NAME##Equals;                              \
        static constexpr const char *name = #HANDLE, *text = TEXT;                    \
        static void fill( HANDLE *object ) { FILL; }                                  \
        static void change( HANDLE *object ) { CHANGE; }                              \
    };

KIND( String, RT_STRING, "ab", rtStringAppendCstr( object, "ab", 2 ), rtStringAppendChar( object, 'c' ) )
KIND( Vector, RT_VECTOR, "a", rtVectorAppendString( object, str( "a" ).get() ),
      rtVectorDelLeading( object, 1 ) )
KIND( Dict, RT_DICT, "a: 1", rtDictSetStringKey( object, str( "a" ).get(), rtStringObj( str( "1" ).get() ) ),
      rtDictDelStringKey( object, str( "a" ).get() ) )
KIND( Buffer, RT_BUFFER, "RT_BUFFER", rtBufferAppendBytes( object, "ab", 2 ),
      rtBufferDelLeading( object, 1 ) )
KIND( Store, RT_STORE, "RT_STORE", rtStoreSetValueCstr( object, "name", 4, str( "value" ).get() ),
      rtStoreSetValueCstr( object, "name", -1, str( "other" ).get() ) )
KIND( Time, RT_TIME, "2011-01-01 00:00:00", rtTimeSetYear( object, 2011 ), rtTimeSetDay( object, 28 ) )

template <class KIND>
struct RtObject : testing::Test
{
    static auto make()
    {
        auto made = adopt( KIND::create() );
        KIND::fill( made.address() );
        return made;
    }
};

using Kinds = testing::Types<String, Vector, Dict, Buffer, Store, Time>;
TYPED_TEST_SUITE( RtObject, Kinds, );

TYPED_TEST( RtObject, CountsReferences )
{
    auto object = this->make();
    RT_OBJ obj = TypeParam::obj( object.get() );
    EXPECT_EQ( 1, obj->count );
    TypeParam::retain( object.get() );
    rtObjRetain( obj );
    EXPECT_EQ( 3, obj->count );
    TypeParam::release( object.get() );
    rtObjRelease( obj );
    EXPECT_EQ( 1, obj->count );
}

TYPED_TEST( RtObject, KnowsItsSortAndText )
{
    auto object = this->make();
    RT_OBJ obj = TypeParam::obj( object.get() );
    EXPECT_EQ( TypeParam::sort(), rtObjSort( obj ) );
    EXPECT_STREQ( TypeParam::name, TypeParam::sort()->name );
    EXPECT_EQ( object.get(), TypeParam::from( obj ) );
    EXPECT_EQ( nullptr, TypeParam::from( nullptr ) );
    EXPECT_EQ( nullptr, TypeParam::obj( nullptr ) );
    EXPECT_EQ( TypeParam::text, utf8( TypeParam::toString( object.get() ) ) );
}

TYPED_TEST( RtObject, ChangesOnlyTheHandleThatIsGiven )
{
    auto original = this->make(), copy = original, same = this->make();
    TypeParam::change( copy.address() );
    EXPECT_NE( original.get(), copy.get() );
    EXPECT_EQ( 1, TypeParam::obj( original.get() )->count );
    EXPECT_EQ( 1, TypeParam::obj( copy.get() )->count );

    EXPECT_TRUE( TypeParam::equals( original.get(), same.get() ) );
    EXPECT_EQ( 0, TypeParam::compare( original.get(), same.get() ) );
    EXPECT_FALSE( TypeParam::equals( original.get(), copy.get() ) );
    EXPECT_NE( 0, TypeParam::compare( original.get(), copy.get() ) );
    EXPECT_NE( TypeParam::compare( original.get(), copy.get() ) < 0,
               TypeParam::compare( copy.get(), same.get() ) < 0 );

    TypeParam::change( same.address() );
    EXPECT_TRUE( TypeParam::equals( same.get(), copy.get() ) );
}

TYPED_TEST( RtObject, AbortsForNullAndForOtherSorts )
{
    auto object = this->make();
    EXPECT_ABORT( TypeParam::retain( nullptr ), "stdfunc retain: obj" );
    EXPECT_ABORT( TypeParam::compare( object.get(), nullptr ), "stdfunc compare b: objB" );
    EXPECT_FALSE( TypeParam::equals( object.get(), nullptr ) );
    RT_OBJECT other = { rtStringSort() == TypeParam::sort() ? rtTimeSort() : rtStringSort(),
                        RT_COUNT_IMMORTAL, 0 };
    EXPECT_ABORT( TypeParam::from( &other ),
                  "stdfunc from: !obj || rtObjSort(obj)==&rt___sort_" + std::string( TypeParam::name ) );
}

TEST( RtObject, ComparesAnyTwo )
{
    Ref<RT_STRING> string = str( "a" );
    Ref<RT_TIME> time = adopt( rtTimeCreate() );
    RT_OBJ a = rtStringObj( string.get() ), b = rtTimeObj( time.get() );
    EXPECT_EQ( 0, rtObjCompare( nullptr, nullptr ) );
    EXPECT_LT( rtObjCompare( nullptr, a ), 0 );
    EXPECT_GT( rtObjCompare( a, nullptr ), 0 );
    EXPECT_NE( 0, rtObjCompare( a, b ) );
    EXPECT_NE( rtObjCompare( a, b ) < 0, rtObjCompare( b, a ) < 0 );

    RT_SORT_ plain = {
        RT_STATIC_OBJECT( &rt___sort_RT_SORT ), nullptr, "PLAIN", nullptr, nullptr, nullptr, {}
    };
    Ref<RT_OBJ> c = adopt( rt___ObjCreate( sizeof( RT_OBJECT ), &plain ) ),
                d = adopt( rt___ObjCreate( sizeof( RT_OBJECT ), &plain ) );
    EXPECT_EQ( 0, rtObjCompare( c.get(), c.get() ) );
    EXPECT_NE( 0, rtObjCompare( c.get(), d.get() ) );
    EXPECT_EQ( "PLAIN", utf8( rtObjToString( c.get() ) ) );
    // Sort records are objects too.
    EXPECT_EQ( "PLAIN", utf8( rtObjToString( &plain.object ) ) );
    EXPECT_STREQ( "RT_SORT", rtObjSort( &plain.object )->name );
}

TEST( RtObject, AbortsInOneLine )
{
    EXPECT_EXIT( rt___Abort( "why", "source/x/x_unit", 7, "a == b" ), testing::KilledBySignal( SIGABRT ),
                 "^source/x/x_unit:7: why: a == b\n$" );
    EXPECT_EXIT( rt___Abort( nullptr, "source/x/x_unit", 7, "a" ), testing::KilledBySignal( SIGABRT ),
                 "^source/x/x_unit:7: a\n$" );
    // The unit is told without the folders in front of it and without its ending.
    EXPECT_EXIT( rtObjSort( nullptr ), testing::KilledBySignal( SIGABRT ),
                 "^source/rt/rt_object:[0-9]+: obj\n$" );
}

// Counts how often it was started and stopped.
static int starts, stops;
static RT_BOOL answer;

static RT_BOOL startup( void )
{
    ++starts;
    return answer;
}
static void shutdown( void ) { ++stops; }

static RT_MODULE_RECORD record = { 2, "", "", {}, "", "", "", "counting", "", "", "", "" };
static RT_MODULE module = {
    RT_STATIC_OBJECT( &rt___sort_RT_MODULE ), &record, startup, nullptr, shutdown, {}
};
static RT_MODULE second = {
    RT_STATIC_OBJECT( &rt___sort_RT_MODULE ), &record, startup, nullptr, shutdown, {}
};

TEST( RtModule, StartsOnceAndStopsWithTheLast )
{
    answer = starts = stops = 0;
    EXPECT_EQ( &record, rtModuleRecord( &module.object ) );
    EXPECT_FALSE( rtModuleStart( &module.object ) );
    EXPECT_ABORT( rtModuleStop( &module.object ), "started" );
    answer = 1;
    for ( int round = 1; round <= 2; ++round )
    {
        EXPECT_TRUE( rtModuleStart( &module.object ) );
        EXPECT_TRUE( rtModuleStart( &module.object ) );
        EXPECT_EQ( 1 + round, starts );
        rtModuleStop( &module.object );
        EXPECT_EQ( round - 1, stops );
        rtModuleStop( &module.object );
        EXPECT_EQ( round, stops );
    }
    for ( RT_MODULE *each : { &module, &second } )
        EXPECT_TRUE( rtModuleStart( &each->object ) );
    for ( RT_MODULE *each : { &module, &second } )
        rtModuleStop( &each->object );
    EXPECT_EQ( 4, stops );
}
