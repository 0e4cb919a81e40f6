/* Reason value: why a request was sent.
 *
 *     reason-value = protocol *( SEMI reason-params )
 *     reason-params = protocol-cause / reason-text / reason-extension
 *     protocol-cause = "cause" EQUAL cause
 *     reason-text = "text" EQUAL quoted-string
 *
 * (RFC 3326, 2) Values have no order: each is equal only to itself. */
#ifndef TELSX_TELSX_REASON_H
#define TELSX_TELSX_REASON_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( Reason, REASON )

/* A reason with this protocol and nothing else. Aborts unless telsxReasonProtocolOk. */
RT_API TELSX_REASON telsxReasonCreate( RT_STRING reasonProtocol );

/* The protocol, in its original case, such as SIP or Q.850, never null. Set aborts unless telsxReasonProtocolOk. */
RT_API RT_STRING telsxReasonProtocol( TELSX_REASON reason );
RT_API void telsxReasonSetProtocol( TELSX_REASON *reason, RT_STRING protocol );

/* The cause: digits, leading zeros included, or null. Set aborts unless telsxReasonCauseOk. */
RT_API RT_STRING telsxReasonCause( TELSX_REASON reason );
RT_API RT_BOOL telsxReasonHasCause( TELSX_REASON reason );
RT_API void telsxReasonSetCause( TELSX_REASON *reason, RT_STRING cause );
RT_API void telsxReasonDelCause( TELSX_REASON *reason );

/* The text, plain, or null. Set aborts unless telsxReasonTextOk. */
RT_API RT_STRING telsxReasonText( TELSX_REASON reason );
RT_API RT_BOOL telsxReasonHasText( TELSX_REASON reason );
RT_API void telsxReasonSetText( TELSX_REASON *reason, RT_STRING text );
RT_API void telsxReasonDelText( TELSX_REASON *reason );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxReasonGenericParams( TELSX_REASON reason );
RT_API void telsxReasonSetGenericParams( TELSX_REASON *reason, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
