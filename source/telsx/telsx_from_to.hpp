// What From and To share: two headers with one content.
#pragma once

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_header_from.h"
#include "telsx/telsx_header_to.h"
#include "telsx/telsx_value.hpp"

namespace telsx
{

struct FromTo
{
    RT_OBJECT object;
    Ref<RT_STRING> iri; // never null
    Ref<RT_STRING> displayName;
    Ref<RT_STRING> tag;
    Ref<RT_STRING> epid;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.iri, self.displayName, self.tag, self.epid, self.genericParams );
    }
};
static_assert( rt::listsAllFields<FromTo>() );

// The content of either header, for the unit of the other.
inline FromTo *asFromTo( TELSX_HEADER_FROM hdr ) { return reinterpret_cast<FromTo *>( hdr ); }
inline FromTo *asFromTo( TELSX_HEADER_TO hdr ) { return reinterpret_cast<FromTo *>( hdr ); }

Ref<RT_STRING> encodeFromTo( const FromTo &hdr );

// Fills a new header from its line; false for bad text.
bool decodeFromTo( FromTo &hdr, Text line );

} // namespace telsx
