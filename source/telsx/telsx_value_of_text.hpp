// The values that are one text with generic parameters: the whole of such a unit except its structure and its skipper.
#pragma once

#include "telsx/telsx_value.hpp"

// The unit of the value NAME after its structure. The text must be telsx<ELEMENT>Ok and is never null; it is called WORD
// in the functions' names, and MEMBER in the structure. TAKE takes it from the start of a Text, and returns null for
// bad text; ENCODE returns it as it is on the wire, a new reference.
#define TELSX_DEFINE_VALUE_OF_TEXT( NAME, SORT, SELF, WORD, MEMBER, ELEMENT, TAKE, ENCODE )   \
    TELSX_DEFINE_VALUE_OBJECT( NAME, SORT, SELF )                                             \
    TELSX_DEFINE_FIELD( NAME, SELF, WORD, MEMBER, telsx##ELEMENT##Ok( MEMBER ) )              \
    TELSX_DEFINE_FIELD( NAME, SELF, GenericParams, genericParams, genericParams )             \
    static telsx::Ref<TELSX_##SORT> create( telsx::Ref<RT_STRING> MEMBER )                    \
    {                                                                                         \
        auto SELF = telsx::adopt( rt::create<TELSX_##SORT##_>( telsx##NAME##Sort() ) );       \
        SELF->MEMBER = std::move( MEMBER );                                                   \
        SELF->genericParams = telsx::noGenericParams();                                       \
        return SELF;                                                                          \
    }                                                                                         \
    TELSX_HANDLE( NAME ) telsx##NAME##Create( RT_STRING MEMBER )                              \
    {                                                                                         \
        TELSX_ASSERT_OK( telsx##ELEMENT##Ok, MEMBER );                                        \
        return create( telsx::share( MEMBER ) ).take();                                       \
    }                                                                                         \
    RT_STRING telsx___##NAME##Encode( TELSX_HANDLE( NAME ) SELF )                             \
    {                                                                                         \
        TELSX_ASSERT( SELF );                                                                 \
        auto text = telsx::adopt( ENCODE( SELF->MEMBER.get() ) );                             \
        telsx::appendGenericParams( text, SELF->genericParams.get() );                        \
        return text.take();                                                                   \
    }                                                                                         \
    TELSX_HANDLE( NAME ) telsx___##NAME##TryDecode( const RT_CHAR *chs, int64_t length )      \
    {                                                                                         \
        TELSX_ASSERT_CHARS( chs, length );                                                    \
        telsx::Text rest = { chs, length };                                                   \
        telsx::Ref<RT_STRING> MEMBER = TAKE( rest );                                          \
        if ( !MEMBER )                                                                        \
            return nullptr;                                                                   \
        auto SELF = create( std::move( MEMBER ) );                                            \
        return telsx::readGenericParams( rest, SELF->genericParams ) ? SELF.take() : nullptr; \
    }
