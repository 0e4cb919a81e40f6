// Priority header (RFC 3261, 20.26).
#include "telsx/telsx_header_priority.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_priority_value.h"

using namespace telsx;

struct TELSX_HEADER_PRIORITY_
{
    RT_OBJECT object;
    Ref<RT_STRING> priorityValue; // lower case, never null

    static constexpr auto fields( auto &self ) { return std::tie( self.priorityValue ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPriority, HEADER_PRIORITY, hdr, "Priority" )
TELSX_DEFINE_NORMAL_FIELD( HeaderPriority, hdr, PriorityValue, priorityValue,
                           telsxPriorityValueOk( priorityValue ), telsxPriorityValueNormalize )

TELSX_HEADER_PRIORITY telsxHeaderPriorityCreate( RT_STRING priorityValue )
{
    TELSX_ASSERT_OK( telsxPriorityValueOk, priorityValue );
    TELSX_HEADER_PRIORITY hdr = rt::create<TELSX_HEADER_PRIORITY_>( telsxHeaderPrioritySort() );
    hdr->priorityValue = adopt( telsxPriorityValueNormalize( priorityValue ) );
    return hdr;
}

// The values that have a name.
#define NAMED_VALUE( NAME, VALUE )                                           \
    TELSX_HEADER_PRIORITY telsxHeaderPriorityCreate##NAME( void )            \
    {                                                                        \
        return telsxHeaderPriorityCreate( literal<VALUE>() );                \
    }                                                                        \
    void telsxHeaderPrioritySet##NAME( TELSX_HEADER_PRIORITY *hdr )          \
    {                                                                        \
        telsxHeaderPrioritySetPriorityValue( hdr, literal<VALUE>() );        \
    }                                                                        \
    RT_BOOL telsxHeaderPriorityIs##NAME( TELSX_HEADER_PRIORITY hdr )         \
    {                                                                        \
        TELSX_ASSERT( hdr );                                                 \
        return rtStringEquals( hdr->priorityValue.get(), literal<VALUE>() ); \
    }
NAMED_VALUE( Emergency, "emergency" )
NAMED_VALUE( Urgent, "urgent" )
NAMED_VALUE( Normal, "normal" )
NAMED_VALUE( NonUrgent, "non-urgent" )

TELSX_MESSAGE_HEADER telsxHeaderPriorityEncode( TELSX_HEADER_PRIORITY hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Priority">(), hdr->priorityValue );
}

static TELSX_HEADER_PRIORITY decode( HeaderLines &lines )
{
    RT_STRING line = lines.last();
    return line && telsxPriorityValueOk( line ) ? telsxHeaderPriorityCreate( line ) : nullptr;
}
