// Access network (RFC 7315, 5.4).
#include "telsx/telsx_access_net_spec.h"

#include "telsx/telsx_token.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_ACCESS_NET_SPEC_
{
    RT_OBJECT object;
    Ref<RT_STRING> accessType; // never null
    RT_BOOL np;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.accessType, self.np, self.genericParams );
    }
};

TELSX_DEFINE_VALUE_OBJECT( AccessNetSpec, ACCESS_NET_SPEC, accessNetSpec )
TELSX_DEFINE_FIELD( AccessNetSpec, accessNetSpec, AccessType, accessType, telsxTokenOk( accessType ) )
TELSX_DEFINE_FLAG( AccessNetSpec, accessNetSpec, Np, np )
TELSX_DEFINE_FIELD( AccessNetSpec, accessNetSpec, GenericParams, genericParams, genericParams )

TELSX_ACCESS_NET_SPEC telsxAccessNetSpecCreate( RT_STRING accessType )
{
    TELSX_ASSERT_OK( telsxTokenOk, accessType );
    TELSX_ACCESS_NET_SPEC accessNetSpec = rt::create<TELSX_ACCESS_NET_SPEC_>( telsxAccessNetSpecSort() );
    accessNetSpec->accessType = share( accessType );
    accessNetSpec->genericParams = noGenericParams();
    return accessNetSpec;
}

RT_STRING telsx___AccessNetSpecEncode( TELSX_ACCESS_NET_SPEC accessNetSpec )
{
    TELSX_ASSERT( accessNetSpec );
    Ref<RT_STRING> text = accessNetSpec->accessType;
    ParamWriter params( text );
    params.writeMark<"np">( accessNetSpec->np );
    params.writeGeneric( accessNetSpec->genericParams );
    return text.take();
}

TELSX_ACCESS_NET_SPEC telsx___AccessNetSpecTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Text accessType = rest.take( telsx___SkipToken );
    if ( !accessType )
        return nullptr;
    auto accessNetSpec = adopt( telsxAccessNetSpecCreate( accessType.copy().get() ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.readMark<"np">( accessNetSpec->np );
        param.storeGeneric( accessNetSpec->genericParams );
    }
    return param.failed() ? nullptr : accessNetSpec.take();
}

int64_t telsx___SkipAccessNetSpec( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWithParams( { chs, length }, telsx___SkipToken( chs, length ) );
}
