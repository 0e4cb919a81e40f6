// Replaces header (RFC 3891, 6.1).
#include "telsx/telsx_header_replaces.h"

#include "telsx/telsx_call_id.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_tag.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_REPLACES_
{
    RT_OBJECT object;
    Ref<RT_STRING> callId; // never null
    Ref<RT_STRING> fromTag;
    Ref<RT_STRING> toTag;
    RT_BOOL earlyOnly;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.callId, self.fromTag, self.toTag, self.earlyOnly, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderReplaces, HEADER_REPLACES, hdr, "Replaces" )
TELSX_DEFINE_FIELD( HeaderReplaces, hdr, CallId, callId, telsxCallIdOk( callId ) )
TELSX_DEFINE_FIELD( HeaderReplaces, hdr, GenericParams, genericParams, genericParams )

TELSX_DEFINE_GETTER( HeaderReplaces, hdr, FromTag, fromTag )
TELSX_DEFINE_OPTION( HeaderReplaces, hdr, FromTag, fromTag )
TELSX_DEFINE_GETTER( HeaderReplaces, hdr, ToTag, toTag )
TELSX_DEFINE_OPTION( HeaderReplaces, hdr, ToTag, toTag )
TELSX_DEFINE_FLAG( HeaderReplaces, hdr, EarlyOnly, earlyOnly )

void telsxHeaderReplacesSetFromTag( TELSX_HEADER_REPLACES *hdr, RT_STRING tag )
{
    TELSX_ASSERT_HANDLE( hdr );
    TELSX_ASSERT_OK( telsxTagOk, tag );
    rt::put( TELSX_OWN( hdr )->fromTag, tag );
}

void telsxHeaderReplacesSetToTag( TELSX_HEADER_REPLACES *hdr, RT_STRING tag )
{
    TELSX_ASSERT_HANDLE( hdr );
    TELSX_ASSERT_OK( telsxTagOk, tag );
    rt::put( TELSX_OWN( hdr )->toTag, tag );
}

TELSX_HEADER_REPLACES telsxHeaderReplacesCreate( RT_STRING callId )
{
    TELSX_ASSERT_OK( telsxCallIdOk, callId );
    TELSX_HEADER_REPLACES hdr = rt::create<TELSX_HEADER_REPLACES_>( telsxHeaderReplacesSort() );
    hdr->callId = share( callId );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderReplacesEncode( TELSX_HEADER_REPLACES hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = hdr->callId;
    ParamWriter params( line );
    params.write<"from-tag">( hdr->fromTag );
    params.write<"to-tag">( hdr->toTag );
    params.writeMark<"early-only">( hdr->earlyOnly );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"Replaces">(), line );
}

static TELSX_HEADER_REPLACES decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    Text callId = rest.take( telsx___SkipCallId );
    if ( !callId )
        return nullptr;
    auto hdr = adopt( telsxHeaderReplacesCreate( callId.copy().get() ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        if ( param.is<"from-tag">( telsx___SkipTag ) )
            param.store( hdr->fromTag, param.value.copy() );
        if ( param.is<"to-tag">( telsx___SkipTag ) )
            param.store( hdr->toTag, param.value.copy() );
        if ( param.isBare<"early-only">() )
            param.storeFlag( hdr->earlyOnly );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}
