// What From and To share.
#include "telsx/telsx_from_to.hpp"

#include "telsx/telsx_epid.h"
#include "telsx/telsx_tag.h"

namespace telsx
{

Ref<RT_STRING> encodeFromTo( const FromTo &hdr )
{
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    appendAddress( text, hdr.iri, hdr.displayName );
    ParamWriter params( text );
    params.write<"tag">( hdr.tag );
    params.write<"epid">( hdr.epid );
    params.writeGeneric( hdr.genericParams );
    return text;
}

bool decodeFromTo( FromTo &hdr, Text line )
{
    Text rest = line;
    Address address;
    if ( !takeAddress( rest, address ) )
        return false;
    hdr.iri = std::move( address.iri );
    hdr.displayName = std::move( address.displayName );
    hdr.genericParams = noGenericParams();

    ParamReader param( rest );
    while ( param.next() )
    {
        param.read<"tag">( hdr.tag, telsx___SkipTag );
        param.read<"epid">( hdr.epid, telsx___SkipEpid );
        param.storeGeneric( hdr.genericParams );
    }
    return !param.failed();
}

} // namespace telsx
