// Error-Info value (RFC 3261, 20.18).
#include "telsx/telsx_error_info.h"

#include "telsx/telsx_info.hpp"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_value_of_text.hpp"

using namespace telsx;

struct TELSX_ERROR_INFO_
{
    RT_OBJECT object;
    Ref<RT_STRING> iri;                      // never null
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.iri, self.genericParams ); }
};

TELSX_DEFINE_VALUE_OF_TEXT( ErrorInfo, ERROR_INFO, errorInfo, Iri, iri, Iri, takeInfoAddress,
                            encodeInfoAddress )
