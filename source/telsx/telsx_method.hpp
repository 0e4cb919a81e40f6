// The usual methods, as constants.
#pragma once

#include "telsx/telsx_method.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

namespace telsx
{

// The method that the text is, or null.
inline Ref<RT_STRING> tryDecodeMethod( Text text )
{
    if ( RT_STRING usual =
             findWord<"INVITE", "ACK", "BYE", "CANCEL", "OPTIONS", "REGISTER", "PRACK", "UPDATE", "SUBSCRIBE",
                      "NOTIFY", "PUBLISH", "INFO", "REFER", "MESSAGE">( text ) )
        return adopt( usual );
    return covers( telsx___SkipMethod, text ) ? text.copy() : Ref<RT_STRING>();
}

} // namespace telsx
