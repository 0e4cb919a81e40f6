// The parameters of an address, and the headers of a SIP address: names, and behind each of them its rest, which is
// empty or an equal sign and a value in its escaped form. A name has its escapes resolved and is in lower case.
#pragma once

#include <initializer_list>

#include "telsx/telsx_generic_params.hpp"
#include "telsx/telsx_iri_text.hpp"

namespace telsx
{

struct IriPair
{
    Ref<RT_STRING> name; // null for bad text
    Ref<RT_STRING> rest;
};

// The pair that the whole text is; in its value also other characters than the plain ones may stand unescaped.
IriPair toIriPair( Text text, const rt::CharSet &plain, const rt::CharSet &accepted );
void appendIriPair( Ref<RT_STRING> &text, const IriPair &pair, const rt::CharSet &plain );

// A value and its rest; null is no value.
Ref<RT_STRING> valueOf( const Ref<RT_STRING> &rest );
Ref<RT_STRING> restOf( RT_STRING value, const rt::CharSet &plain );

// The name as it is looked up, which must be one.
Ref<RT_STRING> iriKey( RT_STRING name );

// Parameters, in a dictionary of their rests.
IriPair iriParamAt( const Ref<RT_DICT> &params, int64_t index );
Ref<RT_STRING> iriParamRest( const Ref<RT_DICT> &params, const Ref<RT_STRING> &key );
void setIriParam( Ref<RT_DICT> &params, const Ref<RT_STRING> &key, RT_STRING value );

// Whether a present field has the name of the parameter, and wins over it.
bool isHidden( const Ref<RT_STRING> &key, std::initializer_list<FieldParam> fields );

} // namespace telsx

// Getter and setter of a text that is held in its escaped form. OK is what the setter asks of its argument.
#define TELSX_DEFINE_ESCAPED_FIELD( NAME, SELF, WORD, MEMBER, OK, PLAIN )        \
    RT_STRING telsx##NAME##WORD( TELSX_HANDLE( NAME ) SELF )                     \
    {                                                                            \
        TELSX_CHECK( SELF, nullptr, #SELF );                                     \
        return resolvedOf( SELF->MEMBER ).take();                                \
    }                                                                            \
    void telsx##NAME##Set##WORD( TELSX_HANDLE( NAME ) * SELF, RT_STRING MEMBER ) \
    {                                                                            \
        TELSX_ASSERT_HANDLE( SELF );                                             \
        TELSX_CHECK( OK, nullptr, #OK );                                         \
        Ref<RT_STRING> form = escaped( textOf( MEMBER ), PLAIN );                \
        TELSX_OWN( SELF )->MEMBER = std::move( form );                           \
    }

// The operations of the address NAME on its params.
#define TELSX_DEFINE_IRI_PARAMS( NAME, SELF )                                                        \
    int64_t telsx##NAME##ParamsLength( TELSX_HANDLE( NAME ) SELF )                                   \
    {                                                                                                \
        TELSX_CHECK( SELF, nullptr, #SELF );                                                         \
        return rtDictLength( SELF->params.get() );                                                   \
    }                                                                                                \
    RT_STRING telsx##NAME##ParamNameAt( TELSX_HANDLE( NAME ) SELF, int64_t index )                   \
    {                                                                                                \
        TELSX_CHECK( SELF, nullptr, #SELF );                                                         \
        return rtDictKeyAt( SELF->params.get(), index );                                             \
    }                                                                                                \
    RT_STRING telsx##NAME##ParamValueAt( TELSX_HANDLE( NAME ) SELF, int64_t index )                  \
    {                                                                                                \
        TELSX_CHECK( SELF, nullptr, #SELF );                                                         \
        return valueOf( iriParamAt( SELF->params, index ).rest ).take();                             \
    }                                                                                                \
    void telsx##NAME##SetParamValueAt( TELSX_HANDLE( NAME ) * SELF, int64_t index, RT_STRING value ) \
    {                                                                                                \
        TELSX_ASSERT_HANDLE( SELF );                                                                 \
        TELSX_ASSERT( !value || telsxIriTextOk( value ) );                                           \
        Ref<RT_STRING> key = adopt( rtDictKeyAt( ( *SELF )->params.get(), index ) );                 \
        setIriParam( TELSX_OWN( SELF )->params, key, value );                                        \
    }                                                                                                \
    void telsx##NAME##DelParamAt( TELSX_HANDLE( NAME ) * SELF, int64_t index )                       \
    {                                                                                                \
        TELSX_ASSERT_HANDLE( SELF );                                                                 \
        Ref<RT_STRING> key = adopt( rtDictKeyAt( ( *SELF )->params.get(), index ) );                 \
        rtDictDelStringKey( TELSX_OWN( SELF )->params.address(), key.get() );                        \
    }                                                                                                \
    void telsx##NAME##ClearParams( TELSX_HANDLE( NAME ) * SELF )                                     \
    {                                                                                                \
        TELSX_ASSERT_HANDLE( SELF );                                                                 \
        rtDictClear( TELSX_OWN( SELF )->params.address() );                                          \
    }                                                                                                \
    RT_BOOL telsx##NAME##HasParam( TELSX_HANDLE( NAME ) SELF, RT_STRING name )                       \
    {                                                                                                \
        TELSX_CHECK( SELF, nullptr, #SELF );                                                         \
        return rtDictHasStringKey( SELF->params.get(), iriKey( name ).get() );                       \
    }                                                                                                \
    RT_STRING telsx##NAME##ParamValue( TELSX_HANDLE( NAME ) SELF, RT_STRING name )                   \
    {                                                                                                \
        TELSX_CHECK( SELF, nullptr, #SELF );                                                         \
        return valueOf( iriParamRest( SELF->params, iriKey( name ) ) ).take();                       \
    }                                                                                                \
    void telsx##NAME##SetParam( TELSX_HANDLE( NAME ) * SELF, RT_STRING name, RT_STRING value )       \
    {                                                                                                \
        TELSX_ASSERT_HANDLE( SELF );                                                                 \
        TELSX_ASSERT( !value || telsxIriTextOk( value ) );                                           \
        Ref<RT_STRING> key = iriKey( name );                                                         \
        setIriParam( TELSX_OWN( SELF )->params, key, value );                                        \
    }                                                                                                \
    void telsx##NAME##DelParam( TELSX_HANDLE( NAME ) * SELF, RT_STRING name )                        \
    {                                                                                                \
        TELSX_ASSERT_HANDLE( SELF );                                                                 \
        Ref<RT_STRING> key = iriKey( name );                                                         \
        rtDictDelStringKey( TELSX_OWN( SELF )->params.address(), key.get() );                        \
    }                                                                                                \
    TELSX_DEFINE_IRI_NAMES( NAME, SELF, Param, Cstr, char )                                          \
    TELSX_DEFINE_IRI_NAMES( NAME, SELF, Param, Wcstr, wchar_t )

// What takes the name of a WORD, with the name as 8-bit or as wide characters.
#define TELSX_DEFINE_IRI_NAMES( NAME, SELF, WORD, SUFFIX, CHAR )                                          \
    RT_BOOL telsx##NAME##Has##WORD##SUFFIX( TELSX_HANDLE( NAME ) SELF, const CHAR *name, int64_t length ) \
    {                                                                                                     \
        return telsx##NAME##Has##WORD( SELF, text( name, length ).get() );                                \
    }                                                                                                     \
    RT_STRING telsx##NAME##WORD##Value##SUFFIX( TELSX_HANDLE( NAME ) SELF, const CHAR *name,              \
                                                int64_t length )                                          \
    {                                                                                                     \
        return telsx##NAME##WORD##Value( SELF, text( name, length ).get() );                              \
    }                                                                                                     \
    void telsx##NAME##Set##WORD##SUFFIX( TELSX_HANDLE( NAME ) * SELF, const CHAR *name, int64_t length,   \
                                         RT_STRING value )                                                \
    {                                                                                                     \
        telsx##NAME##Set##WORD( SELF, text( name, length ).get(), value );                                \
    }                                                                                                     \
    void telsx##NAME##Del##WORD##SUFFIX( TELSX_HANDLE( NAME ) * SELF, const CHAR *name, int64_t length )  \
    {                                                                                                     \
        telsx##NAME##Del##WORD( SELF, text( name, length ).get() );                                       \
    }
