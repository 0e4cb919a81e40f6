// What is wrong with the bytes of a message, and what of it can be read nevertheless.
#include <algorithm>

#include "telsx/telsx.h"
#include "telsx/telsx_finding_headers.hpp"
#include "telsx/telsx_finding_list.hpp"
#include "telsx/telsx_message.hpp"
#include "telsx/telsx_message_findings.hpp"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_number.hpp"

using namespace telsx;

namespace
{

// A rule that is broken where the part of a text begins; no rule is no fault.
struct Fault
{
    const FindingRule *rule = nullptr;
    Text part = {};
};

} // namespace

static Text takeWord( Text &rest )
{
    return rest.take( std::find( rest.chs, rest.chs + rest.length, RT_CHAR( ' ' ) ) - rest.chs );
}

static bool isVersion( Text text ) { return bool( adopt( text.as( telsx___VersionTryDecode ) ) ); }

static Fault findFaultOfStatusLine( Text rest )
{
    rest.take( std::min<int64_t>( rest.length, 1 ) );
    Text status = takeWord( rest );
    bool isGood = telsxStatusCodeOk( tryDecodeNumber( status ) );
    return isGood ? Fault() : Fault{ findingRule( "status-code" ), status ? status : rest };
}

// The part after the method.
static Fault findFaultOfRequestLine( Text rest )
{
    rest.take( std::min<int64_t>( rest.length, 1 ) );
    Text uri = takeWord( rest ), afterUri = uri;
    afterUri.take( telsx___SkipUri );
    if ( !uri || afterUri )
        return { findingRule( "request-uri" ), uri ? afterUri : rest };
    rest.take( std::min<int64_t>( rest.length, 1 ) );
    if ( isVersion( rest ) )
        return {};
    Text afterVersion = rest;
    return { findingRule( "sip-version" ), isVersion( takeWord( afterVersion ) ) ? afterVersion : rest };
}

static Fault findFaultOfStartLine( Text line )
{
    Text rest = line, afterMethod = line;
    Text first = takeWord( rest );
    if ( covers( telsx___SkipMethod, first ) )
        return findFaultOfRequestLine( rest );
    if ( isVersion( first ) )
        return findFaultOfStatusLine( rest );
    Text method = afterMethod.take( telsx___SkipMethod );
    // A header line, or a version.
    bool isOther = afterMethod && ( afterMethod.chs[0] == ':' || afterMethod.chs[0] == '/' );
    return method && !isOther ? Fault{ findingRule( "method" ), afterMethod }
                              : Fault{ findingRule( "start-line" ), line };
}

static Fault findFaultOfHeaderLine( Text line )
{
    Text rest = line;
    Text name = rest.take( telsx___SkipMessageHeaderName );
    rest.take( telsx___SkipLws );
    if ( rest && rest.chs[0] == ':' && name )
        return {};
    bool hasColon = std::find( line.chs, line.chs + line.length, RT_CHAR( ':' ) ) != line.chs + line.length;
    return { name && !hasColon ? findingRule( "header-colon" ) : findingRule( "header-name" ), rest };
}

// The place of the first byte that is not part of a character.
static int64_t findBadByte( Bytes bytes )
{
    for ( Bytes rest = bytes; !rest.empty(); )
    {
        std::size_t before = rest.size();
        if ( takeChar( rest ) == 0xFFFD && before - rest.size() == 1 )
            return int64_t( bytes.size() - before );
    }
    return INT64_MAX;
}

// What is wrong with the value of Content-Length: it is not a number, or else it is more than the bytes of the body.
static Fault findFaultOfContentLength( Text value )
{
    if ( tryDecodeNumber( value ) >= 0 )
        return { findingRule( "content-length-body" ), value };
    Text afterDigits = value;
    afterDigits.take( telsx___SkipDigits );
    return { findingRule( "content-length-number" ), afterDigits ? afterDigits : value };
}

// The first cause in the order of places, except that Content-Length comes last, as in the decoder.
static void findError( const Head &head, FindingList &findings )
{
    int64_t badByte = head.isAscii ? INT64_MAX : findBadByte( head.bytes );
    auto isFound = [&]( const PlacedText &text, Fault fault, const HeadLine &line )
    {
        int64_t place = fault.rule ? text.placeOf( fault.part ) : INT64_MAX;
        if ( badByte <= place && badByte < line.end )
            findings.add( *findingRule( "utf-8" ), badByte );
        else if ( fault.rule )
            findings.addExpected( *fault.rule, place, fault.part );
        return !findings.empty();
    };

    PlacedText startLine = head.startLine();
    Text line = startLine.text();
    Fault fault = findFaultOfStartLine( line );
    line.take( std::find( line.chs, line.chs + line.length, RT_CHAR( '\n' ) ) - line.chs );
    if ( fault.rule && line )
        fault = { findingRule( "line-end" ), line };
    if ( isFound( startLine, fault, head.first ) )
        return;

    const HeadLine *contentLength = nullptr;
    for ( const HeadLine &headerLine : head.lines )
    {
        PlacedText text = head.textOf( headerLine );
        if ( isFound( text, findFaultOfHeaderLine( text.text() ), headerLine ) )
            return;
        if ( headerLine.number == knownNumber<"Content-Length">() )
            contentLength = &headerLine;
    }
    if ( !contentLength )
        return;
    PlacedText text = head.textOf( *contentLength );
    fault = findFaultOfContentLength( valueOf( text ) );
    findings.addExpected( *fault.rule, text.placeOf( fault.part ), fault.part, literal<"Content-Length">() );
}

Ref<RT_VECTOR> telsx::findingsOf( RT_BUFFER buf, HeaderMemory *memory )
{
    Bytes bytes = bytesOf( buf );
    FindingList findings( bytes );
    if ( auto msg = adopt( telsxMessageTryDecode( buf ) ) )
        findHeaderFaults( msg.get(), bytes, findings, memory );
    else
        findError( Head( bytes ), findings );
    return adopt( findings.take() );
}

RT_VECTOR telsxMessageFindings( RT_BUFFER buf )
{
    TELSX_ASSERT( buf );
    return findingsOf( buf, nullptr ).take();
}

// The message without what cannot be read

namespace
{

struct LooseKind
{
    int64_t number; // of the name
    bool ( *isReadable )( TELSX_MESSAGE msg );
    void ( *remove )( TELSX_MESSAGE *msg );
};

} // namespace

#define TELSX_KIND( NAME, SORT, SIP_NAME )                                                           \
    { knownNumber<SIP_NAME>(),                                                                       \
      []( TELSX_MESSAGE msg ) { return bool( adopt( telsx##NAME##TryDecodeFromMessage( msg ) ) ); }, \
      telsx##NAME##RemoveFromMessage },
static constexpr LooseKind looseKinds[] = {
#include "telsx/telsx_headers.def"
};
#undef TELSX_KIND

// The start line, and the lines that are header lines.
static Ref<RT_BUFFER> goodLines( const Head &head )
{
    Ref<RT_BUFFER> lines = bufferOf( head.bytesOf( head.first ) );
    auto append = [&lines]( Bytes bytes )
    { rtBufferAppendBytes( lines.address(), bytes.data(), lengthOf( bytes ) ); };
    append( lineEnd );
    for ( const HeadLine &line : head.lines )
    {
        Bytes bytes = head.bytesOf( line );
        PlacedText text = head.textOf( line );
        bool isGood = findBadByte( bytes ) == INT64_MAX && !findFaultOfHeaderLine( text.text() ).rule;
        if ( isGood && line.number == knownNumber<"Content-Length">() )
            isGood = tryDecodeNumber( valueOf( text ) ) >= 0;
        if ( !isGood )
            continue;
        append( bytes );
        append( lineEnd );
    }
    return lines;
}

static bool canBeAnswered( TELSX_MESSAGE msg )
{
    const HeaderTable *table = msg->fragment->headers.get();
    for ( int64_t number : { knownNumber<"Via">(), knownNumber<"From">(), knownNumber<"To">(),
                             knownNumber<"Call-Id">(), knownNumber<"Cseq">() } )
        if ( !table->is[std::size_t( number )] )
            return false;
    auto via = adopt( telsxHeaderViaTryDecodeFromMessage( msg ) );
    return telsxHeaderViaViasLength( via.get() ) > 0 && adopt( telsxHeaderViaTryDecodeViaAt( via.get(), 0 ) );
}

TELSX_MESSAGE telsxMessageTryDecodeLoosely( RT_BUFFER buf )
{
    TELSX_ASSERT( buf );
    Head head( bytesOf( buf ) );
    int64_t contentLength;
    Ref<TELSX_MESSAGE_FRAGMENT> frag = tryDecodeHead( bytesOf( goodLines( head ).get() ), &contentLength );
    if ( !frag || telsxMessageFragmentIsNeitherRequestNorResponse( frag.get() ) )
        return nullptr;
    Bytes body = head.body;
    if ( contentLength != -1 && contentLength < lengthOf( body ) )
        body = body.substr( 0, static_cast<std::size_t>( contentLength ) );
    if ( !body.empty() )
        frag->body = bufferOf( body );

    auto msg = adopt( telsxMessageCreate( frag.get() ) );
    frag = {};
    for ( const LooseKind &kind : looseKinds )
        if ( msg->fragment->headers->is[std::size_t( kind.number )] && !kind.isReadable( msg.get() ) )
            kind.remove( msg.address() );
    return canBeAnswered( msg.get() ) ? msg.take() : nullptr;
}
