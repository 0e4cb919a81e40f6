// What the values of Alert-Info, Error-Info, Call-Info, Geolocation and Identity share: an address in angle brackets
// without a display name.
#pragma once

#include "telsx/telsx_value.hpp"

namespace telsx
{

// Takes the address at the start; null for bad text.
inline Ref<RT_STRING> takeInfoAddress( Text &rest )
{
    Address address;
    bool taken = takeAddress( rest, address ) && address.inBrackets && !address.displayName;
    return taken ? std::move( address.iri ) : Ref<RT_STRING>();
}

inline RT_STRING encodeInfoAddress( RT_STRING iri )
{
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    appendAddress( text, share( iri ) );
    return text.take();
}

// The content of all these values except those of Call-Info and Identity.
struct Info
{
    RT_OBJECT object;
    Ref<RT_STRING> iri;                      // never null
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.iri, self.genericParams ); }
};
static_assert( rt::listsAllFields<Info>() );

} // namespace telsx
