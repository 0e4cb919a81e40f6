// Max-Forwards header (RFC 3261, 20.22).
#include "telsx/telsx_header_max_forwards.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_max_forwards.h"
#include "telsx/telsx_number.hpp"

using namespace telsx;

struct TELSX_HEADER_MAX_FORWARDS_
{
    RT_OBJECT object;
    int64_t maxForwards; // 0 to 255

    static constexpr auto fields( auto &self ) { return std::tie( self.maxForwards ); }
};

TELSX_DEFINE_OBJECT( HeaderMaxForwards, HEADER_MAX_FORWARDS, nullptr, telsx___HeaderMaxForwardsCompareFunc,
                     telsx___HeaderMaxForwardsToStringFunc )
TELSX_DEFINE_COMPARE_FUNC( HeaderMaxForwards, mf )
TELSX_DEFINE_HEADER( HeaderMaxForwards, "Max-Forwards" )
TELSX_DEFINE_FIELD( HeaderMaxForwards, mf, MaxForwards, maxForwards, telsxMaxForwardsOk( maxForwards ) )

TELSX_HEADER_MAX_FORWARDS telsxHeaderMaxForwardsCreate( int64_t maxForwards )
{
    TELSX_ASSERT( telsxMaxForwardsOk( maxForwards ) );
    TELSX_HEADER_MAX_FORWARDS hdr = rt::create<TELSX_HEADER_MAX_FORWARDS_>( telsxHeaderMaxForwardsSort() );
    hdr->maxForwards = maxForwards;
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderMaxForwardsEncode( TELSX_HEADER_MAX_FORWARDS hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Max-Forwards">(), adopt( encodeNumber( hdr->maxForwards ) ) );
}

static TELSX_HEADER_MAX_FORWARDS decode( HeaderLines &lines )
{
    int64_t maxForwards = tryDecodeNumber( lines.lastText(), telsxMaxForwardsOk );
    return maxForwards == -1 ? nullptr : telsxHeaderMaxForwardsCreate( maxForwards );
}
