/* Conversion between bytes and text. The only charset is 44, UTF-8 (RFC 3629); any other number aborts. */
#ifndef RT_RT_CHARSET_H
#define RT_RT_CHARSET_H

#include "rt/rt_buffer.h"
#include "rt/rt_string.h"

RT_BEGIN

/* The number of UTF-8. */
#define RT_CHARSET_UTF8 44

/* The text of the bytes, a new reference, or null if they are not strict UTF-8: no overlong form, no surrogate,
 * nothing above U+10FFFF. Aborts unless flags is 1. */
RT_API RT_STRING rtCharsetBufferToStringWithFlags( int64_t charset, RT_BUFFER buffer, int64_t flags );

/* The bytes of the text, a new reference. A number in the text that is not a character, such as a surrogate, becomes
 * U+FFFD. */
RT_API RT_BUFFER rtCharsetStringToBuffer( int64_t charset, RT_STRING string );

/* The same for plain bytes: a new string, or null if the bytes are not strict UTF-8; and the bytes of a string,
 * appended to a buffer. */
RT_API RT_STRING rtStringTryCreateFromUtf8( const char *bytes, int64_t length );
RT_API void rtBufferAppendUtf8( RT_BUFFER *buffer, RT_STRING string );

/* For the libraries above, of plain bytes: whether they are ASCII; a string of bytes that are. */
RT_API RT_BOOL rt___AsciiOk( const char *bytes, int64_t length );
RT_API RT_STRING rt___StringCreateFromAscii( const char *bytes, int64_t length );

/* For the libraries above, on plain bytes. Ok tells whether they are strict UTF-8. Length returns how many code points
 * they have if they are, and otherwise at least as many as Decode can write. Decode writes the code points and returns
 * their number; if the bytes are not strict UTF-8, it returns -1 and has written the code points before the fault. */
RT_API RT_BOOL rt___Utf8Ok( const unsigned char *bytes, int64_t length );
RT_API int64_t rt___Utf8Length( const unsigned char *bytes, int64_t length );
RT_API int64_t rt___Utf8Decode( const unsigned char *bytes, int64_t length, RT_CHAR *into );

/* For the libraries above. Length returns how many bytes rtBufferAppendUtf8 would append; the other function writes
 * these bytes and returns their number. */
RT_API int64_t rt___StringUtf8Length( RT_STRING string );
RT_API int64_t rt___StringUtf8Encode( RT_STRING string, unsigned char *into );

/* For the libraries above. Writes one byte for each code point and tells whether all are ASCII; if they aren't, what was
 * written is not valid. */
RT_API RT_BOOL rt___StringTryNarrow( RT_STRING string, unsigned char *into );

RT_END

#endif
