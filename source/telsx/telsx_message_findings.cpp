// Reading again what was refused.
#include "telsx/telsx_finding.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_VECTOR telsxMessageFindings( RT_BUFFER buf )
{
    TELSX_ASSERT( buf );
    Ref<RT_VECTOR> findings = adopt( rtVectorCreate() );
    if ( !adopt( telsxMessageTryDecode( buf ) ) )
    {
        TELSX_FINDING finding = rt::create<TELSX_FINDING_>( telsxFindingSort() );
        finding->severity = TELSX_FINDING_SEVERITY_ERROR;
        finding->offset = 0;
        finding->line = finding->column = 1;
        finding->code = adopt( literal<"start-line">() );
        finding->text = adopt( literal<"expected a request or status line">() );
        finding->reference = adopt( literal<"RFC 3261, 7">() );
        rt___VectorInsertTaken( findings.address(), -1, rt::asObj( finding ) );
    }
    return findings.take();
}

TELSX_MESSAGE telsxMessageTryDecodeLoosely( RT_BUFFER buf ) { return telsxMessageTryDecode( buf ); }
