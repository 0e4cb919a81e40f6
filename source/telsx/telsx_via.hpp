// Via values, for the header that cuts them out of its lines.
#pragma once

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_via.h"

namespace telsx
{

// Where the parts of a value stand in its text, as the skipper has seen them: who only counts or passes values on needs
// no object, and who asks for one does not read the text again, which saves a fifth of the time of reading the top Via.
// They are known of a value that is written without optional white space and has no other parameters than branch and
// rport.
struct ViaPlaces
{
    uint16_t transportEnd, hostEnd,
        portEnd;                // the transport begins behind "SIP/2.0/"; no port: where the host ends
    uint16_t branch, branchEnd; // 0 if there is none
    uint16_t rport, rportEnd;   // 0 if there is none; both the same for one without a value
    uint16_t areKnown;
};

// telsx___SkipVia, which notes the places too.
int64_t skipVia( Text text, ViaPlaces &places );

// telsx___ViaTryDecode of a text whose places may be known.
TELSX_VIA tryDecodeVia( Text text, const ViaPlaces &places );

} // namespace telsx
