// The structured values in one list, and the properties that hold for every text. The fuzz target and the tests go
// through it.
#pragma once

#include <algorithm>
#include <memory>
#include <string_view>

#include "erased.hpp"
#include "rt/rt_text.hpp"
#include "telsx/telsx.h"

namespace values
{

using rt::adopt;
using rt::Ref;
using rt::Text;

struct Type
{
    std::string_view name;
    rt::Skipper skip;
    RT_OBJ ( *tryDecode )( const RT_CHAR *chs, int64_t length );
    RT_STRING ( *encode )( RT_OBJ value );

    // From a heap block of exactly the text's size, so that a sanitizer sees a read past its end.
    Ref<RT_OBJ> decoded( Text text ) const
    {
        auto block = std::make_unique<RT_CHAR[]>( static_cast<std::size_t>( text.length ) );
        std::copy( text.chs, text.chs + text.length, block.get() );
        return adopt( tryDecode( block.get(), text.length ) );
    }
    Ref<RT_STRING> encoded( const Ref<RT_OBJ> &value ) const { return adopt( encode( value.get() ) ); }
};

#define TELSX_VALUE( NAME, ... ) \
    { #NAME, telsx___Skip##NAME, ERASED( telsx___##NAME##TryDecode ), ERASED( telsx___##NAME##Encode ) },
inline const Type all[] = {
    // clang-format off
    TELSX_VALUE( GenericParam )
    TELSX_VALUE( GenericParams )
    TELSX_VALUE( Version )
// clang-format on
#include "telsx/telsx_values.def"
};
#undef TELSX_VALUE

inline int64_t count( Text text, RT_CHAR ch ) { return std::count( text.chs, text.chs + text.length, ch ); }

// Whether two objects of a type are equal; those that can't be compared are distinguished by their texts only.
inline bool areEqual( const Ref<RT_OBJ> &a, const Ref<RT_OBJ> &b ) { return !a->sort->compareFunc || a == b; }

// Whether the text is a warning with a code below 100, which is written without leading zeros and is then not a warning
// for any reader.
inline bool isShortWarning( const Type &type, Text text )
{
    return type.name == "WarningValue" && telsx___SkipDigits( text.chs, text.length ) < 3;
}

// The first property that doesn't hold, or null.
inline const char *broken( const Type &type, Text text )
{
    Ref<RT_OBJ> value = type.decoded( text );
    if ( !value )
        return nullptr;
    Ref<RT_STRING> encoded = type.encoded( value );
    Text wire = rt::textOf( encoded );
    if ( isShortWarning( type, wire ) )
        return nullptr;
    if ( type.skip( wire.chs, wire.length ) != wire.length )
        return "the skipper takes the whole of what is encoded";
    Ref<RT_OBJ> again = type.decoded( wire );
    if ( !again )
        return "what is encoded decodes";
    // An escape may hide what the field of a parameter requires; the encoded text shows it.
    bool mayHide = count( text, '\\' );
    if ( type.encoded( again ) != encoded )
        return mayHide ? broken( type, wire ) : "what is encoded doesn't change any more";
    bool allStand = count( wire, ';' ) == count( text, ';' );
    if ( allStand && !mayHide && !areEqual( value, again ) )
        return "what is encoded decodes to the same, unless a parameter fell away beside another of its name";
    return nullptr;
}

} // namespace values
