/* Skippers: how many code points at the start of a text form an element of the grammar.
 *
 * Every skipper takes a text and returns a count from 0, for no match, to the length of the text. It reads nothing past
 * the end and allocates nothing. White space is space and tab; line ends are not, since a message is unfolded before
 * its values are read. A run is taken at its longest; alternatives are tried in order, and the first match wins. If a
 * mandatory part is missing, the whole result is 0; if an optional part does not match, the result ends before it. What
 * follows the element is for the caller to check. Every skipper aborts for a negative length, and for null unless the
 * length is 0.
 *
 * The skippers of other elements are in the units of those elements. */
#ifndef TELSX_TELSX_SKIP_H
#define TELSX_TELSX_SKIP_H

#include "rt/rt.h"

RT_BEGIN

/* One character, which must be a code point; exactly these code points, all or none, either case-sensitively or with A
 * to Z equal to a to z. The result is 0 if there are no code points to skip. */
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

/* A character with white space before it, after it, or on both sides; 0 without the character. */
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

/* Brackets and quotes, with white space before an opening one and after a closing one. */
RT_API int64_t telsx___SkipLaquot( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipLdquot( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipRaquot( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipRdquot( const RT_CHAR *chs, int64_t length );

/* Atoms with single dots between them. */
RT_API int64_t telsx___SkipDotAtom( const RT_CHAR *chs, int64_t length );

/* A text in double quotes with white space before it. A backslash escapes the code point after it. A CR or LF, bare or
 * escaped, or a missing closing quote makes the result 0; any other code point may occur inside. */
RT_API int64_t telsx___SkipQuotedString( const RT_CHAR *chs, int64_t length );

/* A text in parentheses, which nest without limit, with white space around it (RFC 3261, 25.1, comment). */
RT_API int64_t telsx___SkipComment( const RT_CHAR *chs, int64_t length );

/* What values consist of. In these grammars LAQUOT, RAQUOT, SEMI, SLASH, COLON, EQUAL and LWS are the skippers above;
 * LWS is at least one space or tab.
 *
 *     display-name = quoted-string / *( token [ LWS ] )
 *     name-addr = [ display-name ] LAQUOT URI RAQUOT
 *     generic-param = token [ EQUAL ( token / host / quoted-string ) ]
 *     generic-params = *( SEMI generic-param )
 *
 * (RFC 3261, 25.1.) White space after a token of a display name counts; white space after a quoted display name does
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

/* Via values (RFC 3261, 20.42). A colon without a port after it makes the whole result 0. The value of received may be
 * an address without brackets, which a generic parameter can't hold.
 *
 *     version = protocol-name SLASH protocol-version
 *     via = version SLASH transport LWS host [ COLON port ] *( SEMI via-params )
 *     via-params = via-received / generic-param
 *     via-received = "received" EQUAL ( IPv6address / IPv4address ) */
RT_API int64_t telsx___SkipVersion( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipVia( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipViaParams( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipViaReceived( const RT_CHAR *chs, int64_t length );

/* Warning values (RFC 3261, 20.43). More than three digits are not a warn code. A pseudonym that begins like a host is
 * taken for a host and ends where the host does.
 *
 *     warn-code = 3DIGIT
 *     warn-agent = hostport / pseudonym
 *     warning-value = warn-code LWS warn-agent LWS quoted-string */
RT_API int64_t telsx___SkipWarnCode( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipWarnAgent( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipWarningValue( const RT_CHAR *chs, int64_t length );

/* Server and User-Agent texts (RFC 3261, 20.35 and 20.41). White space must be followed by a value, so white space at
 * the end makes the whole result 0; a comment includes the white space after it and ends the text.
 *
 *     server-val = token [ SLASH token ] / comment
 *     server, user-agent = server-val *( LWS server-val ) */
RT_API int64_t telsx___SkipServerVal( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipServer( const RT_CHAR *chs, int64_t length );
RT_API int64_t telsx___SkipUserAgent( const RT_CHAR *chs, int64_t length );

/* The names in dates (RFC 3261, 20.17), in exactly this case: "Jan" to "Dec" return 3 and put 1 to 12 into month, "Mon"
 * to "Sun" return 3 and put 0 to 6 into weekday. The last argument may be null, and is left alone if there is no
 * match. */
RT_API int64_t telsx___SkipMonth( const RT_CHAR *chs, int64_t length, int64_t *month );
RT_API int64_t telsx___SkipWkday( const RT_CHAR *chs, int64_t length, int64_t *weekday );

RT_END

#endif
