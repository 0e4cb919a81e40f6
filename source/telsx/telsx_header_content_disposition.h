/* Content-Disposition header: how a body is to be handled (RFC 3261, 20.11).
 *
 *     Content-Disposition = "Content-Disposition" HCOLON disp-type *( SEMI disp-param )
 *     disp-param = handling-param / generic-param
 *     handling-param = "handling" EQUAL ( "optional" / "required" / other-handling )
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_CONTENT_DISPOSITION_H
#define TELSX_TELSX_HEADER_CONTENT_DISPOSITION_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderContentDisposition, HEADER_CONTENT_DISPOSITION )
TELSX_FREE_FUNC( HeaderContentDisposition )

/* A header with this type and nothing else. Aborts unless telsxDispositionTypeOk. */
RT_API TELSX_HEADER_CONTENT_DISPOSITION telsxHeaderContentDispositionCreate( RT_STRING dispositionType );

/* The disposition type, in lower case, never null. Set aborts unless telsxDispositionTypeOk. */
RT_API RT_STRING telsxHeaderContentDispositionDispositionType( TELSX_HEADER_CONTENT_DISPOSITION hdr );
RT_API void telsxHeaderContentDispositionSetDispositionType( TELSX_HEADER_CONTENT_DISPOSITION *hdr,
                                                             RT_STRING dispositionType );

/* What to do with a body that is not understood, in lower case, or null. Set aborts unless
 * telsxHandlingOk. */
RT_API RT_STRING telsxHeaderContentDispositionHandling( TELSX_HEADER_CONTENT_DISPOSITION hdr );
RT_API RT_BOOL telsxHeaderContentDispositionHasHandling( TELSX_HEADER_CONTENT_DISPOSITION hdr );
RT_API void telsxHeaderContentDispositionSetHandling( TELSX_HEADER_CONTENT_DISPOSITION *hdr,
                                                      RT_STRING handling );
RT_API void telsxHeaderContentDispositionDelHandling( TELSX_HEADER_CONTENT_DISPOSITION *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS
telsxHeaderContentDispositionGenericParams( TELSX_HEADER_CONTENT_DISPOSITION hdr );
RT_API void telsxHeaderContentDispositionSetGenericParams( TELSX_HEADER_CONTENT_DISPOSITION *hdr,
                                                           TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
