// What all types have in common, and modules.
#include "support/object_suite.hpp"

using namespace support;

namespace
{

template <class HANDLE>
Ref<HANDLE> filled( HANDLE created, void ( *fill )( HANDLE *object ) )
{
    Ref<HANDLE> object = adopt( created );
    fill( object.address() );
    return object;
}

// A type, the text of its sample, and how the sample is filled and changed.
#define TYPE( NAME, HANDLE, TEXT, FILL, CHANGE )                                  \
    {                                                                             \
        OBJECT_TYPE( rt##NAME, HANDLE,                                            \
                     filled(                                                      \
                         rt##NAME##Create(), +[]( HANDLE *object ) { FILL; } ) ), \
            nullptr, ERASED( +[]( HANDLE *object ) { CHANGE; } ), TEXT            \
    }
const ObjectType types[] = {
    TYPE( String, RT_STRING, "ab", rtStringAppendCstr( object, "ab", 2 ), rtStringAppendChar( object, 'c' ) ),
    TYPE( Vector, RT_VECTOR, "a", rtVectorAppendString( object, str( "a" ).get() ),
          rtVectorDelLeading( object, 1 ) ),
    TYPE( Dict, RT_DICT, "a: 1",
          rtDictSetStringKey( object, str( "a" ).get(), rtStringObj( str( "1" ).get() ) ),
          rtDictDelStringKey( object, str( "a" ).get() ) ),
    TYPE( Buffer, RT_BUFFER, "RT_BUFFER", rtBufferAppendBytes( object, "ab", 2 ),
          rtBufferDelLeading( object, 1 ) ),
    TYPE( Store, RT_STORE, "RT_STORE", rtStoreSetValueCstr( object, "name", 4, str( "value" ).get() ),
          rtStoreSetValueCstr( object, "name", -1, str( "other" ).get() ) ),
    TYPE( Time, RT_TIME, "2011-01-01 00:00:00", rtTimeSetYear( object, 2011 ), rtTimeSetDay( object, 28 ) ),
};
INSTANTIATE_TEST_SUITE_P( Rt, EveryObject, testing::ValuesIn( types ),
                          []( auto &test ) { return test.param.sortName; } );

} // namespace

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
    // The unit is given without its leading folders and its extension.
    EXPECT_EXIT( rtObjSort( nullptr ), testing::KilledBySignal( SIGABRT ),
                 "^source/rt/rt_object:[0-9]+: obj\n$" );
}

// Counts how often it is started and stopped.
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
