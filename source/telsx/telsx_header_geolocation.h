/* Geolocation header: where a party is (RFC 6442, 4.1).
 *
 *     Geolocation = "Geolocation" HCOLON locationValue *( COMMA locationValue )
 *
 * A list of values of telsx_location_value.h. */
#ifndef TELSX_TELSX_HEADER_GEOLOCATION_H
#define TELSX_TELSX_HEADER_GEOLOCATION_H

#include "telsx/telsx_header.h"
#include "telsx/telsx_location_value.h"

RT_BEGIN

TELSX_HEADER_OF_VALUES( HeaderGeolocation, HEADER_GEOLOCATION, LocationValue, LOCATION_VALUE )

RT_END

#endif
