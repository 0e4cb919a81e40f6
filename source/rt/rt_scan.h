/* Runs of characters of a set. */
#ifndef RT_RT_SCAN_H
#define RT_RT_SCAN_H

#include "rt/rt_object.h"

RT_BEGIN

/* For the libraries above: how many code points at the start are in a set of ASCII characters, for which sixteen
 * bytes stand: character 16 * i + j is in it if bit i of byte j is set. NUL is in none. */
RT_API int64_t rt___RunOf( const uint8_t *set, const RT_CHAR *chs, int64_t length );

RT_END

#endif
