// Rseq header (RFC 3262, 7.1).
#include "telsx/telsx_header_rseq.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_number.hpp"
#include "telsx/telsx_response_num.h"

using namespace telsx;

struct TELSX_HEADER_RSEQ_
{
    RT_OBJECT object;
    int64_t responseNum; // 1 to 4294967295

    static constexpr auto fields( auto &self ) { return std::tie( self.responseNum ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRseq, HEADER_RSEQ, hdr, "Rseq" )
TELSX_DEFINE_FIELD( HeaderRseq, hdr, ResponseNum, responseNum, telsxResponseNumOk( responseNum ) )

TELSX_HEADER_RSEQ telsxHeaderRseqCreate( int64_t responseNum )
{
    TELSX_ASSERT( telsxResponseNumOk( responseNum ) );
    TELSX_HEADER_RSEQ hdr = rt::create<TELSX_HEADER_RSEQ_>( telsxHeaderRseqSort() );
    hdr->responseNum = responseNum;
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderRseqEncode( TELSX_HEADER_RSEQ hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Rseq">(), adopt( encodeNumber( hdr->responseNum ) ) );
}

static TELSX_HEADER_RSEQ decode( HeaderLines &lines )
{
    int64_t responseNum = tryDecodeNumber( lines.lastText(), telsxResponseNumOk );
    return responseNum == -1 ? nullptr : telsxHeaderRseqCreate( responseNum );
}
