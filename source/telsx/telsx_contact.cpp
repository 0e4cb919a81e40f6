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

TELSX_DEFINE_OBJECT( Contact, CONTACT, telsx___ContactFreeFunc, telsx___ContactCompareFunc,
                     telsx___ContactToStringFunc )
TELSX_DEFINE_FREE_FUNC( Contact, contact )
TELSX_DEFINE_COMPARE_FUNC( Contact, contact )
TELSX_DEFINE_TO_STRING_FUNC( Contact, contact )
TELSX_DEFINE_FIELD( Contact, contact, Iri, iri, telsxIriOk( iri ) )
TELSX_DEFINE_FIELD( Contact, contact, DisplayName, displayName, telsxDisplayNameOk( displayName ) )
TELSX_DEFINE_OPTION( Contact, contact, DisplayName, displayName )
TELSX_DEFINE_FIELD( Contact, contact, Qvalue, qvalue, telsxQvalueOk( qvalue ) )
TELSX_DEFINE_OPTION( Contact, contact, Qvalue, qvalue )
TELSX_DEFINE_FIELD( Contact, contact, Expires, expires, telsxDeltaSecondsOk( expires ) )
TELSX_DEFINE_OPTION( Contact, contact, Expires, expires )
TELSX_DEFINE_FIELD( Contact, contact, Rc, rc, telsxHistoryInfoIndexOk( rc ) )
TELSX_DEFINE_OPTION( Contact, contact, Rc, rc )
TELSX_DEFINE_FIELD( Contact, contact, Mp, mp, telsxHistoryInfoIndexOk( mp ) )
TELSX_DEFINE_OPTION( Contact, contact, Mp, mp )
TELSX_DEFINE_FIELD( Contact, contact, Np, np, telsxHistoryInfoIndexOk( np ) )
TELSX_DEFINE_OPTION( Contact, contact, Np, np )
TELSX_DEFINE_FIELD( Contact, contact, SipInstance, sipInstance, telsxSipInstanceOk( sipInstance ) )
TELSX_DEFINE_OPTION( Contact, contact, SipInstance, sipInstance )
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
        if ( param.is<"q">( telsx___SkipQvalue ) )
            param.store( contact->qvalue, param.value.as( telsx___QvalueTryDecode ) );
        if ( param.is<"expires">( telsx___SkipDeltaSeconds ) )
            param.store( contact->expires, param.value.as( telsx___DeltaSecondsTryDecode ) );
        if ( param.is<"rc">( telsx___SkipHistoryInfoIndex ) )
            param.store( contact->rc, param.value.copy() );
        if ( param.is<"mp">( telsx___SkipHistoryInfoIndex ) )
            param.store( contact->mp, param.value.copy() );
        if ( param.is<"np">( telsx___SkipHistoryInfoIndex ) )
            param.store( contact->np, param.value.copy() );
        if ( param.is<"+sip.instance">( skipInQuotes<telsx___SkipSipInstance> ) )
            param.store( contact->sipInstance, copyInQuotes( param.value ) );
        param.storeGeneric( contact->genericParams );
    }
    return param.failed() ? nullptr : contact.take();
}
