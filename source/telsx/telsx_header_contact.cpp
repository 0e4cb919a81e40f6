// Contact header (RFC 3261, 20.10).
#include "telsx/telsx_header_contact.h"

#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_CONTACT_
{
    RT_OBJECT object;
    RT_BOOL starForm;      // then there are no values
    Ref<RT_VECTOR> values; // texts, never null

    static auto fields( auto &self ) { return std::tie( self.starForm, self.values ); }
    static auto order( auto &self ) { return std::tie( self.values ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderContact, HEADER_CONTACT, hdr, "Contact" )
TELSX_DEFINE_VALUE_LIST( HeaderContact, Contact, Contact, telsx___ContactEncode, Clear )

TELSX_HEADER_CONTACT telsxHeaderContactCreate( void )
{
    return createList<TELSX_HEADER_CONTACT_>( telsxHeaderContactSort() );
}

TELSX_DEFINE_GETTER( HeaderContact, hdr, IsStarForm, starForm )

void telsxHeaderContactSetStarForm( TELSX_HEADER_CONTACT *hdr, RT_BOOL starForm )
{
    telsxHeaderContactClear( hdr );
    TELSX_OWN( hdr )->starForm = starForm != 0;
}

TELSX_MESSAGE_HEADER telsxHeaderContactEncode( TELSX_HEADER_CONTACT hdr )
{
    TELSX_ASSERT( hdr );
    if ( hdr->starForm )
        return createHeader( literal<"Contact">(), adopt( literal<"*">() ) );
    return createHeader( literal<"Contact">(), hdr->values );
}

TELSX_HEADER_CONTACT telsxHeaderContactTryDecode( TELSX_MESSAGE_HEADER header )
{
    TELSX_ASSERT_NAME( "Contact" );
    Ref<TELSX_HEADER_CONTACT> hdr = adopt( telsxHeaderContactCreate() );
    Text first = linesOf( header ) ? textOf( lineOf( header, 0 ) ) : Text();
    if ( !first.take( telsx___SkipStar ) )
        return decodeValues( hdr->values, header, telsx___SkipContact, WithoutLines::isNull ) ? hdr.take()
                                                                                              : nullptr;

    // Nothing may stand beside the star, neither on its line nor on another.
    if ( first )
        return nullptr;
    for ( int64_t i = 1; i < linesOf( header ); ++i )
        if ( rtStringLength( lineOf( header, i ) ) )
            return nullptr;
    hdr->starForm = 1;
    return hdr.take();
}
