// The parameters of an address and the headers of a SIP address: pairs of a name, in lower case and with its escapes
// resolved, and what follows it, which is empty, or an equal sign and a value in its escaped form (see
// telsx_iri_text.hpp).
#pragma once

#include <initializer_list>

#include "telsx/telsx_iri_text.hpp"
#include "telsx/telsx_text_forms.hpp"

namespace telsx
{

struct IriPair
{
    Ref<RT_STRING> name; // null for bad text
    Ref<RT_STRING> rest;
};

// The pair that the whole text is. In its value the accepted characters may stand unescaped.
IriPair toIriPair( Text text, const rt::CharSet &plain, const rt::CharSet &accepted );
void appendIriPair( Ref<RT_STRING> &text, const IriPair &pair, const rt::CharSet &plain );

// The value in a rest, and the rest for a value. A null value is none.
Ref<RT_STRING> valueOf( const Ref<RT_STRING> &rest );
Ref<RT_STRING> restOf( RT_STRING value, const rt::CharSet &plain );

// The name as a key. Aborts unless telsxIriNameOk.
Ref<RT_STRING> iriKey( RT_STRING name );

// Parameters are a dictionary of their rests.
IriPair iriParamAt( const Ref<RT_DICT> &params, int64_t index );
Ref<RT_STRING> iriParamRest( const Ref<RT_DICT> &params, const Ref<RT_STRING> &key );
void setIriParam( Ref<RT_DICT> &params, const Ref<RT_STRING> &key, const Ref<RT_STRING> &rest );

// The parameters with their rests in lower case, for comparison.
Ref<RT_DICT> comparedIriParams( const Ref<RT_DICT> &params );

// A field that is written as a parameter, and whether a present one has that name and so hides the parameter.
struct ParamField
{
    RT_STRING name;
    bool isPresent;
};
bool isHidden( const Ref<RT_STRING> &key, std::initializer_list<ParamField> fields );

} // namespace telsx

// Getter and setter of a text that is stored in its escaped form. OK is the condition that the setter's argument must
// meet.
#define TELSX_DEFINE_ESCAPED_FIELD( NAME, SELF, WORD, MEMBER, OK, PLAIN )        \
    RT_STRING telsx##NAME##WORD( TELSX_HANDLE( NAME ) SELF )                     \
    {                                                                            \
        TELSX_CHECK( SELF, nullptr, #SELF );                                     \
        return resolvedOf( SELF->MEMBER ).take();                                \
    }                                                                            \
    void telsx##NAME##Set##WORD( TELSX_HANDLE( NAME ) * SELF, RT_STRING MEMBER ) \
    {                                                                            \
        TELSX_ASSERT_HANDLE( SELF );                                             \
        TELSX_CHECK( MEMBER, nullptr, #MEMBER );                                 \
        TELSX_CHECK( OK, nullptr, #OK );                                         \
        Ref<RT_STRING> form = escaped( textOf( MEMBER ), PLAIN );                \
        TELSX_OWN( SELF )->MEMBER = std::move( form );                           \
    }

// The operations of NAME on its params.
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
        setIriParam( TELSX_OWN( SELF )->params, key, restOf( value, paramChars ) );                  \
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
        setIriParam( TELSX_OWN( SELF )->params, key, restOf( value, paramChars ) );                  \
    }                                                                                                \
    void telsx##NAME##DelParam( TELSX_HANDLE( NAME ) * SELF, RT_STRING name )                        \
    {                                                                                                \
        TELSX_ASSERT_HANDLE( SELF );                                                                 \
        Ref<RT_STRING> key = iriKey( name );                                                         \
        rtDictDelStringKey( TELSX_OWN( SELF )->params.address(), key.get() );                        \
    }                                                                                                \
    TELSX_DEFINE_IRI_NAME_FORMS( NAME, Param )

// The forms of the functions that take the name of a WORD.
#define TELSX_DEFINE_IRI_NAME_FORMS( NAME, WORD )                                             \
    TELSX_DEFINE_TEXT_FORMS( RT_BOOL, NAME##Has##WORD, ( TELSX_HANDLE( NAME ) ), () )         \
    TELSX_DEFINE_TEXT_FORMS( RT_STRING, NAME##WORD##Value, ( TELSX_HANDLE( NAME ) ), () )     \
    TELSX_DEFINE_TEXT_FORMS( void, NAME##Set##WORD, (TELSX_HANDLE( NAME ) *), ( RT_STRING ) ) \
    TELSX_DEFINE_TEXT_FORMS( void, NAME##Del##WORD, (TELSX_HANDLE( NAME ) *), () )
