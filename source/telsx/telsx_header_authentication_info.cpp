// Authentication-Info header (RFC 3261, 20.6; RFC 7615, 3).
#include "telsx/telsx_header_authentication_info.h"

#include "telsx/telsx_auth.hpp"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_nonce_count.h"
#include "telsx/telsx_token.h"

using namespace telsx;

struct TELSX_HEADER_AUTHENTICATION_INFO_
{
    RT_OBJECT object;
    Ref<RT_STRING> nextNonce;
    Ref<RT_STRING> qop;
    Ref<RT_STRING> rspauth;
    Ref<RT_STRING> cnonce;
    Ref<RT_STRING> nonceCount;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.nextNonce, self.qop, self.rspauth, self.cnonce, self.nonceCount,
                         self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAuthenticationInfo, HEADER_AUTHENTICATION_INFO, hdr, "Authentication-Info" )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderAuthenticationInfo, hdr, NextNonce, nextNonce,
                             telsxQuotableStringOk( nextNonce ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderAuthenticationInfo, hdr, Qop, qop, telsxTokenOk( qop ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderAuthenticationInfo, hdr, Rspauth, rspauth,
                             telsxQuotableStringOk( rspauth ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderAuthenticationInfo, hdr, Cnonce, cnonce, telsxQuotableStringOk( cnonce ) )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderAuthenticationInfo, hdr, NonceCount, nonceCount,
                             telsxNonceCountOk( nonceCount ) )
TELSX_DEFINE_FIELD( HeaderAuthenticationInfo, hdr, GenericParams, genericParams, genericParams )

TELSX_HEADER_AUTHENTICATION_INFO telsxHeaderAuthenticationInfoCreate( void )
{
    auto hdr = rt::create<TELSX_HEADER_AUTHENTICATION_INFO_>( telsxHeaderAuthenticationInfoSort() );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderAuthenticationInfoEncode( TELSX_HEADER_AUTHENTICATION_INFO hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = adopt( rtStringCreate() );
    AuthParamWriter params( line );
    params.write<"nextnonce">( hdr->nextNonce );
    params.writeToken<"qop">( hdr->qop );
    params.write<"rspauth">( hdr->rspauth );
    params.write<"cnonce">( hdr->cnonce );
    params.writeToken<"nc">( hdr->nonceCount );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"Authentication-Info">(), line );
}

static TELSX_HEADER_AUTHENTICATION_INFO decode( HeaderLines &lines )
{
    if ( lines.empty() )
        return nullptr;
    auto hdr = adopt( telsxHeaderAuthenticationInfoCreate() );
    AuthParamReader param( lines.lastText() );
    while ( param.next() )
    {
        param.read<"nextnonce">( hdr->nextNonce );
        param.read<"qop">( hdr->qop, telsxTokenOk );
        param.read<"rspauth">( hdr->rspauth );
        param.read<"cnonce">( hdr->cnonce );
        param.read<"nc">( hdr->nonceCount, telsxNonceCountOk );
        param.readGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}
