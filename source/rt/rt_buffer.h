/* Byte buffers. A buffer that others hold too is never changed: functions that change a buffer take the address of
 * its handle. Lengths and offsets are in bytes. Every function aborts for a part that is not inside its buffer, for a
 * negative length, and for a null pointer unless its length is 0. */
#ifndef RT_RT_BUFFER_H
#define RT_RT_BUFFER_H

#include "rt/rt_object.h"

RT_BEGIN

/* Buffers compare byte by byte, then by length. */
RT_OBJECT_TYPE( RT_API, rtBuffer, RT_BUFFER )

/* An empty buffer, and a buffer with a copy of the bytes; each a new reference, never null. */
RT_API RT_BUFFER rtBufferCreate( void );
RT_API RT_BUFFER rtBufferCreateFromBytesCopy( const void *bytes, int64_t length );

/* The number of bytes; how many more fit before the buffer must grow; the bytes, which stay where they are while the
 * buffer is held and unchanged. */
RT_API int64_t rtBufferLength( RT_BUFFER buffer );
RT_API int64_t rtBufferSpace( RT_BUFFER buffer );
RT_API const void *rtBufferBacking( RT_BUFFER buffer );

/* Copies bytes out, starting at the offset. */
RT_API void rtBufferRead( RT_BUFFER buffer, int64_t offset, void *bytes, int64_t length );

/* Appends bytes, or bytes of another buffer: all of them, a part (Inner), all but a part (Outer), the first ones
 * (Leading) or the last ones (Trailing). Amortised O(1) for each byte. */
RT_API void rtBufferAppendBytes( RT_BUFFER *buffer, const void *bytes, int64_t length );
RT_API void rtBufferAppend( RT_BUFFER *buffer, RT_BUFFER source );
RT_API void rtBufferAppendInner( RT_BUFFER *buffer, RT_BUFFER source, int64_t offset, int64_t length );
RT_API void rtBufferAppendOuter( RT_BUFFER *buffer, RT_BUFFER source, int64_t offset, int64_t length );
RT_API void rtBufferAppendLeading( RT_BUFFER *buffer, RT_BUFFER source, int64_t length );
RT_API void rtBufferAppendTrailing( RT_BUFFER *buffer, RT_BUFFER source, int64_t length );

/* DelLeading removes the first bytes, amortised O(1) for each of them; DelOuter removes all but a part. */
RT_API void rtBufferDelLeading( RT_BUFFER *buffer, int64_t length );
RT_API void rtBufferDelOuter( RT_BUFFER *buffer, int64_t offset, int64_t length );

/* For the libraries above: a buffer of that many bytes, which the caller must write at once. Their address goes to the
 * second argument. After them there is room for another rt::scanSlack bytes, which do not count. */
RT_API RT_BUFFER rt___BufferCreateWithLength( int64_t length, unsigned char **bytes );

/* For the libraries above: makes the buffer that many bytes longer and returns their address. The caller must write
 * them at once. */
RT_API unsigned char *rt___BufferExtend( RT_BUFFER *buffer, int64_t length );

RT_END

#endif
