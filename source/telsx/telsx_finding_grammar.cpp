// The grammars of headers, read piece by piece. What a type consists of comes from the tables of types; only the types
// that the tables do not describe fully have a reader of their own.
#include "telsx/telsx_finding_grammar.hpp"

#include <algorithm>

#include "telsx/telsx.h"
#include "telsx/telsx_keyword.hpp"
#include "telsx/telsx_number.hpp"

namespace telsx
{

// A field of a type, as in the tables of types.
enum class FieldRole
{
    text,
    number,
    option, // a parameter with a value of its own kind, or, without a skipper, with none
    params,
    other
};
struct Field
{
    FieldRole role;
    std::string_view word = {}, element = {};
    Skipper skip = nullptr;
    RT_BOOL ( *isOk )( int64_t ) = nullptr;
};
using Fields = std::span<const Field>;

// Takes pieces from the start of a value. Each function returns whether its piece is there; the first that is not becomes
// the obstacle.
class GrammarReader
{
public:
    GrammarReader( Text value, bool isInList ) : whole( value ), rest( value ), inList( isInList ) {}

    Obstacle obstacle() const { return found; }

    bool takes( Skipper skip ) { return bool( rest.take( skip ) ); }
    bool need( Skipper skip, const GrammarPiece *piece ) { return takes( skip ) || isMissing( piece ); }
    bool need( const Field &field )
    {
        if ( takes( field.skip ) )
            return true;
        // The code cseq-method is that of a method that differs from the request's.
        if ( field.element == "Method" )
            return isMissing( grammarPiece( "method-token" ) );
        isMissing( nullptr );
        found.element = field.element;
        return false;
    }
    bool blank() { return need( telsx___SkipLws, grammarPiece( "blank" ) ); }
    bool slash() { return need( telsx___SkipSlash, grammarPiece( "slash" ) ); }
    bool token() { return need( telsx___SkipToken, grammarPiece( "token" ) ); }

    // A number that is Ok. The numbers that are form one range.
    bool number( RT_BOOL ( *isOk )( int64_t ) )
    {
        Text before = rest;
        Text digits = rest.take( telsx___SkipDigits );
        if ( digits && tryDecodeNumber( digits, isOk ) != -1 )
            return true;
        rest = before;
        isMissing( grammarPiece( "number" ) );
        found.least = isOk( 0 ) ? 0 : 1;
        found.most = found.least;
        for ( int64_t step = INT64_MAX / 2 + 1; step; step /= 2 )
            if ( found.most <= INT64_MAX - step && isOk( found.most + step ) )
                found.most += step;
        return false;
    }

    bool quoted( const GrammarPiece *piece )
    {
        if ( takes( telsx___SkipQuotedString ) )
            return true;
        if ( !takes( telsx___SkipLdquot ) )
            return isMissing( piece );
        rest = rest.after( rest.length );
        return isMissing( grammarPiece( "quote" ) );
    }

    bool uriInBrackets()
    {
        if ( !takes( telsx___SkipUri ) )
        {
            takes( telsx___SkipToken ); // what could be a scheme
            return isMissing( grammarPiece( "uri" ) );
        }
        return need( telsx___SkipRaquot, grammarPiece( "closing" ) );
    }

    // An address in brackets without a display name; an address in any form.
    bool bareBrackets() { return need( telsx___SkipLaquot, grammarPiece( "bracket" ) ) && uriInBrackets(); }
    bool address()
    {
        Text before = rest;
        if ( inBrackets() || isStuck )
            return !isStuck;
        Text afterName = std::exchange( rest, before );
        isBare = takes( telsx___SkipAddrSpec );
        if ( isBare )
            return true;
        rest = afterName;
        return isMissing( rest.length == before.length ? grammarPiece( "address" )
                                                       : grammarPiece( "bracket" ) );
    }

    bool params( Fields typed = {} )
    {
        while ( takes( telsx___SkipSemi ) )
            if ( !takesTyped( typed ) && !param() )
                return false;
        return isAtEnd() || isMissing( grammarPiece( "param" ) );
    }
    bool end() { return isAtEnd() || isMissing( grammarPiece( "end" ) ); }

    bool isAtParams() const { return isAtEnd() || telsx___SkipSemi( rest.chs, rest.length ); }

    // What is wrong here, and what is wrong with a value whose pieces are all there.
    bool lacks( const GrammarPiece *piece ) { return isMissing( piece ); }
    bool lacks( const Field &param )
    {
        isMissing( grammarPiece( "param-missing" ) );
        found.element = param.word;
        return false;
    }
    bool isWrong( const GrammarPiece *piece )
    {
        rest = whole;
        return isMissing( piece );
    }

    bool isBare = false; // the address had no brackets

private:
    bool isMissing( const GrammarPiece *piece )
    {
        if ( !std::exchange( isStuck, true ) )
            found = { whole.length - rest.length, piece };
        return false;
    }

    bool isAtEnd() const { return !rest || ( inList && telsx___SkipComma( rest.chs, rest.length ) ); }

    // Without an opening bracket the display name alone is taken.
    bool inBrackets()
    {
        Text start = rest;
        if ( start.take( telsx___SkipLdquot ) && !telsx___SkipQuotedString( rest.chs, rest.length ) )
            return quoted( nullptr );
        if ( rest && rest.chs[0] != '<' )
            takes( telsx___SkipDisplayName );
        return takes( telsx___SkipLaquot ) && uriInBrackets();
    }

    // As the decoders do, takes as much as there is of a value of its own kind.
    bool takesTyped( Fields typed )
    {
        for ( const Field &field : typed )
        {
            if ( field.role != FieldRole::option )
                continue;
            Text after = rest;
            if ( !after.take( skipName( field.word, rest ) ) )
                continue;
            bool hasValue = bool( after.take( telsx___SkipEqual ) );
            if ( field.skip ? hasValue && after.take( field.skip ) : !hasValue )
            {
                rest = after;
                return true;
            }
        }
        return false;
    }

    // The name of a parameter: "RetryAfter" is retry-after, and a qvalue's is q.
    static int64_t skipName( std::string_view word, Text text )
    {
        if ( word == "Qvalue" )
            word = "Q";
        int64_t at = 0;
        for ( std::size_t i = 0; i < word.size(); ++i )
        {
            char ch = rt::lowerAscii( word[i] );
            if ( i > 0 && ch != word[i] && ( at >= text.length || text.chs[at++] != '-' ) )
                return 0;
            if ( at >= text.length || rt::lowerAscii( text.chs[at++] ) != RT_CHAR( ch ) )
                return 0;
        }
        return at;
    }

    bool param()
    {
        if ( !need( telsx___SkipToken, grammarPiece( "param-name" ) ) )
            return false;
        return !takes( telsx___SkipEqual ) || takes( telsx___SkipToken ) || takes( telsx___SkipHost )
               || quoted( grammarPiece( "param-value" ) );
    }

    Text whole, rest;
    bool inList;
    bool isStuck = false;
    Obstacle found;
};

// The fields of all types

// clang-format off
#define telsx___SkipIri telsx___SkipUri
#define telsx___SkipQuotableString telsx___SkipQuotedString
#define TELSX_TEXT( NAME, WORD, ELEMENT ) { FieldRole::text, #WORD, #ELEMENT, telsx___Skip##ELEMENT },
#define TELSX_OPTIONAL_TEXT( NAME, WORD, ELEMENT ) { FieldRole::option, #WORD, #ELEMENT, telsx___Skip##ELEMENT },
#define TELSX_NUMBER( NAME, WORD, ELEMENT ) { FieldRole::number, #WORD, #ELEMENT, nullptr, telsx##ELEMENT##Ok },
#define TELSX_OPTIONAL_NUMBER( NAME, WORD, ELEMENT ) \
    { FieldRole::option, #WORD, #ELEMENT, std::string_view( #ELEMENT ) == "Qvalue" ? telsx___SkipQvalue : telsx___SkipDigits },
#define TELSX_FLAG( NAME, WORD ) { FieldRole::option, #WORD },
#define TELSX_MARK( NAME, WORD ) { FieldRole::option, #WORD },
#define TELSX_READ_NUMBER( NAME, WORD ) { FieldRole::other, #WORD },
#define TELSX_OBJECT_OF( NAME, WORD, TYPE ) { FieldRole::other, #WORD },
#define TELSX_PARAMS( NAME ) { FieldRole::params },
#define TELSX_VALUE( NAME, SORT, FIELDS ) static constexpr Field fieldsOf##NAME[] = { FIELDS };
#define TELSX_KIND( NAME, SORT, SIP_NAME )
#define TELSX_KIND_OF_FIELDS( NAME, SORT, SIP_NAME, FIELDS ) static constexpr Field fieldsOf##NAME[] = { FIELDS };
#include "telsx/telsx_values.def"
#include "telsx/telsx_headers.def"
#undef TELSX_VALUE
// clang-format on

static constexpr struct
{
    std::string_view type;
    Fields fields;
} types[] = {
#define TELSX_VALUE( NAME, SORT, FIELDS ) { #NAME, fieldsOf##NAME },
#define TELSX_KIND_OF_FIELDS( NAME, SORT, SIP_NAME, FIELDS ) { #NAME, fieldsOf##NAME },
#include "telsx/telsx_headers.def"
#include "telsx/telsx_values.def"
};
#undef TELSX_VALUE
#undef TELSX_KIND

// What the tables say of a type: its texts and numbers in their order with blanks between them, and then the
// parameters, among which may be some of the texts.
static bool readFields( GrammarReader &reader, Fields fields )
{
    auto isFront = []( const Field &field )
    { return field.role == FieldRole::text || field.role == FieldRole::number; };
    auto has = [fields]( auto is ) { return std::any_of( fields.begin(), fields.end(), is ); };
    bool hasParams = has( []( const Field &field ) { return field.role == FieldRole::params; } );
    bool hasName = has( []( const Field &field ) { return field.word == "DisplayName"; } );
    bool hasFront = has( isFront ), isFirst = true;
    const Field *missing = nullptr;
    for ( const Field &field : fields )
    {
        // A type that can be a star has no text that must be there; its first field is at the front nevertheless.
        if ( hasFront ? !isFront( field ) : !isFirst || !field.skip )
            continue;
        if ( !isFirst && hasParams && reader.isAtParams() )
        {
            missing = &field;
            break;
        }
        if ( !std::exchange( isFirst, false ) && !reader.blank() )
            return false;
        if ( field.element == "Iri" ? !( hasName ? reader.address() : reader.bareBrackets() )
                                    : !( field.isOk ? reader.number( field.isOk ) : reader.need( field ) ) )
            return false;
    }
    if ( !( hasParams ? reader.params( fields ) : reader.end() ) )
        return false;
    if ( missing )
        return reader.lacks( *missing );
    return !reader.isBare || reader.isWrong( grammarPiece( "bracket" ) );
}

// Readers of the types that need one

static int64_t skipAddress( const RT_CHAR *chs, int64_t length )
{
    int64_t v6 = telsx___SkipIpV6Address( chs, length );
    return v6 ? v6 : telsx___SkipIpV4Address( chs, length );
}

static bool readText( GrammarReader &reader )
{
    reader.takes( telsx___SkipLws );
    reader.takes( telsx___SkipSubject );
    reader.takes( telsx___SkipLws );
    return reader.lacks( grammarPiece( "text" ) );
}

static bool readProducts( GrammarReader &reader )
{
    do
    {
        if ( !reader.need( telsx___SkipServerVal, grammarPiece( "product" ) ) )
            return false;
    } while ( reader.takes( telsx___SkipLws ) );
    return reader.end();
}

static bool readMediaType( GrammarReader &reader )
{
    static constexpr Field subtype = { FieldRole::text, {}, "MediaSubtype", telsx___SkipToken };
    return reader.need( telsx___SkipMediaType, grammarPiece( "media-type" ) ) && reader.slash()
           && reader.need( subtype ) && reader.params( fieldsOfAccept );
}

// Parameters with commas between them (RFC 7235, 2.1).
static bool readAuthParams( GrammarReader &reader )
{
    do
    {
        if ( !reader.need( telsx___SkipToken, grammarPiece( "param-name" ) )
             || !reader.need( telsx___SkipEqual, grammarPiece( "equal" ) )
             || !( reader.takes( telsx___SkipToken ) || reader.quoted( grammarPiece( "param-value" ) ) ) )
            return false;
    } while ( reader.takes( telsx___SkipComma ) );
    return reader.end();
}
static bool readAuth( GrammarReader &reader )
{
    return reader.token() && reader.blank() && readAuthParams( reader );
}

static bool readContact( GrammarReader &reader )
{
    if ( reader.takes( telsx___SkipStar ) )
        return reader.lacks( grammarPiece( "star-alone" ) );
    return readFields( reader, fieldsOfContact );
}

static bool readFeatures( GrammarReader &reader )
{
    return reader.need( telsx___SkipStar, grammarPiece( "star" ) ) && reader.params();
}

static bool readContentId( GrammarReader &reader )
{
    static constexpr Field msgId = { FieldRole::text, {}, "MsgId", telsx___SkipMsgId };
    return reader.need( telsx___SkipLaquot, grammarPiece( "bracket" ) ) && reader.need( msgId )
           && reader.need( telsx___SkipRaquot, grammarPiece( "closing" ) ) && reader.end();
}

static int64_t skipTrueOrFalse( const RT_CHAR *chs, int64_t length )
{
    return skipKeyword<"true", "false">( { chs, length } );
}
static bool readReferSub( GrammarReader &reader )
{
    return reader.need( skipTrueOrFalse, grammarPiece( "true-or-false" ) ) && reader.params();
}

static bool readRetryAfter( GrammarReader &reader )
{
    if ( !reader.number( telsxDeltaSecondsOk ) )
        return false;
    reader.takes( telsx___SkipLws );
    reader.takes( telsx___SkipComment );
    return reader.params( fieldsOfHeaderRetryAfter );
}

static bool readVia( GrammarReader &reader )
{
    static constexpr Field params[] = { { FieldRole::option, "Ttl", {}, telsx___SkipTtl },
                                        { FieldRole::option, "Received", {}, skipAddress },
                                        { FieldRole::option, "Rport", {}, telsx___SkipPort } };
    return reader.need( telsx___SkipProtocolName, grammarPiece( "protocol" ) ) && reader.slash()
           && reader.need( telsx___SkipProtocolVersion, grammarPiece( "version" ) ) && reader.slash()
           && reader.need( telsx___SkipTransport, grammarPiece( "transport" ) ) && reader.blank()
           && reader.need( telsx___SkipHost, grammarPiece( "host" ) )
           && ( !reader.takes( telsx___SkipColon )
                || reader.need( telsx___SkipPort, grammarPiece( "port" ) ) )
           && reader.params( params );
}

static bool readWarning( GrammarReader &reader )
{
    return reader.need( telsx___SkipWarnCode, grammarPiece( "warn-code" ) ) && reader.blank()
           && reader.need( telsx___SkipWarnAgent, grammarPiece( "agent" ) ) && reader.blank()
           && reader.quoted( grammarPiece( "warn-text" ) ) && reader.end();
}

static constexpr struct
{
    std::string_view type;
    bool ( *read )( GrammarReader &reader );
} ownReaders[] = {
    { "Accept", readMediaType },
    { "AcceptContact", readFeatures },
    { "Challenge", readAuth },
    { "Contact", readContact },
    { "Credentials", readAuth },
    { "HeaderAuthenticationInfo", readAuthParams },
    { "HeaderContentId", readContentId },
    { "HeaderContentType", readMediaType },
    { "HeaderDate", []( GrammarReader &reader ) { return reader.isWrong( grammarPiece( "date" ) ); } },
    { "HeaderOrganization", readText },
    { "HeaderReferSub", readReferSub },
    { "HeaderRetryAfter", readRetryAfter },
    { "HeaderServer", readProducts },
    { "HeaderSubject", readText },
    { "HeaderUserAgent", readProducts },
    { "RejectContact", readFeatures },
    { "Via", readVia },
    { "WarningValue", readWarning },
};

Obstacle findObstacle( std::string_view type, Text value, bool isInList )
{
    GrammarReader reader( value, isInList );
    for ( const auto &own : ownReaders )
        if ( own.type == type )
            return own.read( reader ), reader.obstacle();
    for ( const auto &one : types )
        if ( one.type == type )
            readFields( reader, one.fields );
    return reader.obstacle();
}

// Where headers are defined

struct Reference
{
    std::string_view name, reference;
};
static constexpr Reference references[] = {
    { "Accept", "RFC 3261, 20.1" },
    { "Accept-Contact", "RFC 3841, 9.2" },
    { "Accept-Encoding", "RFC 3261, 20.2" },
    { "Accept-Language", "RFC 3261, 20.3" },
    { "Accept-Resource-Priority", "RFC 4412, 3.2" },
    { "Alert-Info", "RFC 3261, 20.4" },
    { "Allow", "RFC 3261, 20.5" },
    { "Allow-Events", "RFC 6665, 8.2.2" },
    { "Answer-Mode", "RFC 5373" },
    { "Authentication-Info", "RFC 3261, 20.6" },
    { "Authorization", "RFC 3261, 20.7" },
    { "Call-Id", "RFC 3261, 20.8" },
    { "Call-Info", "RFC 3261, 20.9" },
    { "Contact", "RFC 3261, 20.10" },
    { "Content-Disposition", "RFC 3261, 20.11" },
    { "Content-Encoding", "RFC 3261, 20.12" },
    { "Content-Id", "RFC 8262" },
    { "Content-Language", "RFC 3261, 20.13" },
    { "Content-Type", "RFC 3261, 20.15" },
    { "Cseq", "RFC 3261, 20.16" },
    { "Date", "RFC 3261, 20.17" },
    { "Diversion", "RFC 5806, 4" },
    { "Error-Info", "RFC 3261, 20.18" },
    { "Event", "RFC 6665, 8.2.1" },
    { "Expires", "RFC 3261, 20.19" },
    { "Feature-Caps", "RFC 6809" },
    { "Flow-Timer", "RFC 5626" },
    { "From", "RFC 3261, 20.20" },
    { "Geolocation", "RFC 6442, 4.1" },
    { "History-Info", "RFC 7044, 5" },
    { "Identity", "RFC 8224, 4" },
    { "In-Reply-To", "RFC 3261, 20.21" },
    { "Info-Package", "RFC 6086" },
    { "Join", "RFC 3911, 7.1" },
    { "Max-Breadth", "RFC 5393, 5.3" },
    { "Max-Forwards", "RFC 3261, 20.22" },
    { "Mime-Version", "RFC 3261, 20.24" },
    { "Min-Expires", "RFC 3261, 20.23" },
    { "Min-Se", "RFC 4028, 5" },
    { "Organization", "RFC 3261, 20.25" },
    { "P-Access-Network-Info", "RFC 7315, 5.4" },
    { "P-Asserted-Identity", "RFC 3325, 9.1" },
    { "P-Associated-Uri", "RFC 7315, 5.1" },
    { "P-Called-Party-Id", "RFC 3455, 5.2" },
    { "P-Charging-Function-Addresses", "RFC 7315, 5.5" },
    { "P-Charging-Vector", "RFC 7315, 5.6" },
    { "P-Early-Media", "RFC 5009" },
    { "P-Preferred-Identity", "RFC 3325, 9.2" },
    { "P-Served-User", "RFC 5502" },
    { "P-Visited-Network-Id", "RFC 7315, 5.3" },
    { "Path", "RFC 3327, 4" },
    { "Priority", "RFC 3261, 20.26" },
    { "Priv-Answer-Mode", "RFC 5373" },
    { "Privacy", "RFC 3323, 4.2" },
    { "Proxy-Authenticate", "RFC 3261, 20.27" },
    { "Proxy-Authorization", "RFC 3261, 20.28" },
    { "Proxy-Require", "RFC 3261, 20.29" },
    { "Rack", "RFC 3262, 7.2" },
    { "Reason", "RFC 3326, 2" },
    { "Record-Route", "RFC 3261, 20.30" },
    { "Recv-Info", "RFC 6086" },
    { "Refer-Sub", "RFC 4488" },
    { "Refer-To", "RFC 3515, 2.1" },
    { "Referred-By", "RFC 3892, 3" },
    { "Reject-Contact", "RFC 3841, 9.2" },
    { "Remote-Party-Id", "draft-ietf-sip-privacy-04, 5" },
    { "Replaces", "RFC 3891, 6.1" },
    { "Reply-To", "RFC 3261, 20.31" },
    { "Request-Disposition", "RFC 3841, 9.1" },
    { "Require", "RFC 3261, 20.32" },
    { "Resource-Priority", "RFC 4412, 3.1" },
    { "Retry-After", "RFC 3261, 20.33" },
    { "Route", "RFC 3261, 20.34" },
    { "Rseq", "RFC 3262, 7.1" },
    { "Security-Client", "RFC 3329, 2.2" },
    { "Security-Server", "RFC 3329, 2.2" },
    { "Security-Verify", "RFC 3329, 2.2" },
    { "Server", "RFC 3261, 20.35" },
    { "Service-Route", "RFC 3608, 5" },
    { "Session-Expires", "RFC 4028, 4" },
    { "Session-Id", "RFC 7989" },
    { "Sip-Etag", "RFC 3903, 11.3.1" },
    { "Sip-If-Match", "RFC 3903, 11.3.2" },
    { "Subject", "RFC 3261, 20.36" },
    { "Subscription-State", "RFC 6665, 8.2.3" },
    { "Supported", "RFC 3261, 20.37" },
    { "Target-Dialog", "RFC 4538" },
    { "Timestamp", "RFC 3261, 20.38" },
    { "To", "RFC 3261, 20.39" },
    { "Unsupported", "RFC 3261, 20.40" },
    { "User-Agent", "RFC 3261, 20.41" },
    { "User-To-User", "RFC 7433, 4" },
    { "Via", "RFC 3261, 20.42" },
    { "Warning", "RFC 3261, 20.43" },
    { "Www-Authenticate", "RFC 3261, 20.44" },
};

std::string_view headerReference( std::string_view name )
{
    constexpr auto nameIn = &Reference::name;
    static_assert( std::ranges::is_sorted( references, {}, nameIn ) );
    auto found = std::ranges::lower_bound( references, name, {}, nameIn );
    return found != std::end( references ) && found->name == name ? found->reference : "RFC 3261, 7.3";
}

} // namespace telsx
