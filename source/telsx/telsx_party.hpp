// What the headers share that are an address with parameters and have no fields for these: Refer-To, Reply-To,
// P-Called-Party-Id and Remote-Party-Id.
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

inline Ref<RT_STRING> encodeParty( const Party &hdr )
{
    Ref<RT_STRING> line = adopt( rtStringCreate() );
    appendAddress( line, hdr.iri, hdr.displayName );
    appendGenericParams( line, hdr.genericParams.get() );
    return line;
}

// Fills a new header from its address and the text after it, or from its line; false for bad text.
inline bool decodeParty( Party &hdr, Address address, Text behind )
{
    hdr.iri = std::move( address.iri );
    hdr.displayName = std::move( address.displayName );
    hdr.genericParams = noGenericParams();
    ParamReader param( behind );
    while ( param.next() )
        param.storeGeneric( hdr.genericParams );
    return !param.failed();
}
inline bool decodeParty( Party &hdr, Text line )
{
    Address address;
    return takeAddress( line, address ) && decodeParty( hdr, std::move( address ), line );
}

} // namespace telsx
