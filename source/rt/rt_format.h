/* Numbers. */
#ifndef RT_RT_FORMAT_H
#define RT_RT_FORMAT_H

#include "rt/rt_object.h"

RT_BEGIN

/* Reads an integer from the start of the text: digits of the radix (2 to 36, letters in any case), any number of
 * leading zeros, no sign, no white space. Returns false and leaves value and consumed alone if there is no digit or if
 * the number does not fit a signed 64-bit integer. consumed receives the number of digits and may be null. */
RT_API RT_BOOL rtFormatTryDecodeIntChars( const RT_CHAR *chs, int64_t length, int64_t radix, int64_t *value,
                                          int64_t *consumed );

/* The smaller and the larger of two numbers. */
RT_API int64_t rtIntMin( int64_t a, int64_t b );
RT_API int64_t rtIntMax( int64_t a, int64_t b );

RT_END

#endif
