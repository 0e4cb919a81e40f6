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

// A death test goes on from where it stands: some tests have many, and none has threads then.
[[maybe_unused]] testing::Environment *const module = []
{
    GTEST_FLAG_SET( death_test_style, "fast" );
    return testing::AddGlobalTestEnvironment( new Module );
}();

} // namespace
