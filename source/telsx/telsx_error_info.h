/* Error-Info value: where to find more about an error.
 *
 *     error-param = LAQUOT absoluteURI RAQUOT *( SEMI generic-param )
 *
 * (RFC 3261, 25.1) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_ERROR_INFO_H
#define TELSX_TELSX_ERROR_INFO_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( ErrorInfo, ERROR_INFO )
TELSX_COMPARE_FUNC( ErrorInfo )
TELSX_TO_STRING_FUNC( ErrorInfo )

/* A value with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_ERROR_INFO telsxErrorInfoCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxErrorInfoIri( TELSX_ERROR_INFO errorInfo );
RT_API void telsxErrorInfoSetIri( TELSX_ERROR_INFO *errorInfo, RT_STRING iri );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxErrorInfoGenericParams( TELSX_ERROR_INFO errorInfo );
RT_API void telsxErrorInfoSetGenericParams( TELSX_ERROR_INFO *errorInfo, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
