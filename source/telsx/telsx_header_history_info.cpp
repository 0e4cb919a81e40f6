// History-Info header (RFC 7044, 5).
#include "telsx/telsx_header_history_info.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_HISTORY_INFO_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderHistoryInfo, HEADER_HISTORY_INFO, hdr, "History-Info" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderHistoryInfo, "History-Info", HistoryInfo, HistoryInfo )
