// What structured values share.
#include "telsx/telsx_value.hpp"

#include "rsc/rsc.h"
#include "telsx/telsx_display_name.h"

namespace telsx
{

bool ParamReader::next()
{
    bad = bad || open;
    if ( bad || !rest )
        return false;
    open = behindSemi = bool( rest.take( telsx___SkipSemi ) );
    bad = !open;
    return open;
}

bool ParamReader::isNamed( Text name, Skipper skipValue )
{
    Text behind = rest;
    if ( !behind.take( telsx___SkipCharsAsciiCaseFold( rest.chs, rest.length, name.chs, name.length ) )
         || !behind.take( telsx___SkipEqual ) )
        return false;
    value = behind.take( skipValue );
    return bool( value );
}

bool ParamReader::isBareNamed( Text name )
{
    Text behind = rest;
    value = behind.take( telsx___SkipCharsAsciiCaseFold( rest.chs, rest.length, name.chs, name.length ) );
    return value && !telsx___SkipEqual( behind.chs, behind.length );
}

// The parameter is taken: what follows begins behind its value.
bool ParamReader::take()
{
    rest = rest.behind( value.chs + value.length - rest.chs );
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

bool takeAddress( Text &rest, Address &address, RT_CHAR endOfBare )
{
    Text behindName = rest;
    Text name = behindName.take( telsx___SkipDisplayName );
    if ( name && behindName.take( telsx___SkipLaquot ) )
    {
        address.displayName = adopt( name.as( telsx___DisplayNameTryDecode ) );
        if ( !address.displayName )
            return false;
        address.inBrackets = true;
        rest = behindName;
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
        rtStringAppendFormatCstr( text.address(), "%~s ", -1,
                                  telsx___DisplayNameEncode( displayName.get() ) );
    rtStringAppendFormatCstr( text.address(), "<%~s>", -1, uri );
}

} // namespace telsx
