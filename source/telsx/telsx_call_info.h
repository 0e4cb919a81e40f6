/* Call-Info value: information about a party, and its purpose.
 *
 *     info = LAQUOT absoluteURI RAQUOT *( SEMI info-param )
 *     info-param = ( "purpose" EQUAL ( "icon" / "info" / "card" / token ) ) / generic-param
 *
 * (RFC 3261, 25.1) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_CALL_INFO_H
#define TELSX_TELSX_CALL_INFO_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( CallInfo, CALL_INFO )
TELSX_COMPARE_FUNC( CallInfo )
TELSX_TO_STRING_FUNC( CallInfo )

/* A value with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_CALL_INFO telsxCallInfoCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxCallInfoIri( TELSX_CALL_INFO callInfo );
RT_API void telsxCallInfoSetIri( TELSX_CALL_INFO *callInfo, RT_STRING iri );

/* Its purpose, in lower case, or null. Set aborts unless telsxPurposeOk. */
RT_API RT_STRING telsxCallInfoPurpose( TELSX_CALL_INFO callInfo );
RT_API RT_BOOL telsxCallInfoHasPurpose( TELSX_CALL_INFO callInfo );
RT_API void telsxCallInfoSetPurpose( TELSX_CALL_INFO *callInfo, RT_STRING purpose );
RT_API void telsxCallInfoDelPurpose( TELSX_CALL_INFO *callInfo );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxCallInfoGenericParams( TELSX_CALL_INFO callInfo );
RT_API void telsxCallInfoSetGenericParams( TELSX_CALL_INFO *callInfo, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
