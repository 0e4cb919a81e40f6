// What is wrong with the headers of a message: whatever the typed decoders refuse, and the rules that the rest breaks.
#include "telsx/telsx_finding_headers.hpp"

#include <algorithm>
#include <array>
#include <optional>

#include "telsx/telsx.h"
#include "telsx/telsx_finding_grammar.hpp"
#include "telsx/telsx_finding_placements.hpp"
#include "telsx/telsx_message.hpp"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_token_set.hpp"

namespace telsx
{

#define TELSX_KIND( NAME, SORT, SIP_NAME )
#define TELSX_KIND_OF_SET( NAME, SORT, SIP_NAME, WORD ) Separator separatorOf( TELSX_HANDLE( NAME ) set );
#include "telsx/telsx_headers.def"
#undef TELSX_KIND

namespace
{

class HeaderCheck;

// A kind of typed headers. A list or set has a skipper for its items, and the type of its values or the name of its
// element in the place of its own.
enum class Shape
{
    single,
    listOfValues,
    listOfTexts
};
struct HeaderKind
{
    int64_t number; // of its name
    std::string_view name;
    void ( *check )( HeaderCheck &check );
    std::string_view type; // that the grammar knows it by
    Shape shape = Shape::single;
    Skipper skipItem = nullptr;
    Separator ( *separator )() = [] { return comma; };
};

// A rule that an item of a list breaks; without a rule, the item cannot be read.
struct ItemFault
{
    int64_t item;
    const FindingRule *rule;
};

bool isWord( RT_STRING string, std::string_view word )
{
    Text text = textOf( string );
    return std::equal( text.chs, text.chs + text.length, word.begin(), word.end(),
                       []( RT_CHAR a, char b ) { return a == static_cast<unsigned char>( b ); } );
}

// Whether the IRI has that parameter, and, if a value is asked for, a value of it. What is before an "@" or after a
// question mark is not a parameter.
template <rt::Ascii NAME>
bool hasIriParam( Text iri, bool hasValue = false )
{
    const RT_CHAR *end = std::find( iri.chs, iri.chs + iri.length, RT_CHAR( '?' ) );
    Text rest = iri.first( end - iri.chs );
    if ( const RT_CHAR *at = std::find( rest.chs, end, RT_CHAR( '@' ) ); at != end )
        rest = rest.behind( at - rest.chs );
    for ( ;; )
    {
        rest.take( std::find( rest.chs, end, RT_CHAR( ';' ) ) - rest.chs );
        if ( !rest )
            return false;
        rest.take( 1 );
        if ( !beginsInAnyCase<NAME>( rest ) )
            continue;
        Text after = rest.behind( std::ssize( NAME.chs ) - 1 );
        if ( !after || after.chs[0] == ';' || after.chs[0] == '=' )
            return !hasValue || ( after && after.chs[0] == '=' );
    }
}

bool isSips( const Ref<RT_STRING> &iri ) { return beginsInAnyCase<"sips:">( textOf( iri ) ); }

// Goes through the headers of one message, each of which is decoded once.
class HeaderCheck
{
public:
    HeaderCheck( TELSX_MESSAGE message, Bytes messageBytes, FindingList &findingList );

    void run();

    // For the kinds of headers: what was decoded, which may be null.
    TELSX_MESSAGE message() const { return msg; }
    template <class HANDLE>
    bool header( const Ref<HANDLE> &hdr )
    {
        if ( !hdr )
            reportUnreadable();
        else if constexpr ( requires { see( hdr.get() ); } )
            see( hdr.get() );
        return bool( hdr );
    }
    template <class HANDLE>
    void value( const Ref<HANDLE> &decoded, int64_t item )
    {
        if ( !decoded )
            itemFaults.append( { item, nullptr } );
        else if constexpr ( requires { see( decoded.get(), item ); } )
            see( decoded.get(), item );
    }
    void endOfValues( int64_t count );

private:
    // What is to be said of headers and values that can be read.
    void see( TELSX_HEADER_CONTACT hdr );
    void see( TELSX_HEADER_CSEQ hdr );
    void see( TELSX_HEADER_EXPIRES hdr ) { expires = telsxHeaderExpiresDeltaSeconds( hdr ); }
    void see( TELSX_HEADER_FROM hdr );
    void see( TELSX_HEADER_REQUIRE hdr );
    void see( TELSX_HEADER_TO hdr );
    void see( TELSX_CONTACT contact, int64_t item );
    void see( TELSX_ROUTE route, int64_t item );
    void see( TELSX_VIA via, int64_t item );
    void seeAddress( const Ref<RT_STRING> &iri, int64_t item );

    // Once all headers have been seen.
    void checkStartLine();
    void checkLines();
    void checkBody();
    void checkNeeded();
    void checkContacts();
    void checkPlacement( const HeaderEntry &entry );
    void checkRepetition( const HeaderEntry &entry, bool isSingle );

    void add( const FindingRule *rule );
    void addAtName( const FindingRule *rule );
    void addMissing( std::string_view name, std::string_view reference = {} );
    void reportUnreadable();
    void reportItems();
    bool reportItem( const HeadLine &line, bool mayContinue );
    Obstacle obstacleOf( Text item, int64_t itemLength ) const;
    void warn( const PlacedText &line, Text value, Obstacle obstacle );

    bool isRequest() const { return status == 0; }
    bool isMethod( std::string_view name ) const { return method && isWord( method.get(), name ); }
    bool isOfInvite() const { return isMethod( "INVITE" ) && ( isRequest() || status / 100 == 2 ); }
    HeaderTable *table() const { return msg->fragment->headers.get(); }
    const Head &head()
    {
        if ( !cutHead )
            cutHead.emplace( bytes );
        return *cutHead;
    }
    PlacedText textOfLine( bool last );

    TELSX_MESSAGE msg;
    Bytes bytes;
    FindingList &findings;
    int64_t status = 0;      // of a response
    Ref<RT_STRING> method;   // of the request, also where this is the response to it; null if it is not known
    std::size_t methodPlace; // among placementMethods, or after them
    int64_t expires = -1;
    std::optional<Head> cutHead;      // once a place is asked for
    int64_t number = -1;              // of the header that is being looked at,
    const HeaderKind *kind = nullptr; // and its kind
    List<ItemFault> itemFaults;       // of its values, in their order
    bool needsSips = false;           // by the Request-URI or the top Route or Record-Route
    bool requestIsSips = false;
    int64_t plainContact = -1; // the first Contact that is no sips URI
    bool contactIsStar = false;
};

// clang-format off
#define CHECK( NAME ) []( HeaderCheck &check ) { check.header( adopt( telsx##NAME##TryDecodeFromMessage( check.message() ) ) ); }
#define TELSX_KIND( NAME, SORT, SIP_NAME ) { knownNumber<SIP_NAME>(), SIP_NAME, CHECK( NAME ), #NAME },
#define TELSX_KIND_OF_SET( NAME, SORT, SIP_NAME, WORD ) \
    { knownNumber<SIP_NAME>(), SIP_NAME, CHECK( NAME ), #WORD, Shape::listOfTexts, telsx___Skip##WORD, \
      [] { return separatorOf( TELSX_HANDLE( NAME )() ); } },
#define TELSX_KIND_OF_LIST( NAME, SORT, SIP_NAME, WORD ) \
    { knownNumber<SIP_NAME>(), SIP_NAME, CHECK( NAME ), #WORD, Shape::listOfTexts, telsx___Skip##WORD },
#define TELSX_KIND_OF_VALUES( NAME, SORT, SIP_NAME, WORD, VALUE ) \
    { knownNumber<SIP_NAME>(), SIP_NAME, []( HeaderCheck &check ) \
      { \
          auto hdr = adopt( telsx##NAME##TryDecodeFromMessage( check.message() ) ); \
          int64_t count = hdr ? telsx##NAME##WORD##sLength( hdr.get() ) : 0; \
          for ( int64_t i = 0; i < count; ++i ) \
              check.value( adopt( telsx##NAME##TryDecode##WORD##At( hdr.get(), i ) ), i ); \
          if ( check.header( hdr ) ) \
              check.endOfValues( count ); \
      }, #VALUE, Shape::listOfValues, telsx___Skip##VALUE },
constexpr HeaderKind kinds[] = {
#include "telsx/telsx_headers.def"
};
#undef TELSX_KIND
#undef CHECK
// clang-format on

// By the numbers of names: the kind, and the lines of the table of placements.
struct NameFacts
{
    const HeaderKind *kind = nullptr;
    std::size_t firstPlacement = 0, placementCount = 0;
    bool isSingle = false;
};
constexpr auto nameFacts = []
{
    std::array<NameFacts, knownCount> facts = {};
    auto has = []( std::string_view name ) { return knownNameNumber( name.data(), name.size() ) != -1; };
    auto of = [&facts]( std::string_view name ) -> NameFacts &
    { return facts[std::size_t( knownNameNumber( name.data(), name.size() ) )]; };
    for ( const HeaderKind &one : kinds )
    {
        of( one.name ).kind = &one;
        of( one.name ).isSingle = one.shape == Shape::single;
    }
    for ( std::string_view name : singleHeaders )
        of( name ).isSingle = true;
    for ( std::string_view name : repeatableHeaders )
        of( name ).isSingle = false;
    for ( std::size_t i = 0; i < std::size( headerPlacements ); ++i )
    {
        if ( !has( headerPlacements[i].name ) )
            continue;
        NameFacts &fact = of( headerPlacements[i].name );
        if ( fact.placementCount++ == 0 )
            fact.firstPlacement = i;
    }
    return facts;
}();

RT_STRING nameOf( int64_t number ) { return const_cast<RT_STRING>( knownNames[number].name ); }

HeaderCheck::HeaderCheck( TELSX_MESSAGE message, Bytes messageBytes, FindingList &findingList )
    : msg( message ), bytes( messageBytes ), findings( findingList )
{
    TELSX_MESSAGE_FRAGMENT frag = msg->fragment.get();
    if ( frag->requestMethod )
    {
        method = frag->requestMethod;
        requestIsSips = needsSips = isSips( frag->requestIri );
    }
    else
    {
        status = frag->responseStatusCode;
        if ( auto cseq = adopt( telsxHeaderCseqTryDecodeFromMessage( msg ) ) )
            method = adopt( telsxHeaderCseqMethod( cseq.get() ) );
    }
    methodPlace = std::size( placementMethods );
    for ( std::size_t i = 0; i < std::size( placementMethods ); ++i )
        if ( isMethod( placementMethods[i] ) )
            methodPlace = i;
}

void HeaderCheck::run()
{
    checkStartLine();
    checkLines();
    checkBody();
    for ( const HeaderEntry &entry : table()->entries )
    {
        number = entry.number;
        if ( number == -1 )
            continue;
        const NameFacts &facts = nameFacts[std::size_t( number )];
        kind = facts.kind;
        if ( kind )
            kind->check( *this );
        checkPlacement( entry );
        checkRepetition( entry, facts.isSingle );
    }
    checkContacts();
    checkNeeded();
}

// The first or the last line of the header that is being looked at.
PlacedText HeaderCheck::textOfLine( bool last )
{
    const HeadLine *found = nullptr;
    for ( const HeadLine &line : head().lines )
        if ( line.number == number && ( last || !found ) )
            found = &line;
    return found ? head().textOf( *found ) : PlacedText();
}

// At the value of that header, of which the last line counts; at its name.
void HeaderCheck::add( const FindingRule *rule )
{
    PlacedText text = textOfLine( true );
    findings.add( *rule, text.placeOf( valueOf( text ) ), nameOf( number ) );
}
void HeaderCheck::addAtName( const FindingRule *rule )
{
    PlacedText text = textOfLine( false );
    findings.add( *rule, text.placeOf( text.text() ), nameOf( number ) );
}

void HeaderCheck::addMissing( std::string_view name, std::string_view reference )
{
    int64_t missing = knownNameNumber( name.data(), name.size() );
    if ( !table()->is[std::size_t( missing )] )
        findings.add( *findingRule( "-missing" ), 0, nameOf( missing ), reference );
}

// "OptionTag" in lower case, with that character between its words.
Ref<RT_STRING> spelledOut( std::string_view element, char between )
{
    Ref<RT_STRING> words = adopt( rtStringCreate() );
    for ( std::size_t i = 0; i < element.size(); ++i )
    {
        if ( i > 0 && rt::lowerAscii( element[i] ) != element[i] )
            append( words, between );
        append( words, rt::lowerAscii( element[i] ) );
    }
    return words;
}

// The words for an element that its name does not explain, or null.
Ref<RT_STRING> wordsOf( const Ref<RT_STRING> &code )
{
    for ( const GrammarPiece &piece : grammarPieces )
        if ( isWord( code.get(), piece.code ) )
            return stringOf( piece.words );
    return {};
}

void HeaderCheck::warn( const PlacedText &line, Text value, Obstacle obstacle )
{
    Text found = value.behind( obstacle.at );
    Ref<RT_STRING> words, pieceCode;
    if ( !obstacle.piece )
    {
        bool hasVowel = std::string_view( "AEIOU" ).find( obstacle.element[0] ) != std::string_view::npos;
        pieceCode = spelledOut( obstacle.element, '-' );
        words = wordsOf( pieceCode );
        if ( !words )
            words =
                joined( hasVowel ? std::string_view( "an " ) : "a ", spelledOut( obstacle.element, ' ' ) );
    }
    else
    {
        pieceCode = stringOf( obstacle.piece->code );
        words = stringOf( obstacle.piece->words );
        if ( !obstacle.element.empty() )
            append( words, ", ", spelledOut( obstacle.element, '-' ) );
        // The largest number of all matters only where a larger one was written.
        bool isTold = obstacle.most != INT64_MAX || telsx___SkipDigits( found.chs, found.length );
        if ( obstacle.most != -1 && isTold )
            append( words, " from ", Decimal( obstacle.least ), " to ", Decimal( obstacle.most ) );
    }
    findings.addUnreadable( nameOf( number ), pieceCode, words, headerReference( kind->name ),
                            line.placeOf( found ), found );
}

// What is wrong at an item of a list, or at what is in the place of one; its length is 0 if it is none.
Obstacle HeaderCheck::obstacleOf( Text item, int64_t itemLength ) const
{
    Obstacle separator = { itemLength, grammarPiece( "separator" ) };
    if ( kind->shape == Shape::listOfTexts )
        return itemLength ? separator : Obstacle{ 0, nullptr, kind->type };
    Obstacle obstacle = findObstacle( kind->type, item, true );
    return obstacle.at < itemLength || ( itemLength && obstacle.piece == grammarPiece( "unreadable" ) )
               ? separator
               : obstacle;
}

// Warns of the first item of the line that is bad, or is not followed by a separator and another item; false if there is
// none.
bool HeaderCheck::reportItem( const HeadLine &line, bool mayContinue )
{
    PlacedText text = head().textOf( line );
    for ( Text rest = valueOf( text ); rest; )
    {
        Text item = rest;
        int64_t length = rest.take( kind->skipItem ).length;
        if ( length && !rest )
            break;
        if ( length && mayContinue && rest.take( kind->separator().skip ) )
        {
            if ( rest )
                continue;
            item = rest;
            length = 0;
        }
        warn( text, item, obstacleOf( item, length ) );
        return true;
    }
    return false;
}

// The header cannot be read: the last line of a single value; in a list the first bad item or, if all are good, the
// first with another item after it, since some lists have one value per line.
void HeaderCheck::reportUnreadable()
{
    if ( kind->shape == Shape::single )
    {
        PlacedText text = textOfLine( true );
        Text value = valueOf( text );
        return warn( text, value, findObstacle( kind->type, value, false ) );
    }
    for ( bool mayContinue : { true, false } )
        for ( const HeadLine &line : head().lines )
            if ( line.number == number && reportItem( line, mayContinue ) )
                return;
    PlacedText text = textOfLine( false );
    warn( text, valueOf( text ), {} );
}

// Reports the faults of the values, which are sorted, in one pass over the items.
void HeaderCheck::reportItems()
{
    int64_t at = 0, item = 0;
    for ( const HeadLine &line : head().lines )
    {
        if ( line.number != number || at == itemFaults.length() )
            continue;
        PlacedText text = head().textOf( line );
        for ( Text rest = valueOf( text ); rest; )
        {
            Text value = rest.take( kind->skipItem );
            for ( ; at < itemFaults.length() && itemFaults[at].item == item; ++at )
            {
                const FindingRule *rule = itemFaults[at].rule;
                bool hasBrackets = std::find( value.chs, value.chs + value.length, RT_CHAR( '<' ) )
                                   != value.chs + value.length;
                if ( !rule )
                    warn( text, value, findObstacle( kind->type, value, false ) );
                else if ( rule != findingRule( "-ambiguous" ) || !hasBrackets )
                    findings.add( *rule, text.placeOf( value ), nameOf( number ) );
            }
            ++item;
            if ( !rest.take( kind->separator().skip ) )
                break;
        }
    }
    PlacedText first = at < itemFaults.length() ? textOfLine( false ) : PlacedText();
    for ( ; at < itemFaults.length(); ++at )
        if ( !itemFaults[at].rule )
            warn( first, valueOf( first ), {} );
    itemFaults.clear();
}

void HeaderCheck::endOfValues( int64_t count )
{
    if ( number == knownNumber<"Via">() && count > 1 && isRequest() && isMethod( "CANCEL" ) )
        itemFaults.append( { 1, findingRule( "via-count" ) } );
    if ( number == knownNumber<"Contact">() && count > 1 && isOfInvite() )
        itemFaults.append( { 1, findingRule( "contact-count" ) } );
    std::stable_sort( itemFaults.begin(), itemFaults.end(),
                      []( const ItemFault &a, const ItemFault &b ) { return a.item < b.item; } );
    if ( !itemFaults.empty() )
        reportItems();
}

void HeaderCheck::see( TELSX_HEADER_CSEQ hdr )
{
    if ( !isRequest() || rtStringEquals( adopt( telsxHeaderCseqMethod( hdr ) ).get(), method.get() ) )
        return;
    PlacedText text = textOfLine( true );
    Text rest = valueOf( text );
    rest.take( telsx___SkipDigits );
    rest.take( telsx___SkipLws );
    findings.add( *findingRule( "cseq-method" ), text.placeOf( rest ), nameOf( number ) );
}

void HeaderCheck::see( TELSX_HEADER_FROM hdr )
{
    if ( !telsxHeaderFromHasTag( hdr ) )
        add( findingRule( "from-tag" ) );
    seeAddress( adopt( telsxHeaderFromIri( hdr ) ), -1 );
}

void HeaderCheck::see( TELSX_HEADER_TO hdr )
{
    if ( status > 100 && !telsxHeaderToHasTag( hdr ) )
        add( findingRule( "to-tag" ) );
    seeAddress( adopt( telsxHeaderToIri( hdr ) ), -1 );
}

void HeaderCheck::see( TELSX_HEADER_REQUIRE hdr )
{
    bool mayAsk = isRequest() || ( status > 100 && status < 200 );
    if ( !mayAsk && telsxHeaderRequireHasOptionTag( hdr, literal<"100rel">() ) )
        add( findingRule( "require-100rel" ) );
}

void HeaderCheck::see( TELSX_HEADER_CONTACT hdr ) { contactIsStar = telsxHeaderContactIsStarForm( hdr ); }

// Without angle brackets a comma or a question mark could belong to the header as well; -1 is the whole header.
void HeaderCheck::seeAddress( const Ref<RT_STRING> &iri, int64_t item )
{
    Text text = textOf( iri );
    auto isAmbiguous = []( RT_CHAR ch ) { return ch == ',' || ch == '?'; };
    if ( std::none_of( text.chs, text.chs + text.length, isAmbiguous ) )
        return;
    if ( item != -1 )
        return itemFaults.append( { item, findingRule( "-ambiguous" ) } );
    PlacedText line = textOfLine( true );
    Text value = valueOf( line );
    if ( std::find( value.chs, value.chs + value.length, RT_CHAR( '<' ) ) == value.chs + value.length )
        findings.add( *findingRule( "-ambiguous" ), line.placeOf( value ), nameOf( number ) );
}

void HeaderCheck::see( TELSX_CONTACT contact, int64_t item )
{
    Ref<RT_STRING> iri = adopt( telsxContactIri( contact ) );
    if ( plainContact == -1 && !isSips( iri ) )
        plainContact = item;
    if ( hasIriParam<"maddr">( textOf( iri ) ) )
        itemFaults.append( { item, findingRule( "-maddr" ) } );
    seeAddress( iri, item );
}

void HeaderCheck::see( TELSX_ROUTE route, int64_t item )
{
    Ref<RT_STRING> iri = adopt( telsxRouteIri( route ) );
    if ( hasIriParam<"lr">( textOf( iri ), true ) )
        itemFaults.append( { item, findingRule( "-lr" ) } );
    if ( hasIriParam<"maddr">( textOf( iri ) ) )
        itemFaults.append( { item, findingRule( "-maddr" ) } );
    bool isRecord = number == knownNumber<"Record-Route">();
    if ( item == 0 && isSips( iri ) && ( isRecord ? !isRequest() : number == knownNumber<"Route">() ) )
        needsSips = true;
    if ( item == 0 && isRecord && requestIsSips && !isSips( iri ) )
        itemFaults.append( { item, findingRule( "record-route-sips" ) } );
}

void HeaderCheck::see( TELSX_VIA via, int64_t item )
{
    static constexpr int64_t cookieLength = 7;
    Ref<RT_STRING> branch = adopt( telsxViaBranch( via ) );
    if ( !branch )
        itemFaults.append( { item, findingRule( "via-branch" ) } );
    else if ( rtStringLength( branch.get() ) == cookieLength
              || !beginsInAnyCase<"z9hg4bk">( textOf( branch ) ) )
        itemFaults.append( { item, findingRule( "via-cookie" ) } );
}

void HeaderCheck::checkStartLine()
{
    TELSX_MESSAGE_FRAGMENT frag = msg->fragment.get();
    Bytes line = bytes.substr( 0, bytes.find( lineEnd ) );
    auto second = int64_t( line.find( ' ' ) + 1 ),
         third = int64_t( line.find( ' ', std::size_t( second ) ) + 1 );
    if ( !telsxVersionIsSip20( frag->version.get() ) )
        findings.add( *findingRule( "version-number" ), isRequest() ? third : 0 );
    if ( status > 699 )
        findings.add( *findingRule( "status-code-class" ), second );
    if ( !isRequest() || !( requestIsSips || beginsInAnyCase<"sip:">( textOf( frag->requestIri ) ) ) )
        return;
    std::size_t mark = line.find( '?' );
    if ( mark != Bytes::npos && line.find( '@', mark ) == Bytes::npos )
        findings.add( *findingRule( "request-uri-headers" ), int64_t( mark ) );
}

// The first CR and the first LF that do not end a line, and all long lines.
void HeaderCheck::checkLines()
{
    static constexpr std::size_t longest = 8192;
    std::size_t headSize = std::min( findHeadEnd( bytes, 0 ), bytes.size() );
    Bytes headBytes = bytes.substr( 0, headSize );
    for ( std::size_t at = 0; ( at = headBytes.find( '\r', at ) ) != Bytes::npos; ++at )
        if ( at + 1 == bytes.size() || bytes[at + 1] != '\n' )
        {
            findings.add( *findingRule( "lone-cr" ), int64_t( at ) );
            break;
        }
    bool hasLoneLf = false;
    for ( std::size_t begin = 0; begin < headSize; )
    {
        std::size_t end = std::min( headBytes.find( '\n', begin ), headSize );
        bool isLone = end < headSize && ( end == 0 || headBytes[end - 1] != '\r' );
        if ( isLone && !std::exchange( hasLoneLf, true ) )
            findings.add( *findingRule( "lone-lf" ), int64_t( end ) );
        if ( end - begin > longest )
            findings.add( *findingRule( "line-length" ), int64_t( begin ) );
        begin = end + 1;
    }
}

void HeaderCheck::checkBody()
{
    std::size_t headEndAt = findHeadEnd( bytes, 0 );
    int64_t held = headEndAt == Bytes::npos ? 0 : int64_t( bytes.size() - headEndAt - headEnd.size() );
    int64_t told = msg->fragment->body ? rtBufferLength( msg->fragment->body.get() ) : 0;
    number = knownNumber<"Content-Length">();
    if ( held > told )
        add( findingRule( "content-length-short" ) );
    if ( told > 0 && !table()->is[std::size_t( knownNumber<"Content-Type">() )] )
        findings.add( *findingRule( "content-type-missing" ), 0, nameOf( knownNumber<"Content-Type">() ) );
}

bool isFor( const HeaderPlacement &placement, int64_t status )
{
    return status >= placement.leastStatus && status <= placement.mostStatus;
}

// For a method without a column, what all columns say holds.
bool isNeeded( const HeaderPlacement &placement, std::size_t methodPlace )
{
    return methodPlace < placement.methods.size() ? placement.methods[methodPlace] == 'm'
                                                  : placement.methods == "mmmmmm";
}

void HeaderCheck::checkPlacement( const HeaderEntry &entry )
{
    const NameFacts &facts = nameFacts[std::size_t( entry.number )];
    if ( facts.placementCount == 0 || methodPlace == std::size( placementMethods ) )
        return;
    for ( std::size_t i = 0; i < facts.placementCount; ++i )
    {
        const HeaderPlacement &placement = headerPlacements[facts.firstPlacement + i];
        if ( isFor( placement, status ) && placement.methods[methodPlace] != '-' )
            return;
    }
    addAtName( findingRule( "-place" ) );
}

void HeaderCheck::checkRepetition( const HeaderEntry &entry, bool isSingle )
{
    if ( !isSingle || entry.last == -1 )
        return;
    bool isFirst = true;
    for ( const HeadLine &line : head().lines )
        if ( line.number == entry.number && !std::exchange( isFirst, false ) )
            return findings.add( *findingRule( "-twice" ), line.begin, nameOf( entry.number ) );
}

void HeaderCheck::checkContacts()
{
    bool isOfDialog = isMethod( "INVITE" ) || isMethod( "SUBSCRIBE" ) || isMethod( "REFER" );
    number = knownNumber<"Contact">();
    kind = nameFacts[std::size_t( number )].kind;
    if ( needsSips && isOfDialog && status < 300 && plainContact != -1 )
    {
        itemFaults.append( { plainContact, findingRule( "contact-sips" ) } );
        reportItems();
    }
    if ( contactIsStar && !( isRequest() && isMethod( "REGISTER" ) && expires == 0 ) )
        add( findingRule( "contact-star" ) );
}

void HeaderCheck::checkNeeded()
{
    for ( const HeaderPlacement &placement : headerPlacements )
        if ( isFor( placement, status ) && isNeeded( placement, methodPlace ) )
            addMissing( placement.name );
    for ( const NeededHeader &needed : neededHeaders )
        if ( isRequest() && isMethod( needed.method ) )
            addMissing( needed.name, needed.reference );
}

} // namespace

void findHeaderFaults( TELSX_MESSAGE msg, Bytes bytes, FindingList &findings )
{
    HeaderCheck( msg, bytes, findings ).run();
}

} // namespace telsx
