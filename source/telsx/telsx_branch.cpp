// Branch (RFC 3261, 25.1, via-branch).
#include "telsx/telsx_branch.h"

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxBranchOk( RT_STRING branch ) { return covers( telsx___SkipBranch, branch ); }

int64_t telsx___SkipBranch( const RT_CHAR *chs, int64_t length ) { return telsx___SkipToken( chs, length ); }
