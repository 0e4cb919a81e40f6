/* Conversion between bytes and text. The one charset is 44, UTF-8 (RFC 3629); any other number aborts. */
#ifndef RT_RT_CHARSET_H
#define RT_RT_CHARSET_H

#include "rt/rt_buffer.h"
#include "rt/rt_string.h"

RT_BEGIN

/* The number of UTF-8. */
#define RT_CHARSET_UTF8 44

/* The text of the bytes, a new reference, or null if they are not strictly UTF-8: no overlong form, no
 * surrogate, nothing above U+10FFFF. The flags must be 1. */
RT_API RT_STRING rtCharsetBufferToStringWithFlags( int64_t charset, RT_BUFFER buffer, int64_t flags );

/* The bytes of the text, a new reference. A number in the text that is no character, such as a surrogate,
 * comes out as U+FFFD. */
RT_API RT_BUFFER rtCharsetStringToBuffer( int64_t charset, RT_STRING string );

/* The same from and to plain bytes: a new string, or null if the bytes are not strictly UTF-8; the bytes
 * appended to a buffer. */
RT_API RT_STRING rtStringTryCreateFromUtf8( const char *bytes, int64_t length );
RT_API void rtBufferAppendUtf8( RT_BUFFER *buffer, RT_STRING string );

/* For the libraries above: how many code points at the start are in a set of ASCII characters, for which sixteen
 * bytes stand: character 16 * i + j is in it if bit i of byte j is set. NUL is in none. */
RT_API int64_t rt___RunOf( const uint8_t *set, const RT_CHAR *chs, int64_t length );

/* For the libraries above, of plain bytes: whether they are ASCII; a string of bytes that are. */
RT_API RT_BOOL rt___AsciiOk( const char *bytes, int64_t length );
RT_API RT_STRING rt___StringCreateFromAscii( const char *bytes, int64_t length );

/* For the libraries above, of plain bytes: whether they are strictly UTF-8; how many code points they have if
 * they are, and never fewer than a decoder finds if they aren't; the code points themselves. Decode returns
 * their number, or -1 if the bytes are not strictly UTF-8, after it has written what came before. */
RT_API RT_BOOL rt___Utf8Ok( const unsigned char *bytes, int64_t length );
RT_API int64_t rt___Utf8Length( const unsigned char *bytes, int64_t length );
RT_API int64_t rt___Utf8Decode( const unsigned char *bytes, int64_t length, RT_CHAR *into );

/* For the libraries above: how many bytes rtBufferAppendUtf8 appends; and those bytes, written at once, whose
 * number it returns. */
RT_API int64_t rt___StringUtf8Length( RT_STRING string );
RT_API int64_t rt___StringUtf8Encode( RT_STRING string, unsigned char *into );

RT_END

#endif
