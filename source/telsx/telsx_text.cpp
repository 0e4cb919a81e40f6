// Texts that are put together from pieces.
#include "telsx/telsx_text.hpp"

#include <charconv>

#include "rt/rt_memory.hpp"

namespace telsx
{

Decimal::Decimal( int64_t number ) : size( std::to_chars( digits, std::end( digits ), number ).ptr - digits )
{
}

void appendPieces( Ref<RT_STRING> &text, const Piece *pieces, std::size_t count )
{
    int64_t length = 0;
    for ( std::size_t i = 0; i < count; ++i )
        length += pieces[i].length;
    RT_CHAR *into =
        text ? rt___StringExtend( text.address(), length ) : rt::newString( length, text.address() );
    for ( std::size_t i = 0; i < count; into += pieces[i++].length )
        if ( pieces[i].isWide )
            rt::copyItems( into, static_cast<const RT_CHAR *>( pieces[i].chars ), pieces[i].length );
        else
            rt::widenExactly( static_cast<const char *>( pieces[i].chars ), pieces[i].length, into );
}

void Pieces::put( Piece piece )
{
    TELSX_ASSERT( count < most );
    list[count++] = piece;
}

} // namespace telsx
