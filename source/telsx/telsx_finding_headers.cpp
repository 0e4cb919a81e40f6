// What is wrong with the headers of a message: whatever the typed decoders refuse, and the rules that the rest breaks.
#include "telsx/telsx_finding_headers.hpp"

#include <algorithm>
#include <array>

#include "telsx/telsx.h"
#include "telsx/telsx_finding_grammar.hpp"
#include "telsx/telsx_finding_memory.hpp"
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
    bool ( *check )( HeaderCheck &check ); // false if the header cannot be read
    std::string_view type;                 // that the grammar knows it by
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
        rest = rest.after( at - rest.chs );
    for ( ;; )
    {
        rest.take( std::find( rest.chs, end, RT_CHAR( ';' ) ) - rest.chs );
        if ( !rest )
            return false;
        rest.take( 1 );
        if ( !beginsInAnyCase<NAME>( rest ) )
            continue;
        Text after = rest.after( std::ssize( NAME.chs ) - 1 );
        if ( !after || after.chs[0] == ';' || after.chs[0] == '=' )
            return !hasValue || ( after && after.chs[0] == '=' );
    }
}

bool hasBracket( Text value )
{
    const RT_CHAR *end = value.chs + value.length;
    return std::find( value.chs, end, RT_CHAR( '<' ) ) != end;
}

bool isSips( const Ref<RT_STRING> &iri ) { return beginsInAnyCase<"sips:">( textOf( iri ) ); }

// Goes through the headers of one message, each of which is decoded once, or not at all if the memory holds it.
class HeaderCheck
{
public:
    HeaderCheck( TELSX_MESSAGE message, Bytes messageBytes, FindingList &findingList, HeaderMemory *known );

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
    bool endOfValues( int64_t count );

private:
    // Looks at a header by itself, and then at what it means in this message.
    void checkHeader( const HeaderEntry &entry );
    bool read( const HeaderEntry &entry );
    void judge();

    // The faults and facts of headers and values that can be read.
    void see( TELSX_HEADER_CONTACT hdr ) { facts.isStar = telsxHeaderContactIsStarForm( hdr ); }
    void see( TELSX_HEADER_CSEQ hdr ) { facts.method = adopt( telsxHeaderCseqMethod( hdr ) ); }
    void see( TELSX_HEADER_EXPIRES hdr ) { facts.expires = telsxHeaderExpiresDeltaSeconds( hdr ); }
    void see( TELSX_HEADER_FROM hdr );
    void see( TELSX_HEADER_REQUIRE hdr );
    void see( TELSX_HEADER_TO hdr );
    void see( TELSX_CONTACT contact, int64_t item );
    void see( TELSX_ROUTE route, int64_t item );
    void see( TELSX_VIA via, int64_t item );
    void seeAddress( const Ref<RT_STRING> &iri, int64_t item );

    // What is wrong with the rest, and with headers among each other.
    void checkStartLine();
    void checkLines();
    void checkBody();
    void checkNeeded();
    void checkContacts();
    void checkPlacement( const HeaderEntry &entry );
    void checkRepetition( const HeaderEntry &entry, bool isSingle );

    void add( const FindingRule *rule );
    void addAtName( const FindingRule *rule );
    void addMissing( int64_t missing, std::string_view reference = {} );
    void reportUnreadable();
    void reportItems();
    bool reportItem( Bytes line, bool mayContinue );
    Obstacle obstacleOf( Text item, int64_t itemLength ) const;
    void warn( const PlacedText &line, Text value, Obstacle obstacle );

    bool isRequest() const { return status == 0; }
    bool isMethod( std::string_view name ) const { return method && isWord( method.get(), name ); }
    bool isOfInvite() const { return isMethod( "INVITE" ) && ( isRequest() || status / 100 == 2 ); }
    HeaderTable *table() const { return msg->fragment->headers.get(); }
    // Shows the lines of the header that is being looked at in their order, until one is enough.
    template <class LOOK>
    void eachLine( LOOK isEnough ) const;
    PlacedText textOfLine( bool last ) const;

    TELSX_MESSAGE msg;
    Bytes bytes;
    FindingList &findings;
    int64_t status = 0;      // of a response
    Ref<RT_STRING> method;   // of the request, also where this is the response to it; null if it is not known
    std::size_t methodPlace; // among placementMethods, or after them
    int64_t expires = -1;
    int64_t number = -1;              // of the header that is being looked at,
    const HeaderKind *kind = nullptr; // and its kind
    List<ItemFault> itemFaults;       // of its values, in their order
    bool needsSips = false;           // by the Request-URI or the top Route or Record-Route
    bool requestIsSips = false;
    int64_t plainContact = -1; // the first Contact that is no sips URI
    bool contactIsStar = false;
    HeaderMemory *memory; // or null
    std::size_t headSize; // without the line end before the blank line
    HeaderFacts facts;    // of the header that is being looked at
};

// clang-format off
#define CHECK( NAME ) []( HeaderCheck &check ) { return check.header( adopt( telsx##NAME##TryDecodeFromMessage( check.message() ) ) ); }
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
          return check.header( hdr ) && check.endOfValues( count ); \
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
constexpr int64_t numberOf( std::string_view name ) { return knownNameNumber( name.data(), name.size() ); }
constexpr auto nameFacts = []
{
    std::array<NameFacts, knownCount> facts = {};
    auto has = []( std::string_view name ) { return numberOf( name ) != -1; };
    auto of = [&facts]( std::string_view name ) -> NameFacts &
    { return facts[std::size_t( numberOf( name ) )]; };
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

// The lines of the table of placements by which some message must have a header, and its number.
struct NeedingPlacement
{
    const HeaderPlacement *placement;
    int64_t number;
};
constexpr auto needingPlacements = []
{
    constexpr auto isNeeding = []( const HeaderPlacement &placement )
    { return placement.methods.find( 'm' ) != std::string_view::npos; };
    constexpr auto count =
        std::count_if( std::begin( headerPlacements ), std::end( headerPlacements ), isNeeding );
    std::array<NeedingPlacement, std::size_t( count )> needing = {};
    std::size_t at = 0;
    for ( const HeaderPlacement &placement : headerPlacements )
        if ( isNeeding( placement ) )
            needing[at++] = { &placement, numberOf( placement.name ) };
    return needing;
}();

RT_STRING nameOf( int64_t number ) { return const_cast<RT_STRING>( knownNames[number].name ); }

HeaderCheck::HeaderCheck( TELSX_MESSAGE message, Bytes messageBytes, FindingList &findingList,
                          HeaderMemory *known )
    : msg( message ), bytes( messageBytes ), findings( findingList ), memory( known ),
      headSize( std::size_t( message->fragment->headers->size ) )
{
    if ( headSize < bytes.size() )
        headSize -= lineEnd.size();
    TELSX_MESSAGE_FRAGMENT frag = msg->fragment.get();
    if ( frag->requestMethod )
    {
        method = frag->requestMethod;
        requestIsSips = needsSips = isSips( frag->requestIri );
    }
    else
        status = frag->responseStatusCode;
}

// Cseq is the first header, since it tells the method of a response.
void HeaderCheck::run()
{
    checkStartLine();
    checkLines();
    checkBody();
    if ( const HeaderEntry *entry = findHeader( table(), headerName<"Cseq">() ) )
        checkHeader( *entry );
    methodPlace = std::size( placementMethods );
    for ( std::size_t i = 0; i < std::size( placementMethods ); ++i )
        if ( isMethod( placementMethods[i] ) )
            methodPlace = i;
    for ( const HeaderEntry &entry : table()->entries )
    {
        if ( entry.number == -1 )
            continue;
        if ( entry.number != knownNumber<"Cseq">() )
            checkHeader( entry );
        number = entry.number;
        checkPlacement( entry );
        checkRepetition( entry, nameFacts[std::size_t( number )].isSingle );
    }
    checkContacts();
    checkNeeded();
}

template <class LOOK>
void HeaderCheck::eachLine( LOOK isEnough ) const
{
    const HeaderTable *all = table();
    const HeaderLine *line =
        all->is[std::size_t( number )] ? &all->entries.items[all->known[number]].first : nullptr;
    while ( line && !isEnough( lineAround( bytes, line->begin ) ) )
        line = line->next == -1 ? nullptr : &all->moreLines.items[line->next];
}

// The first or the last line of that header.
PlacedText HeaderCheck::textOfLine( bool last ) const
{
    Bytes found;
    eachLine(
        [&]( Bytes line )
        {
            found = line;
            return !last;
        } );
    return placedText( found, bytes );
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

void HeaderCheck::addMissing( int64_t missing, std::string_view reference )
{
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
    Text found = value.after( obstacle.at );
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
bool HeaderCheck::reportItem( Bytes line, bool mayContinue )
{
    PlacedText text = placedText( line, bytes );
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
    {
        bool isReported = false;
        eachLine( [&]( Bytes line ) { return isReported = reportItem( line, mayContinue ); } );
        if ( isReported )
            return;
    }
    PlacedText text = textOfLine( false );
    warn( text, valueOf( text ), {} );
}

// Reports the faults of the values in one pass over the items.
void HeaderCheck::reportItems()
{
    if ( itemFaults.empty() )
        return;
    std::stable_sort( itemFaults.begin(), itemFaults.end(),
                      []( const ItemFault &a, const ItemFault &b ) { return a.item < b.item; } );
    int64_t at = 0, item = 0;
    eachLine(
        [&]( Bytes line )
        {
            PlacedText text = placedText( line, bytes );
            for ( Text rest = valueOf( text ); rest; )
            {
                Text value = rest.take( kind->skipItem );
                for ( ; at < itemFaults.length() && itemFaults[at].item == item; ++at )
                {
                    const FindingRule *rule = itemFaults[at].rule;
                    if ( !rule )
                        warn( text, value, findObstacle( kind->type, value, false ) );
                    else if ( rule != findingRule( "-ambiguous" ) || !hasBracket( value ) )
                        findings.add( *rule, text.placeOf( value ), nameOf( number ) );
                }
                ++item;
                if ( !rest.take( kind->separator().skip ) )
                    break;
            }
            return at == itemFaults.length();
        } );
    PlacedText first = at < itemFaults.length() ? textOfLine( false ) : PlacedText();
    for ( ; at < itemFaults.length(); ++at )
        if ( !itemFaults[at].rule )
            warn( first, valueOf( first ), {} );
    itemFaults.clear();
}

bool HeaderCheck::endOfValues( int64_t count )
{
    facts.count = count;
    reportItems();
    return true;
}

void HeaderCheck::see( TELSX_HEADER_FROM hdr )
{
    facts.hasTag = telsxHeaderFromHasTag( hdr );
    seeAddress( adopt( telsxHeaderFromIri( hdr ) ), -1 );
}

void HeaderCheck::see( TELSX_HEADER_TO hdr )
{
    facts.hasTag = telsxHeaderToHasTag( hdr );
    seeAddress( adopt( telsxHeaderToIri( hdr ) ), -1 );
}

void HeaderCheck::see( TELSX_HEADER_REQUIRE hdr )
{
    facts.hasReliable = telsxHeaderRequireHasOptionTag( hdr, literal<"100rel">() );
}

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
    if ( !hasBracket( value ) )
        findings.add( *findingRule( "-ambiguous" ), line.placeOf( value ), nameOf( number ) );
}

void HeaderCheck::see( TELSX_CONTACT contact, int64_t item )
{
    Ref<RT_STRING> iri = adopt( telsxContactIri( contact ) );
    if ( facts.plainValue == -1 && !isSips( iri ) )
        facts.plainValue = item;
    if ( hasIriParam<"maddr">( textOf( iri ) ) )
        itemFaults.append( { item, findingRule( "-maddr" ) } );
    seeAddress( iri, item );
}

void HeaderCheck::see( TELSX_ROUTE route, int64_t item )
{
    Ref<RT_STRING> iri = adopt( telsxRouteIri( route ) );
    if ( item == 0 )
        facts.first = isSips( iri ) ? HeaderFacts::Address::sips : HeaderFacts::Address::other;
    if ( hasIriParam<"lr">( textOf( iri ), true ) )
        itemFaults.append( { item, findingRule( "-lr" ) } );
    if ( hasIriParam<"maddr">( textOf( iri ) ) )
        itemFaults.append( { item, findingRule( "-maddr" ) } );
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

void HeaderCheck::checkHeader( const HeaderEntry &entry )
{
    number = entry.number;
    kind = nameFacts[std::size_t( number )].kind;
    if ( kind && read( entry ) )
        judge();
}

// Looks the header up or decodes it; false if it cannot be read.
bool HeaderCheck::read( const HeaderEntry &entry )
{
    facts = {};
    if ( !memory )
        return kind->check( *this );
    HeaderKey key( *table(), entry );
    if ( const HeaderFacts *known = memory->find( key ) )
    {
        facts = *known;
        return true;
    }
    int64_t before = findings.length();
    bool isGood = kind->check( *this );
    if ( findings.length() == before )
        memory->add( key, facts );
    return isGood;
}

void HeaderCheck::judge()
{
    switch ( number )
    {
        case knownNumber<"Contact">():
            plainContact = facts.plainValue;
            contactIsStar = facts.isStar;
            if ( facts.count > 1 && isOfInvite() )
                itemFaults.append( { 1, findingRule( "contact-count" ) } );
            break;
        case knownNumber<"Cseq">():
            if ( !isRequest() )
                method = facts.method;
            else if ( !rtStringEquals( facts.method.get(), method.get() ) )
            {
                PlacedText text = textOfLine( true );
                Text rest = valueOf( text );
                rest.take( telsx___SkipDigits );
                rest.take( telsx___SkipLws );
                findings.add( *findingRule( "cseq-method" ), text.placeOf( rest ), nameOf( number ) );
            }
            break;
        case knownNumber<"Expires">(): expires = facts.expires; break;
        case knownNumber<"From">():
            if ( !facts.hasTag )
                add( findingRule( "from-tag" ) );
            break;
        case knownNumber<"Record-Route">():
            if ( facts.first == HeaderFacts::Address::sips && !isRequest() )
                needsSips = true;
            if ( facts.first == HeaderFacts::Address::other && requestIsSips )
                itemFaults.append( { 0, findingRule( "record-route-sips" ) } );
            break;
        case knownNumber<"Require">():
            if ( facts.hasReliable && !isRequest() && ( status <= 100 || status >= 200 ) )
                add( findingRule( "require-100rel" ) );
            break;
        case knownNumber<"Route">():
            if ( facts.first == HeaderFacts::Address::sips )
                needsSips = true;
            break;
        case knownNumber<"To">():
            if ( status > 100 && !facts.hasTag )
                add( findingRule( "to-tag" ) );
            break;
        case knownNumber<"Via">():
            if ( facts.count > 1 && isRequest() && isMethod( "CANCEL" ) )
                itemFaults.append( { 1, findingRule( "via-count" ) } );
            break;
        default: break;
    }
    reportItems();
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

// Whether each LF follows a CR and the other way round. This is so in nearly all heads, and quickly seen.
bool areLineEnds( Bytes head )
{
    std::size_t at = 1;
    if ( head.empty() || head.front() == '\n' || head.back() == '\r' )
        return head.empty();
    for ( ; head.size() - at >= 16; at += 16 )
    {
        auto before = rt::ByteBlock::at( head.data() + at - 1 ),
             block = rt::ByteBlock::at( head.data() + at );
        if ( same( before, rt::ByteBlock::of( '\r' ) ).mask()
             != same( block, rt::ByteBlock::of( '\n' ) ).mask() )
            return false;
    }
    for ( ; at < head.size(); ++at )
        if ( ( head[at - 1] == '\r' ) != ( head[at] == '\n' ) )
            return false;
    return true;
}

// The first CR and the first LF that do not end a line, and all long lines.
void HeaderCheck::checkLines()
{
    static constexpr std::size_t longest = 8192;
    Bytes headBytes = bytes.substr( 0, headSize );
    if ( headSize <= longest && areLineEnds( headBytes ) )
        return;
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
    int64_t held = headSize == bytes.size() ? 0 : int64_t( bytes.size() - headSize - headEnd.size() );
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
    const NameFacts &name = nameFacts[std::size_t( entry.number )];
    if ( name.placementCount == 0 || methodPlace == std::size( placementMethods ) )
        return;
    for ( std::size_t i = 0; i < name.placementCount; ++i )
    {
        const HeaderPlacement &placement = headerPlacements[name.firstPlacement + i];
        if ( isFor( placement, status ) && placement.methods[methodPlace] != '-' )
            return;
    }
    addAtName( findingRule( "-place" ) );
}

void HeaderCheck::checkRepetition( const HeaderEntry &entry, bool isSingle )
{
    if ( !isSingle || entry.last == -1 )
        return;
    Bytes second = lineAround( bytes, table()->moreLines[entry.first.next].begin );
    findings.add( *findingRule( "-twice" ), second.data() - bytes.data(), nameOf( entry.number ) );
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
    for ( const NeedingPlacement &needing : needingPlacements )
        if ( isFor( *needing.placement, status ) && isNeeded( *needing.placement, methodPlace ) )
            addMissing( needing.number );
    if ( !isRequest() || methodPlace < std::size( placementMethods ) )
        return;
    for ( const NeededHeader &needed : neededHeaders )
        if ( isMethod( needed.method ) )
            addMissing( numberOf( needed.name ), needed.reference );
}

} // namespace

void findHeaderFaults( TELSX_MESSAGE msg, Bytes bytes, FindingList &findings, HeaderMemory *memory )
{
    HeaderCheck( msg, bytes, findings, memory ).run();
}

} // namespace telsx
