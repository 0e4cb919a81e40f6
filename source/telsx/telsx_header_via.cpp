// Via header (RFC 3261, 20.42).
#include "telsx/telsx_header_via.h"

#include "telsx/telsx_skip.h"
#include "telsx/telsx_value_list.hpp"
#include "telsx/telsx_via.hpp"

using namespace telsx;

struct TELSX_HEADER_VIA_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null
    ViaPlaces firstPlaces; // in the top Via, which most readers ask for

    static constexpr auto fields( auto &self ) { return std::tie( self.values, self.firstPlaces ); }
    static auto order( auto &self ) { return std::tie( self.values ); }
    void beforeChange() { firstPlaces = {}; }
    TELSX_VIA tryDecodeValue( int64_t index, Text text ) const
    {
        return index == 0 ? tryDecodeVia( text, firstPlaces ) : text.as( telsx___ViaTryDecode );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderVia, HEADER_VIA, hdr, "Via" )
TELSX_DEFINE_VALUE_LIST( HeaderVia, Via, Via, telsx___ViaEncode, ClearVias )

TELSX_HEADER_VIA telsxHeaderViaCreate( void )
{
    return createList<TELSX_HEADER_VIA_>( telsxHeaderViaSort() );
}

TELSX_MESSAGE_HEADER telsxHeaderViaEncode( TELSX_HEADER_VIA hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Via">(), hdr->values );
}

static TELSX_HEADER_VIA decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_VIA> hdr = adopt( telsxHeaderViaCreate() );
    ViaPlaces otherPlaces;
    auto skip = [&, places = &hdr->firstPlaces]( const RT_CHAR *chs, int64_t length ) mutable {
        return skipVia( { chs, length }, *std::exchange( places, &otherPlaces ) );
    };
    return decodeValues( hdr->values, lines, skip, WithoutLines::isEmpty ) ? hdr.take() : nullptr;
}
