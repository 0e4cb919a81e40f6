// What findings say: all codes with their words and their RFCs.
#pragma once

#include <cstdlib>
#include <span>
#include <string_view>

#include "telsx/telsx_finding.h"

namespace telsx
{

// A rule that a message breaks. If the code begins with a hyphen, the name of a header precedes both it and the words.
struct FindingRule
{
    int64_t severity;
    std::string_view code, reference, words;
};

inline constexpr FindingRule findingRules[] = {
    { TELSX_FINDING_SEVERITY_ERROR, "start-line", "RFC 3261, 7", "expected a request line or a status line" },
    { TELSX_FINDING_SEVERITY_ERROR, "method", "RFC 3261, 7.1", "expected a blank after the method" },
    { TELSX_FINDING_SEVERITY_ERROR, "request-uri", "RFC 3261, 7.1", "expected a URI up to the next blank" },
    { TELSX_FINDING_SEVERITY_ERROR, "sip-version", "RFC 3261, 7.1",
      "expected SIP/2.0 and the end of the line" },
    { TELSX_FINDING_SEVERITY_ERROR, "status-code", "RFC 3261, 7.2",
      "expected a status code from 100 to 999" },
    { TELSX_FINDING_SEVERITY_ERROR, "line-end", "RFC 3261, 7",
      "expected a carriage return before the line feed" },
    { TELSX_FINDING_SEVERITY_ERROR, "header-name", "RFC 3261, 7.3.1", "expected a header name" },
    { TELSX_FINDING_SEVERITY_ERROR, "header-colon", "RFC 3261, 7.3.1",
      "expected a colon after the header name" },
    { TELSX_FINDING_SEVERITY_ERROR, "utf-8", "RFC 3261, 7", "expected UTF-8" },
    { TELSX_FINDING_SEVERITY_ERROR, "content-length-number", "RFC 3261, 20.14",
      "expected a number of bytes" },
    { TELSX_FINDING_SEVERITY_ERROR, "content-length-body", "RFC 3261, 18.3",
      "Content-Length is more than the number of bytes after the head" },

    { TELSX_FINDING_SEVERITY_REMARK, "version-number", "RFC 3261, 7.1", "the version is not SIP/2.0" },
    { TELSX_FINDING_SEVERITY_REMARK, "status-code-class", "RFC 3261, 7.2",
      "a status code above 699 is in no class" },
    { TELSX_FINDING_SEVERITY_REMARK, "request-uri-headers", "RFC 3261, 19.1.1",
      "a Request-URI must not have headers" },
    { TELSX_FINDING_SEVERITY_REMARK, "lone-cr", "RFC 3261, 7",
      "a carriage return without a line feed does not end a line" },
    { TELSX_FINDING_SEVERITY_REMARK, "lone-lf", "RFC 3261, 7",
      "a line feed without a carriage return does not end a line" },
    { TELSX_FINDING_SEVERITY_REMARK, "line-length", "RFC 3261, 25.1",
      "many implementations do not accept a line of more than 8192 bytes" },
    { TELSX_FINDING_SEVERITY_REMARK, "content-length-short", "RFC 3261, 18.3",
      "Content-Length is less than the number of bytes after the head" },
    { TELSX_FINDING_SEVERITY_REMARK, "content-type-missing", "RFC 3261, 20.15",
      "the body needs a Content-Type" },
    { TELSX_FINDING_SEVERITY_REMARK, "-missing", "RFC 3261, 20",
      "is missing, and this message must have it" },
    { TELSX_FINDING_SEVERITY_REMARK, "-twice", "RFC 3261, 7.3.1", "must not be there more than once" },
    { TELSX_FINDING_SEVERITY_REMARK, "-place", "RFC 3261, 20", "is not allowed in this message" },
    { TELSX_FINDING_SEVERITY_REMARK, "cseq-method", "RFC 3261, 8.1.1.5",
      "the method of Cseq is not that of the request" },
    { TELSX_FINDING_SEVERITY_REMARK, "from-tag", "RFC 3261, 8.1.1.3", "From has no tag" },
    { TELSX_FINDING_SEVERITY_REMARK, "to-tag", "RFC 3261, 8.2.6.2",
      "To has no tag, which every response except 100 must have" },
    { TELSX_FINDING_SEVERITY_REMARK, "via-branch", "RFC 3261, 8.1.1.7", "Via has no branch, as in RFC 2543" },
    { TELSX_FINDING_SEVERITY_REMARK, "via-cookie", "RFC 3261, 8.1.1.7",
      "the branch of Via is not z9hG4bK and more characters" },
    { TELSX_FINDING_SEVERITY_REMARK, "via-count", "RFC 3261, 9.1",
      "a CANCEL must have exactly one Via value" },
    { TELSX_FINDING_SEVERITY_REMARK, "contact-count", "RFC 3261, 8.1.1.8",
      "an INVITE and its 2xx response must have exactly one Contact value" },
    { TELSX_FINDING_SEVERITY_REMARK, "contact-star", "RFC 3261, 10.2.2",
      "Contact may be a star only in a REGISTER with Expires: 0" },
    { TELSX_FINDING_SEVERITY_REMARK, "contact-sips", "RFC 3261, 8.1.1.8",
      "Contact must be a sips URI where the Request-URI or the top Route or Record-Route is one" },
    { TELSX_FINDING_SEVERITY_REMARK, "record-route-sips", "RFC 3261, 16.6",
      "Record-Route must be a sips URI where the Request-URI is one" },
    { TELSX_FINDING_SEVERITY_REMARK, "-ambiguous", "RFC 3261, 20",
      "needs angle brackets around a URI with a comma or a question mark" },
    { TELSX_FINDING_SEVERITY_REMARK, "-lr", "RFC 3261, 19.1.1", "has a value for lr, which takes none" },
    { TELSX_FINDING_SEVERITY_REMARK, "-maddr", "RFC 3261, 19.1.1",
      "routes by maddr, which Route has replaced" },
    { TELSX_FINDING_SEVERITY_REMARK, "require-100rel", "RFC 3262, 3",
      "among responses, only 101 to 199 may require 100rel" },
};

// The line of a table that has the code, which must be there.
template <class LINE, std::size_t COUNT>
consteval const LINE *lineOf( const LINE ( &table )[COUNT], std::string_view code )
{
    for ( const LINE &line : table )
        if ( line.code == code )
            return &line;
    std::abort();
}

consteval const FindingRule *findingRule( std::string_view code ) { return lineOf( findingRules, code ); }

// What the grammar of a header requires at a place. The code follows the name of the header, as in via-host; the words
// say what was expected.
struct GrammarPiece
{
    std::string_view code, words;
};

inline constexpr GrammarPiece grammarPieces[] = {
    { "address", "an address" },
    { "agent", "a host or a name" },
    { "blank", "a blank" },
    { "bracket", "an opening angle bracket" },
    { "closing", "a closing angle bracket" },
    { "date", "a date such as Sat, 13 Nov 2010 23:29:00 GMT" },
    { "directive", "a directive of RFC 3841" },
    { "em-param", "a token" },
    { "end", "the end of the value" },
    { "equal", "an equal sign" },
    { "host", "a host" },
    { "media-type", "a media type" },
    { "method-token", "a method" },
    { "msg-id", "a message identifier" },
    { "number", "a number" },
    { "param", "a semicolon or the end of the value" },
    { "param-missing", "a parameter that must be there" },
    { "param-name", "the name of a parameter" },
    { "param-value", "the value of a parameter" },
    { "port", "a port" },
    { "product", "a product or a comment" },
    { "protocol", "a protocol" },
    { "quotable-string", "a token or a text in quotation marks" },
    { "quote", "a closing quotation mark" },
    { "resource-value", "a namespace, a dot and a priority" },
    { "separator", "a separator or the end of the line" },
    { "sess-uuid", "32 lower-case hex digits" },
    { "signed-identity-digest", "a signature" },
    { "slash", "a slash" },
    { "star", "a star" },
    { "star-alone", "nothing after the star" },
    { "text", "text without control characters" },
    { "token", "a token" },
    { "transport", "a transport" },
    { "true-or-false", "true or false" },
    { "uri", "a URI" },
    { "unreadable", "a value that can be read" },
    { "version", "a version" },
    { "warn-code", "three digits" },
    { "warn-text", "a text in quotation marks" },
};

consteval const GrammarPiece *grammarPiece( std::string_view code ) { return lineOf( grammarPieces, code ); }

} // namespace telsx
