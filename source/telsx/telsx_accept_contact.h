/* Accept-Contact value: features that a caller wants in a contact.
 *
 *     ac-value = "*" *( SEMI ac-params )
 *     ac-params = feature-param / req-param / explicit-param / generic-param
 *     req-param = "require"
 *     explicit-param = "explicit"
 *
 * (RFC 3841, 10) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_ACCEPT_CONTACT_H
#define TELSX_TELSX_ACCEPT_CONTACT_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( AcceptContact, ACCEPT_CONTACT )
TELSX_COMPARE_FUNC( AcceptContact )
TELSX_TO_STRING_FUNC( AcceptContact )

/* A value without features. */
RT_API TELSX_ACCEPT_CONTACT telsxAcceptContactCreate( void );

/* Whether contacts without the features are to be dropped. */
RT_API RT_BOOL telsxAcceptContactRequire( TELSX_ACCEPT_CONTACT acceptContact );
RT_API void telsxAcceptContactSetRequire( TELSX_ACCEPT_CONTACT *acceptContact, RT_BOOL require );

/* Whether contacts that do not state the features count as without them. */
RT_API RT_BOOL telsxAcceptContactExplicit( TELSX_ACCEPT_CONTACT acceptContact );
RT_API void telsxAcceptContactSetExplicit( TELSX_ACCEPT_CONTACT *acceptContact, RT_BOOL isExplicit );

/* The features (RFC 3840) and all other parameters, never null. When the text is written, a field takes precedence
 * over a parameter of its name. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxAcceptContactGenericParams( TELSX_ACCEPT_CONTACT acceptContact );
RT_API void telsxAcceptContactSetGenericParams( TELSX_ACCEPT_CONTACT *acceptContact,
                                                TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipAcceptContact( const RT_CHAR *chs, int64_t length );

RT_END

#endif
