// Location value (RFC 6442, 4.1).
#include "telsx/telsx_location_value.h"

#include "telsx/telsx_info.hpp"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_value_of_text.hpp"

using namespace telsx;

struct TELSX_LOCATION_VALUE_
{
    RT_OBJECT object;
    Ref<RT_STRING> iri;                      // never null
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.iri, self.genericParams ); }
};

TELSX_DEFINE_VALUE_OF_TEXT( LocationValue, LOCATION_VALUE, locationValue, Iri, iri, Iri, takeInfoAddress,
                            encodeInfoAddress )

int64_t telsx___SkipLocationValue( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipAlertInfo( chs, length );
}
