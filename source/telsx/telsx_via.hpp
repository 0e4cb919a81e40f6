// Via values, for the header that cuts them from its lines.
#pragma once

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_via.h"

namespace telsx
{

// Where the parts of a value are in its text, as its skipper has seen them. A caller that counts values or passes them
// on makes no object, and one that asks for an object does not cut the text again, which was a third of reading the top
// Via. The places are known if the value has no optional white space and no parameters other than branch and rport.
struct ViaPlaces
{
    uint32_t transportEnd;      // it begins after "SIP/2.0/"
    uint32_t hostEnd, portEnd;  // no port: both the same
    uint32_t branch, branchEnd; // 0 if there is none
    uint32_t rport, rportEnd;   // 0 if there is none; the same if it has no value
    uint32_t areKnown;

    friend void clear( ViaPlaces &places ) { places = {}; }
};

// telsx___SkipVia, which also stores the places.
int64_t skipVia( Text text, ViaPlaces &places );

// telsx___ViaTryDecode of a text whose places may be known.
TELSX_VIA tryDecodeVia( Text text, const ViaPlaces &places );

} // namespace telsx
