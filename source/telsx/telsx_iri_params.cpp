// Parameters and headers of addresses.
#include "telsx/telsx_iri_params.hpp"

#include <algorithm>

namespace telsx
{

IriPair toIriPair( Text text, const rt::CharSet &plain, const rt::CharSet &accepted )
{
    Text nameText = text.take( until( text, '=' ).length );
    Ref<RT_STRING> name = nameText ? escapedForm( nameText, plain ) : Ref<RT_STRING>();
    if ( !name )
        return {};
    name = asciiLowerCase( resolvedOf( name ) );
    if ( !text )
        return { name, share( literal<"">() ) };
    Ref<RT_STRING> value = escapedForm( text.after( 1 ), plain, accepted );
    return value ? IriPair{ name, joined( '=', value ) } : IriPair();
}

void appendIriPair( Ref<RT_STRING> &text, const IriPair &pair, const rt::CharSet &plain )
{
    append( text, escaped( textOf( pair.name ), plain ), pair.rest );
}

Ref<RT_STRING> valueOf( const Ref<RT_STRING> &rest )
{
    Text text = rest ? textOf( rest ) : Text();
    return text ? resolved( text.after( 1 ) ) : Ref<RT_STRING>();
}

Ref<RT_STRING> restOf( RT_STRING value, const rt::CharSet &plain )
{
    return value ? joined( '=', escaped( textOf( value ), plain ) ) : share( literal<"">() );
}

Ref<RT_STRING> iriKey( RT_STRING name )
{
    TELSX_ASSERT_OK( telsxIriNameOk, name );
    return asciiLowerCase( share( name ) );
}

IriPair iriParamAt( const Ref<RT_DICT> &params, int64_t index )
{
    return { adopt( rtDictKeyAt( params.get(), index ) ),
             adopt( rtStringFrom( rtDictValueAt( params.get(), index ) ) ) };
}

Ref<RT_STRING> iriParamRest( const Ref<RT_DICT> &params, const Ref<RT_STRING> &key )
{
    return adopt( rtStringFrom( rtDictStringKey( params.get(), key.get() ) ) );
}

void setIriParam( Ref<RT_DICT> &params, const Ref<RT_STRING> &key, const Ref<RT_STRING> &rest )
{
    rtDictSetStringKey( params.address(), key.get(), rt::asObj( rest.get() ) );
}

Ref<RT_DICT> comparedIriParams( const Ref<RT_DICT> &params )
{
    Ref<RT_DICT> compared = adopt( rtDictCreate() );
    for ( int64_t i = 0; i < rtDictLength( params.get() ); ++i )
    {
        IriPair param = iriParamAt( params, i );
        setIriParam( compared, param.name, asciiLowerCase( param.rest ) );
    }
    return compared;
}

bool isHidden( const Ref<RT_STRING> &key, std::initializer_list<ParamField> fields )
{
    return std::any_of( fields.begin(), fields.end(),
                        [&]( const ParamField &field )
                        { return field.isPresent && rtStringEquals( field.name, key.get() ); } );
}

} // namespace telsx
