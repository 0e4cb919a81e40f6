// Subject (RFC 3261, 25.1).
#include "telsx/telsx_subject.h"

#include "telsx/telsx_words.hpp"

using namespace telsx;

RT_BOOL telsxSubjectOk( RT_STRING subject )
{
    TELSX_ASSERT( subject );
    return isWords( textOf( subject ) );
}

RT_STRING telsxSubjectNormalize( RT_STRING subject )
{
    TELSX_ASSERT( subject );
    TELSX_CHECK( telsxSubjectOk( subject ), "subject invalid", "telsxSubjectOk( subject )" );
    return normalizeWords( subject );
}

int64_t telsx___SkipSubject( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWords( { chs, length } );
}
