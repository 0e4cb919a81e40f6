/* Mime-Version header: which version of MIME a message uses (RFC 3261, 20.24).
 *
 *     MIME-Version = "MIME-Version" HCOLON 1*DIGIT "." 1*DIGIT */
#ifndef TELSX_TELSX_HEADER_MIME_VERSION_H
#define TELSX_TELSX_HEADER_MIME_VERSION_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderMimeVersion, HEADER_MIME_VERSION )
TELSX_FREE_FUNC( HeaderMimeVersion )

/* A header with this version. Aborts unless telsxMimeVersionOk. */
RT_API TELSX_HEADER_MIME_VERSION telsxHeaderMimeVersionCreate( RT_STRING mimeVersion );

/* The version as it is written, such as 1.0, never null. Set aborts unless telsxMimeVersionOk. */
RT_API RT_STRING telsxHeaderMimeVersionMimeVersion( TELSX_HEADER_MIME_VERSION hdr );
RT_API void telsxHeaderMimeVersionSetMimeVersion( TELSX_HEADER_MIME_VERSION *hdr, RT_STRING mimeVersion );

RT_END

#endif
