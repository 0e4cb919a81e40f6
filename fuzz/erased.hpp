// Functions of one type as functions for objects of any type, for tables of types.
#pragma once

#include <type_traits>

#include "rt/rt_object.h"

namespace erased
{

// A handle that a function may change, as one for objects of any type.
template <class HANDLE>
struct InPlace
{
    RT_OBJ *object;
    HANDLE handle = object ? reinterpret_cast<HANDLE>( *object ) : nullptr;

    operator HANDLE *() { return object ? &handle : nullptr; }
    ~InPlace()
    {
        if ( object )
            *object = reinterpret_cast<RT_OBJ>( handle );
    }
};

template <class TO, class FROM>
auto converted( FROM from )
{
    using Pointee = std::remove_pointer_t<TO>;
    if constexpr ( std::is_same_v<TO, FROM> )
        return from;
    else if constexpr ( std::is_pointer_v<Pointee> )
        return InPlace<Pointee>{ from };
    else
        return reinterpret_cast<TO>( from );
}

template <class RESULT, class... ARGUMENT>
using Pointer = RESULT ( * )( ARGUMENT... );

// Converts to a pointer to a function that takes and returns RT_OBJ where this one has its own handle.
template <auto FUNCTION>
struct Function;
template <class HAS_RESULT, class... HAS, Pointer<HAS_RESULT, HAS...> FUNCTION>
struct Function<FUNCTION>
{
    template <class RESULT, class... ARGUMENT>
    operator Pointer<RESULT, ARGUMENT...>() const
    {
        return []( ARGUMENT... argument ) -> RESULT
        {
            if constexpr ( std::is_void_v<RESULT> )
                FUNCTION( converted<HAS>( argument )... );
            else
                return converted<RESULT>( FUNCTION( converted<HAS>( argument )... ) );
        };
    }
};

} // namespace erased

#define ERASED( FUNCTION ) erased::Function<FUNCTION>()
