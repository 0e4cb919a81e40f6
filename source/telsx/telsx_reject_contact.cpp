// Reject-Contact value (RFC 3841, 9.2 and 10).
#include "telsx/telsx_reject_contact.h"

#include "telsx/telsx_accept_contact.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_REJECT_CONTACT_
{
    RT_OBJECT object;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.genericParams ); }
};

TELSX_DEFINE_VALUE_OBJECT( RejectContact, REJECT_CONTACT, rejectContact )
TELSX_DEFINE_FIELD( RejectContact, rejectContact, GenericParams, genericParams, genericParams )

TELSX_REJECT_CONTACT telsxRejectContactCreate( void )
{
    TELSX_REJECT_CONTACT rejectContact = rt::create<TELSX_REJECT_CONTACT_>( telsxRejectContactSort() );
    rejectContact->genericParams = noGenericParams();
    return rejectContact;
}

RT_STRING telsx___RejectContactEncode( TELSX_REJECT_CONTACT rejectContact )
{
    TELSX_ASSERT( rejectContact );
    Ref<RT_STRING> text = adopt( literal<"*">() );
    appendGenericParams( text, rejectContact->genericParams.get() );
    return text.take();
}

TELSX_REJECT_CONTACT telsx___RejectContactTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    if ( !rest.take( telsx___SkipChar( chs, length, '*' ) ) )
        return nullptr;
    Ref<TELSX_REJECT_CONTACT> rejectContact = adopt( telsxRejectContactCreate() );
    return readGenericParams( rest, rejectContact->genericParams ) ? rejectContact.take() : nullptr;
}

int64_t telsx___SkipRejectContact( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipAcceptContact( chs, length );
}
