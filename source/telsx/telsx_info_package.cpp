// Info package (RFC 6086, 9.2).
#include "telsx/telsx_info_package.h"

#include "telsx/telsx_token.h"
#include "telsx/telsx_value_of_text.hpp"

using namespace telsx;

struct TELSX_INFO_PACKAGE_
{
    RT_OBJECT object;
    Ref<RT_STRING> name;                     // never null
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.name, self.genericParams ); }
};

static Ref<RT_STRING> takeName( Text &rest )
{
    Text name = rest.take( telsx___SkipToken );
    return name ? name.copy() : Ref<RT_STRING>();
}

static RT_STRING encodeName( RT_STRING name ) { return share( name ).take(); }

TELSX_DEFINE_VALUE_OF_TEXT( InfoPackage, INFO_PACKAGE, infoPackage, Name, name, Token, takeName, encodeName )

int64_t telsx___SkipInfoPackage( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWithParams( { chs, length }, telsx___SkipToken( chs, length ) );
}
