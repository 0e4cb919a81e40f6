// Proxy-Require header (RFC 3261, 20.29).
#include "telsx/telsx_header_proxy_require.h"

#include "telsx/telsx_option_tag.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_PROXY_REQUIRE_
{
    RT_OBJECT object;
    Ref<RT_DICT> tokens; // from each token to itself, never null

    static auto fields( auto &self ) { return std::tie( self.tokens ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderProxyRequire, HEADER_PROXY_REQUIRE, hdr, "Proxy-Require" )
TELSX_DEFINE_TOKEN_SET( HeaderProxyRequire, OptionTag, telsxOptionTagNormalize )

TELSX_HEADER_PROXY_REQUIRE telsxHeaderProxyRequireCreate( void )
{
    TELSX_HEADER_PROXY_REQUIRE hdr = rt::create<TELSX_HEADER_PROXY_REQUIRE_>( telsxHeaderProxyRequireSort() );
    hdr->tokens = adopt( rtDictCreate() );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderProxyRequireEncode( TELSX_HEADER_PROXY_REQUIRE hdr )
{
    TELSX_ASSERT( hdr );
    return encodeTokens( literal<"Proxy-Require">(), hdr->tokens, comma );
}

static TELSX_HEADER_PROXY_REQUIRE decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_PROXY_REQUIRE> hdr = adopt( telsxHeaderProxyRequireCreate() );
    return decodeTokens( hdr->tokens, lines, telsx___SkipOptionTag, telsxOptionTagNormalize, comma )
               ? hdr.take()
               : nullptr;
}
