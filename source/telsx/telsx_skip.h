/* Skippers: how many code points at the start of a text form an element of the grammar.
 *
 * Every skipper takes a text, of which it reads nothing behind the end, and returns a count from 0 to its
 * length: 0 for no match. Nothing is allocated. White space is space and tab; line ends are none, since a
 * message's folds are undone before a value is looked at. A run is taken at its longest, alternatives are
 * tried in order, and the first that finds anything wins. A missing part of what must be there makes the
 * result 0 for the whole; an optional part that does not come off leaves the result in front of it. What
 * stands behind the element is the caller's to judge. A negative length aborts, and so does null with a
 * length.
 *
 * The elements that have a unit of their own have their skippers there. */
#ifndef TELSX_TELSX_SKIP_H
#define TELSX_TELSX_SKIP_H

#include "rt/rt.h"

RT_BEGIN

/* One character, which must be a code point; exactly these code points, all or none, in their case or with A
 * to Z and a to z as the same. An empty text to skip gives 0. */
RT_API int64_t telsx___SkipChar( const RT_CHAR *chs, int64_t length, RT_CHAR ch );
RT_API int64_t telsx___SkipChars( const RT_CHAR *chs, int64_t length, const RT_CHAR *skipChs,
                                  int64_t skipLength );
RT_API int64_t telsx___SkipCharsAsciiCaseFold( const RT_CHAR *chs, int64_t length, const RT_CHAR *skipChs,
                                               int64_t skipLength );

/* Runs of a class: digits, token without dot, word (RFC 3261, 25.1), atom (RFC 3892), white space. */
RT_API int64_t telsx___SkipDigits( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipWord( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipAtom( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipSws( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipLws( const RT_CHAR *chs, int64_t length );

/* A character with white space before it, behind it, on both sides; without the character 0. */
RT_API int64_t telsx___SkipSwsChar( const RT_CHAR *chs, int64_t length, RT_CHAR ch );
RT_API int64_t telsx___SkipCharSws( const RT_CHAR *chs, int64_t length, RT_CHAR ch );
RT_API int64_t telsx___SkipSwsCharSws( const RT_CHAR *chs, int64_t length, RT_CHAR ch );

/* The delimiters of RFC 3261, 25.1, with white space on both sides. */
RT_API int64_t telsx___SkipColon( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipHcolon( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipComma( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipEqual( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipLparen( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipRparen( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipSemi( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipSlash( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipStar( const RT_CHAR *chs, int64_t length );

/* The brackets and quotes: white space before an opening one, behind a closing one. */
RT_API int64_t telsx___SkipLaquot( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipLdquot( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipRaquot( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipRdquot( const RT_CHAR *chs, int64_t length );

/* Atoms with single dots between them. */
RT_API int64_t telsx___SkipDotAtom( const RT_CHAR *chs, int64_t length );

/* A text in double quotes with white space before it. A backslash takes the code point behind it along; a
 * bare or escaped CR or LF, and a missing closing quote, give 0. Any other code point may stand inside. */
RT_API int64_t telsx___SkipQuotedString( const RT_CHAR *chs, int64_t length );

/* A text in parentheses, which nest without limit, with white space around it (RFC 3261, 25.1, comment). */
RT_API int64_t telsx___SkipComment( const RT_CHAR *chs, int64_t length );

RT_END

#endif
