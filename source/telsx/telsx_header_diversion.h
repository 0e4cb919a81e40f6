/* Diversion header: who diverted a call (RFC 5806, 4).
 *
 *     Diversion = "Diversion" HCOLON diversion-params *( COMMA diversion-params )
 *
 * The values are kept as text, in order, and read one by one when somebody asks (telsx_diversion.h); each is
 * written on a line of its own. Two headers compare by these texts. A raw header without lines is bad text;
 * one with an empty line is an empty list. */
#ifndef TELSX_TELSX_HEADER_DIVERSION_H
#define TELSX_TELSX_HEADER_DIVERSION_H

#include "telsx/telsx_diversion.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderDiversion, HEADER_DIVERSION )
TELSX_FREE_FUNC( HeaderDiversion )

/* A header without values. */
RT_API TELSX_HEADER_DIVERSION telsxHeaderDiversionCreate( void );

/* The number of values, and the value at the index: a new reference, or null for bad text, which some values
 * show no sooner than here. An index out of range aborts, here and below. */
RT_API int64_t telsxHeaderDiversionDiversionsLength( TELSX_HEADER_DIVERSION hdr );
RT_API TELSX_DIVERSION telsxHeaderDiversionTryDecodeDiversionAt( TELSX_HEADER_DIVERSION hdr, int64_t index );

/* Changes of the list. The header keeps the text of the value and not the value. Set, Prepend, Append and Insert abort for
 * null and for a value that can't be encoded, since its reason, privacy or screen holds CR or LF. */
RT_API void telsxHeaderDiversionSetDiversionAt( TELSX_HEADER_DIVERSION *hdr, int64_t index,
                                                TELSX_DIVERSION diversion );
RT_API void telsxHeaderDiversionDelDiversionAt( TELSX_HEADER_DIVERSION *hdr, int64_t index );
RT_API void telsxHeaderDiversionPrependDiversion( TELSX_HEADER_DIVERSION *hdr, TELSX_DIVERSION diversion );
RT_API void telsxHeaderDiversionAppendDiversion( TELSX_HEADER_DIVERSION *hdr, TELSX_DIVERSION diversion );
RT_API void telsxHeaderDiversionInsertDiversion( TELSX_HEADER_DIVERSION *hdr, int64_t index,
                                                 TELSX_DIVERSION diversion );
RT_API void telsxHeaderDiversionClearDiversions( TELSX_HEADER_DIVERSION *hdr );

RT_END

#endif
