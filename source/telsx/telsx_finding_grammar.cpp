// The grammars of headers, read piece by piece.
#include "telsx/telsx_finding_grammar.hpp"

#include "telsx/telsx_branch.h"
#include "telsx/telsx_call_id.h"
#include "telsx/telsx_content_coding.h"
#include "telsx/telsx_delta_seconds.h"
#include "telsx/telsx_disposition_type.h"
#include "telsx/telsx_epid.h"
#include "telsx/telsx_event_type.h"
#include "telsx/telsx_history_info_index.h"
#include "telsx/telsx_host.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_media_subtype.h"
#include "telsx/telsx_media_type.h"
#include "telsx/telsx_method.h"
#include "telsx/telsx_number.hpp"
#include "telsx/telsx_organization.h"
#include "telsx/telsx_port.h"
#include "telsx/telsx_priority_value.h"
#include "telsx/telsx_protocol_name.h"
#include "telsx/telsx_protocol_version.h"
#include "telsx/telsx_qvalue.h"
#include "telsx/telsx_reason_protocol.h"
#include "telsx/telsx_subject.h"
#include "telsx/telsx_substate_value.h"
#include "telsx/telsx_tag.h"
#include "telsx/telsx_timestamp_value.h"
#include "telsx/telsx_token.h"
#include "telsx/telsx_transport.h"
#include "telsx/telsx_ttl.h"
#include "telsx/telsx_warn_agent.h"
#include "telsx/telsx_warn_code.h"

namespace telsx
{

// A parameter with a value of its own kind, or, without a skipper, with none; as the decoders do, the reader takes what
// there is of it.
struct TypedParam
{
    std::string_view name;
    Skipper skipValue;
};

// Takes pieces from the start of a value; each function tells whether what it wants is there. The first that is not
// stays as the obstacle.
class GrammarReader
{
public:
    GrammarReader( Text value, bool isInList ) : whole( value ), rest( value ), inList( isInList ) {}

    Obstacle obstacle() const { return found; }

    bool takes( Skipper skip ) { return bool( rest.take( skip ) ); }
    bool need( Skipper skip, const GrammarPiece *piece ) { return takes( skip ) || isMissing( piece ); }
    bool blank() { return need( telsx___SkipLws, grammarPiece( "blank" ) ); }
    bool slash() { return need( telsx___SkipSlash, grammarPiece( "slash" ) ); }
    bool method() { return need( telsx___SkipMethod, grammarPiece( "method-token" ) ); }
    bool token() { return need( telsx___SkipToken, grammarPiece( "token" ) ); }

    bool number( int64_t least, int64_t most )
    {
        Text before = rest;
        Text digits = rest.take( telsx___SkipDigits );
        int64_t value = tryDecodeNumber( digits );
        if ( digits && value >= least && value <= most )
            return true;
        rest = before;
        isMissing( grammarPiece( "number" ) );
        found.least = least;
        found.most = most;
        return false;
    }
    bool seconds() { return number( 0, INT64_MAX ); }

    bool quoted( const GrammarPiece *piece )
    {
        if ( takes( telsx___SkipQuotedString ) )
            return true;
        if ( !takes( telsx___SkipLdquot ) )
            return isMissing( piece );
        rest = rest.behind( rest.length );
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

    // An address in brackets without a display name, in brackets, in any form.
    bool bareBrackets() { return need( telsx___SkipLaquot, grammarPiece( "bracket" ) ) && uriInBrackets(); }
    bool nameAddress()
    {
        Text before = rest;
        if ( inBrackets() || isStuck )
            return !isStuck;
        if ( rest && rest.chs[0] == ':' )
            rest = before; // an address, and no display name
        return isMissing( grammarPiece( "bracket" ) );
    }
    bool address()
    {
        Text before = rest;
        if ( inBrackets() || isStuck )
            return !isStuck;
        Text behindName = std::exchange( rest, before );
        if ( takes( telsx___SkipAddrSpec ) )
            return true;
        rest = behindName;
        return isMissing( rest.length == before.length ? grammarPiece( "address" )
                                                       : grammarPiece( "bracket" ) );
    }

    bool params( std::initializer_list<TypedParam> typed = {} )
    {
        while ( takes( telsx___SkipSemi ) )
            if ( !takesTyped( typed ) && !param() )
                return false;
        return isAtEnd() || isMissing( grammarPiece( "param" ) );
    }
    bool end() { return isAtEnd() || isMissing( grammarPiece( "end" ) ); }

    // What is wrong here, and what with a value whose pieces are all there.
    bool lacks( const GrammarPiece *piece ) { return isMissing( piece ); }
    bool isWrong( const GrammarPiece *piece )
    {
        rest = whole;
        return isMissing( piece );
    }

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

    bool takesTyped( std::initializer_list<TypedParam> typed )
    {
        for ( auto [name, skipValue] : typed )
        {
            Text behind = rest;
            Text start = behind.take( std::min( lengthOf( name ), rest.length ) );
            auto isSame = []( RT_CHAR a, char b ) { return a < 0x80 && ( a | 0x20 ) == RT_CHAR( b ); };
            if ( !std::equal( start.chs, start.chs + start.length, name.begin(), name.end(), isSame ) )
                continue;
            bool hasValue = bool( behind.take( telsx___SkipEqual ) );
            if ( skipValue ? hasValue && behind.take( skipValue ) : !hasValue )
            {
                rest = behind;
                return true;
            }
        }
        return false;
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

static int64_t skipAddress( const RT_CHAR *chs, int64_t length )
{
    int64_t v6 = telsx___SkipIpV6Address( chs, length );
    return v6 ? v6 : telsx___SkipIpV4Address( chs, length );
}

static bool readSeconds( GrammarReader &reader ) { return reader.seconds() && reader.end(); }
static bool readAddress( GrammarReader &reader ) { return reader.address() && reader.end(); }
static bool readParty( GrammarReader &reader ) { return reader.address() && reader.params(); }
static bool readFromTo( GrammarReader &reader )
{
    return reader.address() && reader.params( { { "tag", telsx___SkipTag }, { "epid", telsx___SkipEpid } } );
}
static bool readRoute( GrammarReader &reader ) { return reader.nameAddress() && reader.params(); }
static bool readInfo( GrammarReader &reader ) { return reader.bareBrackets() && reader.params(); }
static bool readToken( GrammarReader &reader ) { return reader.token() && reader.end(); }
static bool readTokenWithParams( GrammarReader &reader ) { return reader.token() && reader.params(); }
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

// clang-format off
static constexpr HeaderGrammar grammars[] = {
    { "Accept", "RFC 3261, 20.1", []( GrammarReader &reader ) {
        return reader.need( telsx___SkipMediaType, grammarPiece( "media-type" ) ) && reader.slash()
               && reader.need( telsx___SkipToken, grammarPiece( "media-type" ) ) && reader.params( { { "q", telsx___SkipQvalue } } );
    } },
    { "Accept-Encoding", "RFC 3261, 20.2", []( GrammarReader &reader ) {
        return reader.token() && reader.params( { { "q", telsx___SkipQvalue } } );
    } },
    { "Alert-Info", "RFC 3261, 20.4", readInfo },
    { "Allow", "RFC 3261, 20.5", nullptr },
    { "Allow-Events", "RFC 6665, 8.2.2", nullptr },
    { "Call-Id", "RFC 3261, 20.8", []( GrammarReader &reader ) {
        return reader.need( telsx___SkipCallId, grammarPiece( "word" ) ) && reader.end();
    } },
    { "Call-Info", "RFC 3261, 20.9", readInfo },
    { "Contact", "RFC 3261, 20.10", []( GrammarReader &reader ) {
        if ( reader.takes( telsx___SkipStar ) )
            return reader.lacks( grammarPiece( "star-alone" ) );
        return reader.address() && reader.params( { { "q", telsx___SkipQvalue }, { "expires", telsx___SkipDeltaSeconds } } );
    } },
    { "Content-Disposition", "RFC 3261, 20.11", readTokenWithParams },
    { "Content-Encoding", "RFC 3261, 20.12", nullptr },
    { "Cseq", "RFC 3261, 20.16", []( GrammarReader &reader ) {
        return reader.number( 0, INT32_MAX ) && reader.blank() && reader.method() && reader.end();
    } },
    { "Date", "RFC 3261, 20.17", []( GrammarReader &reader ) { return reader.isWrong( grammarPiece( "date" ) ); } },
    { "Diversion", "RFC 5806, 4", readRoute },
    { "Error-Info", "RFC 3261, 20.18", readInfo },
    { "Event", "RFC 6665, 8.2.1", []( GrammarReader &reader ) {
        return reader.need( telsx___SkipEventType, grammarPiece( "event" ) ) && reader.params();
    } },
    { "Expires", "RFC 3261, 20.19", readSeconds },
    { "From", "RFC 3261, 20.20", readFromTo },
    { "History-Info", "RFC 7044, 5", []( GrammarReader &reader ) {
        return readRoute( reader ) && reader.lacks( grammarPiece( "index" ) );
    } },
    { "In-Reply-To", "RFC 3261, 20.21", nullptr },
    { "Max-Forwards", "RFC 3261, 20.22", []( GrammarReader &reader ) { return reader.number( 0, 255 ) && reader.end(); } },
    { "Min-Expires", "RFC 3261, 20.23", readSeconds },
    { "Min-Se", "RFC 4028, 5", []( GrammarReader &reader ) { return reader.seconds() && reader.params(); } },
    { "Organization", "RFC 3261, 20.25", readText },
    { "P-Asserted-Identity", "RFC 3325, 9.1", readAddress },
    { "P-Called-Party-Id", "RFC 3455, 5.2", readParty },
    { "P-Preferred-Identity", "RFC 3325, 9.2", readAddress },
    { "Priority", "RFC 3261, 20.26", readToken },
    { "Privacy", "RFC 3323, 4.2", nullptr },
    { "Proxy-Require", "RFC 3261, 20.29", nullptr },
    { "Rack", "RFC 3262, 7.2", []( GrammarReader &reader ) {
        return reader.number( 1, UINT32_MAX ) && reader.blank() && reader.number( 0, INT32_MAX ) && reader.blank()
               && reader.method() && reader.end();
    } },
    { "Reason", "RFC 3326, 2", []( GrammarReader &reader ) {
        return reader.need( telsx___SkipReasonProtocol, grammarPiece( "protocol" ) )
               && reader.params( { { "cause", telsx___SkipDigits } } );
    } },
    { "Record-Route", "RFC 3261, 20.30", readRoute },
    { "Refer-To", "RFC 3515, 2.1", readParty },
    { "Referred-By", "RFC 3892, 3", readParty },
    { "Remote-Party-Id", "draft-ietf-sip-privacy-04, 5", readParty },
    { "Replaces", "RFC 3891, 6.1", []( GrammarReader &reader ) {
        return reader.need( telsx___SkipCallId, grammarPiece( "word" ) ) && reader.params( { { "early-only", nullptr } } );
    } },
    { "Reply-To", "RFC 3261, 20.31", readParty },
    { "Require", "RFC 3261, 20.32", nullptr },
    { "Retry-After", "RFC 3261, 20.33", []( GrammarReader &reader ) {
        if ( !reader.seconds() )
            return false;
        reader.takes( telsx___SkipLws );
        reader.takes( telsx___SkipComment );
        return reader.params( { { "duration", telsx___SkipDeltaSeconds } } );
    } },
    { "Route", "RFC 3261, 20.34", readRoute },
    { "Rseq", "RFC 3262, 7.1", []( GrammarReader &reader ) { return reader.number( 1, UINT32_MAX ) && reader.end(); } },
    { "Server", "RFC 3261, 20.35", readProducts },
    { "Service-Route", "RFC 3608, 5", readRoute },
    { "Session-Expires", "RFC 4028, 4", []( GrammarReader &reader ) { return reader.seconds() && reader.params(); } },
    { "Subject", "RFC 3261, 20.36", readText },
    { "Subscription-State", "RFC 6665, 8.2.3", []( GrammarReader &reader ) {
        return reader.token() && reader.params( { { "expires", telsx___SkipDeltaSeconds }, { "retry-after", telsx___SkipDeltaSeconds } } );
    } },
    { "Supported", "RFC 3261, 20.37", nullptr },
    { "Timestamp", "RFC 3261, 20.38", []( GrammarReader &reader ) {
        return reader.need( telsx___SkipTimestampValue, grammarPiece( "number" ) ) && reader.end();
    } },
    { "To", "RFC 3261, 20.39", readFromTo },
    { "Unsupported", "RFC 3261, 20.40", nullptr },
    { "User-Agent", "RFC 3261, 20.41", readProducts },
    { "Via", "RFC 3261, 20.42", []( GrammarReader &reader ) {
        return reader.need( telsx___SkipProtocolName, grammarPiece( "protocol" ) ) && reader.slash()
               && reader.need( telsx___SkipProtocolVersion, grammarPiece( "version" ) ) && reader.slash()
               && reader.need( telsx___SkipTransport, grammarPiece( "transport" ) ) && reader.blank()
               && reader.need( telsx___SkipHost, grammarPiece( "host" ) )
               && ( !reader.takes( telsx___SkipColon ) || reader.need( telsx___SkipPort, grammarPiece( "port" ) ) )
               && reader.params( { { "ttl", telsx___SkipTtl }, { "received", skipAddress }, { "rport", telsx___SkipPort } } );
    } },
    { "Warning", "RFC 3261, 20.43", []( GrammarReader &reader ) {
        return reader.need( telsx___SkipWarnCode, grammarPiece( "number" ) ) && reader.blank()
               && reader.need( telsx___SkipWarnAgent, grammarPiece( "agent" ) ) && reader.blank()
               && reader.quoted( grammarPiece( "warn-text" ) ) && reader.end();
    } },
};
// clang-format on

std::span<const HeaderGrammar> headerGrammars() { return grammars; }

const HeaderGrammar *findHeaderGrammar( std::string_view name )
{
    const HeaderGrammar *found = std::find_if( std::begin( grammars ), std::end( grammars ),
                                               [=]( auto &grammar ) { return grammar.name == name; } );
    return found == std::end( grammars ) ? nullptr : found;
}

Obstacle findObstacle( const HeaderGrammar *grammar, Text value, bool isInList )
{
    GrammarReader reader( value, isInList );
    if ( !grammar )
        return reader.obstacle();
    if ( grammar->read )
        grammar->read( reader );
    else
        reader.isWrong( nullptr );
    return reader.obstacle();
}

} // namespace telsx
