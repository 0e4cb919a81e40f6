/* Finding: what is wrong with the bytes of a message, and where.
 *
 * The decoders give null for bad text, without further details. To learn why, ask here: the bytes are read once
 * more, and the place of each fault is kept.
 *
 * Findings sort by offset, then by severity, header name, code, text and reference. The text of a finding is what
 * a compiler would print after the name of the file:
 *
 *     2:18: warning: Via: expected a host, found ";branch=z9hG4bK776asdhds" [via-host] */
#ifndef TELSX_TELSX_FINDING_H
#define TELSX_TELSX_FINDING_H

#include "telsx/telsx_message.h"

RT_BEGIN

TELSX_OBJECT( Finding, FINDING )

/* How much a finding matters. An error: the bytes are not a message. A warning: a header, or one value of its
 * list, cannot be read. A remark: what can be read breaks a rule of an RFC. */
#define TELSX_FINDING_SEVERITY_ERROR 0
#define TELSX_FINDING_SEVERITY_WARNING 1
#define TELSX_FINDING_SEVERITY_REMARK 2

/* One of the severities above. */
RT_API int64_t telsxFindingSeverity( TELSX_FINDING finding );

/* The place: bytes from the start of the buffer, at most its length; the line, and the column in characters,
 * both from 1. Lines end with a line feed. A byte that is not part of a character counts as one. What is
 * missing from the message as a whole is found at its first byte. */
RT_API int64_t telsxFindingOffset( TELSX_FINDING finding );
RT_API int64_t telsxFindingLine( TELSX_FINDING finding );
RT_API int64_t telsxFindingColumn( TELSX_FINDING finding );

/* The header that the finding is about, by its name in canonical form (telsx_message_header.h), or null for the
 * start line, the body and the message as a whole. */
RT_API RT_STRING telsxFindingHeaderName( TELSX_FINDING finding );
RT_API RT_BOOL telsxFindingHasHeaderName( TELSX_FINDING finding );

/* The code by which users recognise and silence findings of one kind, such as "via-host": lower-case words with
 * hyphens between them. A code never changes its meaning. docs/findings.md lists all of them. */
RT_API RT_STRING telsxFindingCode( TELSX_FINDING finding );

/* One plain English sentence without a full stop, which may quote the message. It is safe to show: control
 * characters are written as \xNN. */
RT_API RT_STRING telsxFindingText( TELSX_FINDING finding );

/* The rule that was broken, such as "RFC 3261, 20.10". */
RT_API RT_STRING telsxFindingReference( TELSX_FINDING finding );

/* What is wrong with the bytes of one message, from a datagram or cut out of a stream: a new vector of
 * TELSX_FINDING in their order, empty if nothing is. Null aborts; no bytes do.
 *
 * There is one error exactly if telsxMessageTryDecode gives null for the bytes, the first cause of it, and then
 * nothing else. Otherwise there is exactly one warning for each typed header of the message whose
 * TryDecodeFromMessage gives null, and for each value of a list whose TryDecode...At does; its place is where
 * the text stops following the grammar. Remarks are about the rest. Takes time and memory in proportion to the
 * number of bytes. */
RT_API RT_VECTOR telsxMessageFindings( RT_BUFFER buf );

/* What can be saved of a request or a response that a server wants to answer with 400 (RFC 3261, 8.2 and
 * 21.4.1): the message without the lines and the typed headers that cannot be read, a new reference. A body
 * that is shorter than Content-Length says is taken as it is. Null if the start line, Via, From, To, Call-Id
 * and Cseq are not all there and readable. Null aborts; no bytes do. What telsxMessageTryDecode gives null for
 * may be a message here, and what it decodes may be none. */
RT_API TELSX_MESSAGE telsxMessageTryDecodeLoosely( RT_BUFFER buf );

/* For the runtime. */
TELSX_FREE_FUNC( Finding )
TELSX_COMPARE_FUNC( Finding )
TELSX_TO_STRING_FUNC( Finding )

RT_END

#endif
