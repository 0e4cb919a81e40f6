// The findings of one message, with or without a memory of earlier ones.
#pragma once

#include "telsx/telsx_finding_memory.hpp"

namespace telsx
{

// What telsxMessageFindings returns. Headers without a fault are looked up and kept in the memory, unless it is null.
Ref<RT_VECTOR> findingsOf( RT_BUFFER buf, HeaderMemory *memory );

} // namespace telsx
