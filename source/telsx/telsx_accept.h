/* Accept value: a kind of body, or a range of them, that a party understands.
 *
 *     accept-range = media-range *( SEMI accept-param )
 *     media-range = ( "*" SLASH "*" ) / ( m-type SLASH "*" ) / ( m-type SLASH m-subtype )
 *     accept-param = ( "q" EQUAL qvalue ) / generic-param
 *
 * (RFC 3261, 25.1) An absent type or subtype stands for "*". Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_ACCEPT_H
#define TELSX_TELSX_ACCEPT_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( Accept, ACCEPT )
TELSX_COMPARE_FUNC( Accept )
TELSX_TO_STRING_FUNC( Accept )

/* A value that accepts every body: both halves are "*". */
RT_API TELSX_ACCEPT telsxAcceptCreate( void );

/* The two halves, in lower case, or null for "*". A subtype without a type is not written. SetMediaType aborts unless
 * telsxMediaTypeOk, and SetMediaSubtype unless telsxMediaSubtypeOk. */
RT_API RT_STRING telsxAcceptMediaType( TELSX_ACCEPT accept );
RT_API RT_BOOL telsxAcceptHasMediaType( TELSX_ACCEPT accept );
RT_API void telsxAcceptSetMediaType( TELSX_ACCEPT *accept, RT_STRING mediaType );
RT_API void telsxAcceptDelMediaType( TELSX_ACCEPT *accept );
RT_API RT_STRING telsxAcceptMediaSubtype( TELSX_ACCEPT accept );
RT_API RT_BOOL telsxAcceptHasMediaSubtype( TELSX_ACCEPT accept );
RT_API void telsxAcceptSetMediaSubtype( TELSX_ACCEPT *accept, RT_STRING mediaSubtype );
RT_API void telsxAcceptDelMediaSubtype( TELSX_ACCEPT *accept );

/* The weight in thousandths, 0 to 1000, or -1 if there is none. Set aborts unless telsxQvalueOk. */
RT_API int64_t telsxAcceptQvalue( TELSX_ACCEPT accept );
RT_API RT_BOOL telsxAcceptHasQvalue( TELSX_ACCEPT accept );
RT_API void telsxAcceptSetQvalue( TELSX_ACCEPT *accept, int64_t qvalue );
RT_API void telsxAcceptDelQvalue( TELSX_ACCEPT *accept );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxAcceptGenericParams( TELSX_ACCEPT accept );
RT_API void telsxAcceptSetGenericParams( TELSX_ACCEPT *accept, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
