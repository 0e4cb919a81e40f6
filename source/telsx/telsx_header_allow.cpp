// Allow header (RFC 3261, 20.5).
#include "telsx/telsx_header_allow.h"

#include "telsx/telsx_method.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_ALLOW_
{
    RT_OBJECT object;
    Ref<RT_DICT> tokens; // from each token to itself, never null

    static auto fields( auto &self ) { return std::tie( self.tokens ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAllow, HEADER_ALLOW, hdr, "Allow" )
TELSX_DEFINE_TOKEN_SET( HeaderAllow, Method, asItIs )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderAllow, Method, Cstr, char )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderAllow, Method, Wcstr, wchar_t )

TELSX_HEADER_ALLOW telsxHeaderAllowCreate( void )
{
    TELSX_HEADER_ALLOW hdr = rt::create<TELSX_HEADER_ALLOW_>( telsxHeaderAllowSort() );
    hdr->tokens = adopt( rtDictCreate() );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderAllowEncode( TELSX_HEADER_ALLOW hdr )
{
    TELSX_ASSERT( hdr );
    return encodeTokens( literal<"Allow">(), hdr->tokens, comma );
}

static TELSX_HEADER_ALLOW decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_ALLOW> hdr = adopt( telsxHeaderAllowCreate() );
    return decodeTokens( hdr->tokens, lines, telsx___SkipMethod, asItIs, comma ) ? hdr.take() : nullptr;
}
