// The frame of telsx's object types: rt's frame (rt/rt_frame.hpp, which explains the fields) with telsx's names, and
// the accessors of fields.
#pragma once

#include "rt/rt_frame.hpp"
#include "telsx/telsx_module.h"
#include "telsx/telsx_object.h"

#define TELSX_CHECK( CONDITION, MESSAGE, EXPRESSION ) RT_CHECK( CONDITION, MESSAGE, EXPRESSION )
#define TELSX_ASSERT( ... ) RT_CHECK( ( __VA_ARGS__ ), nullptr, #__VA_ARGS__ )

// The code points that are passed to a skipper or a decoder.
#define TELSX_ASSERT_CHARS( CHS, LENGTH )                       \
    ( TELSX_CHECK( ( LENGTH ) >= 0, nullptr, #LENGTH " >= 0" ), \
      TELSX_CHECK( ( CHS ) || ( LENGTH ) == 0, nullptr, #CHS " || " #LENGTH " == 0" ) )

// A text that is passed to an operation, and the condition that it must meet.
#define TELSX_ASSERT_OK( OK, TEXT ) \
    ( TELSX_CHECK( TEXT, nullptr, #TEXT ), TELSX_CHECK( OK( TEXT ), nullptr, #OK "( " #TEXT " )" ) )

// The handle, and its address, that are passed to an operation that changes the object.
#define TELSX_ASSERT_HANDLE( HANDLE ) \
    ( TELSX_CHECK( HANDLE, nullptr, #HANDLE ), TELSX_CHECK( *HANDLE, nullptr, "*" #HANDLE ) )

// The copy step of such an operation; returns the object. It must be a statement of its own if the value is computed by
// something that may abort or change the handle.
#define TELSX_OWN( HANDLE ) ( TELSX_CHECK( ( *HANDLE ), nullptr, "((*" #HANDLE "))" ), rt::own( HANDLE ) )

namespace telsx
{

using rt::adopt;
using rt::Ref;
using rt::share;

} // namespace telsx

// The handle type of NAME, as its public header declares it.
#define TELSX_HANDLE( NAME ) decltype( telsx##NAME##From( nullptr ) )

// The sort record with its three slots, and what TELSX_OBJECT declares.
#define TELSX_DEFINE_OBJECT( NAME, SORT, FREE, COMPARE, TO_STRING )                              \
    static_assert( std::is_standard_layout_v<TELSX_##SORT##_> );                                 \
    static_assert( rt::listsAllFields<TELSX_##SORT##_>(), "fields() misses a field of " #SORT ); \
    RT_DEFINE_STDFUNCS( telsx, &telsx___module, NAME, TELSX_##SORT, FREE, COMPARE, TO_STRING )   \
    TELSX_##SORT telsx##NAME##CreateFrom( TELSX_##SORT source )                                  \
    {                                                                                            \
        TELSX_ASSERT( source );                                                                  \
        return rt::createFrom( source );                                                         \
    }

// The functions in the slots. A null argument aborts and is called SELF in the message, or SELF followed by A or B.
#define TELSX_DEFINE_FREE_FUNC( NAME, SELF )    \
    void telsx___##NAME##FreeFunc( RT_OBJ obj ) \
    {                                           \
        auto SELF = telsx##NAME##From( obj );   \
        TELSX_CHECK( SELF, nullptr, #SELF );    \
        rt::clearFields( SELF );                \
    }
#define TELSX_DEFINE_COMPARE_FUNC( NAME, SELF )                     \
    int64_t telsx___##NAME##CompareFunc( RT_OBJ objA, RT_OBJ objB ) \
    {                                                               \
        auto SELF##A = telsx##NAME##From( objA );                   \
        auto SELF##B = telsx##NAME##From( objB );                   \
        TELSX_CHECK( SELF##A, nullptr, #SELF "A" );                 \
        TELSX_CHECK( SELF##B, nullptr, #SELF "B" );                 \
        return rt::compareFields( SELF##A, SELF##B );               \
    }
// The text is what the encoder writes.
#define TELSX_DEFINE_TO_STRING_FUNC( NAME, SELF )        \
    RT_STRING telsx___##NAME##ToStringFunc( RT_OBJ obj ) \
    {                                                    \
        auto SELF = telsx##NAME##From( obj );            \
        TELSX_CHECK( SELF, nullptr, #SELF );             \
        return telsx___##NAME##Encode( SELF );           \
    }

// Everything of a value except its fields, its encoder and its decoder: TELSX_DEFINE_OBJECT with the three slots, and
// their functions.
#define TELSX_DEFINE_VALUE_OBJECT( NAME, SORT, SELF )                                       \
    TELSX_DEFINE_OBJECT( NAME, SORT, telsx___##NAME##FreeFunc, telsx___##NAME##CompareFunc, \
                         telsx___##NAME##ToStringFunc )                                     \
    TELSX_DEFINE_FREE_FUNC( NAME, SELF )                                                    \
    TELSX_DEFINE_COMPARE_FUNC( NAME, SELF )                                                 \
    TELSX_DEFINE_TO_STRING_FUNC( NAME, SELF )

// Getter of the field MEMBER, which is called WORD in the function's name.
#define TELSX_DEFINE_GETTER( NAME, SELF, WORD, MEMBER )                                        \
    auto telsx##NAME##WORD( TELSX_HANDLE( NAME ) SELF )->decltype( rt::value( SELF->MEMBER ) ) \
    {                                                                                          \
        TELSX_CHECK( SELF, nullptr, #SELF );                                                   \
        return rt::value( SELF->MEMBER );                                                      \
    }

// Getter and setter. OK is the condition that the setter's argument, also called MEMBER, must meet.
#define TELSX_DEFINE_FIELD( NAME, SELF, WORD, MEMBER, OK )                           \
    TELSX_DEFINE_GETTER( NAME, SELF, WORD, MEMBER )                                  \
    void telsx##NAME##Set##WORD( TELSX_HANDLE( NAME ) * SELF,                        \
                                 decltype( rt::value( ( *SELF )->MEMBER ) ) MEMBER ) \
    {                                                                                \
        TELSX_ASSERT_HANDLE( SELF );                                                 \
        TELSX_CHECK( rt::given( MEMBER ), nullptr, #MEMBER );                        \
        TELSX_CHECK( OK, nullptr, #OK );                                             \
        rt::put( TELSX_OWN( SELF )->MEMBER, MEMBER );                                \
    }

// The same for a text that is stored in its normal form.
#define TELSX_DEFINE_NORMAL_FIELD( NAME, SELF, WORD, MEMBER, OK, NORMALIZE )     \
    TELSX_DEFINE_GETTER( NAME, SELF, WORD, MEMBER )                              \
    void telsx##NAME##Set##WORD( TELSX_HANDLE( NAME ) * SELF, RT_STRING MEMBER ) \
    {                                                                            \
        TELSX_ASSERT_HANDLE( SELF );                                             \
        TELSX_CHECK( MEMBER, nullptr, #MEMBER );                                 \
        TELSX_CHECK( OK, nullptr, #OK );                                         \
        auto normal = rt::adopt( NORMALIZE( MEMBER ) );                          \
        TELSX_OWN( SELF )->MEMBER = std::move( normal );                         \
    }

// Getter and setter of an RT_BOOL, which is stored as 0 or 1.
#define TELSX_DEFINE_FLAG( NAME, SELF, WORD, MEMBER )                          \
    TELSX_DEFINE_GETTER( NAME, SELF, WORD, MEMBER )                            \
    void telsx##NAME##Set##WORD( TELSX_HANDLE( NAME ) * SELF, RT_BOOL MEMBER ) \
    {                                                                          \
        TELSX_ASSERT_HANDLE( SELF );                                           \
        TELSX_OWN( SELF )->MEMBER = MEMBER != 0;                               \
    }

// Has and Del of a field that may be absent.
#define TELSX_DEFINE_OPTION( NAME, SELF, WORD, MEMBER )         \
    RT_BOOL telsx##NAME##Has##WORD( TELSX_HANDLE( NAME ) SELF ) \
    {                                                           \
        TELSX_CHECK( SELF, nullptr, #SELF );                    \
        return rt::present( SELF->MEMBER );                     \
    }                                                           \
    void telsx##NAME##Del##WORD( TELSX_HANDLE( NAME ) * SELF )  \
    {                                                           \
        TELSX_ASSERT_HANDLE( SELF );                            \
        rt::clear( TELSX_OWN( SELF )->MEMBER );                 \
    }

// The accessors of a field that may be absent: getter, setter, Has and Del.
#define TELSX_DEFINE_OPTIONAL_FIELD( NAME, SELF, WORD, MEMBER, OK ) \
    TELSX_DEFINE_FIELD( NAME, SELF, WORD, MEMBER, OK )              \
    TELSX_DEFINE_OPTION( NAME, SELF, WORD, MEMBER )
#define TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( NAME, SELF, WORD, MEMBER, OK, NORMALIZE ) \
    TELSX_DEFINE_NORMAL_FIELD( NAME, SELF, WORD, MEMBER, OK, NORMALIZE )              \
    TELSX_DEFINE_OPTION( NAME, SELF, WORD, MEMBER )
