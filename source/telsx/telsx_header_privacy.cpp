// Privacy header (RFC 3323, 4.2).
#include "telsx/telsx_header_privacy.h"

#include "telsx/telsx_priv_value.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_PRIVACY_
{
    RT_OBJECT object;
    Ref<RT_DICT> tokens; // from each token to itself, never null

    static auto fields( auto &self ) { return std::tie( self.tokens ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPrivacy, HEADER_PRIVACY, hdr, "Privacy" )
TELSX_DEFINE_TOKEN_SET( HeaderPrivacy, PrivValue, telsxPrivValueNormalize )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderPrivacy, PrivValue, Cstr, char )
TELSX_DEFINE_TOKEN_SET_CHARS( HeaderPrivacy, PrivValue, Wcstr, wchar_t )

TELSX_HEADER_PRIVACY telsxHeaderPrivacyCreate( void )
{
    TELSX_HEADER_PRIVACY hdr = rt::create<TELSX_HEADER_PRIVACY_>( telsxHeaderPrivacySort() );
    hdr->tokens = adopt( rtDictCreate() );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderPrivacyEncode( TELSX_HEADER_PRIVACY hdr )
{
    TELSX_ASSERT( hdr );
    return encodeTokens( literal<"Privacy">(), hdr->tokens, semicolon );
}

static TELSX_HEADER_PRIVACY decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_PRIVACY> hdr = adopt( telsxHeaderPrivacyCreate() );
    return decodeTokens( hdr->tokens, lines, telsx___SkipPrivValue, telsxPrivValueNormalize, semicolon )
               ? hdr.take()
               : nullptr;
}
