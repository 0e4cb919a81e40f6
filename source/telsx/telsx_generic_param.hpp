// The inside of a generic parameter.
#pragma once

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_generic_param.h"

struct TELSX_GENERIC_PARAM_
{
    RT_OBJECT object;
    rt::Ref<RT_STRING> name;  // lower case, never null
    int64_t valueType;        // -1 without a value
    rt::Ref<RT_STRING> value; // as it was set; for a quotable string the plain text

    static constexpr auto fields( auto &self ) { return std::tie( self.name, self.valueType, self.value ); }
};
