/* Target-Dialog header: a dialog that shows that the sender of a request may send it (RFC 4538).
 *
 *     Target-Dialog = "Target-Dialog" HCOLON callid *( SEMI td-param )
 *     td-param = remote-param / local-param / generic-param
 *     remote-param = "remote-tag" EQUAL token
 *     local-param = "local-tag" EQUAL token
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_TARGET_DIALOG_H
#define TELSX_TELSX_HEADER_TARGET_DIALOG_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderTargetDialog, HEADER_TARGET_DIALOG )
TELSX_FREE_FUNC( HeaderTargetDialog )

/* A header with this call id and nothing else. Aborts unless telsxCallIdOk. */
RT_API TELSX_HEADER_TARGET_DIALOG telsxHeaderTargetDialogCreate( RT_STRING callId );

/* The call id of the dialog, in its original case, never null. Set aborts unless telsxCallIdOk. */
RT_API RT_STRING telsxHeaderTargetDialogCallId( TELSX_HEADER_TARGET_DIALOG hdr );
RT_API void telsxHeaderTargetDialogSetCallId( TELSX_HEADER_TARGET_DIALOG *hdr, RT_STRING callId );

/* The tags of the dialog as the sender of the request sees it, in their original case, or null. Set aborts unless
 * telsxTagOk. */
RT_API RT_STRING telsxHeaderTargetDialogLocalTag( TELSX_HEADER_TARGET_DIALOG hdr );
RT_API RT_BOOL telsxHeaderTargetDialogHasLocalTag( TELSX_HEADER_TARGET_DIALOG hdr );
RT_API void telsxHeaderTargetDialogSetLocalTag( TELSX_HEADER_TARGET_DIALOG *hdr, RT_STRING localTag );
RT_API void telsxHeaderTargetDialogDelLocalTag( TELSX_HEADER_TARGET_DIALOG *hdr );
RT_API RT_STRING telsxHeaderTargetDialogRemoteTag( TELSX_HEADER_TARGET_DIALOG hdr );
RT_API RT_BOOL telsxHeaderTargetDialogHasRemoteTag( TELSX_HEADER_TARGET_DIALOG hdr );
RT_API void telsxHeaderTargetDialogSetRemoteTag( TELSX_HEADER_TARGET_DIALOG *hdr, RT_STRING remoteTag );
RT_API void telsxHeaderTargetDialogDelRemoteTag( TELSX_HEADER_TARGET_DIALOG *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderTargetDialogGenericParams( TELSX_HEADER_TARGET_DIALOG hdr );
RT_API void telsxHeaderTargetDialogSetGenericParams( TELSX_HEADER_TARGET_DIALOG *hdr,
                                                     TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
