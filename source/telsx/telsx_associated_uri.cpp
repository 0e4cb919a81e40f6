// Associated address (RFC 7315, 5.1).
#include "telsx/telsx_associated_uri.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_party.hpp"

using namespace telsx;

struct TELSX_ASSOCIATED_URI_ : Party
{
};

TELSX_DEFINE_OBJECT( AssociatedUri, ASSOCIATED_URI, telsx___AssociatedUriFreeFunc,
                     telsx___AssociatedUriCompareFunc, telsx___AssociatedUriToStringFunc )
TELSX_DEFINE_FREE_FUNC( AssociatedUri, associatedUri )
TELSX_DEFINE_COMPARE_FUNC( AssociatedUri, associatedUri )
TELSX_DEFINE_TO_STRING_FUNC( AssociatedUri, associatedUri )
TELSX_DEFINE_FIELD( AssociatedUri, associatedUri, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_FIELD( AssociatedUri, associatedUri, DisplayName, displayName,
                    telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_OPTION( AssociatedUri, associatedUri, DisplayName, displayName )
TELSX_DEFINE_FIELD( AssociatedUri, associatedUri, GenericParams, genericParams, genericParams )

static TELSX_ASSOCIATED_URI create() { return rt::create<TELSX_ASSOCIATED_URI_>( telsxAssociatedUriSort() ); }

TELSX_ASSOCIATED_URI telsxAssociatedUriCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    TELSX_ASSOCIATED_URI associatedUri = create();
    associatedUri->iri = share( iri );
    associatedUri->genericParams = noGenericParams();
    return associatedUri;
}

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
