// Reason value (RFC 3326).
#include "telsx/telsx_reason.h"

#include "telsx/telsx_quotable_string.h"
#include "telsx/telsx_reason_cause.h"
#include "telsx/telsx_reason_protocol.h"
#include "telsx/telsx_reason_text.h"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_REASON_
{
    RT_OBJECT object;
    Ref<RT_STRING> protocol;                 // never null
    Ref<RT_STRING> cause;                    // digits
    Ref<RT_STRING> text;                     // plain
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.protocol, self.cause, self.text, self.genericParams );
    }
};

TELSX_DEFINE_OBJECT( Reason, REASON, telsx___ReasonFreeFunc, nullptr, nullptr )
TELSX_DEFINE_FREE_FUNC( Reason, reason )
TELSX_DEFINE_FIELD( Reason, reason, Protocol, protocol, telsxReasonProtocolOk( protocol ) )
TELSX_DEFINE_OPTIONAL_FIELD( Reason, reason, Cause, cause, telsxReasonCauseOk( cause ) )
TELSX_DEFINE_OPTIONAL_FIELD( Reason, reason, Text, text, telsxReasonTextOk( text ) )
TELSX_DEFINE_FIELD( Reason, reason, GenericParams, genericParams, genericParams )

TELSX_REASON telsxReasonCreate( RT_STRING reasonProtocol )
{
    TELSX_ASSERT_OK( telsxReasonProtocolOk, reasonProtocol );
    TELSX_REASON reason = rt::create<TELSX_REASON_>( telsxReasonSort() );
    reason->protocol = share( reasonProtocol );
    reason->genericParams = noGenericParams();
    return reason;
}

RT_STRING telsx___ReasonEncode( TELSX_REASON reason )
{
    TELSX_ASSERT( reason );
    Ref<RT_STRING> text = reason->protocol;
    ParamWriter params( text );
    params.write<"cause">( reason->cause );
    params.write<"text">( reason->text, telsx___QuotableStringEncode );
    params.writeGeneric( reason->genericParams );
    return text.take();
}

TELSX_REASON telsx___ReasonTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    Text protocol = rest.take( telsx___SkipReasonProtocol );
    if ( !protocol )
        return nullptr;
    Ref<TELSX_REASON> reason = adopt( telsxReasonCreate( protocol.copy().get() ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.read<"cause">( reason->cause, telsx___SkipReasonCause );
        param.read<"text">( reason->text, telsx___SkipReasonText, telsx___QuotableStringTryDecode );
        param.storeGeneric( reason->genericParams );
    }
    return param.failed() ? nullptr : reason.take();
}
