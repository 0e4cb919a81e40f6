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
