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
 * Other elements that have a unit of their own have their skippers there. */
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

/* Runs of a class: digits, token, token without dot, word (RFC 3261, 25.1), atom (RFC 3892), white space. */
RT_API int64_t telsx___SkipDigits( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipToken( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipTokenNodot( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipWord( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipAtom( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipSws( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipLws( const RT_CHAR *chs, int64_t length );

/* Tokens under other names (RFC 3261, 25.1). */
RT_API int64_t telsx___SkipMethod( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipProtocolName( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipProtocolVersion( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipMessageHeaderName( const RT_CHAR *chs, int64_t length );

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

/* What values consist of. In the grammars LAQUOT, RAQUOT, SEMI, SLASH, COLON, EQUAL and LWS are the skippers
 * above; LWS must find at least one white space.
 *
 *     display-name = quoted-string / *( token [ LWS ] )
 *     name-addr = [ display-name ] LAQUOT URI RAQUOT
 *     generic-param = token [ EQUAL ( token / host / quoted-string ) ]
 *     generic-params = *( SEMI generic-param )
 *
 * (RFC 3261, 25.1.) The white space behind a token of a display name counts, that behind a quoted one does
 * not. */
RT_API int64_t telsx___SkipDisplayName( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipNameAddr( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipGenericParam( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipGenericParams( const RT_CHAR *chs, int64_t length );

/* Values that are an address.
 *
 *     contact = ( name-addr / addr-spec ) generic-params           RFC 3261, 20.10
 *     route, diversion, history-info = name-addr generic-params    RFC 3261, 20.34; RFC 5806; RFC 7044
 *     identity-value = name-addr / addr-spec                       RFC 3325, 9.1
 *     alert-info, call-info, error-info = LAQUOT URI RAQUOT generic-params    RFC 3261, 20.4, 20.9, 20.18 */
RT_API int64_t telsx___SkipContact( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipRoute( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipDiversion( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipHistoryInfo( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipIdentityValue( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipAlertInfo( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipCallInfo( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipErrorInfo( const RT_CHAR *chs, int64_t length );

/* Values that begin with a token.
 *
 *     reason = reason-protocol generic-params               RFC 3326, 2
 *     accept-encoding = content-coding generic-params       RFC 3261, 20.2; the star is a token
 *     accept = ( media-type SLASH media-subtype / media-type SLASH "*" / "*" SLASH "*" ) generic-params
 *                                                           RFC 3261, 20.1 */
RT_API int64_t telsx___SkipReason( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipAcceptEncoding( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipAccept( const RT_CHAR *chs, int64_t length );

/* Via values (RFC 3261, 20.42). A colon that no port follows makes the whole 0. An address without brackets
 * may stand as the value of received, where a generic parameter has no place for it.
 *
 *     version = protocol-name SLASH protocol-version
 *     via = version SLASH transport LWS host [ COLON port ] *( SEMI via-params )
 *     via-params = via-received / generic-param
 *     via-received = "received" EQUAL ( IPv6address / IPv4address ) */
RT_API int64_t telsx___SkipVersion( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipVia( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipViaParams( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipViaReceived( const RT_CHAR *chs, int64_t length );

/* Warning values (RFC 3261, 20.43). More than three digits give no warn code. A pseudonym that begins like a host is
 * taken for one and cut where no host goes on.
 *
 *     warn-code = 3DIGIT
 *     warn-agent = hostport / pseudonym
 *     warning-value = warn-code LWS warn-agent LWS quoted-string */
RT_API int64_t telsx___SkipWarnCode( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipWarnAgent( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipWarningValue( const RT_CHAR *chs, int64_t length );

/* Server and User-Agent texts (RFC 3261, 20.35 and 20.41). White space must be followed by a value, so that
 * at the end it makes the whole 0; a comment takes the white space behind it along and ends the text.
 *
 *     server-val = token [ SLASH token ] / comment
 *     server, user-agent = server-val *( LWS server-val ) */
RT_API int64_t telsx___SkipServerVal( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipServer( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipUserAgent( const RT_CHAR *chs, int64_t length );

/* The names of dates (RFC 3261, 20.17), in exactly this case: "Jan" to "Dec" give 3 and 1 to 12 in month,
 * "Mon" to "Sun" give 3 and 0 to 6 in weekday. The last argument may be null, and stays as it is without a
 * match. */
RT_API int64_t telsx___SkipMonth( const RT_CHAR *chs, int64_t length, int64_t *month );
RT_API int64_t telsx___SkipWkday( const RT_CHAR *chs, int64_t length, int64_t *weekday );

RT_END

#endif
