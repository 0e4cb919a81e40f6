// Contact value (RFC 3261, 20.10).
#include "telsx/telsx_contact.h"

#include "telsx/telsx_delta_seconds.h"
#include "telsx/telsx_display_name.h"
#include "telsx/telsx_history_info_index.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_qvalue.h"
#include "telsx/telsx_sip_instance.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_CONTACT_
{
    RT_OBJECT object;
    Ref<RT_STRING> iri; // never null
    Ref<RT_STRING> displayName;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null
    int64_t qvalue;                          // thousandths
    int64_t expires;                         // seconds
    Ref<RT_STRING> rc;
    Ref<RT_STRING> mp;
    Ref<RT_STRING> np;
    Ref<RT_STRING> sipInstance; // with its angle brackets

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.iri, self.displayName, self.genericParams, self.qvalue, self.expires, self.rc,
                         self.mp, self.np, self.sipInstance );
    }
    static auto order( auto &self )
    {
        return std::tie( self.iri, self.displayName, self.qvalue, self.expires, self.rc, self.mp, self.np,
                         self.sipInstance, self.genericParams );
    }
};

TELSX_DEFINE_VALUE_OBJECT( Contact, CONTACT, contact )
TELSX_DEFINE_FIELD( Contact, contact, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_OPTIONAL_FIELD( Contact, contact, DisplayName, displayName, telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_OPTIONAL_FIELD( Contact, contact, Qvalue, qvalue, telsxQvalueOk( qvalue ) )
TELSX_DEFINE_OPTIONAL_FIELD( Contact, contact, Expires, expires, telsxDeltaSecondsOk( expires ) )
TELSX_DEFINE_OPTIONAL_FIELD( Contact, contact, Rc, rc, telsxHistoryInfoIndexOk( rc ) )
TELSX_DEFINE_OPTIONAL_FIELD( Contact, contact, Mp, mp, telsxHistoryInfoIndexOk( mp ) )
TELSX_DEFINE_OPTIONAL_FIELD( Contact, contact, Np, np, telsxHistoryInfoIndexOk( np ) )
TELSX_DEFINE_OPTIONAL_FIELD( Contact, contact, SipInstance, sipInstance, telsxSipInstanceOk( sipInstance ) )
TELSX_DEFINE_FIELD( Contact, contact, GenericParams, genericParams, genericParams )

static Ref<TELSX_CONTACT> create( Address address )
{
    auto contact = adopt( rt::create<TELSX_CONTACT_>( telsxContactSort() ) );
    contact->iri = std::move( address.iri );
    contact->displayName = std::move( address.displayName );
    contact->genericParams = noGenericParams();
    return contact;
}

TELSX_CONTACT telsxContactCreate( RT_STRING iri )
{
    TELSX_ASSERT_OK( telsxIriOk, iri );
    return create( { .iri = share( iri ) } ).take();
}

RT_STRING telsx___ContactEncode( TELSX_CONTACT contact )
{
    TELSX_ASSERT( contact );
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    appendAddress( text, contact->iri, contact->displayName );
    ParamWriter params( text );
    params.write<"q">( contact->qvalue, telsx___QvalueEncode );
    params.write<"expires">( contact->expires, telsx___DeltaSecondsEncode );
    params.write<"rc">( contact->rc );
    params.write<"mp">( contact->mp );
    params.write<"np">( contact->np );
    params.writeInQuotes<"+sip.instance">( contact->sipInstance );
    params.writeGeneric( contact->genericParams );
    return text.take();
}

TELSX_CONTACT telsx___ContactTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Address address;
    if ( !takeAddress( rest, address ) )
        return nullptr;
    Ref<TELSX_CONTACT> contact = create( std::move( address ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.read<"q">( contact->qvalue, telsx___SkipQvalue, telsx___QvalueTryDecode );
        param.read<"expires">( contact->expires, telsx___SkipDeltaSeconds, telsx___DeltaSecondsTryDecode );
        param.read<"rc">( contact->rc, telsx___SkipHistoryInfoIndex );
        param.read<"mp">( contact->mp, telsx___SkipHistoryInfoIndex );
        param.read<"np">( contact->np, telsx___SkipHistoryInfoIndex );
        param.readInQuotes<"+sip.instance", telsx___SkipSipInstance>( contact->sipInstance );
        param.storeGeneric( contact->genericParams );
    }
    return param.failed() ? nullptr : contact.take();
}
