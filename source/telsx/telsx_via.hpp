// Via values, for the header that cuts them from its lines.
#pragma once

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_via.h"

namespace telsx
{

// Where the parts of a value are in its text, as its skipper has seen them. A caller that counts values or passes them
// on makes no object, and one that asks for an object does not cut the text again, which was a third of reading the top
// Via. They are all 0 if the value has optional white space, a parameter twice, or others than branch, received and rport.
struct ViaPlaces
{
    uint32_t transportEnd;          // it begins after "SIP/2.0/"
    uint32_t hostEnd, portEnd;      // no port: both the same
    uint32_t branch, branchEnd;     // 0 if there is none
    uint32_t rport, rportEnd;       // 0 if there is none; the same if it has no value
    uint32_t received, receivedEnd; // 0 if there is none

    friend void clear( ViaPlaces &places ) { places = {}; }
};

// telsx___SkipVia, which also stores the places.
int64_t skipVia( Text text, ViaPlaces &places );

// telsx___ViaTryDecode of a text whose places may be known.
TELSX_VIA tryDecodeVia( Text text, const ViaPlaces &places );

} // namespace telsx
