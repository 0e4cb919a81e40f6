// Recv-Info header (RFC 6086, 7.3).
#include "telsx/telsx_header_recv_info.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_RECV_INFO_ : ValueList
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRecvInfo, HEADER_RECV_INFO, hdr, "Recv-Info" )
TELSX_DEFINE_HEADER_OF_VALUES( HeaderRecvInfo, "Recv-Info", InfoPackage, InfoPackage )
