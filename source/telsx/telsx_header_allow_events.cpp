// Allow-Events header (RFC 6665, 8.2.2).
#include "telsx/telsx_header_allow_events.h"

#include "telsx/telsx_event_type.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_ALLOW_EVENTS_
{
    RT_OBJECT object;
    Ref<RT_DICT> tokens; // from each token to itself, never null

    static auto fields( auto &self ) { return std::tie( self.tokens ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAllowEvents, HEADER_ALLOW_EVENTS, hdr, "Allow-Events" )
TELSX_DEFINE_TOKEN_SET( HeaderAllowEvents, EventType, asItIs )

TELSX_HEADER_ALLOW_EVENTS telsxHeaderAllowEventsCreate( void )
{
    TELSX_HEADER_ALLOW_EVENTS hdr = rt::create<TELSX_HEADER_ALLOW_EVENTS_>( telsxHeaderAllowEventsSort() );
    hdr->tokens = adopt( rtDictCreate() );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderAllowEventsEncode( TELSX_HEADER_ALLOW_EVENTS hdr )
{
    TELSX_ASSERT( hdr );
    return encodeTokens( literal<"Allow-Events">(), hdr->tokens, comma );
}

static TELSX_HEADER_ALLOW_EVENTS decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_ALLOW_EVENTS> hdr = adopt( telsxHeaderAllowEventsCreate() );
    return decodeTokens( hdr->tokens, lines, telsx___SkipEventType, asItIs, comma ) ? hdr.take() : nullptr;
}
