// The blocks that objects stand in. Small ones that were freed wait in lists of their thread for the next
// object of their size, so that making and freeing a short-lived object costs a few instructions.
#pragma once

#include "rt/rt_object.h"

namespace rt
{

// A block of at least that many bytes; the size becomes the block's own.
RT_OBJ allocateBlock( int64_t *size );

void freeBlock( RT_OBJ obj );

// A block of at least that many bytes with the object of another, which is gone; the size in the object
// becomes the block's.
RT_OBJ growBlock( RT_OBJ obj, int64_t size );

} // namespace rt
