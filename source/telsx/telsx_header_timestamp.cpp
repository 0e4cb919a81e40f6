// Timestamp header (RFC 3261, 20.38).
#include "telsx/telsx_header_timestamp.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_timestamp_value.h"

using namespace telsx;

struct TELSX_HEADER_TIMESTAMP_
{
    RT_OBJECT object;
    Ref<RT_STRING> timestampValue; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.timestampValue ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderTimestamp, HEADER_TIMESTAMP, hdr, "Timestamp" )
TELSX_DEFINE_FIELD( HeaderTimestamp, hdr, TimestampValue, timestampValue,
                    telsxTimestampValueOk( timestampValue ) )

TELSX_HEADER_TIMESTAMP telsxHeaderTimestampCreate( RT_STRING timestampValue )
{
    TELSX_ASSERT_OK( telsxTimestampValueOk, timestampValue );
    TELSX_HEADER_TIMESTAMP hdr = rt::create<TELSX_HEADER_TIMESTAMP_>( telsxHeaderTimestampSort() );
    hdr->timestampValue = share( timestampValue );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderTimestampEncode( TELSX_HEADER_TIMESTAMP hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Timestamp">(), hdr->timestampValue );
}

static TELSX_HEADER_TIMESTAMP decode( HeaderLines &lines )
{
    RT_STRING line = lines.last();
    return line && telsxTimestampValueOk( line ) ? telsxHeaderTimestampCreate( line ) : nullptr;
}
