// Branch (RFC 3261, 25.1, via-branch).
#include "telsx/telsx_branch.h"

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxBranchOk( RT_STRING branch )
{
    TELSX_ASSERT( branch );
    return covers( telsx___SkipBranch, branch );
}

int64_t telsx___SkipBranch( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return runOf<classToken>( { chs, length } );
}
