// What the values of Alert-Info, Error-Info, Call-Info and Geolocation share: an address in angle brackets without a
// display name.
#pragma once

#include "telsx/telsx_value.hpp"

namespace telsx
{

// The address at the start; false for bad text.
inline bool takeInfoAddress( Text &rest, Ref<RT_STRING> &iri )
{
    Address address;
    bool taken = takeAddress( rest, address ) && address.inBrackets && !address.displayName;
    iri = std::move( address.iri );
    return taken;
}

// The content of all these values except those of Call-Info.
struct Info
{
    RT_OBJECT object;
    Ref<RT_STRING> iri;                      // never null
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.iri, self.genericParams ); }
};
static_assert( rt::listsAllFields<Info>() );

inline RT_STRING encodeInfo( const Info &info )
{
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    appendAddress( text, info.iri );
    appendGenericParams( text, info.genericParams.get() );
    return text.take();
}

// Fills a new value from its text; false for bad text.
inline bool decodeInfo( Info &info, Text text )
{
    if ( !takeInfoAddress( text, info.iri ) )
        return false;
    info.genericParams = noGenericParams();
    ParamReader param( text );
    while ( param.next() )
        param.storeGeneric( info.genericParams );
    return !param.failed();
}

} // namespace telsx
