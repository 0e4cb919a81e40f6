/* Refer-Sub header: whether a REFER makes a subscription (RFC 4488).
 *
 *     Refer-Sub = "Refer-Sub" HCOLON refer-sub-value *( SEMI exten )
 *     refer-sub-value = "true" / "false"
 *     exten = generic-param
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_REFER_SUB_H
#define TELSX_TELSX_HEADER_REFER_SUB_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderReferSub, HEADER_REFER_SUB )
TELSX_FREE_FUNC( HeaderReferSub )

/* A header that says whether there is to be a subscription, and nothing else. */
RT_API TELSX_HEADER_REFER_SUB telsxHeaderReferSubCreate( RT_BOOL referSub );

/* Whether there is to be a subscription. */
RT_API RT_BOOL telsxHeaderReferSubReferSub( TELSX_HEADER_REFER_SUB hdr );
RT_API void telsxHeaderReferSubSetReferSub( TELSX_HEADER_REFER_SUB *hdr, RT_BOOL referSub );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderReferSubGenericParams( TELSX_HEADER_REFER_SUB hdr );
RT_API void telsxHeaderReferSubSetGenericParams( TELSX_HEADER_REFER_SUB *hdr,
                                                 TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
