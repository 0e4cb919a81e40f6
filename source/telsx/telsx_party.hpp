// What the headers and values share that are an address with parameters and have no fields for these: Refer-To,
// Reply-To, P-Called-Party-Id and Remote-Party-Id, and the values of P-Associated-Uri.
#pragma once

#include "telsx/telsx_display_name.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_value.hpp"

namespace telsx
{

struct Party
{
    RT_OBJECT object;
    Ref<RT_STRING> iri; // never null
    Ref<RT_STRING> displayName;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.iri, self.displayName, self.genericParams );
    }
};
static_assert( rt::listsAllFields<Party>() );

inline Ref<RT_STRING> encodeParty( const Party &party )
{
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    appendAddress( text, party.iri, party.displayName );
    appendGenericParams( text, party.genericParams.get() );
    return text;
}

// Fills a new object from its address and the text after it, or from its text; false for bad text.
inline bool decodeParty( Party &party, Address address, Text after )
{
    party.iri = std::move( address.iri );
    party.displayName = std::move( address.displayName );
    party.genericParams = noGenericParams();
    return readGenericParams( after, party.genericParams );
}
inline bool decodeParty( Party &party, Text text )
{
    Address address;
    return takeAddress( text, address ) && decodeParty( party, std::move( address ), text );
}

} // namespace telsx

// The accessors of the header or value NAME, and its creators: one for callers, and one of an empty object for the
// decoder.
#define TELSX_DEFINE_PARTY( NAME, SELF )                                                                   \
    TELSX_DEFINE_FIELD( NAME, SELF, Iri, iri, telsxIriOk( iri ) )                                          \
    TELSX_DEFINE_OPTIONAL_FIELD( NAME, SELF, DisplayName, displayName, telsxDisplayNameOk( displayName ) ) \
    TELSX_DEFINE_FIELD( NAME, SELF, GenericParams, genericParams, genericParams )                          \
    static auto create()                                                                                   \
    {                                                                                                      \
        return rt::create<std::remove_pointer_t<TELSX_HANDLE( NAME )>>( telsx##NAME##Sort() );             \
    }                                                                                                      \
    TELSX_HANDLE( NAME ) telsx##NAME##Create( RT_STRING iri )                                              \
    {                                                                                                      \
        TELSX_ASSERT_OK( telsxIriOk, iri );                                                                \
        auto SELF = create();                                                                              \
        SELF->iri = telsx::share( iri );                                                                   \
        SELF->genericParams = telsx::noGenericParams();                                                    \
        return SELF;                                                                                       \
    }

// The same of a header, and its encoder.
#define TELSX_DEFINE_HEADER_OF_PARTY( NAME, SIP_NAME )                                        \
    TELSX_DEFINE_PARTY( NAME, hdr )                                                           \
    TELSX_MESSAGE_HEADER telsx##NAME##Encode( TELSX_HANDLE( NAME ) hdr )                      \
    {                                                                                         \
        TELSX_ASSERT( hdr );                                                                  \
        return telsx::createHeader( telsx::literal<SIP_NAME>(), telsx::encodeParty( *hdr ) ); \
    }
