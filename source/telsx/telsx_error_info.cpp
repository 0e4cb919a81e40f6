// Error-Info value (RFC 3261, 20.18).
#include "telsx/telsx_error_info.h"

#include "telsx/telsx_info.hpp"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_value_of_text.hpp"

using namespace telsx;

struct TELSX_ERROR_INFO_ : Info
{
};

TELSX_DEFINE_VALUE_OF_TEXT( ErrorInfo, ERROR_INFO, errorInfo, Iri, iri, Iri, takeInfoAddress,
                            encodeInfoAddress )
