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

std::vector<Finding> findIn( const Cut &message, const std::set<std::string> &silenced, TELSX_FINDER finder )
{
    std::vector<Finding> result;
    Buffer bytes = toBuffer( message.bytes );
    Owned found( finder ? telsxFinderFindings( finder, bytes.get() ) : telsxMessageFindings( bytes.get() ) );
    for ( int64_t i = 0; i < rtVectorLength( found.get() ); ++i )
    {
        Owned object( rtVectorObjAt( found.get(), i ) );
        TELSX_FINDING finding = telsxFindingFrom( object.get() ); // borrowed from the object
        std::string code = toUtf8( Owned( telsxFindingCode( finding ) ) );
        if ( silenced.count( code ) )
            continue;
        String header( telsxFindingHeaderName( finding ) );
        result.push_back( { telsxFindingSeverity( finding ), telsxFindingOffset( finding ),
                            telsxFindingLine( finding ), telsxFindingColumn( finding ),
                            header ? toUtf8( header ) : "", code,
                            toUtf8( Owned( telsxFindingText( finding ) ) ),
                            toUtf8( Owned( telsxFindingReference( finding ) ) ) } );
    }
    // The receiver of a stream can't tell where such a message ends.
    if ( message.lacksLength && !silenced.count( "content-length-stream" ) )
        result.insert( result.begin(),
                       { TELSX_FINDING_SEVERITY_ERROR, 0, 1, 1, "Content-Length", "content-length-stream",
                         "a message on a stream must have a Content-Length", "RFC 3261, 18.3" } );
    return result;
}

bool areBad( const std::vector<Finding> &findings )
{
    return std::any_of( findings.begin(), findings.end(),
                        []( const Finding &finding )
                        { return finding.severity != TELSX_FINDING_SEVERITY_REMARK; } );
}

} // namespace tools
