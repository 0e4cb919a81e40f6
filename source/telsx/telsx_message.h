/* Message: a fragment that is a request or a response (RFC 3261, 7). A message adds only that guarantee: every function
 * here does what the fragment's function of the same name does (telsx_message_fragment.h). Every function aborts for a
 * null message. Messages have no order: each is equal only to itself. */
#ifndef TELSX_TELSX_MESSAGE_H
#define TELSX_TELSX_MESSAGE_H

#include "telsx/telsx_message_fragment.h"

RT_BEGIN

TELSX_OBJECT( Message, MESSAGE )

/* A message with this fragment, which it retains. Aborts unless the fragment is a request or a response. */
RT_API TELSX_MESSAGE telsxMessageCreate( TELSX_MESSAGE_FRAGMENT fragment );

/* The fragment, a new reference; later changes to the message do not affect it. */
RT_API TELSX_MESSAGE_FRAGMENT telsxMessageFragment( TELSX_MESSAGE msg );

/* The message in the bytes of one datagram, a new reference, or null for bad bytes and for bytes without a start line.
 * Aborts for null. */
RT_API TELSX_MESSAGE telsxMessageTryDecode( RT_BUFFER buf );

/* New messages without headers and body. */
RT_API TELSX_MESSAGE telsxMessageCreateRequest( TELSX_VERSION version, RT_STRING method, RT_STRING iri );
RT_API TELSX_MESSAGE telsxMessageCreateRequestCstr( TELSX_VERSION version, const char *method, int64_t length,
                                                    RT_STRING iri );
RT_API TELSX_MESSAGE telsxMessageCreateRequestWcstr( TELSX_VERSION version, const wchar_t *method,
                                                     int64_t length, RT_STRING iri );
RT_API TELSX_MESSAGE telsxMessageCreateResponse( TELSX_VERSION version, int64_t sc );
RT_API TELSX_MESSAGE telsxMessageCreateResponseWithReasonPhrase( TELSX_VERSION version, int64_t sc,
                                                                 RT_STRING reasonPhrase );
RT_API TELSX_MESSAGE telsxMessageCreateResponseWithReasonPhraseCstr( TELSX_VERSION version, int64_t sc,
                                                                     const char *reasonPhrase,
                                                                     int64_t length );
RT_API TELSX_MESSAGE telsxMessageCreateResponseWithReasonPhraseWcstr( TELSX_VERSION version, int64_t sc,
                                                                      const wchar_t *reasonPhrase,
                                                                      int64_t length );

/* Reading. */
RT_API RT_BOOL telsxMessageIsRequest( TELSX_MESSAGE msg );
RT_API RT_BOOL telsxMessageIsResponse( TELSX_MESSAGE msg );
RT_API TELSX_VERSION telsxMessageVersion( TELSX_MESSAGE msg );
RT_API RT_STRING telsxMessageRequestMethod( TELSX_MESSAGE msg );
RT_API RT_STRING telsxMessageRequestIri( TELSX_MESSAGE msg );
RT_API int64_t telsxMessageResponseStatusCode( TELSX_MESSAGE msg );
RT_API RT_STRING telsxMessageResponseReasonPhrase( TELSX_MESSAGE msg );
RT_API RT_VECTOR telsxMessageHeadersVector( TELSX_MESSAGE msg );
RT_API TELSX_MESSAGE_HEADER telsxMessageHeader( TELSX_MESSAGE msg, RT_STRING name );
RT_API TELSX_MESSAGE_HEADER telsxMessageHeaderCstr( TELSX_MESSAGE msg, const char *name, int64_t length );
RT_API TELSX_MESSAGE_HEADER telsxMessageHeaderWcstr( TELSX_MESSAGE msg, const wchar_t *name, int64_t length );
RT_API RT_BOOL telsxMessageHasHeader( TELSX_MESSAGE msg, RT_STRING name );
RT_API RT_BOOL telsxMessageHasHeaderCstr( TELSX_MESSAGE msg, const char *name, int64_t length );
RT_API RT_BOOL telsxMessageHasHeaderWcstr( TELSX_MESSAGE msg, const wchar_t *name, int64_t length );
RT_API RT_BOOL telsxMessageHasLoneLineEnds( TELSX_MESSAGE msg );
RT_API RT_BUFFER telsxMessageBody( TELSX_MESSAGE msg );
RT_API RT_BOOL telsxMessageHasBody( TELSX_MESSAGE msg );
RT_API RT_BUFFER telsxMessageEncode( TELSX_MESSAGE msg );

/* Changing. */
RT_API void telsxMessageSetRequest( TELSX_MESSAGE *msg, TELSX_VERSION version, RT_STRING method,
                                    RT_STRING iri );
RT_API void telsxMessageSetRequestCstr( TELSX_MESSAGE *msg, TELSX_VERSION version, const char *method,
                                        int64_t length, RT_STRING iri );
RT_API void telsxMessageSetRequestWcstr( TELSX_MESSAGE *msg, TELSX_VERSION version, const wchar_t *method,
                                         int64_t length, RT_STRING iri );
RT_API void telsxMessageSetResponse( TELSX_MESSAGE *msg, TELSX_VERSION version, int64_t sc );
RT_API void telsxMessageSetResponseWithReasonPhrase( TELSX_MESSAGE *msg, TELSX_VERSION version, int64_t sc,
                                                     RT_STRING reasonPhrase );
RT_API void telsxMessageSetResponseWithReasonPhraseCstr( TELSX_MESSAGE *msg, TELSX_VERSION version,
                                                         int64_t sc, const char *reasonPhrase,
                                                         int64_t length );
RT_API void telsxMessageSetResponseWithReasonPhraseWcstr( TELSX_MESSAGE *msg, TELSX_VERSION version,
                                                          int64_t sc, const wchar_t *reasonPhrase,
                                                          int64_t length );
RT_API void telsxMessageSetRequestMethod( TELSX_MESSAGE *msg, RT_STRING method );
RT_API void telsxMessageSetRequestMethodCstr( TELSX_MESSAGE *msg, const char *method, int64_t length );
RT_API void telsxMessageSetRequestMethodWcstr( TELSX_MESSAGE *msg, const wchar_t *method, int64_t length );
RT_API void telsxMessageSetRequestIri( TELSX_MESSAGE *msg, RT_STRING iri );
RT_API void telsxMessageSetRequestIriCstr( TELSX_MESSAGE *msg, const char *iri, int64_t length );
RT_API void telsxMessageSetRequestIriWcstr( TELSX_MESSAGE *msg, const wchar_t *iri, int64_t length );
RT_API void telsxMessageSetResponseStatusCode( TELSX_MESSAGE *msg, int64_t sc, RT_BOOL updateReasonPhrase );
RT_API void telsxMessageSetResponseReasonPhrase( TELSX_MESSAGE *msg, RT_STRING reasonPhrase );
RT_API void telsxMessageSetResponseReasonPhraseCstr( TELSX_MESSAGE *msg, const char *reasonPhrase,
                                                     int64_t length );
RT_API void telsxMessageSetResponseReasonPhraseWcstr( TELSX_MESSAGE *msg, const wchar_t *reasonPhrase,
                                                      int64_t length );
RT_API void telsxMessageSetVersion( TELSX_MESSAGE *msg, TELSX_VERSION version );
RT_API void telsxMessageSetHeader( TELSX_MESSAGE *msg, TELSX_MESSAGE_HEADER header );
RT_API void telsxMessageDelHeader( TELSX_MESSAGE *msg, RT_STRING name );
RT_API void telsxMessageDelHeaderCstr( TELSX_MESSAGE *msg, const char *name, int64_t length );
RT_API void telsxMessageDelHeaderWcstr( TELSX_MESSAGE *msg, const wchar_t *name, int64_t length );
RT_API void telsxMessageSetBody( TELSX_MESSAGE *msg, RT_BUFFER body );
RT_API void telsxMessageDelBody( TELSX_MESSAGE *msg );

TELSX_FREE_FUNC( Message )

RT_END

#endif
