// Content-Id header (RFC 8262, 3).
#include "telsx/telsx_header_content_id.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_msg_id.h"
#include "telsx/telsx_skip.h"

using namespace telsx;

struct TELSX_HEADER_CONTENT_ID_
{
    RT_OBJECT object;
    Ref<RT_STRING> msgId; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.msgId ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderContentId, HEADER_CONTENT_ID, hdr, "Content-Id" )
TELSX_DEFINE_FIELD( HeaderContentId, hdr, MsgId, msgId, telsxMsgIdOk( msgId ) )

TELSX_HEADER_CONTENT_ID telsxHeaderContentIdCreate( RT_STRING msgId )
{
    TELSX_ASSERT_OK( telsxMsgIdOk, msgId );
    TELSX_HEADER_CONTENT_ID hdr = rt::create<TELSX_HEADER_CONTENT_ID_>( telsxHeaderContentIdSort() );
    hdr->msgId = share( msgId );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderContentIdEncode( TELSX_HEADER_CONTENT_ID hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Content-Id">(), joined( '<', hdr->msgId, '>' ) );
}

static TELSX_HEADER_CONTENT_ID decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    if ( !rest.take( telsx___SkipChar( rest.chs, rest.length, '<' ) ) )
        return nullptr;
    Text msgId = rest.take( telsx___SkipMsgId );
    bool isGood = msgId && rest.take( telsx___SkipChar( rest.chs, rest.length, '>' ) ) && !rest;
    return isGood ? telsxHeaderContentIdCreate( msgId.copy().get() ) : nullptr;
}
