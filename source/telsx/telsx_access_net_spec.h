/* Access network: how a party is attached to the network.
 *
 *     access-net-spec = ( access-type / access-class ) *( SEMI access-info )  ; RFC 7315, 5.4
 *     access-type = "IEEE-802.11" / "3GPP-E-UTRAN-FDD" / "ADSL" / token  ; among others
 *     access-class = "3GPP-GERAN" / "3GPP-E-UTRAN" / token  ; among others
 *     access-info = np / cgi-3gpp / utran-cell-id-3gpp / dsl-location / generic-param  ; among others
 *     np = "np"
 *     utran-cell-id-3gpp = "utran-cell-id-3gpp" EQUAL ( token / quoted-string )
 *
 * (RFC 7315, 5.4) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_ACCESS_NET_SPEC_H
#define TELSX_TELSX_ACCESS_NET_SPEC_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( AccessNetSpec, ACCESS_NET_SPEC )
TELSX_COMPARE_FUNC( AccessNetSpec )
TELSX_TO_STRING_FUNC( AccessNetSpec )

/* A network of this type or class and nothing else. Aborts unless telsxTokenOk. */
RT_API TELSX_ACCESS_NET_SPEC telsxAccessNetSpecCreate( RT_STRING accessType );

/* The type or class, in its original case, never null. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxAccessNetSpecAccessType( TELSX_ACCESS_NET_SPEC accessNetSpec );
RT_API void telsxAccessNetSpecSetAccessType( TELSX_ACCESS_NET_SPEC *accessNetSpec, RT_STRING accessType );

/* Whether the network provided this value, and not the party itself. Set takes any number but 0 as 1. */
RT_API RT_BOOL telsxAccessNetSpecNp( TELSX_ACCESS_NET_SPEC accessNetSpec );
RT_API void telsxAccessNetSpecSetNp( TELSX_ACCESS_NET_SPEC *accessNetSpec, RT_BOOL np );

/* All other parameters, such as utran-cell-id-3gpp, never null. When the text is written, a field takes precedence
 * over a parameter of its name. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxAccessNetSpecGenericParams( TELSX_ACCESS_NET_SPEC accessNetSpec );
RT_API void telsxAccessNetSpecSetGenericParams( TELSX_ACCESS_NET_SPEC *accessNetSpec,
                                                TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipAccessNetSpec( const RT_CHAR *chs, int64_t length );

RT_END

#endif
