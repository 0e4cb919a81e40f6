// Starts the module before the first test and stops it behind the last.
#include "support/support.hpp"
#include "telsx/telsx_module.h"

namespace
{

class Module : public testing::Environment
{
    void SetUp() override { ASSERT_TRUE( rtModuleStart( telsxModule() ) ); }
    void TearDown() override { rtModuleStop( telsxModule() ); }
};

// There are many death tests, and no threads beside them.
[[maybe_unused]] testing::Environment *const module = []
{
    GTEST_FLAG_SET( death_test_style, "fast" );
    return testing::AddGlobalTestEnvironment( new Module );
}();

} // namespace
