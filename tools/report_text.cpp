// Findings for people.
#include "report.hpp"

#include <algorithm>
#include <cstdlib>
#include <cwchar>

#include <unistd.h>

namespace tools
{

namespace
{

// What a terminal is told; nothing if standard output is none.
struct Style
{
    const char *bold, *error, *warning, *remark, *mark, *off;

    const char *of( int64_t severity ) const
    {
        return severity == TELSX_FINDING_SEVERITY_ERROR     ? error
               : severity == TELSX_FINDING_SEVERITY_WARNING ? warning
                                                            : remark;
    }
};
constexpr Style plain = { "", "", "", "", "", "" };
constexpr Style coloured = { "\x1b[1m", "\x1b[1;31m", "\x1b[1;35m", "\x1b[1;36m", "\x1b[1;32m", "\x1b[0m" };

const Style &style()
{
    static const bool isTerminal = isatty( STDOUT_FILENO ) && !std::getenv( "NO_COLOR" );
    return isTerminal ? coloured : plain;
}

// How many columns the text takes on a terminal.
std::size_t widthOf( const std::string &utf8 )
{
    String text = ::toString( utf8 );
    std::size_t width = 0;
    for ( char32_t ch : telsx::toView( text ) )
    {
        int columns = wcwidth( static_cast<wchar_t>( ch ) );
        width += columns < 0 ? 1 : static_cast<std::size_t>( columns );
    }
    return width;
}

bool isInsideCharacter( std::string_view bytes, std::size_t at )
{
    return at < bytes.size() && ( bytes[at] & 0xC0 ) == 0x80;
}

// The line around a place, of a long one only what is near, and under it a caret.
std::string excerpt( std::string_view bytes, std::size_t at, int64_t line )
{
    constexpr std::size_t before = 120, after = 80; // bytes
    at = std::min( at, bytes.size() );
    std::size_t begin = at, end = at;
    while ( begin > 0 && bytes[begin - 1] != '\n' && at - begin < before )
        --begin;
    while ( end < bytes.size() && bytes[end] != '\n' && end - at < after )
        ++end;
    bool cutBefore = begin > 0 && bytes[begin - 1] != '\n',
         cutAfter = end < bytes.size() && bytes[end] != '\n';
    // A part that begins or ends inside a character would be no UTF-8.
    for ( int i = 0; cutBefore && i < 3 && begin < at && isInsideCharacter( bytes, begin ); ++i )
        ++begin;
    for ( int i = 0; cutAfter && i < 3 && end > at && isInsideCharacter( bytes, end ); ++i )
        --end;
    if ( !cutAfter && end > at && bytes[end - 1] == '\r' )
        --end;

    std::string_view shown = bytes.substr( begin, end - begin );
    bool utf8 = bool( ::toString( shown ) ) && bool( ::toString( bytes.substr( begin, at - begin ) ) );
    std::string number = std::to_string( line ), dots = cutBefore ? "..." : "";
    std::string margin( number.size() < 5 ? 5 - number.size() : 0, ' ' );
    std::string indent( widthOf( dots + printable( bytes.substr( begin, at - begin ), utf8 ) ), ' ' );
    return margin + number + " | " + dots + printable( shown, utf8 ) + ( cutAfter ? "..." : "" ) + '\n'
           + margin + std::string( number.size(), ' ' ) + " | " + indent + style().mark + '^' + style().off
           + '\n';
}

class CheckText : public Report
{
public:
    explicit CheckText( const Options &chosen ) : options( chosen ) {}

    bool add( const Cut &message, const Place &place ) override
    {
        std::vector<Finding> findings = findIn( message, options.silenced );
        printFindings( findings, message, place );
        return areBad( findings );
    }

private:
    Options options;
};

} // namespace

void print( const std::string &text ) { std::fwrite( text.data(), 1, text.size(), stdout ); }

void printFindings( const std::vector<Finding> &findings, const Cut &message, const Place &place )
{
    std::string file = printable( place.file );
    if ( place.isCaptured() && !findings.empty() )
    {
        file += '#' + std::to_string( place.packet );
        print( style().bold + file + style().off + ": " + timeOf( place ) + ", " + place.transport + " from "
               + toString( place.source ) + " to " + toString( place.destination ) + ":\n" );
    }
    for ( const Finding &finding : findings )
    {
        int64_t line = place.line + finding.line - 1;
        int64_t column = finding.line == 1 ? place.column + finding.column - 1 : finding.column;
        print( style().bold + file + ':' + std::to_string( line ) + ':' + std::to_string( column ) + ": "
               + style().of( finding.severity ) + severityName( finding.severity ) + ": " + style().off
               + printable( finding.text ) + " (" + printable( finding.reference ) + ") [" + finding.code
               + "]\n" + excerpt( message.bytes, static_cast<std::size_t>( finding.offset ), line ) );
    }
}

std::unique_ptr<Report> makeCheckText( const Options &options )
{
    return std::make_unique<CheckText>( options );
}

} // namespace tools
