// Status code (RFC 3261, 7.2 and 21).
#include "telsx/telsx_status_code.h"

#include "telsx/telsx_codes.hpp"
#include "telsx/telsx_frame.hpp"

using namespace telsx;

RT_BOOL telsxStatusCodeOk( int64_t sc ) { return sc >= 100 && sc <= 999; }

RT_BOOL telsxStatusCodeInformational( int64_t sc )
{
    TELSX_ASSERT( telsxStatusCodeOk( sc ) );
    return sc / 100 == 1;
}

RT_BOOL telsxStatusCodeSuccess( int64_t sc )
{
    TELSX_ASSERT( telsxStatusCodeOk( sc ) );
    return sc / 100 == 2;
}

RT_BOOL telsxStatusCodeRedirection( int64_t sc )
{
    TELSX_ASSERT( telsxStatusCodeOk( sc ) );
    return sc / 100 == 3;
}

RT_BOOL telsxStatusCodeClientError( int64_t sc )
{
    TELSX_ASSERT( telsxStatusCodeOk( sc ) );
    return sc / 100 == 4;
}

RT_BOOL telsxStatusCodeServerError( int64_t sc )
{
    TELSX_ASSERT( telsxStatusCodeOk( sc ) );
    return sc / 100 == 5;
}

RT_BOOL telsxStatusCodeGlobalFailure( int64_t sc )
{
    TELSX_ASSERT( telsxStatusCodeOk( sc ) );
    return sc / 100 == 6;
}

static constexpr CodeText phrases[] = {
    { 100, "Trying" },
    { 180, "Ringing" },
    { 181, "Call is being forwarded" },
    { 182, "Queued" },
    { 183, "Session progress" },
    { 200, "OK" },
    { 202, "Accepted" },
    { 300, "Multiple choices" },
    { 301, "Moved permanently" },
    { 302, "Moved temporarily" },
    { 305, "Use proxy" },
    { 380, "Alternative service" },
    { 400, "Bad request" },
    { 401, "Unauthorized" },
    { 402, "Payment required" },
    { 403, "Forbidden" },
    { 404, "Not found" },
    { 405, "Method not allowed" },
    { 406, "Not acceptable" },
    { 407, "Proxy authentication required" },
    { 408, "Request timeout" },
    { 409, "Conflict" },
    { 410, "Gone" },
    { 412, "Length required" },
    { 413, "Request entity too large" },
    { 414, "Request-URI too long" },
    { 415, "Unsupported media type" },
    { 416, "Unsupported URI scheme" },
    { 420, "Bad extension" },
    { 421, "Extension required" },
    { 422, "Session interval too small" },
    { 423, "Interval too brief" },
    { 429, "Provide referrer identity" },
    { 480, "Temporarily not available" },
    { 481, "Call leg/transaction does not exist" },
    { 482, "Loop detected" },
    { 483, "Too many hops" },
    { 484, "Address incomplete" },
    { 485, "Ambiguous" },
    { 486, "Busy here" },
    { 487, "Request terminated" },
    { 488, "Not acceptable here" },
    { 489, "Bad event" },
    { 491, "Request pending" },
    { 493, "Undecipherable" },
    { 500, "Internal server error" },
    { 501, "Not implemented" },
    { 502, "Bad gateway" },
    { 503, "Service unavailable" },
    { 504, "Server timeout" },
    { 505, "SIP version not supported" },
    { 513, "Message too large" },
    { 580, "Precondition failed" },
    { 600, "Busy everywhere" },
    { 603, "Decline" },
    { 604, "Does not exist anywhere" },
    { 606, "Not acceptable" },
};

RT_STRING telsxStatusCodeReasonPhrase( int64_t sc )
{
    TELSX_ASSERT( telsxStatusCodeOk( sc ) );
    return textOfCode( phrases, sc, "Unknown reason \"%03i\"" );
}
