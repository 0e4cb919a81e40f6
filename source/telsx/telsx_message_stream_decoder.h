/* Message stream decoder: cuts the bytes of a stream, such as a TCP connection, into messages (RFC 3261, 18.3
 * and 7.5).
 *
 * The caller writes bytes as they come, in pieces of any size, and reads messages until it gets null. Every message
 * must have a Content-Length; line ends between messages are skipped. A head that is bad, or that has no Content-Length
 * or no start line, sets the error latch for good: nothing tells any longer where the next message begins, and the
 * caller closes the stream.
 *
 * Unlike all other objects, a decoder is changed in place, by one thread at a time. Every function aborts for a null
 * decoder. */
#ifndef TELSX_TELSX_MESSAGE_STREAM_DECODER_H
#define TELSX_TELSX_MESSAGE_STREAM_DECODER_H

#include "telsx/telsx_message.h"

RT_BEGIN

RT_OBJECT_TYPE( RT_API, telsxMessageStreamDecoder, TELSX_MESSAGE_STREAM_DECODER )

/* A new, empty decoder. */
RT_API TELSX_MESSAGE_STREAM_DECODER telsxMessageStreamDecoderCreate( void );

/* Whether the latch is set; how many bytes are held, and how many more fit before the buffer grows. There is no limit:
 * a caller that wants one checks the length. */
RT_API RT_BOOL telsxMessageStreamDecoderError( TELSX_MESSAGE_STREAM_DECODER decoder );
RT_API int64_t telsxMessageStreamDecoderLength( TELSX_MESSAGE_STREAM_DECODER decoder );
RT_API int64_t telsxMessageStreamDecoderSpace( TELSX_MESSAGE_STREAM_DECODER decoder );

/* Appends bytes, in the same parts as the functions of rt/rt_buffer.h, and returns true. With the latch set it does
 * nothing and returns false. Lengths and offsets are in bytes. */
RT_API RT_BOOL telsxMessageStreamDecoderWrite( TELSX_MESSAGE_STREAM_DECODER decoder, RT_BUFFER source );
RT_API RT_BOOL telsxMessageStreamDecoderWriteLeading( TELSX_MESSAGE_STREAM_DECODER decoder, RT_BUFFER source,
                                                      int64_t length );
RT_API RT_BOOL telsxMessageStreamDecoderWriteTrailing( TELSX_MESSAGE_STREAM_DECODER decoder, RT_BUFFER source,
                                                       int64_t length );
RT_API RT_BOOL telsxMessageStreamDecoderWriteInner( TELSX_MESSAGE_STREAM_DECODER decoder, RT_BUFFER source,
                                                    int64_t offset, int64_t length );
RT_API RT_BOOL telsxMessageStreamDecoderWriteOuter( TELSX_MESSAGE_STREAM_DECODER decoder, RT_BUFFER source,
                                                    int64_t offset, int64_t length );

/* The next message, a new reference, or null if no whole message is there or the latch is set. It always has a body,
 * which is empty for Content-Length: 0. */
RT_API TELSX_MESSAGE telsxMessageStreamDecoderRead( TELSX_MESSAGE_STREAM_DECODER decoder );

TELSX_FREE_FUNC( MessageStreamDecoder )

RT_END

#endif
