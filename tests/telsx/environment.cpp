// Starts the module before the first test and stops it after the last.
#include "support/support.hpp"
#include "telsx/telsx_module.h"

namespace
{

class Module : public testing::Environment
{
    void SetUp() override { ASSERT_TRUE( rtModuleStart( telsxModule() ) ); }
    void TearDown() override { rtModuleStop( telsxModule() ); }
};

[[maybe_unused]] testing::Environment *const module = testing::AddGlobalTestEnvironment( new Module );

} // namespace
