// Vectors, dictionaries and stores.
#include <algorithm>
#include <map>

#include "model.hpp"

using namespace support;
using model::Random;
using model::texts;

using Strings = std::vector<std::string>;
using Map = std::map<std::string, std::string>;

using VectorSide = model::Side<RT_VECTOR, Strings>;

static void stepVector( VectorSide &side, const VectorSide &, Random &random )
{
    RT_VECTOR *vector = side.real.address();
    Strings &items = side.model;
    std::string item = std::to_string( random.below( 1000 ) );
    Ref<RT_STRING> string = str( item );
    int64_t place = random.upTo( items.size() ), few = std::min<int64_t>( place, 3 );
    auto at = items.begin() + place;
    const std::function<void()> actions[] = {
        [&] { rtVectorAppendString( vector, string.get() ), items.push_back( item ); },
        [&] { rtVectorPrependString( vector, string.get() ), items.insert( items.begin(), item ); },
        [&] { rtVectorInsertString( vector, place, string.get() ), items.insert( at, item ); },
        [&]
        {
            if ( at != items.end() )
                rtVectorSetStringAt( vector, place, string.get() ), *at = item;
        },
        [&]
        {
            if ( at != items.end() )
                rtVectorDelAt( vector, place ), items.erase( at );
        },
        [&] { rtVectorDelLeading( vector, few ), items.erase( items.begin(), items.begin() + few ); },
        [&] { rtVectorClear( vector ), items.clear(); },
    };
    items.size() > 40 ? std::end( actions )[-1]() : random.act( actions );
}

TEST( RtVector, ActsLikeItsModel )
{
    auto same = []( const VectorSide &side ) { EXPECT_EQ( side.model, texts( side.real ) ); };
    model::run<Strings>( adopt( rtVectorCreate() ), 10000, stepVector, same );
}

TEST( RtVector, ComparesElementByElementThenByLength )
{
    auto make = []( const Strings &items )
    {
        Ref<RT_VECTOR> vector = adopt( rtVectorCreate() );
        for ( const std::string &item : items )
            rtVectorAppendString( vector.address(), str( item ).get() );
        return rtVectorObj( vector.take() );
    };
    model::expectAscending( make, Strings{}, Strings{ "" }, Strings{ "a" }, Strings{ "a", "b" },
                            Strings{ "a", "c" }, Strings{ "b" } );
}

TEST( RtVector, KnowsWhatItContains )
{
    Ref<RT_VECTOR> vector = adopt( rtVectorCreateWithCapacity( 1 ) );
    EXPECT_TRUE( rtVectorContainsOnly( vector.get(), rtStringSort() ) );
    rtVectorAppendString( vector.address(), str( "a" ).get() );
    EXPECT_TRUE( rtVectorContainsOnly( vector.get(), rtStringSort() ) );
    // The vector is appended as it was before, so nothing contains itself.
    rtVectorAppend( vector.address(), rtVectorObj( vector.get() ) );
    EXPECT_FALSE( rtVectorContainsOnly( vector.get(), rtStringSort() ) );
    EXPECT_EQ( "a, a", utf8( rtVectorToString( vector.get() ) ) );

    EXPECT_ABORT( rtVectorObjAt( vector.get(), 2 ), "index >= 0 && index < vector->length" );
    EXPECT_ABORT( rtVectorDelAt( vector.address(), -1 ), "index >= 0 && index < rtVectorLength( *handle )" );
}

// A model of a dictionary: the sorted keys, and their values.
struct DictModel
{
    Strings keys;
    Map values;
};

static void set( Ref<RT_DICT> &dict, const std::string &key, const std::string &value )
{
    rtDictSetStringKey( dict.address(), str( key ).get(), rtStringObj( str( value ).get() ) );
}

TEST( RtDict, ActsLikeItsModel )
{
    int step = 0;
    auto change = [&step]( model::Side<RT_DICT, DictModel> &side, auto &, Random &random )
    {
        auto &[real, model] = side;
        // Phases with few keys alternate with phases with many; the more keys, the more deletions.
        int64_t many = ++step / 2000 % 2 ? 8 : 200;
        std::string key = "key" + std::to_string( random.below( many ) ), value = std::to_string( step );
        if ( random.below( 1000 ) == 0 )
        {
            rtDictClear( real.address() );
            model = {};
        }
        else if ( random.upTo( model.keys.size() ) > many / 3 )
        {
            rtDictDelStringKey( real.address(), str( key ).get() );
            model.values.erase( key );
            std::erase( model.keys, key );
        }
        else
        {
            set( real, key, value );
            if ( !model.values.contains( key ) )
                model.keys.push_back( key );
            model.values[key] = value;
        }
        EXPECT_EQ( model.values.contains( key ), rtDictHasStringKey( real.get(), str( key ).get() ) );
    };
    auto same = [&step]( const model::Side<RT_DICT, DictModel> &side )
    {
        auto &[real, model] = side;
        ASSERT_EQ( std::ssize( model.keys ), rtDictLength( real.get() ) );
        if ( step % 10 )
            return;
        Strings values;
        // From the back first, near which the reading before has ended.
        for ( int64_t i = 0; i < std::ssize( model.keys ); ++i )
        {
            const std::string &key = model.keys[static_cast<std::size_t>( i )];
            values.push_back( model.values.at( key ) );
            int64_t fromBack = std::ssize( model.keys ) - 1 - i;
            EXPECT_EQ( model.keys[static_cast<std::size_t>( fromBack )],
                       utf8( rtDictKeyAt( real.get(), fromBack ) ) );
            EXPECT_EQ( key, utf8( rtDictKeyAt( real.get(), i ) ) );
            EXPECT_EQ( values.back(), utf8( rtStringFrom( rtDictValueAt( real.get(), i ) ) ) );
            EXPECT_EQ( values.back(),
                       utf8( rtStringFrom( rtDictStringKey( real.get(), str( key ).get() ) ) ) );
        }
        EXPECT_EQ( model.keys, texts( adopt( rtDictKeysVector( real.get() ) ) ) );
        EXPECT_EQ( values, texts( adopt( rtDictValuesVector( real.get() ) ) ) );
        EXPECT_EQ( nullptr, rtDictStringKey( real.get(), str( "key" ).get() ) );
    };
    model::run<DictModel>( adopt( rtDictCreate() ), 20000, change, same );
}

TEST( RtDict, TellsItsEntriesInOrder )
{
    Ref<RT_DICT> dict = adopt( rtDictCreate() );
    EXPECT_EQ( "", utf8( rtDictToString( dict.get() ) ) );
    set( dict, "b", "1" );
    set( dict, "a", "2" );
    EXPECT_EQ( "b: 1, a: 2", utf8( rtDictToString( dict.get() ) ) );
    EXPECT_ABORT( rtDictKeyAt( dict.get(), 2 ), "index >= 0 && index < dict->length" );
}

TEST( RtDict, ComparesAsAMap )
{
    // Every other one is made in reverse order, and with an entry that is deleted again.
    bool isReverse = false;
    auto make = [&isReverse]( Map entries )
    {
        Ref<RT_DICT> dict = adopt( rtDictCreate() );
        isReverse = !isReverse;
        set( dict, "gone", "" );
        while ( !entries.empty() )
        {
            auto next = isReverse ? std::prev( entries.end() ) : entries.begin();
            set( dict, next->first, next->second );
            entries.erase( next );
        }
        rtDictDelStringKey( dict.address(), str( "gone" ).get() );
        return rtDictObj( dict.take() );
    };
    model::expectAscending( make, Map{}, Map{ { "a", "1" } }, Map{ { "a", "1" }, { "b", "2" } },
                            Map{ { "a", "2" } }, Map{ { "b", "1" } }, Map{ { "b", "1" }, { "c", "" } },
                            Map{ { "c", "" } } );
}

TEST( RtStore, KeepsValuesAndStoresInOrder )
{
    Ref<RT_STORE> store = adopt( rtStoreCreate() ), lines = adopt( rtStoreCreate() );
    rtStoreSetValueCstr( lines.address(), "0", -1, str( "a line" ).get() );
    rtStoreSetStoreCstr( store.address(), "lines", 5, lines.get() );
    rtStoreSetValueCstr( store.address(), "name", -1, str( "Via" ).get() );
    rtStoreSetValueCstr( store.address(), "nameless", 4, str( "Route" ).get() );

    EXPECT_EQ( 2, rtStoreLength( store.get() ) );
    EXPECT_EQ( nullptr, rtStoreValueAt( store.get(), 0 ) );
    EXPECT_EQ( "Route", utf8( rtStoreValueAt( store.get(), 1 ) ) );
    EXPECT_EQ( "Route", utf8( rtStoreValueCstr( store.get(), "name", -1 ) ) );
    EXPECT_EQ( nullptr, rtStoreValueCstr( store.get(), "lines", -1 ) );
    EXPECT_EQ( nullptr, rtStoreStoreCstr( store.get(), "name", -1 ) );
    EXPECT_EQ( nullptr, rtStoreStoreCstr( store.get(), "none", -1 ) );

    // The store that was put in doesn't change with the original, even when a store is put into itself.
    rtStoreSetValueCstr( lines.address(), "1", -1, str( "another line" ).get() );
    EXPECT_EQ( 1, rtStoreLength( adopt( rtStoreStoreCstr( store.get(), "lines", -1 ) ).get() ) );
    rtStoreSetStoreCstr( lines.address(), "before", -1, lines.get() );
    EXPECT_EQ( 3, rtStoreLength( lines.get() ) );
    EXPECT_EQ( 2, rtStoreLength( adopt( rtStoreStoreCstr( lines.get(), "before", -1 ) ).get() ) );

    EXPECT_ABORT( rtStoreValueAt( store.get(), 2 ), "index >= 0 && index < dict->length" );
}
