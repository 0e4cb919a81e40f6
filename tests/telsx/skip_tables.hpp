// Tables of texts. For skippers a bar stands where the count ends; without one the whole text counts.
#pragma once

#include <array>

#include "telsx/telsx_support.hpp"

namespace support
{

template <class... TEXT>
constexpr auto texts( const TEXT &...text )
{
    return std::array{ std::string_view( text )... };
}

template <class... TEXT>
void expectCounts( rt::Skipper skip, const TEXT &...text )
{
    for ( std::string_view marked : texts( text... ) )
    {
        std::string_view counted = marked.substr( 0, marked.find( '|' ) );
        std::string whole( counted );
        if ( counted.size() < marked.size() )
            whole += marked.substr( counted.size() + 1 );
        EXPECT_EQ( std::ssize( codePoints( counted ) ), applied( skip, whole ) ) << marked;
    }
}

} // namespace support
