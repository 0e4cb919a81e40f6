// What the values of Accept-Encoding and Accept-Language share: one text or a star, with a q and other parameters.
#pragma once

#include "telsx/telsx_qvalue.h"
#include "telsx/telsx_value.hpp"

// The unit of the value NAME after its structure. The text must be telsx<ELEMENT>Ok, is kept in its normal form, and is
// null for the star; it is called WORD in the functions' names, and MEMBER in the structure.
#define TELSX_DEFINE_ACCEPT_OF_TEXT( NAME, SORT, SELF, WORD, MEMBER, ELEMENT )                  \
    TELSX_DEFINE_VALUE_OBJECT( NAME, SORT, SELF )                                               \
    TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( NAME, SELF, WORD, MEMBER, telsx##ELEMENT##Ok( MEMBER ), \
                                        telsx##ELEMENT##Normalize )                             \
    TELSX_DEFINE_OPTIONAL_FIELD( NAME, SELF, Qvalue, qvalue, telsxQvalueOk( qvalue ) )          \
    TELSX_DEFINE_FIELD( NAME, SELF, GenericParams, genericParams, genericParams )               \
    TELSX_HANDLE( NAME ) telsx##NAME##Create( void )                                            \
    {                                                                                           \
        TELSX_HANDLE( NAME ) SELF = rt::create<TELSX_##SORT##_>( telsx##NAME##Sort() );         \
        SELF->genericParams = telsx::noGenericParams();                                         \
        return SELF;                                                                            \
    }                                                                                           \
    RT_STRING telsx___##NAME##Encode( TELSX_HANDLE( NAME ) SELF )                               \
    {                                                                                           \
        TELSX_ASSERT( SELF );                                                                   \
        auto text = SELF->MEMBER ? SELF->MEMBER : telsx::adopt( telsx::literal<"*">() );        \
        telsx::ParamWriter params( text );                                                      \
        params.write<"q">( SELF->qvalue, telsx___QvalueEncode );                                \
        params.writeGeneric( SELF->genericParams );                                             \
        return text.take();                                                                     \
    }                                                                                           \
    TELSX_HANDLE( NAME ) telsx___##NAME##TryDecode( const RT_CHAR *chs, int64_t length )        \
    {                                                                                           \
        TELSX_ASSERT_CHARS( chs, length );                                                      \
        telsx::Text rest = { chs, length }, front = rest.take( telsx___Skip##ELEMENT );         \
        if ( !front && !rest.take( telsx___SkipChar( chs, length, '*' ) ) )                     \
            return nullptr;                                                                     \
        auto SELF = telsx::adopt( telsx##NAME##Create() );                                      \
        if ( front )                                                                            \
            SELF->MEMBER = telsx::adopt( telsx##ELEMENT##Normalize( front.copy().get() ) );     \
        telsx::ParamReader param( rest );                                                       \
        while ( param.next() )                                                                  \
        {                                                                                       \
            param.read<"q">( SELF->qvalue, telsx___SkipQvalue, telsx___QvalueTryDecode );       \
            param.storeGeneric( SELF->genericParams );                                          \
        }                                                                                       \
        return param.failed() ? nullptr : SELF.take();                                          \
    }
