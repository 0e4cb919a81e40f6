// Visited network (RFC 7315, 5.3).
#include "telsx/telsx_visited_network.h"

#include "telsx/telsx_quoted.hpp"
#include "telsx/telsx_value_of_text.hpp"

using namespace telsx;

struct TELSX_VISITED_NETWORK_
{
    RT_OBJECT object;
    Ref<RT_STRING> name;                     // plain, never null
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.name, self.genericParams ); }
};

TELSX_DEFINE_VALUE_OF_TEXT( VisitedNetwork, VISITED_NETWORK, visitedNetwork, Name, name, QuotableString,
                            takeTokenOrQuoted, encodeTokenOrQuoted )

int64_t telsx___SkipVisitedNetwork( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWithParams( { chs, length }, skipTokenOrQuoted( chs, length ) );
}
