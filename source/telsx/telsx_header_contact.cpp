// Contact header (RFC 3261, 20.10).
#include "telsx/telsx_header_contact.h"

#include "telsx/telsx_skip.h"
#include "telsx/telsx_value_list.hpp"

using namespace telsx;

struct TELSX_HEADER_CONTACT_
{
    RT_OBJECT object;
    RT_BOOL starForm;      // then there are no values
    Ref<RT_VECTOR> values; // texts, never null

    static constexpr auto fields( auto &self ) { return std::tie( self.starForm, self.values ); }
    static auto order( auto &self ) { return std::tie( self.values ); }
    void beforeChange() { starForm = 0; }
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

static TELSX_HEADER_CONTACT decode( HeaderLines &lines )
{
    Ref<TELSX_HEADER_CONTACT> hdr = adopt( telsxHeaderContactCreate() );
    RT_STRING line = lines.next();
    Text first = line ? textOf( line ) : Text();
    if ( !first.take( telsx___SkipStar ) )
        return decodeValues( hdr->values, lines, telsx___SkipContact, WithoutLines::isNull ) ? hdr.take()
                                                                                             : nullptr;

    // Nothing may accompany the star, neither on its line nor on another.
    if ( first )
        return nullptr;
    while ( RT_STRING other = lines.next() )
        if ( rtStringLength( other ) )
            return nullptr;
    hdr->starForm = 1;
    return hdr.take();
}
