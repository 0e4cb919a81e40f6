// What the headers and values share that are an address with parameters and have no fields for these: Refer-To,
// Reply-To, P-Called-Party-Id and Remote-Party-Id, and the values of P-Associated-Uri.
#pragma once

#include "telsx/telsx_header.hpp"
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
inline bool decodeParty( Party &party, Address address, Text behind )
{
    party.iri = std::move( address.iri );
    party.displayName = std::move( address.displayName );
    party.genericParams = noGenericParams();
    ParamReader param( behind );
    while ( param.next() )
        param.storeGeneric( party.genericParams );
    return !param.failed();
}
inline bool decodeParty( Party &party, Text text )
{
    Address address;
    return takeAddress( text, address ) && decodeParty( party, std::move( address ), text );
}

} // namespace telsx
