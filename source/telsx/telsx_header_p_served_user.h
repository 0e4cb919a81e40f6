/* P-Served-User header: the user whom a server acts for (RFC 5502).
 *
 *     P-Served-User = "P-Served-User" HCOLON ( name-addr / addr-spec ) *( SEMI served-user-param )  ; RFC 5502
 *     served-user-param = sessioncase-param / registration-state-param / generic-param
 *     sessioncase-param = "sescase" EQUAL ( "orig" / "term" )
 *     registration-state-param = "regstate" EQUAL ( "unreg" / "reg" )
 *
 * The orig-cdiv parameter of RFC 8498 is a generic one. Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_P_SERVED_USER_H
#define TELSX_TELSX_HEADER_P_SERVED_USER_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderPServedUser, HEADER_P_SERVED_USER )
TELSX_FREE_FUNC( HeaderPServedUser )

/* A header with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_HEADER_P_SERVED_USER telsxHeaderPServedUserCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxHeaderPServedUserIri( TELSX_HEADER_P_SERVED_USER hdr );
RT_API void telsxHeaderPServedUserSetIri( TELSX_HEADER_P_SERVED_USER *hdr, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxHeaderPServedUserDisplayName( TELSX_HEADER_P_SERVED_USER hdr );
RT_API RT_BOOL telsxHeaderPServedUserHasDisplayName( TELSX_HEADER_P_SERVED_USER hdr );
RT_API void telsxHeaderPServedUserSetDisplayName( TELSX_HEADER_P_SERVED_USER *hdr, RT_STRING displayName );
RT_API void telsxHeaderPServedUserDelDisplayName( TELSX_HEADER_P_SERVED_USER *hdr );

/* Whether the user is the caller (orig) or the called party (term), or null. Set aborts unless telsxSescaseOk. */
RT_API RT_STRING telsxHeaderPServedUserSescase( TELSX_HEADER_P_SERVED_USER hdr );
RT_API RT_BOOL telsxHeaderPServedUserHasSescase( TELSX_HEADER_P_SERVED_USER hdr );
RT_API void telsxHeaderPServedUserSetSescase( TELSX_HEADER_P_SERVED_USER *hdr, RT_STRING sescase );
RT_API void telsxHeaderPServedUserDelSescase( TELSX_HEADER_P_SERVED_USER *hdr );

/* Whether the user is registered, reg or unreg, or null. Set aborts unless telsxRegstateOk. */
RT_API RT_STRING telsxHeaderPServedUserRegstate( TELSX_HEADER_P_SERVED_USER hdr );
RT_API RT_BOOL telsxHeaderPServedUserHasRegstate( TELSX_HEADER_P_SERVED_USER hdr );
RT_API void telsxHeaderPServedUserSetRegstate( TELSX_HEADER_P_SERVED_USER *hdr, RT_STRING regstate );
RT_API void telsxHeaderPServedUserDelRegstate( TELSX_HEADER_P_SERVED_USER *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderPServedUserGenericParams( TELSX_HEADER_P_SERVED_USER hdr );
RT_API void telsxHeaderPServedUserSetGenericParams( TELSX_HEADER_P_SERVED_USER *hdr,
                                                    TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
