// The inside of a set of generic parameters, and its text beside the fields that stand for some of them.
#pragma once

#include <initializer_list>

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_generic_params.h"

struct TELSX_GENERIC_PARAMS_
{
    RT_OBJECT object;
    rt::Ref<RT_DICT> params; // from names in lower case to parameters, never null

    static auto fields( auto &self ) { return std::tie( self.params ); }
};

namespace telsx
{

// One empty set serves all values without parameters; the first change makes another. It has the shape of the type
// without its Ref.
struct EmptyGenericParams
{
    RT_OBJECT object;
    const RT_DICT_ *params;
};
static_assert( sizeof( EmptyGenericParams ) == sizeof( TELSX_GENERIC_PARAMS_ ) );
extern const EmptyGenericParams emptyGenericParams;

inline Ref<TELSX_GENERIC_PARAMS> noGenericParams()
{
    return adopt( const_cast<TELSX_GENERIC_PARAMS>(
        reinterpret_cast<const TELSX_GENERIC_PARAMS_ *>( &emptyGenericParams ) ) );
}

// A parameter that has a field of its own, by its name in lower case.
struct FieldParam
{
    RT_STRING name;
    bool isPresent;
};

// Appends the parameters, a semicolon before each, but for those that a present field stands for.
void appendGenericParams( Ref<RT_STRING> &text, TELSX_GENERIC_PARAMS params,
                          std::initializer_list<FieldParam> fields = {} );

} // namespace telsx
