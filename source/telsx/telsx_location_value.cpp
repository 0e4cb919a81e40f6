// Location value (RFC 6442, 4.1).
#include "telsx/telsx_location_value.h"

#include "telsx/telsx_info.hpp"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_value_of_text.hpp"

using namespace telsx;

struct TELSX_LOCATION_VALUE_ : Info
{
};

TELSX_DEFINE_VALUE_OF_TEXT( LocationValue, LOCATION_VALUE, locationValue, Iri, iri, Iri, takeInfoAddress,
                            encodeInfoAddress )

int64_t telsx___SkipLocationValue( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipAlertInfo( chs, length );
}
