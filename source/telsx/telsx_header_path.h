/* Path header: the proxies between a party and its registrar (RFC 3327, 4).
 *
 *     Path = "Path" HCOLON path-value *( COMMA path-value )
 *     path-value = name-addr *( SEMI rr-param )
 *
 * A list of values of telsx_route.h. */
#ifndef TELSX_TELSX_HEADER_PATH_H
#define TELSX_TELSX_HEADER_PATH_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_route.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderPath, HEADER_PATH, Route, ROUTE )

RT_END

#endif
