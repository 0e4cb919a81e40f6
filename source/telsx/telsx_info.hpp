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

} // namespace telsx
