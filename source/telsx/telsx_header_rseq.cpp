// Rseq header (RFC 3262, 7.1).
#include "telsx/telsx_header_rseq.h"

#include "telsx/telsx_header_of_number.hpp"
#include "telsx/telsx_response_num.h"

using namespace telsx;

struct TELSX_HEADER_RSEQ_
{
    RT_OBJECT object;
    int64_t responseNum; // 1 to 4294967295

    static constexpr auto fields( auto &self ) { return std::tie( self.responseNum ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRseq, HEADER_RSEQ, hdr, "Rseq" )
TELSX_DEFINE_HEADER_OF_NUMBER( HeaderRseq, hdr, "Rseq", ResponseNum, responseNum, ResponseNum )
