// Organization (RFC 3261, 25.1).
#include "telsx/telsx_organization.h"

#include "telsx/telsx_words.hpp"

using namespace telsx;

RT_BOOL telsxOrganizationOk( RT_STRING organization )
{
    TELSX_ASSERT( organization );
    return isWords( textOf( organization ) );
}

RT_STRING telsxOrganizationNormalize( RT_STRING organization )
{
    TELSX_ASSERT( organization );
    TELSX_CHECK( telsxOrganizationOk( organization ), "organization invalid",
                 "telsxOrganizationOk( organization )" );
    return normalizeWords( organization );
}

int64_t telsx___SkipOrganization( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWords( { chs, length } );
}
