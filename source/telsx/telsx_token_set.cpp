// What the headers that are a set of tokens share.
#include "telsx/telsx_token_set.hpp"

namespace telsx
{

RT_BOOL hasToken( const TokenSet *set, const Ref<RT_STRING> &token )
{
    return rtDictHasStringKey( set->tokens.get(), token.get() );
}

void setToken( TokenSet *set, const Ref<RT_STRING> &token )
{
    rtDictSetStringKey( set->tokens.address(), token.get(), rtStringObj( token.get() ) );
}

void delToken( TokenSet *set, const Ref<RT_STRING> &token )
{
    rtDictDelStringKey( set->tokens.address(), token.get() );
}

bool decodeTokens( TokenSet *set, HeaderLines &lines, Skipper skipToken, Normalizer normalize,
                   Separator separator )
{
    if ( lines.empty() )
        return false;
    ItemReader items( lines, skipToken, separator.skip );
    while ( items.next() )
        setToken( set, adopt( normalize( items.takeItem().get() ) ) );
    return !items.failed();
}

TELSX_MESSAGE_HEADER encodeTokens( RT_STRING name, const TokenSet *set, RT_CHAR separator )
{
    return createHeaderOfItems( name, adopt( rtDictKeysVector( set->tokens.get() ) ), separator );
}

} // namespace telsx
