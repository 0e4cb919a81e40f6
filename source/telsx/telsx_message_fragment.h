/* Message fragment: the contents of a SIP message, which need not be complete: an optional start line, any set of
 * headers and an optional body (RFC 3261, 7; RFC 3420).
 *
 * A fragment is a request (method, IRI and version), a response (status code, reason phrase and version) or neither (no
 * version). Headers are raw and kept under their canonical names, in the order in which the names first came; the body
 * is bytes. A Content-Length header among them is not kept in step with the body: decoding reads it, and encoding
 * writes one of its own. Fragments have no order: each is equal only to itself. */
#ifndef TELSX_TELSX_MESSAGE_FRAGMENT_H
#define TELSX_TELSX_MESSAGE_FRAGMENT_H

#include "telsx/telsx_message_header.h"
#include "telsx/telsx_status_code.h"
#include "telsx/telsx_version.h"

RT_BEGIN

TELSX_OBJECT( MessageFragment, MESSAGE_FRAGMENT )

/* An empty fragment, neither request nor response. */
RT_API TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreate( void );

/* Requests. Set replaces any start line; headers and body stay. Both abort for a null version, and unless telsxMethodOk
 * and telsxIriOk. */
RT_API TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreateRequest( TELSX_VERSION version, RT_STRING method,
                                                                 RT_STRING iri );
RT_API TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreateRequestCstr( TELSX_VERSION version,
                                                                     const char *method, int64_t length,
                                                                     RT_STRING iri );
RT_API TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreateRequestWcstr( TELSX_VERSION version,
                                                                      const wchar_t *method, int64_t length,
                                                                      RT_STRING iri );
RT_API void telsxMessageFragmentSetRequest( TELSX_MESSAGE_FRAGMENT *frag, TELSX_VERSION version,
                                            RT_STRING method, RT_STRING iri );
RT_API void telsxMessageFragmentSetRequestCstr( TELSX_MESSAGE_FRAGMENT *frag, TELSX_VERSION version,
                                                const char *method, int64_t length, RT_STRING iri );
RT_API void telsxMessageFragmentSetRequestWcstr( TELSX_MESSAGE_FRAGMENT *frag, TELSX_VERSION version,
                                                 const wchar_t *method, int64_t length, RT_STRING iri );

/* Responses, with the usual phrase of the code or with a phrase of the caller's. All abort for a null version, and
 * unless telsxStatusCodeOk and telsxReasonPhraseOk. */
RT_API TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreateResponse( TELSX_VERSION version, int64_t sc );
RT_API TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreateResponseWithReasonPhrase( TELSX_VERSION version,
                                                                                  int64_t sc,
                                                                                  RT_STRING reasonPhrase );
RT_API TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreateResponseWithReasonPhraseCstr(
    TELSX_VERSION version, int64_t sc, const char *reasonPhrase, int64_t length );
RT_API TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreateResponseWithReasonPhraseWcstr(
    TELSX_VERSION version, int64_t sc, const wchar_t *reasonPhrase, int64_t length );
RT_API void telsxMessageFragmentSetResponse( TELSX_MESSAGE_FRAGMENT *frag, TELSX_VERSION version,
                                             int64_t sc );
RT_API void telsxMessageFragmentSetResponseWithReasonPhrase( TELSX_MESSAGE_FRAGMENT *frag,
                                                             TELSX_VERSION version, int64_t sc,
                                                             RT_STRING reasonPhrase );
RT_API void telsxMessageFragmentSetResponseWithReasonPhraseCstr( TELSX_MESSAGE_FRAGMENT *frag,
                                                                 TELSX_VERSION version, int64_t sc,
                                                                 const char *reasonPhrase, int64_t length );
RT_API void telsxMessageFragmentSetResponseWithReasonPhraseWcstr( TELSX_MESSAGE_FRAGMENT *frag,
                                                                  TELSX_VERSION version, int64_t sc,
                                                                  const wchar_t *reasonPhrase,
                                                                  int64_t length );

/* Removes the start line; headers and body stay. */
RT_API void telsxMessageFragmentSetNeitherRequestNorResponse( TELSX_MESSAGE_FRAGMENT *frag );

/* Which kind the fragment is. Exactly one of the three is true. */
RT_API RT_BOOL telsxMessageFragmentIsRequest( TELSX_MESSAGE_FRAGMENT frag );
RT_API RT_BOOL telsxMessageFragmentIsResponse( TELSX_MESSAGE_FRAGMENT frag );
RT_API RT_BOOL telsxMessageFragmentIsNeitherRequestNorResponse( TELSX_MESSAGE_FRAGMENT frag );

/* Single fields of the start line. A getter returns null, or TELSX_STATUS_CODE_INVALID, if the kind has no such field.
 * A setter then aborts, since it can't turn one kind into another; it also aborts for a value that is not Ok.
 * SetResponseStatusCode also sets the usual phrase of the code unless updateReasonPhrase is 0. */
RT_API TELSX_VERSION telsxMessageFragmentVersion( TELSX_MESSAGE_FRAGMENT frag );
RT_API RT_BOOL telsxMessageFragmentHasVersion( TELSX_MESSAGE_FRAGMENT frag );
RT_API void telsxMessageFragmentSetVersion( TELSX_MESSAGE_FRAGMENT *frag, TELSX_VERSION version );
RT_API RT_STRING telsxMessageFragmentRequestMethod( TELSX_MESSAGE_FRAGMENT frag );
RT_API void telsxMessageFragmentSetRequestMethod( TELSX_MESSAGE_FRAGMENT *frag, RT_STRING method );
RT_API void telsxMessageFragmentSetRequestMethodCstr( TELSX_MESSAGE_FRAGMENT *frag, const char *method,
                                                      int64_t length );
RT_API void telsxMessageFragmentSetRequestMethodWcstr( TELSX_MESSAGE_FRAGMENT *frag, const wchar_t *method,
                                                       int64_t length );
RT_API RT_STRING telsxMessageFragmentRequestIri( TELSX_MESSAGE_FRAGMENT frag );
RT_API void telsxMessageFragmentSetRequestIri( TELSX_MESSAGE_FRAGMENT *frag, RT_STRING iri );
RT_API void telsxMessageFragmentSetRequestIriCstr( TELSX_MESSAGE_FRAGMENT *frag, const char *iri,
                                                   int64_t length );
RT_API void telsxMessageFragmentSetRequestIriWcstr( TELSX_MESSAGE_FRAGMENT *frag, const wchar_t *iri,
                                                    int64_t length );
RT_API int64_t telsxMessageFragmentResponseStatusCode( TELSX_MESSAGE_FRAGMENT frag );
RT_API void telsxMessageFragmentSetResponseStatusCode( TELSX_MESSAGE_FRAGMENT *frag, int64_t sc,
                                                       RT_BOOL updateReasonPhrase );
RT_API RT_STRING telsxMessageFragmentResponseReasonPhrase( TELSX_MESSAGE_FRAGMENT frag );
RT_API void telsxMessageFragmentSetResponseReasonPhrase( TELSX_MESSAGE_FRAGMENT *frag,
                                                         RT_STRING reasonPhrase );
RT_API void telsxMessageFragmentSetResponseReasonPhraseCstr( TELSX_MESSAGE_FRAGMENT *frag,
                                                             const char *reasonPhrase, int64_t length );
RT_API void telsxMessageFragmentSetResponseReasonPhraseWcstr( TELSX_MESSAGE_FRAGMENT *frag,
                                                              const wchar_t *reasonPhrase, int64_t length );

/* All headers as a new vector. */
RT_API RT_VECTOR telsxMessageFragmentHeadersVector( TELSX_MESSAGE_FRAGMENT frag );

/* The header of a name in any spelling, a new reference, or null. Changes to it reach the fragment only through
 * SetHeader, which replaces all lines of that name. Deleting an absent name changes nothing. Functions that take a name
 * abort unless telsxMessageHeaderNameOk. */
RT_API TELSX_MESSAGE_HEADER telsxMessageFragmentHeader( TELSX_MESSAGE_FRAGMENT frag, RT_STRING name );
RT_API TELSX_MESSAGE_HEADER telsxMessageFragmentHeaderCstr( TELSX_MESSAGE_FRAGMENT frag, const char *name,
                                                            int64_t length );
RT_API TELSX_MESSAGE_HEADER telsxMessageFragmentHeaderWcstr( TELSX_MESSAGE_FRAGMENT frag, const wchar_t *name,
                                                             int64_t length );
RT_API RT_BOOL telsxMessageFragmentHasHeader( TELSX_MESSAGE_FRAGMENT frag, RT_STRING name );
RT_API RT_BOOL telsxMessageFragmentHasHeaderCstr( TELSX_MESSAGE_FRAGMENT frag, const char *name,
                                                  int64_t length );
RT_API RT_BOOL telsxMessageFragmentHasHeaderWcstr( TELSX_MESSAGE_FRAGMENT frag, const wchar_t *name,
                                                   int64_t length );
RT_API void telsxMessageFragmentSetHeader( TELSX_MESSAGE_FRAGMENT *frag, TELSX_MESSAGE_HEADER header );
RT_API void telsxMessageFragmentDelHeader( TELSX_MESSAGE_FRAGMENT *frag, RT_STRING name );
RT_API void telsxMessageFragmentDelHeaderCstr( TELSX_MESSAGE_FRAGMENT *frag, const char *name,
                                               int64_t length );
RT_API void telsxMessageFragmentDelHeaderWcstr( TELSX_MESSAGE_FRAGMENT *frag, const wchar_t *name,
                                                int64_t length );

/* Whether a line of a header, as it would be written, holds a CR or LF. Lines end only in CR LF, so a lone CR or LF
 * belongs to its line; a peer that takes it for a line end reads a different message. The start line never has one. For
 * a header that was decoded and not replaced the function looks at the bytes, and for any other header at the text. */
RT_API RT_BOOL telsxMessageFragmentHasLoneLineEnds( TELSX_MESSAGE_FRAGMENT frag );

/* The body, a new reference, or null; an empty buffer is a body. Set keeps the buffer itself and aborts for null. */
RT_API RT_BUFFER telsxMessageFragmentBody( TELSX_MESSAGE_FRAGMENT frag );
RT_API RT_BOOL telsxMessageFragmentHasBody( TELSX_MESSAGE_FRAGMENT frag );
RT_API void telsxMessageFragmentSetBody( TELSX_MESSAGE_FRAGMENT *frag, RT_BUFFER body );
RT_API void telsxMessageFragmentDelBody( TELSX_MESSAGE_FRAGMENT *frag );

/* The fragment in the bytes of one datagram; a new reference, or null for bad bytes. Lines end in CR LF, and the head
 * ends at a blank line or at the end of the bytes. A Content-Length must be a number no larger than the number of bytes
 * after the head; any bytes beyond it are dropped. Without a Content-Length all bytes after the head are the body. An
 * empty body counts as no body. Aborts for null. */
RT_API TELSX_MESSAGE_FRAGMENT telsxMessageFragmentTryDecode( RT_BUFFER buf );

/* The same for a head alone, without its blank line. contentLength receives the value of Content-Length, or -1 if there
 * is none or the result is null. If contentLength itself is null, Content-Length is ignored and can't make the call
 * fail. */
RT_API TELSX_MESSAGE_FRAGMENT telsxMessageFragmentTryDecodeHeaders( RT_BUFFER buf, int64_t *contentLength );

/* The bytes of the fragment, a new reference: one line for each line of each header, and always one Content-Length with
 * the true length, whatever the fragment holds. */
RT_API RT_BUFFER telsxMessageFragmentEncode( TELSX_MESSAGE_FRAGMENT frag );

TELSX_FREE_FUNC( MessageFragment )

RT_END

#endif
