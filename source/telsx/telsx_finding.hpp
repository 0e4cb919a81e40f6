// The inside of a finding.
#pragma once

#include "telsx/telsx_finding.h"
#include "telsx/telsx_frame.hpp"

struct TELSX_FINDING_
{
    RT_OBJECT object;
    int64_t severity;
    int64_t offset;
    int64_t line;
    int64_t column;
    rt::Ref<RT_STRING> headerName;
    rt::Ref<RT_STRING> code;      // never null
    rt::Ref<RT_STRING> text;      // never null
    rt::Ref<RT_STRING> reference; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.severity, self.offset, self.line, self.column, self.headerName, self.code,
                         self.text, self.reference );
    }
    static constexpr auto order( auto &self )
    {
        return std::tie( self.offset, self.severity, self.headerName, self.code, self.text, self.reference );
    }
};
