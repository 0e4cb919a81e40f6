// What all typed headers share.
#include "telsx/telsx_header.hpp"

#include "telsx/telsx_message.hpp"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_message_header.hpp"

namespace telsx
{

bool hasName( TELSX_MESSAGE_HEADER header, RT_STRING name )
{
    return header && rtStringEquals( header->name.get(), name );
}

TELSX_MESSAGE_HEADER headerOf( TELSX_MESSAGE msg, RT_STRING name )
{
    return telsxMessageHeaderFrom( rt___DictValueBorrowed( msg->fragment->headers.get(), name ) );
}

int64_t linesOf( TELSX_MESSAGE_HEADER header ) { return rtVectorLength( header->lines.get() ); }

RT_STRING lineOf( TELSX_MESSAGE_HEADER header, int64_t index )
{
    return rtStringFrom( rt___VectorObjBorrowed( header->lines.get(), index ) );
}

RT_STRING lastLineOf( TELSX_MESSAGE_HEADER header )
{
    int64_t length = linesOf( header );
    return length ? lineOf( header, length - 1 ) : nullptr;
}

TELSX_MESSAGE_HEADER tryRestoreHeader( RT_STRING name, RT_STORE store )
{
    return holdsLines( store ) ? telsxMessageHeaderRestoreLines( name, store ) : nullptr;
}

void removeHeader( TELSX_MESSAGE *msg, RT_STRING name ) { telsxMessageDelHeader( msg, name ); }

RT_STRING linesToString( const Ref<TELSX_MESSAGE_HEADER> &header )
{
    switch ( linesOf( header.get() ) )
    {
        case 0: return rtStringCreate();
        case 1: return share( lineOf( header.get(), 0 ) ).take();
        default: return rtVectorToString( header->lines.get() );
    }
}

} // namespace telsx
