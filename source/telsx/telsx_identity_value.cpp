// Identity value (RFC 3325, 9.1 and 9.2).
#include "telsx/telsx_identity_value.h"

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_IDENTITY_VALUE_
{
    RT_OBJECT object;
    Ref<RT_STRING> iri; // never null
    Ref<RT_STRING> displayName;

    static constexpr auto fields( auto &self ) { return std::tie( self.iri, self.displayName ); }
};

TELSX_DEFINE_OBJECT( IdentityValue, IDENTITY_VALUE, telsx___IdentityValueFreeFunc,
                     telsx___IdentityValueCompareFunc, nullptr )
TELSX_DEFINE_FREE_FUNC( IdentityValue, value )
TELSX_DEFINE_COMPARE_FUNC( IdentityValue, value )
TELSX_DEFINE_FIELD( IdentityValue, value, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_OPTIONAL_FIELD( IdentityValue, value, DisplayName, displayName,
                             telsxDisplayNameOk( displayName ) )

static Ref<TELSX_IDENTITY_VALUE> create( Address address )
{
    auto value = adopt( rt::create<TELSX_IDENTITY_VALUE_>( telsxIdentityValueSort() ) );
    value->iri = std::move( address.iri );
    value->displayName = std::move( address.displayName );
    return value;
}

TELSX_IDENTITY_VALUE telsxIdentityValueCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    return create( { .iri = share( iri ) } ).take();
}

RT_STRING telsx___IdentityValueEncode( TELSX_IDENTITY_VALUE value )
{
    TELSX_ASSERT( value );
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    appendAddress( text, value->iri, value->displayName );
    return text.take();
}

TELSX_IDENTITY_VALUE telsx___IdentityValueTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Address address;
    if ( !takeAddress( rest, address ) || rest )
        return nullptr;
    return create( std::move( address ) ).take();
}
