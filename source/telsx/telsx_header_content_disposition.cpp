// Content-Disposition header (RFC 3261, 20.11).
#include "telsx/telsx_header_content_disposition.h"

#include "telsx/telsx_disposition_type.h"
#include "telsx/telsx_handling.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_CONTENT_DISPOSITION_
{
    RT_OBJECT object;
    Ref<RT_STRING> dispositionType;          // lower case, never null
    Ref<RT_STRING> handling;                 // lower case
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.dispositionType, self.handling, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderContentDisposition, HEADER_CONTENT_DISPOSITION, hdr, "Content-Disposition" )
TELSX_DEFINE_NORMAL_FIELD( HeaderContentDisposition, hdr, DispositionType, dispositionType, dispositionType,
                           telsxDispositionTypeNormalize )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( HeaderContentDisposition, hdr, Handling, handling, handling,
                                    telsxHandlingNormalize )
TELSX_DEFINE_FIELD( HeaderContentDisposition, hdr, GenericParams, genericParams, genericParams )

TELSX_HEADER_CONTENT_DISPOSITION telsxHeaderContentDispositionCreate( RT_STRING dispositionType )
{
    TELSX_ASSERT( dispositionType );
    TELSX_HEADER_CONTENT_DISPOSITION hdr =
        rt::create<TELSX_HEADER_CONTENT_DISPOSITION_>( telsxHeaderContentDispositionSort() );
    hdr->dispositionType = adopt( telsxDispositionTypeNormalize( dispositionType ) );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderContentDispositionEncode( TELSX_HEADER_CONTENT_DISPOSITION hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = hdr->dispositionType;
    ParamWriter params( line );
    params.write<"handling">( hdr->handling );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"Content-Disposition">(), line );
}

static TELSX_HEADER_CONTENT_DISPOSITION decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    Text dispositionType = rest.take( telsx___SkipDispositionType );
    if ( !dispositionType )
        return nullptr;
    auto hdr = adopt( telsxHeaderContentDispositionCreate( dispositionType.copy().get() ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.readNormal<"handling">( hdr->handling, telsx___SkipHandling, telsxHandlingNormalize );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}
