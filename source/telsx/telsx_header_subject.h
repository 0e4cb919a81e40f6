/* Subject header: what a call is about (RFC 3261, 20.36).
 *
 *     Subject = ( "Subject" / "s" ) HCOLON [ TEXT-UTF8-TRIM ] */
#ifndef TELSX_TELSX_HEADER_SUBJECT_H
#define TELSX_TELSX_HEADER_SUBJECT_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderSubject, HEADER_SUBJECT )
TELSX_FREE_FUNC( HeaderSubject )

/* A header with this text. Aborts for null, and unless telsxSubjectOk. */
RT_API TELSX_HEADER_SUBJECT telsxHeaderSubjectCreate( RT_STRING subject );

/* The text, with one blank between its words and no white space around it, possibly empty, never null. Set aborts
 * unless telsxSubjectOk. */
RT_API RT_STRING telsxHeaderSubjectSubject( TELSX_HEADER_SUBJECT hdr );
RT_API void telsxHeaderSubjectSetSubject( TELSX_HEADER_SUBJECT *hdr, RT_STRING subject );

RT_END

#endif
