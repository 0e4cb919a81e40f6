/* Finder: the findings of many messages, such as those of a capture, several times as fast as with
 * telsxMessageFindings.
 *
 * Most header lines of a peer come again and again: its product, its addresses, what it supports. A finder remembers
 * headers that it found to be without fault, and does not decode them another time. It takes a few MiB at most,
 * however many messages it reads.
 *
 * Like TELSX_MESSAGE_STREAM_DECODER, and unlike all other objects, a finder is changed in place, by one thread at a
 * time. */
#ifndef TELSX_TELSX_FINDER_H
#define TELSX_TELSX_FINDER_H

#include "telsx/telsx_finding.h"

RT_BEGIN

RT_OBJECT_TYPE( RT_API, telsxFinder, TELSX_FINDER )

/* A new finder, which remembers nothing. */
RT_API TELSX_FINDER telsxFinderCreate( void );

/* What telsxMessageFindings returns for the bytes of a message: a new vector of TELSX_FINDING. What the finder has
 * read before makes no difference to it. Aborts if the finder or the buffer is null. */
RT_API RT_VECTOR telsxFinderFindings( TELSX_FINDER finder, RT_BUFFER buf );

TELSX_FREE_FUNC( Finder )

RT_END

#endif
