// What holds for the objects of every type in every library. A test that includes this has a table of the types and
// passes it to INSTANTIATE_TEST_SUITE_P.
#pragma once

#include "../../fuzz/erased.hpp"
#include "support/support.hpp"

namespace support
{

// The functions of a type, for objects of any type.
struct ObjectType
{
    std::string sortName;
    RT_SORT ( *sort )();
    RT_OBJ ( *sample )(); // a new, equal one each time
    void ( *retain )( RT_OBJ obj );
    void ( *release )( RT_OBJ obj );
    RT_OBJ ( *toAndFro )( RT_OBJ obj ); // From, then Obj
    RT_STRING ( *toString )( RT_OBJ obj );
    int64_t ( *compare )( RT_OBJ a, RT_OBJ b );
    RT_BOOL ( *equals )( RT_OBJ a, RT_OBJ b );
    RT_OBJ ( *copy )( RT_OBJ obj ) = nullptr;     // if the type is copied
    void ( *change )( RT_OBJ *handle ) = nullptr; // to an object that isn't equal
    const char *text = nullptr;                   // of the sample; null for any, or its name if it has none

    friend void PrintTo( const ObjectType &type, std::ostream *stream ) { *stream << type.sortName; }
};

#define OBJECT_TYPE( PREFIX, HANDLE, SAMPLE )                                                              \
#HANDLE, PREFIX##Sort, [] { return PREFIX##Obj( ( SAMPLE ).take() ); }, ERASED( PREFIX##Retain ),      \
                                                                         ERASED( PREFIX##Release ),        \
                                                                         []( RT_OBJ obj )                  \
    { return PREFIX##Obj( PREFIX##From( obj ) ); }, ERASED( PREFIX##ToString ), ERASED( PREFIX##Compare ), \
                                                 ERASED( PREFIX##Equals )

struct EveryObject : testing::TestWithParam<ObjectType>
{
    const ObjectType &type = GetParam();
    Ref<RT_OBJ> object = adopt( type.sample() ), same = adopt( type.sample() );
    void SetUp() override { ASSERT_TRUE( object && same ) << "no sample"; }
    std::string text( const Ref<RT_OBJ> &of ) const { return utf8( type.toString( of.get() ) ); }
};

TEST_P( EveryObject, KnowsItsSort )
{
    EXPECT_EQ( type.sort(), rtObjSort( object.get() ) );
    EXPECT_EQ( type.sortName, type.sort()->name );
    EXPECT_EQ( object.get(), type.toAndFro( object.get() ) );
    EXPECT_EQ( nullptr, type.toAndFro( nullptr ) );
}

TEST_P( EveryObject, CountsReferences )
{
    EXPECT_EQ( 1, object->count );
    type.retain( object.get() );
    rtObjRetain( object.get() );
    EXPECT_EQ( 3, object->count );
    type.release( object.get() );
    rtObjRelease( object.get() );
    EXPECT_EQ( 1, object->count );
}

TEST_P( EveryObject, ComparesAndHasText )
{
    bool isByValue = type.sort()->compareFunc;
    EXPECT_TRUE( type.equals( object.get(), object.get() ) );
    EXPECT_EQ( isByValue, bool( type.equals( object.get(), same.get() ) ) );
    EXPECT_EQ( isByValue, type.compare( object.get(), same.get() ) == 0 );
    EXPECT_FALSE( type.equals( object.get(), nullptr ) );
    EXPECT_EQ( text( same ), text( object ) );
    EXPECT_EQ( !type.sort()->toStringFunc, text( object ) == type.sortName );
    EXPECT_EQ( type.text ? type.text : text( object ), text( object ) );
}

TEST_P( EveryObject, ChangesOnlyTheHandleThatIsGiven )
{
    if ( !type.change )
        return;
    Ref<RT_OBJ> changed = object;
    type.change( changed.address() );
    EXPECT_NE( object.get(), changed.get() );
    EXPECT_EQ( 1, object->count );
    EXPECT_EQ( 1, changed->count );
    EXPECT_TRUE( type.equals( object.get(), same.get() ) );
    EXPECT_FALSE( type.equals( object.get(), changed.get() ) );
    EXPECT_NE( type.compare( object.get(), changed.get() ) < 0,
               type.compare( changed.get(), same.get() ) < 0 );
    type.change( same.address() );
    EXPECT_TRUE( type.equals( same.get(), changed.get() ) );
}

TEST_P( EveryObject, IsCopiedWithoutWhatItRefersTo )
{
    if ( !type.copy )
        return;
    int64_t before = rtObjsAlive();
    Ref<RT_OBJ> copy = adopt( type.copy( object.get() ) );
    EXPECT_EQ( before == -1 ? -1 : before + 1, rtObjsAlive() );
    EXPECT_NE( object.get(), copy.get() );
    EXPECT_EQ( 1, copy->count );
    EXPECT_EQ( bool( type.sort()->compareFunc ), bool( type.equals( object.get(), copy.get() ) ) );
    EXPECT_EQ( text( object ), text( copy ) );
    object = {};
    EXPECT_FALSE( text( copy ).empty() );
    EXPECT_ABORT( type.copy( nullptr ), "source" );
}

TEST_P( EveryObject, AbortsForNullAndForOtherTypes )
{
    EXPECT_ABORT( type.retain( nullptr ), "stdfunc retain: obj" );
    EXPECT_ABORT( type.release( nullptr ), "stdfunc release: obj" );
    EXPECT_ABORT( type.toString( nullptr ), "stdfunc tostring: obj" );
    EXPECT_ABORT( type.compare( nullptr, object.get() ), "stdfunc compare a: objA" );
    EXPECT_ABORT( type.compare( object.get(), nullptr ), "stdfunc compare b: objB" );
    RT_OBJECT other = { type.sort() == rtStringSort() ? rtTimeSort() : rtStringSort(), RT_COUNT_IMMORTAL, 0 };
    EXPECT_DEATH( type.toAndFro( &other ),
                  "stdfunc from: !obj .. rtObjSort.obj.==&[a-z]+___sort_" + type.sortName + "\n" );
}

} // namespace support
