// What the values of Recv-Info and the header Info-Package share: a package with parameters.
#pragma once

#include "telsx/telsx_token.h"
#include "telsx/telsx_value.hpp"

namespace telsx
{

struct InfoPackage
{
    RT_OBJECT object;
    Ref<RT_STRING> name;                     // never null
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.name, self.genericParams ); }
};
static_assert( rt::listsAllFields<InfoPackage>() );

inline Ref<RT_STRING> encodeInfoPackage( const InfoPackage &package )
{
    Ref<RT_STRING> text = package.name;
    appendGenericParams( text, package.genericParams.get() );
    return text;
}

// Fills a new object from its text; false for bad text.
inline bool decodeInfoPackage( InfoPackage &package, Text text )
{
    Text name = text.take( telsx___SkipToken );
    package.name = name.copy();
    package.genericParams = noGenericParams();
    ParamReader param( text );
    while ( param.next() )
        param.storeGeneric( package.genericParams );
    return name && !param.failed();
}

} // namespace telsx
