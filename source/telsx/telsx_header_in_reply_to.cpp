// In-Reply-To header (RFC 3261, 20.21).
#include "telsx/telsx_header_in_reply_to.h"

#include "telsx/telsx_call_id.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_IN_REPLY_TO_
{
    RT_OBJECT object;
    Ref<RT_DICT> tokens; // from each token to itself, never null

    static auto fields( auto &self ) { return std::tie( self.tokens ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderInReplyTo, HEADER_IN_REPLY_TO, hdr, "In-Reply-To" )
TELSX_DEFINE_TOKEN_SET( HeaderInReplyTo, CallId, asItIs )

TELSX_HEADER_IN_REPLY_TO telsxHeaderInReplyToCreate( void )
{
    TELSX_HEADER_IN_REPLY_TO hdr = rt::create<TELSX_HEADER_IN_REPLY_TO_>( telsxHeaderInReplyToSort() );
    hdr->tokens = adopt( rtDictCreate() );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderInReplyToEncode( TELSX_HEADER_IN_REPLY_TO hdr )
{
    TELSX_ASSERT( hdr );
    return encodeTokens( literal<"In-Reply-To">(), hdr->tokens, comma );
}

static TELSX_HEADER_IN_REPLY_TO decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_IN_REPLY_TO> hdr = adopt( telsxHeaderInReplyToCreate() );
    return decodeTokens( hdr->tokens, lines, telsx___SkipCallId, asItIs, comma ) ? hdr.take() : nullptr;
}
