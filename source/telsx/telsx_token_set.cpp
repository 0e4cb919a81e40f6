// What the headers that are a set of tokens share.
#include "telsx/telsx_token_set.hpp"

namespace telsx
{

void setToken( Ref<RT_DICT> &tokens, const Ref<RT_STRING> &token )
{
    rtDictSetStringKey( tokens.address(), token.get(), rtStringObj( token.get() ) );
}

bool decodeTokens( Ref<RT_DICT> &tokens, HeaderLines &lines, Skipper skipToken, Normalizer normalize,
                   Separator separator )
{
    if ( lines.empty() )
        return false;
    ItemReader items( lines, skipToken, separator.skip );
    while ( items.next() )
        setToken( tokens, adopt( normalize( items.takeItem().get() ) ) );
    return !items.failed();
}

TELSX_MESSAGE_HEADER encodeTokens( RT_STRING name, const Ref<RT_DICT> &tokens, Separator separator )
{
    return createHeaderOfItems( name, adopt( rtDictKeysVector( tokens.get() ) ), separator.ch );
}

} // namespace telsx
