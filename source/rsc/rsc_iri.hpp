// The characters outside ASCII that an IRI may hold.
#pragma once

#include "rsc/rsc_iri.h"

namespace rsc
{

// RFC 3987, 2.2.
inline bool isUcschar( RT_CHAR ch )
{
    if ( ch < 0x10000 )
        return ( ch >= 0xA0 && ch <= 0xD7FF ) || ( ch >= 0xF900 && ch <= 0xFDCF )
               || ( ch >= 0xFDF0 && ch <= 0xFFEF );
    return ch < 0xF0000 && ( ch & 0xFFFF ) <= 0xFFFD && ch >> 12 != 0xE0;
}

inline bool isIprivate( RT_CHAR ch )
{
    return ( ch >= 0xE000 && ch <= 0xF8FF )
           || ( ch >= 0xF0000 && ch <= 0x10FFFD && ( ch & 0xFFFF ) <= 0xFFFD );
}

// RFC 3987, 4.1: these are always escaped.
inline bool isBidiControl( RT_CHAR ch )
{
    return ch == 0x200E || ch == 0x200F || ( ch >= 0x202A && ch <= 0x202E );
}

} // namespace rsc
