// Texts that are put together from pieces.
#include "telsx/telsx_text.hpp"

#include <charconv>

#include "rt/rt_memory.hpp"
#include "rt/rt_scan.hpp"

namespace telsx
{

Decimal::Decimal( int64_t number ) : size( std::to_chars( digits, std::end( digits ), number ).ptr - digits )
{
}

void appendPieces( Ref<RT_STRING> &text, std::initializer_list<Piece> pieces )
{
    int64_t length = 0;
    for ( const Piece &piece : pieces )
        length += piece.length;
    RT_CHAR *into =
        text ? rt___StringExtend( text.address(), length ) : rt::newString( length, text.address() );
    for ( const Piece &piece : pieces )
    {
        if ( piece.isWide )
            rt::copyItems( into, static_cast<const RT_CHAR *>( piece.chars ), piece.length );
        else
            rt::widenExactly( static_cast<const char *>( piece.chars ), piece.length, into );
        into += piece.length;
    }
}

} // namespace telsx
