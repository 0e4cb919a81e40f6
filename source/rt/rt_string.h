/* Strings of 32-bit code points. A string that others hold too is never changed: functions that change a string take
 * the address of its handle. Lengths, offsets and counts are in code points.
 *
 * Text arguments come in three forms, each with its length: code points; 8-bit characters (Cstr), each one code point
 * from U+0000 to U+00FF; wide characters (Wcstr), each one code point. A length of -1 means up to the zero. A null
 * pointer with a length of 0 is an empty text; any other null pointer aborts, and so does a length below -1. */
#ifndef RT_RT_STRING_H
#define RT_RT_STRING_H

#include <stdarg.h>
#include <wchar.h>

#include "rt/rt_object.h"

RT_BEGIN

RT_OBJECT_TYPE( RT_API, rtString, RT_STRING )
/* For the libraries above: the sort record, for static strings. */
extern RT_API const struct RT_SORT_ rt___sort_RT_STRING;

/* New strings; each a new reference. CreateFromInner makes the part of a string that starts at the offset and has that
 * length or, with -1, goes up to the end. It shares the text if that saves a copy without keeping a large text alive
 * for a small part. It aborts for a part that is not inside the string. */
RT_API RT_STRING rtStringCreate( void );
RT_API RT_STRING rtStringCreateFromCstr( const char *chars, int64_t length );
RT_API RT_STRING rtStringCreateFromWcstr( const wchar_t *chars, int64_t length );
RT_API RT_STRING rtStringCreateFromCharsCopy( const RT_CHAR *chs, int64_t length );
RT_API RT_STRING rtStringCreateFromInner( RT_STRING string, int64_t offset, int64_t length );

/* New strings from a format and its arguments. The format may hold
 *
 *   %i          a signed 64-bit integer in decimal; %02i with at least two digits, padded with zeros
 *   %^02!16i    the same in radix 16, in upper case
 *   %.*A        two 64-bit integers, a largest value and a value: the value in decimal, padded with zeros to the
 *               width of the largest
 *   %s          a string, which stays the caller's
 *   %~s         a string whose reference the call takes over
 *   %%          a percent sign
 *
 * Anything else after a percent sign aborts, and so does a null string. */
RT_API RT_STRING rtStringCreateFromFormatCstr( const char *format, int64_t length, ... );
RT_API RT_STRING rtStringCreateFromFormatCstrArgList( const char *format, int64_t length, va_list args );
RT_API RT_STRING rtStringCreateFromFormatWcstrArgList( const wchar_t *format, int64_t length, va_list args );
RT_API RT_STRING rtStringCreateFromFormatArgList( RT_STRING format, va_list args );

/* The text, valid while the string is held and unchanged, and its length. Both abort for null. */
RT_API const RT_CHAR *rtStringBacking( RT_STRING string );
RT_API int64_t rtStringLength( RT_STRING string );

/* The code point at the index. Aborts unless the index is valid. */
RT_API RT_CHAR rtStringCharAt( RT_STRING string, int64_t index );

/* Whether the string begins with the code point, and whether it is exactly these code points. */
RT_API RT_BOOL rtStringBeginsWithChar( RT_STRING string, RT_CHAR ch );
RT_API RT_BOOL rtStringEqualsChars( RT_STRING string, const RT_CHAR *chs, int64_t length );

/* Where the code points first occur at or after the offset, or -1 if they don't. Aborts for an offset outside the
 * string. */
RT_API int64_t rtStringFindChars( RT_STRING string, int64_t offset, const RT_CHAR *chs, int64_t length );

/* Reads a number as rtFormatTryDecodeIntChars does, starting at the offset, from at most length code points (-1 for all
 * that are left). */
RT_API RT_BOOL rtStringScanInt( RT_STRING string, int64_t offset, int64_t length, int64_t radix,
                                int64_t *value, int64_t *consumed );

/* For the libraries above: makes the string that many code points longer and returns their address. The caller must
 * write them at once. */
RT_API RT_CHAR *rt___StringExtend( RT_STRING *string, int64_t count );

/* Appends text; amortised O(1) for each code point. AppendFormat takes formats as above. */
RT_API void rtStringAppend( RT_STRING *string, RT_STRING other );
RT_API void rtStringAppendChar( RT_STRING *string, RT_CHAR ch );
RT_API void rtStringAppendChars( RT_STRING *string, const RT_CHAR *chs, int64_t length );
RT_API void rtStringAppendCstr( RT_STRING *string, const char *chars, int64_t length );
RT_API void rtStringAppendFormatCstr( RT_STRING *string, const char *format, int64_t length, ... );

/* Appends the delimiter, unless the string is still empty, and then the item. */
RT_API void rtStringDelimitedAppendCharDelimiter( RT_STRING *string, RT_STRING item, RT_CHAR ch );

/* Replaces the code point at the index. Aborts unless the index is valid. */
RT_API void rtStringSetCharAt( RT_STRING *string, int64_t index, RT_CHAR ch );

/* Maps every code point to its simple lower or upper case in Unicode, whatever the locale. */
RT_API void rtStringToLower( RT_STRING *string );
RT_API void rtStringToUpper( RT_STRING *string );

/* The upper case of a character: 1 and the code point in mapping, or 0 if it has none of its own. */
RT_API int64_t rt___UnicodeUpperCaseDbLookup( RT_CHAR ch, RT_CHAR *mapping );

/* The pieces between the delimiters, as a new vector of strings: at most maxParts, of which the last keeps
 * all further delimiters; -1 for no limit. The empty text is one empty piece, and a delimiter at the end
 * leaves an empty piece after it. An empty delimiter and a maxParts of 0 abort. */
RT_API struct RT_VECTOR_ *rtStringSplitChar( RT_STRING string, RT_CHAR ch, int64_t maxParts );
RT_API struct RT_VECTOR_ *rtStringSplitChars( RT_STRING string, const RT_CHAR *chs, int64_t length,
                                              int64_t maxParts );

RT_END

#endif
