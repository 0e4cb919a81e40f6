// What structured values share.
#include "telsx/telsx_value.hpp"

#include "rsc/rsc.h"
#include "telsx/telsx_display_name.h"
#include "telsx/telsx_skip.h"

namespace telsx
{

bool ParamReader::next()
{
    bad = bad || open;
    if ( bad || !rest )
        return false;
    open = afterSemi = std::exchange( atFirst, false ) || rest.take( telsx___SkipSemi );
    bad = !open;
    return open;
}

bool ParamReader::hasValue( int64_t nameLength, Skipper skipValue )
{
    Text after = rest.after( nameLength );
    value = after.take( telsx___SkipEqual ) ? after.take( skipValue ) : Text();
    return bool( value );
}

bool ParamReader::hasNoValue( int64_t nameLength )
{
    Text after = rest.after( nameLength );
    value = rest.first( nameLength );
    return !telsx___SkipEqual( after.chs, after.length );
}

// The parameter is taken: the rest begins after its value.
bool ParamReader::take()
{
    rest = rest.after( value.chs + value.length - rest.chs );
    open = false;
    return true;
}

void ParamReader::storeGeneric( Ref<TELSX_GENERIC_PARAMS> &params )
{
    if ( !open )
        return;
    value = rest.first( telsx___SkipGenericParam( rest.chs, rest.length ) );
    if ( auto param = adopt( value.as( telsx___GenericParamTryDecode ) ) )
    {
        telsxGenericParamsSetParam( params.address(), param.get() );
        take();
    }
}

bool readGenericParams( Text afterFront, Ref<TELSX_GENERIC_PARAMS> &params )
{
    ParamReader param( afterFront );
    while ( param.next() )
        param.storeGeneric( params );
    return !param.failed();
}

bool takeAddress( Text &rest, Address &address, RT_CHAR endOfBare )
{
    Text afterName = rest;
    bool hasName = rest && rest.chs[0] != '<';
    Text name = hasName ? afterName.take( telsx___SkipDisplayName ) : Text();
    if ( name && afterName.take( telsx___SkipLaquot ) )
    {
        address.displayName = adopt( name.as( telsx___DisplayNameTryDecode ) );
        if ( !address.displayName )
            return false;
        address.inBrackets = true;
        rest = afterName;
    }
    else
        address.inBrackets = bool( rest.take( telsx___SkipLaquot ) );
    int64_t length;
    address.iri = adopt( rsc___TryConvertUriAtStart( rest.chs, rest.length,
                                                     address.inBrackets ? UINT32_MAX : endOfBare, &length ) );
    rest.take( length );
    return address.iri && ( !address.inBrackets || rest.take( telsx___SkipRaquot ) );
}

void appendAddress( Ref<RT_STRING> &text, const Ref<RT_STRING> &iri, const Ref<RT_STRING> &displayName )
{
    RT_STRING uri = rscTryConvertToUri( iri.get() );
    TELSX_ASSERT( uri );
    if ( displayName )
        append( text, adopt( telsx___DisplayNameEncode( displayName.get() ) ), ' ' );
    append( text, '<', adopt( uri ), '>' );
}

} // namespace telsx
