// Alert-Info value (RFC 3261, 20.4).
#include "telsx/telsx_alert_info.h"

#include "telsx/telsx_info.hpp"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_value_of_text.hpp"

using namespace telsx;

struct TELSX_ALERT_INFO_ : Info
{
};

TELSX_DEFINE_VALUE_OF_TEXT( AlertInfo, ALERT_INFO, alertInfo, Iri, iri, Iri, takeInfoAddress,
                            encodeInfoAddress )
