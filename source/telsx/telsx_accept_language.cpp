// Accept-Language value (RFC 3261, 20.3).
#include "telsx/telsx_accept_language.h"

#include "telsx/telsx_accept_of_text.hpp"
#include "telsx/telsx_language_tag.h"

using namespace telsx;

struct TELSX_ACCEPT_LANGUAGE_
{
    RT_OBJECT object;
    Ref<RT_STRING> languageRange;            // lower case; null for the star
    int64_t qvalue;                          // thousandths
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.languageRange, self.qvalue, self.genericParams );
    }
};

TELSX_DEFINE_ACCEPT_OF_TEXT( AcceptLanguage, ACCEPT_LANGUAGE, acceptLanguage, LanguageRange, languageRange,
                             LanguageTag )

int64_t telsx___SkipAcceptLanguage( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t tag = telsx___SkipLanguageTag( chs, length );
    return skipWithParams( { chs, length }, tag ? tag : telsx___SkipChar( chs, length, '*' ) );
}
