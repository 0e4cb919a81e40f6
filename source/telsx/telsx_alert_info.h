/* Alert-Info value: a ring tone.
 *
 *     alert-param = LAQUOT absoluteURI RAQUOT *( SEMI generic-param )
 *
 * (RFC 3261, 25.1) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_ALERT_INFO_H
#define TELSX_TELSX_ALERT_INFO_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( AlertInfo, ALERT_INFO )
TELSX_COMPARE_FUNC( AlertInfo )
TELSX_TO_STRING_FUNC( AlertInfo )

/* A value with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_ALERT_INFO telsxAlertInfoCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxAlertInfoIri( TELSX_ALERT_INFO alertInfo );
RT_API void telsxAlertInfoSetIri( TELSX_ALERT_INFO *alertInfo, RT_STRING iri );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxAlertInfoGenericParams( TELSX_ALERT_INFO alertInfo );
RT_API void telsxAlertInfoSetGenericParams( TELSX_ALERT_INFO *alertInfo, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
