/* Byte buffers. A buffer that others hold too is never changed; what changes one takes the address of the
 * handle. Lengths and offsets are bytes. A part that is not inside its buffer aborts, and so do a negative
 * length and a null pointer with a length. */
#ifndef RT_RT_BUFFER_H
#define RT_RT_BUFFER_H

#include "rt/rt_object.h"

RT_BEGIN

/* Buffers compare byte by byte, then by length. */
RT_OBJECT_TYPE( RT_API, rtBuffer, RT_BUFFER )

/* An empty buffer, and one with a copy of the bytes, never null; each a new reference. */
RT_API RT_BUFFER rtBufferCreate( void );
RT_API RT_BUFFER rtBufferCreateFromBytesCopy( const void *bytes, int64_t length );

/* The number of bytes, how many more fit before the buffer must grow, and the bytes, which stay where they
 * are while the buffer is held and unchanged. */
RT_API int64_t rtBufferLength( RT_BUFFER buffer );
RT_API int64_t rtBufferSpace( RT_BUFFER buffer );
RT_API const void *rtBufferBacking( RT_BUFFER buffer );

/* Copies bytes out, from the offset on. */
RT_API void rtBufferRead( RT_BUFFER buffer, int64_t offset, void *bytes, int64_t length );

/* Appends; amortised O(1) for each byte. Of another buffer: all of it; a part (Inner); all but a part
 * (Outer); the first bytes (Leading); the last bytes (Trailing). */
RT_API void rtBufferAppendBytes( RT_BUFFER *buffer, const void *bytes, int64_t length );
RT_API void rtBufferAppend( RT_BUFFER *buffer, RT_BUFFER source );
RT_API void rtBufferAppendInner( RT_BUFFER *buffer, RT_BUFFER source, int64_t offset, int64_t length );
RT_API void rtBufferAppendOuter( RT_BUFFER *buffer, RT_BUFFER source, int64_t offset, int64_t length );
RT_API void rtBufferAppendLeading( RT_BUFFER *buffer, RT_BUFFER source, int64_t length );
RT_API void rtBufferAppendTrailing( RT_BUFFER *buffer, RT_BUFFER source, int64_t length );

/* Takes out the first bytes, amortised O(1) for each of them; takes out all but a part. */
RT_API void rtBufferDelLeading( RT_BUFFER *buffer, int64_t length );
RT_API void rtBufferDelOuter( RT_BUFFER *buffer, int64_t offset, int64_t length );

/* For the libraries above: a buffer of that many bytes, which the caller writes at once at the place that goes
 * to the second argument. Behind them is room for rt::scanSlack more that do not count. */
RT_API RT_BUFFER rt___BufferCreateWithLength( int64_t length, unsigned char **bytes );

/* For the libraries above: makes room for that many bytes more, counts them in, and returns where the caller
 * writes them at once. */
RT_API unsigned char *rt___BufferExtend( RT_BUFFER *buffer, int64_t length );

RT_END

#endif
