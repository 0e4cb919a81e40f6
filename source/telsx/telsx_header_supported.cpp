// Supported header (RFC 3261, 20.37).
#include "telsx/telsx_header_supported.h"

#include "telsx/telsx_option_tag.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_SUPPORTED_
{
    RT_OBJECT object;
    Ref<RT_DICT> tokens; // from each token to itself, never null

    static auto fields( auto &self ) { return std::tie( self.tokens ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderSupported, HEADER_SUPPORTED, hdr, "Supported" )
TELSX_DEFINE_TOKEN_SET( HeaderSupported, OptionTag, telsxOptionTagNormalize )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderSupported, OptionTag, Cstr, char )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderSupported, OptionTag, Wcstr, wchar_t )

TELSX_HEADER_SUPPORTED telsxHeaderSupportedCreate( void )
{
    TELSX_HEADER_SUPPORTED hdr = rt::create<TELSX_HEADER_SUPPORTED_>( telsxHeaderSupportedSort() );
    hdr->tokens = adopt( rtDictCreate() );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderSupportedEncode( TELSX_HEADER_SUPPORTED hdr )
{
    TELSX_ASSERT( hdr );
    return encodeTokens( literal<"Supported">(), hdr->tokens, comma );
}

static TELSX_HEADER_SUPPORTED decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_SUPPORTED> hdr = adopt( telsxHeaderSupportedCreate() );
    return decodeTokens( hdr->tokens, lines, telsx___SkipOptionTag, telsxOptionTagNormalize, comma )
               ? hdr.take()
               : nullptr;
}
