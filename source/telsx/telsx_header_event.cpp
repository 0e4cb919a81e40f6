// Event header (RFC 6665, 8.2.1).
#include "telsx/telsx_header_event.h"

#include "telsx/telsx_event_type.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text_forms.hpp"
#include "telsx/telsx_token.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_EVENT_
{
    RT_OBJECT object;
    Ref<RT_STRING> eventType; // never null
    Ref<RT_STRING> id;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.eventType, self.id, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderEvent, HEADER_EVENT, hdr, "Event" )
TELSX_DEFINE_FIELD( HeaderEvent, hdr, EventType, eventType, telsxEventTypeOk( eventType ) )
TELSX_DEFINE_FIELD( HeaderEvent, hdr, GenericParams, genericParams, genericParams )

TELSX_DEFINE_GETTER( HeaderEvent, hdr, Id, id )
TELSX_DEFINE_OPTION( HeaderEvent, hdr, Id, id )

void telsxHeaderEventSetId( TELSX_HEADER_EVENT *hdr, RT_STRING token )
{
    TELSX_ASSERT_HANDLE( hdr );
    TELSX_ASSERT_OK( telsxTokenOk, token );
    rt::put( TELSX_OWN( hdr )->id, token );
}

TELSX_HEADER_EVENT telsxHeaderEventCreate( RT_STRING eventType )
{
    TELSX_ASSERT_OK( telsxEventTypeOk, eventType );
    TELSX_HEADER_EVENT hdr = rt::create<TELSX_HEADER_EVENT_>( telsxHeaderEventSort() );
    hdr->eventType = share( eventType );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderEventEncode( TELSX_HEADER_EVENT hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = hdr->eventType;
    ParamWriter params( line );
    params.write<"id">( hdr->id );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"Event">(), line );
}

static TELSX_HEADER_EVENT decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    Text eventType = rest.take( telsx___SkipEventType );
    if ( !eventType )
        return nullptr;
    auto hdr = adopt( telsxHeaderEventCreate( eventType.copy().get() ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.read<"id">( hdr->id, telsx___SkipToken );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}

TELSX_DEFINE_TEXT_FORMS( TELSX_HEADER_EVENT, HeaderEventCreate, (), () )
TELSX_DEFINE_TEXT_FORMS( void, HeaderEventSetEventType, (TELSX_HEADER_EVENT *), () )
