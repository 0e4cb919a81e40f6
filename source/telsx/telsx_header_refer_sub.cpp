// Refer-Sub header (RFC 4488).
#include "telsx/telsx_header_refer_sub.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_keyword.hpp"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_REFER_SUB_
{
    RT_OBJECT object;
    RT_BOOL referSub;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.referSub, self.genericParams ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderReferSub, HEADER_REFER_SUB, hdr, "Refer-Sub" )
TELSX_DEFINE_FLAG( HeaderReferSub, hdr, ReferSub, referSub )
TELSX_DEFINE_FIELD( HeaderReferSub, hdr, GenericParams, genericParams, genericParams )

TELSX_HEADER_REFER_SUB telsxHeaderReferSubCreate( RT_BOOL referSub )
{
    TELSX_HEADER_REFER_SUB hdr = rt::create<TELSX_HEADER_REFER_SUB_>( telsxHeaderReferSubSort() );
    hdr->referSub = referSub != 0;
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderReferSubEncode( TELSX_HEADER_REFER_SUB hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = adopt( hdr->referSub ? literal<"true">() : literal<"false">() );
    appendGenericParams( line, hdr->genericParams.get() );
    return createHeader( literal<"Refer-Sub">(), line );
}

static TELSX_HEADER_REFER_SUB decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    bool referSub = bool( rest.take( skipKeyword<"true">( rest ) ) );
    if ( !referSub && !rest.take( skipKeyword<"false">( rest ) ) )
        return nullptr;
    Ref<TELSX_HEADER_REFER_SUB> hdr = adopt( telsxHeaderReferSubCreate( referSub ) );
    return readGenericParams( rest, hdr->genericParams ) ? hdr.take() : nullptr;
}
