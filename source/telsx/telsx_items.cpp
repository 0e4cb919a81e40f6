// The lines of a raw header as one list of items.
#include "telsx/telsx_items.hpp"

namespace telsx
{

TELSX_MESSAGE_HEADER createHeaderOfItems( RT_STRING name, const Ref<RT_VECTOR> &items, RT_CHAR separator )
{
    Ref<RT_STRING> line = adopt( rtStringCreate() );
    for ( int64_t i = 0; i < rtVectorLength( items.get() ); ++i )
        rtStringDelimitedAppendCharDelimiter(
            line.address(), rtStringFrom( rt___VectorObjBorrowed( items.get(), i ) ), separator );
    return rtStringLength( line.get() ) ? createHeader( name, line ) : createHeader( name );
}

} // namespace telsx
