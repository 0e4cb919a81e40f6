#include "support/support.hpp"

int main( int argc, char **argv )
{
    testing::InitGoogleTest( &argc, argv );
    testing::UnitTest::GetInstance()->listeners().Append( new support::LeakCheck );
    return RUN_ALL_TESTS();
}
