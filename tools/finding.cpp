#include "finding.hpp"

#include <algorithm>

namespace tools
{

const char *severityName( int64_t severity )
{
    return severity == TELSX_FINDING_SEVERITY_ERROR     ? "error"
           : severity == TELSX_FINDING_SEVERITY_WARNING ? "warning"
                                                        : "remark";
}

static void setDetails( Finding &to, TELSX_FINDING finding )
{
    String header( telsxFindingHeaderName( finding ) );
    to.offset = telsxFindingOffset( finding );
    to.line = telsxFindingLine( finding );
    to.column = telsxFindingColumn( finding );
    to.header = header ? toUtf8( header ) : "";
    to.text = toUtf8( Owned( telsxFindingText( finding ) ) );
    to.reference = toUtf8( Owned( telsxFindingReference( finding ) ) );
}

static std::vector<Finding> collect( const Owned<RT_VECTOR> &found, const Cut &message,
                                     const std::set<std::string> &silenced, bool withDetails )
{
    std::vector<Finding> result;
    // The receiver of a stream can't tell where such a message ends.
    if ( message.lacksLength && !silenced.count( "content-length-stream" ) )
        result.push_back( { TELSX_FINDING_SEVERITY_ERROR, 0, 1, 1, "Content-Length", "content-length-stream",
                            "a message on a stream must have a Content-Length", "RFC 3261, 18.3" } );
    for ( int64_t i = 0; i < rtVectorLength( found.get() ); ++i )
    {
        Owned object( rtVectorObjAt( found.get(), i ) );
        TELSX_FINDING finding = telsxFindingFrom( object.get() ); // borrowed from the object
        std::string code = toUtf8( Owned( telsxFindingCode( finding ) ) );
        if ( silenced.count( code ) )
            continue;
        result.push_back( { telsxFindingSeverity( finding ), 0, 0, 0, {}, std::move( code ), {}, {} } );
        if ( withDetails )
            setDetails( result.back(), finding );
    }
    return result;
}

std::vector<Finding> findIn( const Cut &message, const std::set<std::string> &silenced )
{
    return collect( Owned( telsxMessageFindings( toBuffer( message.bytes ).get() ) ), message, silenced,
                    true );
}

std::vector<Finding> findIn( const Cut &message, const std::set<std::string> &silenced,
                             const Owned<TELSX_FINDER> &finder )
{
    return collect( Owned( telsxFinderFindings( finder.get(), toBuffer( message.bytes ).get() ) ), message,
                    silenced, false );
}

bool areBad( const std::vector<Finding> &findings )
{
    return std::any_of( findings.begin(), findings.end(),
                        []( const Finding &finding )
                        { return finding.severity != TELSX_FINDING_SEVERITY_REMARK; } );
}

} // namespace tools
