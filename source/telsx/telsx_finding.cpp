// Finding: severity, place, code and words.
#include "telsx/telsx_finding.h"

#include "telsx/telsx_finding.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

TELSX_DEFINE_OBJECT( Finding, FINDING, telsx___FindingFreeFunc, telsx___FindingCompareFunc,
                     telsx___FindingToStringFunc )
TELSX_DEFINE_FREE_FUNC( Finding, finding )
TELSX_DEFINE_COMPARE_FUNC( Finding, finding )
TELSX_DEFINE_GETTER( Finding, finding, Severity, severity )
TELSX_DEFINE_GETTER( Finding, finding, Offset, offset )
TELSX_DEFINE_GETTER( Finding, finding, Line, line )
TELSX_DEFINE_GETTER( Finding, finding, Column, column )
TELSX_DEFINE_GETTER( Finding, finding, HeaderName, headerName )
TELSX_DEFINE_GETTER( Finding, finding, Code, code )
TELSX_DEFINE_GETTER( Finding, finding, Text, text )
TELSX_DEFINE_GETTER( Finding, finding, Reference, reference )

RT_BOOL telsxFindingHasHeaderName( TELSX_FINDING finding )
{
    TELSX_ASSERT( finding );
    return rt::present( finding->headerName );
}

RT_STRING telsx___FindingToStringFunc( RT_OBJ obj )
{
    auto finding = telsxFindingFrom( obj );
    TELSX_ASSERT( finding );
    static constexpr std::string_view severities[] = { "error", "warning", "remark" };
    return joined( Decimal( finding->line ), ':', Decimal( finding->column ), ": ",
                   severities[finding->severity], ": ", finding->text, " [", finding->code, ']' )
        .take();
}
