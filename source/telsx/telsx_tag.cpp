// Tag (RFC 3261, 25.1, tag-param).
#include "telsx/telsx_tag.h"

#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

RT_BOOL telsxTagOk( RT_STRING tag ) { return covers( telsx___SkipTag, tag ); }

int64_t telsx___SkipTag( const RT_CHAR *chs, int64_t length ) { return telsx___SkipToken( chs, length ); }
