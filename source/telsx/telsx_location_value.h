/* Location value: where a party is, or where to learn it. Element of Geolocation.
 *
 *     locationValue = LAQUOT locationURI RAQUOT *( SEMI geoloc-param )
 *     geoloc-param = generic-param
 *
 * (RFC 6442, 4.1) A cid: address is that of a body part of the same message. Values sort by the fields in the order
 * below. */
#ifndef TELSX_TELSX_LOCATION_VALUE_H
#define TELSX_TELSX_LOCATION_VALUE_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( LocationValue, LOCATION_VALUE )
TELSX_COMPARE_FUNC( LocationValue )
TELSX_TO_STRING_FUNC( LocationValue )

/* A value with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_LOCATION_VALUE telsxLocationValueCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxLocationValueIri( TELSX_LOCATION_VALUE locationValue );
RT_API void telsxLocationValueSetIri( TELSX_LOCATION_VALUE *locationValue, RT_STRING iri );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxLocationValueGenericParams( TELSX_LOCATION_VALUE locationValue );
RT_API void telsxLocationValueSetGenericParams( TELSX_LOCATION_VALUE *locationValue,
                                                TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipLocationValue( const RT_CHAR *chs, int64_t length );

RT_END

#endif
