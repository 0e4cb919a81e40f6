/* Raw header: a name and the ordered lines that a message carries under it. A line is the value alone, without name,
 * colon and line end; its grammar is not looked at. */
#ifndef TELSX_TELSX_MESSAGE_HEADER_H
#define TELSX_TELSX_MESSAGE_HEADER_H

#include "telsx/telsx_object.h"

RT_BEGIN

TELSX_OBJECT( MessageHeader, MESSAGE_HEADER )

/* A header with this name and without lines. Aborts unless telsxMessageHeaderNameOk. */
RT_API TELSX_MESSAGE_HEADER telsxMessageHeaderCreate( RT_STRING name );
RT_API TELSX_MESSAGE_HEADER telsxMessageHeaderCreateCstr( const char *name, int64_t length );
RT_API TELSX_MESSAGE_HEADER telsxMessageHeaderCreateWcstr( const wchar_t *name, int64_t length );

/* Whether the text is a token (RFC 3261, 25.1, header-name). Aborts for null. */
RT_API RT_BOOL telsxMessageHeaderNameOk( RT_STRING name );

/* The canonical name, a new reference: the long name for a compact form (RFC 3261, 7.3.3), in lower case except for the
 * first character and each character after a hyphen, as in "Call-Id", "Cseq", "Www-Authenticate". Aborts unless
 * telsxMessageHeaderNameOk. */
RT_API RT_STRING telsxMessageHeaderNameNormalize( RT_STRING name );

/* The canonical name, never null. Set aborts unless telsxMessageHeaderNameOk. NameEquals compares with the canonical
 * form of its argument, so that "i" and "call-ID" equal a header "Call-Id"; it aborts unless the argument is
 * telsxMessageHeaderNameOk. */
RT_API RT_STRING telsxMessageHeaderName( TELSX_MESSAGE_HEADER header );
RT_API RT_BOOL telsxMessageHeaderNameEquals( TELSX_MESSAGE_HEADER header, RT_STRING name );
RT_API RT_BOOL telsxMessageHeaderNameEqualsCstr( TELSX_MESSAGE_HEADER header, const char *name,
                                                 int64_t length );
RT_API RT_BOOL telsxMessageHeaderNameEqualsWcstr( TELSX_MESSAGE_HEADER header, const wchar_t *name,
                                                  int64_t length );
RT_API void telsxMessageHeaderSetName( TELSX_MESSAGE_HEADER *header, RT_STRING name );
RT_API void telsxMessageHeaderSetNameCstr( TELSX_MESSAGE_HEADER *header, const char *name, int64_t length );
RT_API void telsxMessageHeaderSetNameWcstr( TELSX_MESSAGE_HEADER *header, const wchar_t *name,
                                            int64_t length );

/* Whether the text is a line, which means that it holds no CR LF. Aborts for null. */
RT_API RT_BOOL telsxMessageHeaderLineOk( RT_STRING line );

/* All lines as a vector of strings, a new reference, never null. Set keeps the vector itself, and aborts unless every
 * element is a string that is telsxMessageHeaderLineOk. */
RT_API RT_VECTOR telsxMessageHeaderLinesVector( TELSX_MESSAGE_HEADER header );
RT_API void telsxMessageHeaderSetLinesVector( TELSX_MESSAGE_HEADER *header, RT_VECTOR lines );

/* Single lines; LastLine returns null if there is none. Functions that take an index abort unless it is valid, and
 * functions that take a line abort unless telsxMessageHeaderLineOk. */
RT_API RT_STRING telsxMessageHeaderLastLine( TELSX_MESSAGE_HEADER header );
RT_API int64_t telsxMessageHeaderLinesLength( TELSX_MESSAGE_HEADER header );
RT_API RT_STRING telsxMessageHeaderLineAt( TELSX_MESSAGE_HEADER header, int64_t index );
RT_API void telsxMessageHeaderDelLineAt( TELSX_MESSAGE_HEADER *header, int64_t index );
RT_API void telsxMessageHeaderSetLineAt( TELSX_MESSAGE_HEADER *header, int64_t index, RT_STRING value );
RT_API void telsxMessageHeaderSetLineAtCstr( TELSX_MESSAGE_HEADER *header, int64_t index, const char *value,
                                             int64_t length );
RT_API void telsxMessageHeaderSetLineAtWcstr( TELSX_MESSAGE_HEADER *header, int64_t index,
                                              const wchar_t *value, int64_t length );
RT_API void telsxMessageHeaderAppendLine( TELSX_MESSAGE_HEADER *header, RT_STRING value );
RT_API void telsxMessageHeaderAppendLineCstr( TELSX_MESSAGE_HEADER *header, const char *value,
                                              int64_t length );
RT_API void telsxMessageHeaderAppendLineWcstr( TELSX_MESSAGE_HEADER *header, const wchar_t *value,
                                               int64_t length );

/* The same, with a line made from a format and its arguments (see rt/rt_string.h). */
RT_API void telsxMessageHeaderSetLineAtFormat( TELSX_MESSAGE_HEADER *header, int64_t index, RT_STRING format,
                                               ... );
RT_API void telsxMessageHeaderSetLineAtFormatCstr( TELSX_MESSAGE_HEADER *header, int64_t index,
                                                   const char *format, int64_t length, ... );
RT_API void telsxMessageHeaderSetLineAtFormatWcstr( TELSX_MESSAGE_HEADER *header, int64_t index,
                                                    const wchar_t *format, int64_t length, ... );
RT_API void telsxMessageHeaderAppendLineFormat( TELSX_MESSAGE_HEADER *header, RT_STRING format, ... );
RT_API void telsxMessageHeaderAppendLineFormatCstr( TELSX_MESSAGE_HEADER *header, const char *format,
                                                    int64_t length, ... );
RT_API void telsxMessageHeaderAppendLineFormatWcstr( TELSX_MESSAGE_HEADER *header, const wchar_t *format,
                                                     int64_t length, ... );

/* Store returns the header as a new store, with its name under "name" and a store of its lines under "lines";
 * StoreLines returns a new store of its lines alone. TryRestore returns a new header, or null if the store is damaged:
 * no name or a bad one, no store of lines, or a line with CR LF. RestoreLines returns a new header of the name with the
 * lines of a store, in the store's order; it aborts for a bad name and for a bad line. All abort for a null store. */
RT_API RT_STORE telsxMessageHeaderStore( TELSX_MESSAGE_HEADER header );
RT_API RT_STORE telsxMessageHeaderStoreLines( TELSX_MESSAGE_HEADER header );
RT_API TELSX_MESSAGE_HEADER telsxMessageHeaderTryRestore( RT_STORE store );
RT_API TELSX_MESSAGE_HEADER telsxMessageHeaderRestoreLines( RT_STRING name, RT_STORE store );
RT_API TELSX_MESSAGE_HEADER telsxMessageHeaderRestoreLinesCstr( const char *name, int64_t length,
                                                                RT_STORE store );
RT_API TELSX_MESSAGE_HEADER telsxMessageHeaderRestoreLinesWcstr( const wchar_t *name, int64_t length,
                                                                 RT_STORE store );

/* For the library's own units. */
RT_API void telsx___MessageHeaderStartup( void );
RT_API void telsx___MessageHeaderShutdown( void );
TELSX_FREE_FUNC( MessageHeader )
RT_API int64_t telsx___MessageHeaderCompFunc( RT_OBJ objA, RT_OBJ objB );

RT_END

#endif
