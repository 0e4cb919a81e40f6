// Numbers in decimal digits.
#pragma once

#include "telsx/telsx_text.hpp"

namespace telsx
{

inline RT_STRING encodeNumber( int64_t number ) { return joined( Decimal( number ) ).take(); }

// The value of the whole text if it is a number, and Ok if that is asked, else -1.
int64_t tryDecodeNumber( Text text, RT_BOOL ( *isOk )( int64_t ) = nullptr );
int64_t tryDecodeNumber( std::string_view text );

} // namespace telsx
