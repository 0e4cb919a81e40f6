// Refer-To header (RFC 3515, 2.1).
#include "telsx/telsx_header_refer_to.h"

#include "telsx/telsx_party.hpp"
#include "telsx/telsx_skip.h"

using namespace telsx;

struct TELSX_HEADER_REFER_TO_ : Party
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderReferTo, HEADER_REFER_TO, hdr, "Refer-To" )
TELSX_DEFINE_HEADER_OF_PARTY( HeaderReferTo, "Refer-To" )

static TELSX_HEADER_REFER_TO decode( HeaderLines &lines )
{
    RT_STRING line = lines.last();
    if ( !line )
        return nullptr;
    Ref<TELSX_HEADER_REFER_TO> hdr = adopt( create() );
    Text rest = textOf( line );
    Address address;
    if ( !takeAddress( rest, address ) )
        return nullptr;

    // If more than a list of parameters follows a bare address, the address is read again, semicolons and all.
    if ( !address.inBrackets && telsx___SkipGenericParams( rest.chs, rest.length ) != rest.length )
    {
        rest = textOf( line );
        if ( !takeAddress( rest, address, UINT32_MAX ) )
            return nullptr;
    }
    return decodeParty( *hdr.get(), std::move( address ), rest ) ? hdr.take() : nullptr;
}
