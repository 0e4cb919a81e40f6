// What challenges, credentials and Authentication-Info share.
#include "telsx/telsx_auth.hpp"

#include <algorithm>

#include "telsx/telsx_generic_param.hpp"
#include "telsx/telsx_quoted.hpp"
#include "telsx/telsx_token68.h"

namespace telsx
{

bool AuthParamReader::next()
{
    bad = bad || open;
    if ( bad || !rest )
        return false;
    bool separated = !afterFirst || rest.take( telsx___SkipComma );
    name = rest.take( telsx___SkipToken );
    bool hasValue = name && rest.take( telsx___SkipEqual );
    value = rest.take( skipTokenOrQuoted );
    open = afterFirst = separated && hasValue && value;
    bad = !open;
    return open;
}

void AuthParamReader::store( Ref<RT_STRING> &field, RT_BOOL ( *ok )( RT_STRING ) )
{
    auto plain = adopt( tryDecodeTokenOrQuoted( value ) );
    bad = field || !ok( plain.get() );
    field = std::move( plain );
    open = false;
}

void AuthParamReader::readGeneric( Ref<TELSX_GENERIC_PARAMS> &params )
{
    if ( !open )
        return;
    auto param = adopt( Text{ name.chs, rest.chs - name.chs }.as( telsx___GenericParamTryDecode ) );
    bad = telsxGenericParamsHasParam( params.get(), param->name.get() );
    telsxGenericParamsSetParam( params.address(), param.get() );
    open = false;
}

RT_STRING AuthParamWriter::separator()
{
    if ( std::exchange( afterFirst, true ) )
        return literal<", ">();
    return rtStringLength( text.get() ) ? literal<" ">() : literal<"">();
}

void AuthParamWriter::writeGeneric( const Ref<TELSX_GENERIC_PARAMS> &params )
{
    for ( int64_t i = 0; i < telsxGenericParamsLength( params.get() ); ++i )
    {
        auto param = adopt( telsxGenericParamsParamAt( params.get(), i ) );
        auto isItsName = [&]( RT_STRING name ) { return rtStringEquals( name, param->name.get() ); };
        if ( std::any_of( written, written + count, isItsName ) )
            continue;
        Ref<RT_STRING> plain = param->value ? param->value : share( literal<"">() );
        append( text, separator(), param->name, '=',
                param->valueType == TELSX_GENERIC_PARAM_VALUE_TYPE_TOKEN
                    ? plain
                    : adopt( telsx___QuotableStringEncode( plain.get() ) ) );
    }
}

static int64_t skipAuthParam( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    bool found =
        rest.take( telsx___SkipToken ) && rest.take( telsx___SkipEqual ) && rest.take( skipTokenOrQuoted );
    return found ? length - rest.length : 0;
}

// A comma that no parameter follows is not part of them: another scheme may follow it.
static int64_t skipAuthParams( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    if ( !rest.take( skipAuthParam ) )
        return 0;
    for ( Text next = rest; next.take( telsx___SkipComma ) && next.take( skipAuthParam ); )
        rest = next;
    return length - rest.length;
}

// A parameter may begin like one.
static int64_t skipWholeToken68( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    rest.take( telsx___SkipToken68 );
    return !rest || telsx___SkipComma( rest.chs, rest.length ) ? length - rest.length : 0;
}

int64_t skipAuth( Text text )
{
    Text rest = text;
    if ( !rest.take( telsx___SkipToken ) )
        return 0;
    Text inner = rest;
    if ( inner.take( telsx___SkipLws ) && ( inner.take( skipWholeToken68 ) || inner.take( skipAuthParams ) ) )
        rest = inner;
    return text.length - rest.length;
}

bool takeAuthFront( Text &rest, Text &scheme, Ref<RT_STRING> &token68 )
{
    scheme = rest.take( telsx___SkipToken );
    if ( !scheme || !rest )
        return bool( scheme );
    if ( !rest.take( telsx___SkipLws ) || !rest )
        return false;
    if ( covers( telsx___SkipToken68, rest ) )
        token68 = rest.take( rest.length ).copy();
    return true;
}

} // namespace telsx
