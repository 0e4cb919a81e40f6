// Associated address (RFC 7315, 5.1).
#include "telsx/telsx_associated_uri.h"

#include "telsx/telsx_party.hpp"

using namespace telsx;

struct TELSX_ASSOCIATED_URI_ : Party
{
};

TELSX_DEFINE_VALUE_OBJECT( AssociatedUri, ASSOCIATED_URI, associatedUri )
TELSX_DEFINE_PARTY( AssociatedUri, associatedUri )

RT_STRING telsx___AssociatedUriEncode( TELSX_ASSOCIATED_URI associatedUri )
{
    TELSX_ASSERT( associatedUri );
    return encodeParty( *associatedUri ).take();
}

TELSX_ASSOCIATED_URI telsx___AssociatedUriTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Address address;
    if ( !takeAddress( rest, address ) || !address.inBrackets )
        return nullptr;
    Ref<TELSX_ASSOCIATED_URI> associatedUri = adopt( create() );
    return decodeParty( *associatedUri.get(), std::move( address ), rest ) ? associatedUri.take() : nullptr;
}

int64_t telsx___SkipAssociatedUri( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipRoute( chs, length );
}
