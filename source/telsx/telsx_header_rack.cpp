// Rack header (RFC 3262, 7.2).
#include "telsx/telsx_header_rack.h"

#include "telsx/telsx_cseq.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_method.hpp"
#include "telsx/telsx_number.hpp"
#include "telsx/telsx_response_num.h"
#include "telsx/telsx_skip.h"

using namespace telsx;

struct TELSX_HEADER_RACK_
{
    RT_OBJECT object;
    int64_t responseNum;   // of the response
    int64_t cseq;          // of the request
    Ref<RT_STRING> method; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.responseNum, self.cseq, self.method );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRack, HEADER_RACK, hdr, "Rack" )
TELSX_DEFINE_FIELD( HeaderRack, hdr, ResponseNum, responseNum, telsxResponseNumOk( responseNum ) )
TELSX_DEFINE_FIELD( HeaderRack, hdr, Cseq, cseq, telsxCseqOk( cseq ) )
TELSX_DEFINE_FIELD( HeaderRack, hdr, Method, method, telsxMethodOk( method ) )

TELSX_HEADER_RACK telsxHeaderRackCreate( int64_t responseNum, int64_t cseq, RT_STRING method )
{
    TELSX_ASSERT( telsxResponseNumOk( responseNum ) );
    TELSX_ASSERT( telsxCseqOk( cseq ) );
    TELSX_ASSERT_OK( telsxMethodOk, method );
    TELSX_HEADER_RACK hdr = rt::create<TELSX_HEADER_RACK_>( telsxHeaderRackSort() );
    hdr->responseNum = responseNum;
    hdr->cseq = cseq;
    hdr->method = share( method );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderRackEncode( TELSX_HEADER_RACK hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Rack">(),
                         joined( Decimal( hdr->responseNum ), ' ', Decimal( hdr->cseq ), ' ', hdr->method ) );
}

static TELSX_HEADER_RACK decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    int64_t responseNum = tryDecodeNumber( rest.take( telsx___SkipDigits ), telsxResponseNumOk );
    if ( responseNum == -1 || !rest.take( telsx___SkipLws ) )
        return nullptr;
    int64_t cseq = tryDecodeNumber( rest.take( telsx___SkipDigits ), telsxCseqOk );
    if ( cseq == -1 || !rest.take( telsx___SkipLws ) )
        return nullptr;
    Ref<RT_STRING> method = tryDecodeMethod( rest );
    return method ? telsxHeaderRackCreate( responseNum, cseq, method.get() ) : nullptr;
}
