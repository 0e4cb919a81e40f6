// Random operations on a type and on a model of it, through two handles that sometimes share one object.
#pragma once

#include <functional>
#include <random>
#include <vector>

#include "support/support.hpp"

namespace model
{

using support::adopt;
using support::Ref;

class Random
{
public:
    // From 0 to limit - 1.
    int64_t below( int64_t limit )
    {
        return static_cast<int64_t>( engine() % static_cast<uint64_t>( limit ) );
    }
    // From 0 to the maximum.
    int64_t upTo( std::size_t most ) { return below( static_cast<int64_t>( most ) + 1 ); }
    // One of the actions, at random.
    template <std::size_t SIZE>
    void act( const std::function<void()> ( &actions )[SIZE] )
    {
        actions[below( SIZE )]();
    }

private:
    std::mt19937_64 engine{ 42 };
};

template <class HANDLE, class MODEL>
struct Side
{
    Ref<HANDLE> real;
    MODEL model{};
};

// STEP changes the first side and may read the second, which is sometimes the first; SAME compares.
template <class MODEL, class HANDLE, class STEP, class SAME>
void run( Ref<HANDLE> empty, int steps, STEP step, SAME same )
{
    Random random;
    Side<HANDLE, MODEL> sides[2] = { { empty }, { std::move( empty ) } };
    for ( int i = 0; i < steps && !testing::Test::HasFailure(); ++i )
    {
        SCOPED_TRACE( i );
        int64_t at = random.below( 2 );
        if ( random.below( 8 ) == 0 )
            sides[at] = sides[1 - at];
        step( sides[at], sides[random.below( 2 )], random );
        same( sides[0] );
        same( sides[1] );
    }
}

// Each object equals a second one made the same way, and sorts before those that follow.
template <class MAKE, class... FROM>
void expectAscending( MAKE make, const FROM &...from )
{
    const Ref<RT_OBJ> objects[] = { adopt( make( from ) )... }, again[] = { adopt( make( from ) )... };
    for ( std::size_t i = 0; i < sizeof...( FROM ); ++i )
        for ( std::size_t j = 0; j < sizeof...( FROM ); ++j )
            EXPECT_EQ( i <=> j, rtObjCompare( objects[i].get(), again[j].get() ) <=> 0 ) << i << ", " << j;
}

inline std::vector<std::string> texts( const Ref<RT_VECTOR> &vector )
{
    std::vector<std::string> result;
    for ( int64_t i = 0; i < rtVectorLength( vector.get() ); ++i )
        result.push_back( support::utf8( rtObjToString( adopt( rtVectorObjAt( vector.get(), i ) ).get() ) ) );
    return result;
}

} // namespace model
