// Findings as they are made.
#include "telsx/telsx_finding_list.hpp"

#include <algorithm>

namespace telsx
{

FindingList::~FindingList()
{
    for ( TELSX_FINDING finding : findings )
        rt::release( rt::asObj( finding ) );
}

void FindingList::append( int64_t severity, int64_t place, RT_STRING headerName, Ref<RT_STRING> code,
                          Ref<RT_STRING> words, std::string_view reference )
{
    TELSX_FINDING finding = rt::create<TELSX_FINDING_>( telsxFindingSort() );
    finding->severity = severity;
    finding->offset = place;
    finding->headerName = share( headerName );
    finding->code = std::move( code );
    finding->text = std::move( words );
    finding->reference = stringOf( reference );
    findings.append( finding );
}

// A code that begins with the name of a header.
static Ref<RT_STRING> codeOf( RT_STRING headerName, std::string_view code )
{
    return joined( adopt( lowerCase( headerName ) ), code );
}

void FindingList::add( const FindingRule &rule, int64_t place, RT_STRING headerName,
                       std::string_view reference )
{
    bool isOfHeader = rule.code.front() == '-';
    append( rule.severity, place, headerName,
            isOfHeader ? codeOf( headerName, rule.code ) : stringOf( rule.code ),
            isOfHeader ? joined( headerName, ' ', rule.words ) : stringOf( rule.words ),
            reference.empty() ? rule.reference : reference );
}

// Control characters, and those that change the direction of the text after them.
static bool isUnsafe( RT_CHAR ch )
{
    return ch < ' ' || ( ch >= 0x7F && ch < 0xA0 ) || ( ch >= 0x200E && ch <= 0x200F )
           || ( ch >= 0x2028 && ch <= 0x202E ) || ( ch >= 0x2066 && ch <= 0x2069 ) || ch == 0xFEFF;
}

// The start of a text, up to a blank and not too much of it.
static void appendFound( Ref<RT_STRING> &words, Text found )
{
    static constexpr int64_t most = 24;
    if ( !found )
        return append( words, ", found the end of the line" );
    append( words, ", found \"" );
    int64_t count = 0;
    do
    {
        RT_CHAR ch = found.take( 1 ).chs[0];
        if ( isUnsafe( ch ) )
            rtStringAppendFormatCstr( words.address(), "\\x%^02!16i", -1, static_cast<int64_t>( ch ) );
        else
            rtStringAppendChar( words.address(), ch );
        ++count;
    } while ( found && count < most && found.chs[0] != ' ' && found.chs[0] != '\t' );
    append( words, found && count == most ? std::string_view( "...\"" ) : "\"" );
}

void FindingList::addExpected( const FindingRule &rule, int64_t place, Text found, RT_STRING headerName )
{
    Ref<RT_STRING> words = stringOf( rule.words );
    appendFound( words, found );
    append( rule.severity, place, headerName, stringOf( rule.code ), std::move( words ), rule.reference );
}

void FindingList::addUnreadable( RT_STRING headerName, const Ref<RT_STRING> &pieceCode,
                                 const Ref<RT_STRING> &words, std::string_view reference, int64_t place,
                                 Text found )
{
    Ref<RT_STRING> sentence = joined( headerName, ": expected ", words );
    appendFound( sentence, found );
    append( TELSX_FINDING_SEVERITY_WARNING, place, headerName, joined( codeOf( headerName, "-" ), pieceCode ),
            std::move( sentence ), reference );
}

RT_VECTOR FindingList::take()
{
    std::stable_sort( findings.begin(), findings.end(),
                      []( TELSX_FINDING a, TELSX_FINDING b ) { return rt::compareFields( a, b ) < 0; } );
    Ref<RT_VECTOR> vector = adopt( rtVectorCreateWithCapacity( findings.length() ) );
    std::size_t place = 0, endOfLine = all.find( '\n' );
    int64_t line = 1, column = 1;
    for ( TELSX_FINDING finding : findings )
    {
        auto offset = static_cast<std::size_t>( finding->offset );
        for ( ; endOfLine < offset; endOfLine = all.find( '\n', place ) )
        {
            place = endOfLine + 1;
            ++line;
            column = 1;
        }
        for ( ; place < offset; ++column )
        {
            Bytes rest = all.substr( place );
            takeChar( rest );
            place = all.size() - rest.size();
        }
        finding->line = line;
        finding->column = column;
        rt___VectorInsertTaken( vector.address(), -1, rt::asObj( finding ) );
    }
    findings.clear();
    return vector.take();
}

} // namespace telsx
