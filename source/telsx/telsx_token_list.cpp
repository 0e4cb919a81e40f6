// The headers that are a list of tokens.
#include "telsx/telsx_token_list.hpp"

namespace telsx
{

bool decodeTokens( TokenList *list, HeaderLines &lines, Skipper skipToken,
                   RT_STRING ( *normalize )( RT_STRING ) )
{
    if ( lines.empty() )
        return false;
    ItemReader items( lines, skipToken, telsx___SkipComma );
    while ( items.next() )
        rt___VectorInsertTaken( list->tokens.address(), -1,
                                rt::asObj( normalize( items.takeItem().get() ) ) );
    return !items.failed();
}

} // namespace telsx
