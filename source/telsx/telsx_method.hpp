// Methods that are usual, as constants.
#pragma once

#include "telsx/telsx_method.h"
#include "telsx/telsx_text.hpp"

namespace telsx
{

inline Ref<RT_STRING> stringOfMethod( Text method )
{
    return stringOfWord<"INVITE", "ACK", "BYE", "CANCEL", "OPTIONS", "REGISTER", "PRACK", "UPDATE",
                        "SUBSCRIBE", "NOTIFY", "PUBLISH", "INFO", "REFER", "MESSAGE">( method );
}

} // namespace telsx
