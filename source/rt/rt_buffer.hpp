// The inside of a buffer, for units that make bytes in place.
#pragma once

#include "rt/rt_buffer.h"

namespace rt
{

// Makes room for that many bytes more, counts them in, and returns where the caller writes them at once.
unsigned char *extend( RT_BUFFER *handle, int64_t length );

} // namespace rt
