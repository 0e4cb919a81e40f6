/* Organization header: where a message comes from (RFC 3261, 20.25).
 *
 *     Organization = "Organization" HCOLON [ TEXT-UTF8-TRIM ] */
#ifndef TELSX_TELSX_HEADER_ORGANIZATION_H
#define TELSX_TELSX_HEADER_ORGANIZATION_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderOrganization, HEADER_ORGANIZATION )
TELSX_FREE_FUNC( HeaderOrganization )

/* A header with this text. Aborts for null, and unless telsxOrganizationOk. */
RT_API TELSX_HEADER_ORGANIZATION telsxHeaderOrganizationCreate( RT_STRING organization );

/* The text, with one blank between its words and no white space around it, possibly empty, never null. Set aborts
 * unless telsxOrganizationOk. */
RT_API RT_STRING telsxHeaderOrganizationOrganization( TELSX_HEADER_ORGANIZATION hdr );
RT_API void telsxHeaderOrganizationSetOrganization( TELSX_HEADER_ORGANIZATION *hdr, RT_STRING organization );

RT_END

#endif
