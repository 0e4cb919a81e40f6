// Unsupported header (RFC 3261, 20.40).
#include "telsx/telsx_header_unsupported.h"

#include "telsx/telsx_option_tag.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_UNSUPPORTED_
{
    RT_OBJECT object;
    Ref<RT_DICT> tokens; // from each token to itself, never null

    static auto fields( auto &self ) { return std::tie( self.tokens ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderUnsupported, HEADER_UNSUPPORTED, hdr, "Unsupported" )
TELSX_DEFINE_TOKEN_SET( HeaderUnsupported, OptionTag, telsxOptionTagNormalize )

TELSX_HEADER_UNSUPPORTED telsxHeaderUnsupportedCreate( void )
{
    TELSX_HEADER_UNSUPPORTED hdr = rt::create<TELSX_HEADER_UNSUPPORTED_>( telsxHeaderUnsupportedSort() );
    hdr->tokens = adopt( rtDictCreate() );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderUnsupportedEncode( TELSX_HEADER_UNSUPPORTED hdr )
{
    TELSX_ASSERT( hdr );
    return encodeTokens( literal<"Unsupported">(), hdr->tokens, comma );
}

static TELSX_HEADER_UNSUPPORTED decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_UNSUPPORTED> hdr = adopt( telsxHeaderUnsupportedCreate() );
    return decodeTokens( hdr->tokens, lines, telsx___SkipOptionTag, telsxOptionTagNormalize, comma )
               ? hdr.take()
               : nullptr;
}
