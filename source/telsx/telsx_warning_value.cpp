// Warning value (RFC 3261, 20.43).
#include "telsx/telsx_warning_value.h"

#include "telsx/telsx_quotable_string.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_warn_agent.h"
#include "telsx/telsx_warn_code.h"
#include "telsx/telsx_warn_text.h"

using namespace telsx;

struct TELSX_WARNING_VALUE_
{
    RT_OBJECT object;
    int64_t warnCode;
    Ref<RT_STRING> warnAgent; // never null
    Ref<RT_STRING> warnText;  // plain, never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.warnCode, self.warnAgent, self.warnText );
    }
};

TELSX_DEFINE_OBJECT( WarningValue, WARNING_VALUE, telsx___WarningValueFreeFunc,
                     telsx___WarningValueCompareFunc, nullptr )
TELSX_DEFINE_FREE_FUNC( WarningValue, wv )
TELSX_DEFINE_COMPARE_FUNC( WarningValue, wv )
TELSX_DEFINE_GETTER( WarningValue, wv, WarnCode, warnCode )
TELSX_DEFINE_FIELD( WarningValue, wv, WarnAgent, warnAgent, telsxWarnAgentOk( warnAgent ) )
TELSX_DEFINE_FIELD( WarningValue, wv, WarnText, warnText, telsxWarnTextOk( warnText ) )

TELSX_WARNING_VALUE telsxWarningValueCreate( int64_t warnCode, RT_STRING warnAgent )
{
    TELSX_ASSERT( telsxWarnCodeOk( warnCode ) );
    return telsxWarningValueCreateWithWarnText( warnCode, warnAgent,
                                                adopt( telsxWarnCodeToString( warnCode ) ).get() );
}

TELSX_WARNING_VALUE telsxWarningValueCreateWithWarnText( int64_t warnCode, RT_STRING warnAgent,
                                                         RT_STRING warnText )
{
    TELSX_ASSERT( telsxWarnCodeOk( warnCode ) );
    TELSX_ASSERT_OK( telsxWarnAgentOk, warnAgent );
    TELSX_ASSERT_OK( telsxWarnTextOk, warnText );
    TELSX_WARNING_VALUE wv = rt::create<TELSX_WARNING_VALUE_>( telsxWarningValueSort() );
    wv->warnCode = warnCode;
    wv->warnAgent = share( warnAgent );
    wv->warnText = share( warnText );
    return wv;
}

void telsxWarningValueSetWarnCode( TELSX_WARNING_VALUE *wv, int64_t warnCode, RT_BOOL updateWarnText )
{
    TELSX_ASSERT_HANDLE( wv );
    TELSX_ASSERT( telsxWarnCodeOk( warnCode ) );
    TELSX_WARNING_VALUE own = TELSX_OWN( wv );
    own->warnCode = warnCode;
    if ( updateWarnText )
        own->warnText = adopt( telsxWarnCodeToString( warnCode ) );
}

RT_STRING telsx___WarningValueEncode( TELSX_WARNING_VALUE wv )
{
    TELSX_ASSERT( wv );
    return joined( adopt( telsx___WarnCodeEncode( wv->warnCode ) ), ' ', wv->warnAgent, ' ',
                   adopt( telsx___QuotableStringEncode( wv->warnText.get() ) ) )
        .take();
}

// Text after the warn-text is ignored: the code that cut the value from a list has checked it.
TELSX_WARNING_VALUE telsx___WarningValueTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Text code = rest.take( telsx___SkipWarnCode );
    if ( !code || !rest.take( telsx___SkipLws ) )
        return nullptr;
    Text agent = rest.take( telsx___SkipWarnAgent );
    if ( !agent || !rest.take( telsx___SkipLws ) )
        return nullptr;
    auto warnText = adopt( rest.take( telsx___SkipWarnText ).as( telsx___QuotableStringTryDecode ) );
    if ( !warnText )
        return nullptr;
    return telsxWarningValueCreateWithWarnText( code.as( telsx___WarnCodeDecode ), agent.copy().get(),
                                                warnText.get() );
}
