/* Diversion value: who diverted a call, and why.
 *
 *     diversion-params = name-addr *( SEMI ( diversion-reason / diversion-counter / diversion-limit /
 *         diversion-privacy / diversion-screen / diversion-extension ) )
 *
 * (RFC 5806, 4) The texts of reason, privacy and screen are plain and in lower case; any word is allowed. Values have
 * no order: each is equal only to itself. */
#ifndef TELSX_TELSX_DIVERSION_H
#define TELSX_TELSX_DIVERSION_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

/* Encode aborts for a reason, privacy or screen that holds CR or LF. */
TELSX_VALUE_OBJECT( Diversion, DIVERSION )

/* A diversion by this address, without or with a display name. Both abort unless telsxIriOk, and for a display name
 * unless telsxDisplayNameOk. */
RT_API TELSX_DIVERSION telsxDiversionCreate( RT_STRING iri );
RT_API TELSX_DIVERSION telsxDiversionCreateWithDisplayName( RT_STRING iri, RT_STRING displayName );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxDiversionIri( TELSX_DIVERSION diversion );
RT_API void telsxDiversionSetIri( TELSX_DIVERSION *diversion, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxDiversionDisplayName( TELSX_DIVERSION diversion );
RT_API RT_BOOL telsxDiversionHasDisplayName( TELSX_DIVERSION diversion );
RT_API void telsxDiversionSetDisplayName( TELSX_DIVERSION *diversion, RT_STRING displayName );
RT_API void telsxDiversionDelDisplayName( TELSX_DIVERSION *diversion );

/* Why the call was diverted, or null. Set accepts any text, which it keeps in lower case, and aborts for null. A text
 * with CR or LF can be set but not encoded: every function that encodes the value or appends it to a header then
 * aborts. Check telsxQuotableStringOk first. */
RT_API RT_STRING telsxDiversionReason( TELSX_DIVERSION diversion );
RT_API RT_BOOL telsxDiversionHasReason( TELSX_DIVERSION diversion );
RT_API void telsxDiversionSetReason( TELSX_DIVERSION *diversion, RT_STRING reason );
RT_API void telsxDiversionDelReason( TELSX_DIVERSION *diversion );

/* How often the call was diverted, 0 to 99, or -1 if absent. Set aborts unless telsxDiversionCounterOk. */
RT_API int64_t telsxDiversionCounter( TELSX_DIVERSION diversion );
RT_API RT_BOOL telsxDiversionHasCounter( TELSX_DIVERSION diversion );
RT_API void telsxDiversionSetCounter( TELSX_DIVERSION *diversion, int64_t counter );
RT_API void telsxDiversionDelCounter( TELSX_DIVERSION *diversion );

/* How often the call may be diverted, 0 to 99, or -1 if absent. Set aborts unless telsxDiversionLimitOk. */
RT_API int64_t telsxDiversionLimit( TELSX_DIVERSION diversion );
RT_API RT_BOOL telsxDiversionHasLimit( TELSX_DIVERSION diversion );
RT_API void telsxDiversionSetLimit( TELSX_DIVERSION *diversion, int64_t limit );
RT_API void telsxDiversionDelLimit( TELSX_DIVERSION *diversion );

/* How the diverting party wants to be shown, and whether it was verified. As with the reason, a text with CR or LF can
 * be set but not encoded. */
RT_API RT_STRING telsxDiversionPrivacy( TELSX_DIVERSION diversion );
RT_API RT_BOOL telsxDiversionHasPrivacy( TELSX_DIVERSION diversion );
RT_API void telsxDiversionSetPrivacy( TELSX_DIVERSION *diversion, RT_STRING privacy );
RT_API void telsxDiversionDelPrivacy( TELSX_DIVERSION *diversion );
RT_API RT_STRING telsxDiversionScreen( TELSX_DIVERSION diversion );
RT_API RT_BOOL telsxDiversionHasScreen( TELSX_DIVERSION diversion );
RT_API void telsxDiversionSetScreen( TELSX_DIVERSION *diversion, RT_STRING screen );
RT_API void telsxDiversionDelScreen( TELSX_DIVERSION *diversion );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxDiversionGenericParams( TELSX_DIVERSION diversion );
RT_API void telsxDiversionSetGenericParams( TELSX_DIVERSION *diversion, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
