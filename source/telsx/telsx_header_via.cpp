// Via header (RFC 3261, 20.42).
#include "telsx/telsx_header_via.h"

#include "telsx/telsx_value_list.hpp"
#include "telsx/telsx_via.hpp"

using namespace telsx;

struct TELSX_HEADER_VIA_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values;           // texts, never null
    ReadValue<TELSX_VIA> firstValue; // the top Via, for which most readers ask

    static auto fields( auto &self ) { return std::tie( self.values, self.firstValue ); }
    static auto order( auto &self ) { return std::tie( self.values ); }
    void beforeChange() { clear( firstValue ); }
    template <class VALUE>
    VALUE takeRead( int64_t index ) const
    {
        return index == 0 ? firstValue.take() : nullptr;
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
    auto skipVia = [&hdr, isFirst = true]( const RT_CHAR *chs, int64_t length ) mutable
    {
        Text rest = { chs, length };
        Ref<TELSX_VIA> via = std::exchange( isFirst, false ) ? takeVia( rest ) : Ref<TELSX_VIA>();
        if ( !via || ( rest && !telsx___SkipComma( rest.chs, rest.length ) ) )
            return telsx___SkipVia( chs, length );
        hdr->firstValue.put( std::move( via ) );
        return length - rest.length;
    };
    return decodeValues( hdr->values, lines, skipVia, WithoutLines::isEmpty ) ? hdr.take() : nullptr;
}
