/* Join header: the dialog that a call joins (RFC 3911, 7.1).
 *
 *     Join = "Join" HCOLON callid *( SEMI join-param )
 *     join-param = to-tag / from-tag / generic-param
 *     to-tag = "to-tag" EQUAL token
 *     from-tag = "from-tag" EQUAL token
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_JOIN_H
#define TELSX_TELSX_HEADER_JOIN_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderJoin, HEADER_JOIN )
TELSX_FREE_FUNC( HeaderJoin )

/* A header with this call id and nothing else. Aborts unless telsxCallIdOk. */
RT_API TELSX_HEADER_JOIN telsxHeaderJoinCreate( RT_STRING callId );

/* The call id of the dialog, in its original case, never null. Set aborts unless telsxCallIdOk. */
RT_API RT_STRING telsxHeaderJoinCallId( TELSX_HEADER_JOIN hdr );
RT_API void telsxHeaderJoinSetCallId( TELSX_HEADER_JOIN *hdr, RT_STRING callId );

/* The tags of the dialog, in their original case, or null. Set aborts unless telsxTagOk. */
RT_API RT_STRING telsxHeaderJoinFromTag( TELSX_HEADER_JOIN hdr );
RT_API RT_BOOL telsxHeaderJoinHasFromTag( TELSX_HEADER_JOIN hdr );
RT_API void telsxHeaderJoinSetFromTag( TELSX_HEADER_JOIN *hdr, RT_STRING fromTag );
RT_API void telsxHeaderJoinDelFromTag( TELSX_HEADER_JOIN *hdr );
RT_API RT_STRING telsxHeaderJoinToTag( TELSX_HEADER_JOIN hdr );
RT_API RT_BOOL telsxHeaderJoinHasToTag( TELSX_HEADER_JOIN hdr );
RT_API void telsxHeaderJoinSetToTag( TELSX_HEADER_JOIN *hdr, RT_STRING toTag );
RT_API void telsxHeaderJoinDelToTag( TELSX_HEADER_JOIN *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderJoinGenericParams( TELSX_HEADER_JOIN hdr );
RT_API void telsxHeaderJoinSetGenericParams( TELSX_HEADER_JOIN *hdr, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
