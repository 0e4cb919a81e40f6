// Hosts, for the units that have already skipped one.
#pragma once

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_host.h"
#include "telsx/telsx_text.hpp"

namespace telsx
{

// The host that the text stands for, all of which telsx___SkipHost accepts; null if it is not a domain name.
Ref<RT_STRING> hostOf( Text text );

// How a host that telsxHostOk accepts is written. One that has no other characters than ASCII does not change.
inline Ref<RT_STRING> encodedHost( const Ref<RT_STRING> &host )
{
    Text text = textOf( host );
    return runOf<classParamChar>( text ) == text.length ? host : adopt( telsx___HostEncode( host.get() ) );
}

} // namespace telsx
