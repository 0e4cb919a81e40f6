// What is wrong with the headers of a message that decodes.
#pragma once

#include "telsx/telsx_finding_list.hpp"
#include "telsx/telsx_finding_memory.hpp"
#include "telsx/telsx_message.h"

namespace telsx
{

// Adds a warning for each typed header and each value of one that cannot be read, and remarks about the rest. Headers
// without a fault are looked up and kept in the memory, unless it is null.
void findHeaderFaults( TELSX_MESSAGE msg, Bytes bytes, FindingList &findings, HeaderMemory *memory );

} // namespace telsx
