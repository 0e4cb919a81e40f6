// Findings: messages with one fault each, which is found where it is.
#include <fstream>
#include <set>

#include "object_tables.hpp"
#include "telsx/telsx_finding_rules.hpp"

namespace
{

using namespace support;

// Has seen the earlier messages of the test, and finds in each what a new one would.
Ref<TELSX_FINDER> finder;

class Findings : public testing::Test
{
protected:
    Findings() { finder = adopt( telsxFinderCreate() ); }
    ~Findings() override { finder = {}; }
};

std::vector<Ref<TELSX_FINDING>> findingsOf( std::string_view bytes )
{
    auto vector = adopt( telsxMessageFindings( buffer( bytes ).get() ) );
    for ( int i = 0; i < 2; ++i )
        EXPECT_TRUE( rtVectorEquals(
            vector.get(), adopt( telsxFinderFindings( finder.get(), buffer( bytes ).get() ) ).get() ) );
    std::vector<Ref<TELSX_FINDING>> findings;
    for ( int64_t i = 0; i < rtVectorLength( vector.get() ); ++i )
        findings.push_back( adopt( telsxFindingFrom( rtVectorObjAt( vector.get(), i ) ) ) );
    return findings;
}

std::string textOf( const std::vector<Ref<TELSX_FINDING>> &findings )
{
    std::string text;
    for ( const Ref<TELSX_FINDING> &finding : findings )
        text += utf8( telsxFindingToString( finding.get() ) ) + "\n";
    return text;
}

constexpr std::string_view request = "INVITE sip:bob@biloxi.example SIP/2.0\r\n"
                                     "Via: SIP/2.0/UDP pc33.atlanta.example;branch=z9hG4bKnashds8\r\n"
                                     "Max-Forwards: 70\r\n"
                                     "From: Alice <sip:alice@atlanta.example>;tag=1928301774\r\n"
                                     "To: Bob <sip:bob@biloxi.example>\r\n"
                                     "Call-ID: a84b4c76e66710\r\n"
                                     "CSeq: 314159 INVITE\r\n"
                                     "Contact: <sip:alice@pc33.atlanta.example>\r\n"
                                     "Content-Type: text/plain\r\n"
                                     "Content-Length: 4\r\n"
                                     "\r\n"
                                     "Hi.\n";
constexpr std::string_view response = "SIP/2.0 200 OK\r\n"
                                      "Via: SIP/2.0/UDP pc33.atlanta.example;branch=z9hG4bKnashds8\r\n"
                                      "From: Alice <sip:alice@atlanta.example>;tag=1928301774\r\n"
                                      "To: Bob <sip:bob@biloxi.example>;tag=a6c85cf\r\n"
                                      "Call-ID: a84b4c76e66710\r\n"
                                      "CSeq: 314159 INVITE\r\n"
                                      "Contact: <sip:bob@192.0.2.4>\r\n"
                                      "Content-Length: 0\r\n"
                                      "\r\n";

// The message with another line in the place of that of its first word; "-To" takes one out. A line of a name that the
// message has not goes after the start line.
std::string changed( std::string message, const std::string &line )
{
    bool isGone = line[0] == '-';
    std::size_t wordBegin = isGone || line[0] == '^';
    std::string word = line.substr( wordBegin, line.find_first_of( " :^@\r", wordBegin ) - wordBegin );
    std::size_t begin = message.starts_with( word ) ? 0 : ( "\n" + message ).find( "\n" + word );
    if ( begin == message.npos || word.empty() )
        return message.insert( message.find( '\n' ) + 1, line + "\r\n" );
    std::size_t size = message.find( '\n', begin ) + 1 - begin;
    return message.replace( begin, size, isGone ? "" : line + "\r\n" );
}

// A caret is before the place of the only finding; without one it is the first byte.
struct Fault
{
    const char *code, *line, *otherLine = nullptr;
};

void expectFaults( std::string_view message, std::initializer_list<Fault> faults )
{
    EXPECT_EQ( "", textOf( findingsOf( message ) ) );
    for ( auto [code, line, otherLine] : faults )
    {
        std::string bytes = changed( std::string( message ), line );
        if ( otherLine )
            bytes = changed( bytes, otherLine );
        std::size_t place = bytes.find( '^' );
        if ( place == bytes.npos )
            place = 0;
        else
            bytes.erase( place, 1 );
        std::string before = "\n" + bytes.substr( 0, place );
        auto findings = findingsOf( bytes );
        SCOPED_TRACE( line + ( "\n" + textOf( findings ) ) );
        ASSERT_FALSE( findings.empty() );
        EXPECT_EQ( 1u, findings.size() );
        TELSX_FINDING finding = findings[0].get();
        EXPECT_EQ( code, utf8( telsxFindingCode( finding ) ) );
        EXPECT_EQ( int64_t( place ), telsxFindingOffset( finding ) );
        EXPECT_EQ( std::count( before.begin(), before.end(), '\n' ), telsxFindingLine( finding ) );
        EXPECT_EQ( int64_t( before.size() - before.rfind( '\n' ) ), telsxFindingColumn( finding ) );
    }
}

TEST_F( Findings, ErrorsSayWhyThereIsNoMessage )
{
    expectFaults( request, {
                               { "request-uri", "INVITE^" },
                               { "start-line", "INVITE: sip:bob@biloxi.example SIP/2.0" },
                               { "method", "INVITE^@ sip:bob@biloxi.example SIP/2.0" },
                               { "request-uri", "INVITE ^ sip:bob@biloxi.example SIP/2.0" },
                               { "request-uri", "INVITE ^<sip:bob@biloxi.example> SIP/2.0" },
                               { "request-uri", "INVITE sip:bob@biloxi^\\.example SIP/2.0" },
                               { "sip-version", "INVITE sip:bob@biloxi.example^" },
                               { "sip-version", "INVITE sip:bob@biloxi.example SIP/2.0^ " },
                               { "sip-version", "INVITE sip:bob ^biloxi.example SIP/2.0" },
                               { "line-end", "INVITE sip:bob@biloxi.example SIP/2.0^\nSubject: x" },
                               { "header-colon", "Subject^" },
                               { "header-colon", "Subject ^is this" },
                               { "header-name", "Subject^@home: x" },
                               { "header-name", "^: x" },
                               { "utf-8", "Subject: x ^\xE4" },
                               { "content-length-number", "Content-Length: 4^ bytes" },
                               { "content-length-number", "Content-Length: ^-4" },
                               { "content-length-body", "Content-Length: ^5" },
                           } );
    expectFaults( response, {
                                { "status-code", "SIP/2.0 ^4294967496 OK" },
                                { "status-code", "SIP/2.0 ^99 OK" },
                                { "start-line", "SIP/ 200 OK" },
                            } );
}

TEST_F( Findings, WarningsSayWhereTheGrammarEnds )
{
    expectFaults(
        request, {
                     { "via-host", "Via: SIP/2.0/UDP ^;branch=z9hG4bKa" },
                     { "via-port", "Via: SIP/2.0/UDP a.example:^x;branch=z9hG4bKa" },
                     { "via-blank", "Via: SIP/2.0/UDP^" },
                     { "via-param-name", "Via: SIP/2.0/UDP a.example;branch=z9hG4bKa;^;rport" },
                     { "via-param", "Via: SIP/2.0/UDP a.example;branch=z9hG4bKa,\r\n SIP / 2.0 / UDP b^@;x" },
                     { "max-forwards-number", "Max-Forwards: ^256" },
                     { "max-forwards-end", "Max-Forwards: 70^ hops" },
                     { "from-quote", "From: \"Alice <sip:alice@atlanta.example>;tag=1^" },
                     { "from-bracket", "From: Bell^, Alice <sip:alice@atlanta.example>;tag=1" },
                     { "from-closing", "From: <sip:alice@atlanta.example;tag=1^" },
                     { "from-uri", "From: Alice <^ sip:alice@atlanta.example>;tag=1" },
                     { "to-param-value", "To: <sip:bob@biloxi.example>;tag=^" },
                     { "to-param", "To: <sip:bob@biloxi.example> ^tag" },
                     { "call-id-end", "Call-ID: a84b4c76e66710^ x" },
                     { "content-id-msg-id", "Content-ID: <^x>" },
                     { "refer-sub-true-or-false", "Refer-Sub: ^maybe" },
                     { "accept-contact-star", "Accept-Contact: *;x, ^y" },
                     { "session-id-sess-uuid", "Session-ID: ^x" },
                     { "cseq-number", "CSeq: ^4294967296 INVITE" },
                     { "cseq-blank", "CSeq: 1^INVITE" },
                     { "cseq-method-token", "CSeq: 1 ^@" },
                     { "contact-star-alone", "Contact: *^, <sip:alice@pc33.atlanta.example>" },
                     { "contact-bracket", "Contact: <sip:a@b>, caller^" },
                     { "contact-param", "Contact: <sip:a@b>;expires=10^s" },
                     { "reason-param", "Reason: SIP\r\nReason: Q.850;cause=1^x" },
                     { "date-date", "Date: ^Fri, 13 Nov 2010 23:29:00 GMT" },
                     { "supported-option-tag", "Supported: 100rel, ^@" },
                     { "supported-option-tag", "Supported: 100rel,^" },
                     { "supported-separator", "Supported: 100rel^ timer" },
                     { "require-option-tag", "Require: 100rel,^, timer" },
                     { "record-route-bracket", "Record-Route: ^sip:a@b;lr" },
                     { "history-info-param-missing", "History-Info: <sip:a@b>^" },
                     { "subject-text", "Subject: a ^\x01" },
                     { "user-agent-product", "User-Agent: a/1.0 ^@" },
                 } );
}

TEST_F( Findings, RemarksSayWhichRuleIsBroken )
{
    expectFaults( request,
                  {
                      { "version-number", "INVITE sip:bob@biloxi.example ^SIP/7.0" },
                      { "request-uri-headers", "INVITE sip:bob@biloxi.example^?Route=x SIP/2.0" },
                      { "contact-sips", "INVITE sips:bob@biloxi.example SIP/2.0", "Contact: ^<sip:a@b>" },
                      { "via-branch", "Via: ^SIP/2.0/UDP a.example" },
                      { "via-cookie", "Via: ^SIP/2.0/UDP a.example;branch=z9hG4bK" },
                      { "from-tag", "From: ^<sip:alice@atlanta.example>" },
                      { "to-ambiguous", "To: ^sip:bob@biloxi.example?x=y" },
                      { "cseq-method", "CSeq: 1 ^BYE" },
                      { "max-forwards-missing", "-Max-Forwards" },
                      { "contact-missing", "-Contact" },
                      { "content-type-missing", "-Content-Type" },
                      { "content-length-short", "Content-Length: ^2" },
                      { "subject-twice", "Subject: a\r\n^Subject: b" },
                      { "unsupported-place", "^Unsupported: 100rel" },
                      { "contact-count", "Contact: <sip:a@b>, ^<sip:a@c>" },
                      { "contact-star", "Contact: ^*" },
                      { "contact-maddr", "Contact: ^<sip:a@b;maddr=192.0.2.1>" },
                      { "route-lr", "Route: <sip:a@b;lr>\r\nRoute: <sip:a@c;lr>, ^<sip:a@b;lr=on>" },
                      { "lone-lf", "X-A: a^\nb: c" },
                  } );
    expectFaults( response, {
                                { "status-code-class", "SIP/2.0 ^777 OK", "-Contact" },
                                { "to-tag", "To: ^<sip:bob@biloxi.example>" },
                                { "require-100rel", "Require: ^100rel" },
                                { "proxy-require-place", "^Proxy-Require: a" },
                                { "contact-missing", "-Contact" },
                                { "contact-sips", "Record-Route: <sips:a@b;lr>", "Contact: ^<sip:a@b>" },
                            } );
}

// Of each kind of header all that its decoder refuses is found, once.
TEST_F( Findings, EveryKindOfHeaderIsWarnedOf )
{
    for ( const headers::Kind &kind : headers::all )
        for ( const Texts &texts : headerTexts )
            for ( const char *bad : texts.bad )
            {
                if ( !texts.areFor( std::string( kind.name ) ) || !bad )
                    continue;
                std::string message =
                    "OPTIONS sip:a SIP/2.0\r\n" + std::string( kind.name ) + ": " + texts.front + bad;
                for ( std::size_t at = 0; ( at = message.find( '\n', at ) ) != message.npos; ++at )
                    if ( message[at - 1] != '\r' )
                        message.replace( at, 1, "\r\n" + std::string( kind.name ) + ": " );
                auto msg = adopt( telsxMessageTryDecode( buffer( message ).get() ) );
                if ( !msg || adopt( kind.tryDecodeFromMessage( msg.get() ) ) )
                    continue;
                auto findings = findingsOf( message );
                SCOPED_TRACE( message + "\n" + textOf( findings ) );
                std::erase_if(
                    findings, []( auto &finding )
                    { return telsxFindingSeverity( finding.get() ) != TELSX_FINDING_SEVERITY_WARNING; } );
                ASSERT_EQ( 1u, findings.size() );
                EXPECT_EQ( kind.name, utf8( telsxFindingHeaderName( findings[0].get() ) ) );
            }
}

// A server can answer what it cannot read.
TEST_F( Findings, AMessageIsSavedWithoutItsBadLines )
{
    auto saved = []( const std::string &bytes )
    {
        auto msg = adopt( telsxMessageTryDecodeLoosely( buffer( bytes ).get() ) );
        return msg ? support::bytes( adopt( telsxMessageEncode( msg.get() ) ) ) : "null";
    };
    std::string whole = saved( std::string( request ) );
    for ( const char *line : { "Subject", "@: x", "Subject: \xFF", "Date: today", "Content-Length: 9",
                               "Content-Length: x", "Require: a b" } )
        EXPECT_EQ( whole, saved( changed( std::string( request ), line ) ) ) << line;
    for ( const char *line : { "-Via", "-To", "Via: SIP/2.0/UDP a;branch=", "CSeq: 1", "From: sip",
                               "INVITE sip:a", "Call-ID: a b" } )
        EXPECT_EQ( "null", saved( changed( std::string( request ), line ) ) ) << line;
}

TEST_F( Findings, TheDocumentHasAllCodes )
{
    std::set<std::string> rows, expected;
    std::ifstream document( DOCUMENTS "/findings.md" );
    for ( std::string line; std::getline( document, line ); )
    {
        bool isRow = line.starts_with( "| `" );
        EXPECT_TRUE( !isRow || rows.insert( line ).second ) << line;
    }
    auto code = []( std::string_view end )
    { return "| `" + std::string( end[0] == '-' ? "<header>" : "" ) + std::string( end ) + "` | "; };
    static constexpr const char *severities[] = { "error", "warning", "remark" };
    for ( const telsx::FindingRule &rule : telsx::findingRules )
        expected.insert( code( rule.code ) + severities[rule.severity] + " | " + std::string( rule.words )
                         + " | " + std::string( rule.reference ) + " |" );
    for ( const telsx::GrammarPiece &piece : telsx::grammarPieces )
        expected.insert( code( "-" + std::string( piece.code ) ) + "expected " + std::string( piece.words )
                         + " |" );
    EXPECT_EQ( expected, rows );
}

} // namespace
