// Require header (RFC 3261, 20.32).
#include "telsx/telsx_header_require.h"

#include "telsx/telsx_option_tag.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_REQUIRE_
{
    RT_OBJECT object;
    Ref<RT_DICT> tokens; // from each token to itself, never null

    static auto fields( auto &self ) { return std::tie( self.tokens ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderRequire, HEADER_REQUIRE, hdr, "Require" )
TELSX_DEFINE_TOKEN_SET( HeaderRequire, OptionTag, telsxOptionTagNormalize )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderRequire, OptionTag, Cstr, char )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderRequire, OptionTag, Wcstr, wchar_t )

TELSX_HEADER_REQUIRE telsxHeaderRequireCreate( void )
{
    TELSX_HEADER_REQUIRE hdr = rt::create<TELSX_HEADER_REQUIRE_>( telsxHeaderRequireSort() );
    hdr->tokens = adopt( rtDictCreate() );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderRequireEncode( TELSX_HEADER_REQUIRE hdr )
{
    TELSX_ASSERT( hdr );
    return encodeTokens( literal<"Require">(), hdr->tokens, comma );
}

static TELSX_HEADER_REQUIRE decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_REQUIRE> hdr = adopt( telsxHeaderRequireCreate() );
    return decodeTokens( hdr->tokens, lines, telsx___SkipOptionTag, telsxOptionTagNormalize, comma )
               ? hdr.take()
               : nullptr;
}
