// The forms of a function that take its text as 8-bit and as wide characters.
#pragma once

#include "telsx/telsx_text.hpp"

// Defines telsx<NAME>Cstr and telsx<NAME>Wcstr, which make a string of their text and call telsx<NAME> with it. BEFORE
// and AFTER are the types of the parameters before and after the text, at most three and two, in parentheses.
#define TELSX_DEFINE_TEXT_FORMS( RESULT, NAME, BEFORE, AFTER )        \
    TELSX_DEFINE_TEXT_FORM( RESULT, NAME, BEFORE, AFTER, Cstr, char ) \
    TELSX_DEFINE_TEXT_FORM( RESULT, NAME, BEFORE, AFTER, Wcstr, wchar_t )
#define TELSX_DEFINE_TEXT_FORM( RESULT, NAME, BEFORE, AFTER, SUFFIX, CHAR )                         \
    RESULT telsx##NAME##SUFFIX( TELSX_PARAMS_BEFORE BEFORE const CHAR *chars,                       \
                                int64_t length TELSX_PARAMS_AFTER AFTER )                           \
    {                                                                                               \
        return telsx##NAME(                                                                         \
            TELSX_NAMES_BEFORE BEFORE telsx::text( chars, length ).get() TELSX_NAMES_AFTER AFTER ); \
    }

// The types as parameters, and the names that these have.
#define TELSX_PARAMS_BEFORE( ... ) __VA_OPT__( TELSX_BEFORE_1( TELSX_TYPE_AND_NAME, __VA_ARGS__, ) )
#define TELSX_NAMES_BEFORE( ... ) __VA_OPT__( TELSX_BEFORE_1( TELSX_NAME_ALONE, __VA_ARGS__, ) )
#define TELSX_PARAMS_AFTER( ... ) __VA_OPT__( TELSX_AFTER_1( TELSX_TYPE_AND_NAME, __VA_ARGS__, ) )
#define TELSX_NAMES_AFTER( ... ) __VA_OPT__( TELSX_AFTER_1( TELSX_NAME_ALONE, __VA_ARGS__, ) )
#define TELSX_TYPE_AND_NAME( TYPE, NAME ) TYPE NAME
#define TELSX_NAME_ALONE( TYPE, NAME ) NAME
#define TELSX_BEFORE_1( DO, TYPE, ... ) DO( TYPE, a ), __VA_OPT__( TELSX_BEFORE_2( DO, __VA_ARGS__ ) )
#define TELSX_BEFORE_2( DO, TYPE, ... ) DO( TYPE, b ), __VA_OPT__( TELSX_BEFORE_3( DO, __VA_ARGS__ ) )
#define TELSX_BEFORE_3( DO, TYPE, ... ) DO( TYPE, c ),
#define TELSX_AFTER_1( DO, TYPE, ... ) , DO( TYPE, x ) __VA_OPT__( TELSX_AFTER_2( DO, __VA_ARGS__ ) )
#define TELSX_AFTER_2( DO, TYPE, ... ) , DO( TYPE, y )
