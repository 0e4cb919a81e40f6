// Content-Language header (RFC 3261, 20.13).
#include "telsx/telsx_header_content_language.h"

#include "telsx/telsx_language_tag.h"
#include "telsx/telsx_token_set.hpp"

using namespace telsx;

struct TELSX_HEADER_CONTENT_LANGUAGE_ : TokenSet
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderContentLanguage, HEADER_CONTENT_LANGUAGE, hdr, "Content-Language" )
TELSX_DEFINE_TOKEN_SET( HeaderContentLanguage, "Content-Language", LanguageTag, telsxLanguageTagNormalize,
                        comma )
