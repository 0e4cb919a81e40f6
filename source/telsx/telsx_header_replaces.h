/* Replaces header: the dialog that a call replaces (RFC 3891, 6.1).
 *
 *     Replaces = "Replaces" HCOLON callid *( SEMI replaces-param )
 *     replaces-param = to-tag / from-tag / early-flag / generic-param
 *     to-tag = "to-tag" EQUAL token
 *     from-tag = "from-tag" EQUAL token
 *     early-flag = "early-only"
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_REPLACES_H
#define TELSX_TELSX_HEADER_REPLACES_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderReplaces, HEADER_REPLACES )
TELSX_FREE_FUNC( HeaderReplaces )

/* A header with this call id and nothing else. Aborts unless telsxCallIdOk. */
RT_API TELSX_HEADER_REPLACES telsxHeaderReplacesCreate( RT_STRING callId );

/* The call id of the dialog, in its original case, never null. Set aborts unless telsxCallIdOk. */
RT_API RT_STRING telsxHeaderReplacesCallId( TELSX_HEADER_REPLACES hdr );
RT_API void telsxHeaderReplacesSetCallId( TELSX_HEADER_REPLACES *hdr, RT_STRING callId );

/* The tags of the dialog, in their original case, or null. Set aborts unless telsxTagOk. */
RT_API RT_STRING telsxHeaderReplacesFromTag( TELSX_HEADER_REPLACES hdr );
RT_API RT_BOOL telsxHeaderReplacesHasFromTag( TELSX_HEADER_REPLACES hdr );
RT_API void telsxHeaderReplacesSetFromTag( TELSX_HEADER_REPLACES *hdr, RT_STRING tag );
RT_API void telsxHeaderReplacesDelFromTag( TELSX_HEADER_REPLACES *hdr );
RT_API RT_STRING telsxHeaderReplacesToTag( TELSX_HEADER_REPLACES hdr );
RT_API RT_BOOL telsxHeaderReplacesHasToTag( TELSX_HEADER_REPLACES hdr );
RT_API void telsxHeaderReplacesSetToTag( TELSX_HEADER_REPLACES *hdr, RT_STRING tag );
RT_API void telsxHeaderReplacesDelToTag( TELSX_HEADER_REPLACES *hdr );

/* Whether only an early dialog is to be replaced. */
RT_API RT_BOOL telsxHeaderReplacesEarlyOnly( TELSX_HEADER_REPLACES hdr );
RT_API void telsxHeaderReplacesSetEarlyOnly( TELSX_HEADER_REPLACES *hdr, RT_BOOL earlyOnly );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderReplacesGenericParams( TELSX_HEADER_REPLACES hdr );
RT_API void telsxHeaderReplacesSetGenericParams( TELSX_HEADER_REPLACES *hdr,
                                                 TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
