// The lines of a raw header as one list of items.
#include "telsx/telsx_items.hpp"

namespace telsx
{

bool ItemReader::next()
{
    if ( rest )
        bad = !rest.take( skipSeparator );
    else
        while ( !rest )
        {
            line = lines.next();
            if ( !line )
                return false;
            rest = textOf( line );
        }
    if ( bad )
        return false;
    text = rest.take( skipItem );
    bad = !text;
    return !bad;
}

TELSX_MESSAGE_HEADER createHeaderOfItems( RT_STRING name, const Ref<RT_VECTOR> &items, RT_CHAR separator )
{
    Ref<RT_STRING> line = adopt( rtStringCreate() );
    for ( int64_t i = 0; i < rtVectorLength( items.get() ); ++i )
        rtStringDelimitedAppendCharDelimiter(
            line.address(), rtStringFrom( rt___VectorObjBorrowed( items.get(), i ) ), separator );
    return rtStringLength( line.get() ) ? createHeader( name, line ) : createHeader( name );
}

} // namespace telsx
