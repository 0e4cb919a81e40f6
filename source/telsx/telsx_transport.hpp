// Transports as they are stored and as they are written. The usual ones are constants.
#pragma once

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_transport.h"

namespace telsx
{

inline Ref<RT_STRING> transportInLowerCase( Text text )
{
    RT_STRING usual = findWordInAnyCase<"udp", "tcp", "tls">( text );
    return adopt( usual ? usual : lowerCase( text.copy().get() ) );
}

inline Ref<RT_STRING> transportInUpperCase( RT_STRING lower )
{
    Text text = textOf( lower );
    return adopt( equals<"udp">( text )   ? literal<"UDP">()
                  : equals<"tcp">( text ) ? literal<"TCP">()
                  : equals<"tls">( text ) ? literal<"TLS">()
                                          : upperCase( lower ) );
}

} // namespace telsx
