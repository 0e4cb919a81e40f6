// Character classes (RFC 3261, 25.1).
#include "telsx/telsx_char.h"

#include "telsx/telsx_char.hpp"

using namespace telsx;

RT_BOOL telsx___CharIsAlpha( RT_CHAR ch ) { return isIn( ch, classAlpha ); }
RT_BOOL telsx___CharIsDigit( RT_CHAR ch ) { return isIn( ch, classDigit ); }
RT_BOOL telsx___CharIsAlphanum( RT_CHAR ch ) { return isIn( ch, classAlphanum ); }
RT_BOOL telsx___CharIsLws( RT_CHAR ch ) { return isIn( ch, classLws ); }
RT_BOOL telsx___CharIsMark( RT_CHAR ch ) { return isIn( ch, classMark ); }
RT_BOOL telsx___CharIsUnreserved( RT_CHAR ch ) { return isIn( ch, classUnreserved ); }
RT_BOOL telsx___CharIsReserved( RT_CHAR ch ) { return isIn( ch, classReserved ); }
RT_BOOL telsx___CharIsHnvUnreserved( RT_CHAR ch ) { return isIn( ch, classHnvUnreserved ); }
RT_BOOL telsx___CharIsParamChar( RT_CHAR ch ) { return isIn( ch, classParamChar ); }
RT_BOOL telsx___CharIsSeparator( RT_CHAR ch ) { return isIn( ch, classSeparator ); }
RT_BOOL telsx___CharIsToken( RT_CHAR ch ) { return isIn( ch, classToken ); }
RT_BOOL telsx___CharIsTokenNodot( RT_CHAR ch ) { return isIn( ch, classTokenNodot ); }
RT_BOOL telsx___CharIsAtom( RT_CHAR ch ) { return isIn( ch, classTokenNodot ); }
RT_BOOL telsx___CharIsWord( RT_CHAR ch ) { return isIn( ch, classWord ); }

RT_BOOL telsx___CharIsHexdig( RT_CHAR ch, int64_t *value )
{
    bool member = isIn( ch, classHexdig );
    if ( value )
        *value = member ? static_cast<int64_t>( ch <= '9' ? ch - '0' : ( ch | 0x20 ) - 'a' + 10 ) : -1;
    return member;
}
