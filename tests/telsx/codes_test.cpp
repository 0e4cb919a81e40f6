// Status codes, reason phrases and warn codes.
#include "telsx_support.hpp"

using namespace support;

TEST( StatusCode, HasAClassAndAPhrase )
{
    for ( int64_t sc : { -1, 0, 99, 1000 } )
        EXPECT_FALSE( telsxStatusCodeOk( sc ) ) << sc;
    RT_BOOL( *const classes[] )
    ( int64_t sc ) = {
        telsxStatusCodeInformational, telsxStatusCodeSuccess,     telsxStatusCodeRedirection,
        telsxStatusCodeClientError,   telsxStatusCodeServerError, telsxStatusCodeGlobalFailure
    };
    std::string known;
    for ( int64_t sc = 100; sc <= 999; ++sc )
    {
        EXPECT_TRUE( telsxStatusCodeOk( sc ) ) << sc;
        for ( int64_t i = 0; i < std::ssize( classes ); ++i )
            EXPECT_EQ( sc / 100 == i + 1, classes[i]( sc ) != 0 ) << sc;
        std::string phrase = utf8( telsxStatusCodeReasonPhrase( sc ) ), number = std::to_string( sc );
        if ( phrase != "Unknown reason \"" + number + "\"" )
            known += number + " " + phrase + "\n";
    }
    EXPECT_EQ( "100 Trying\n180 Ringing\n181 Call is being forwarded\n182 Queued\n183 Session progress\n"
               "200 OK\n202 Accepted\n300 Multiple choices\n301 Moved permanently\n302 Moved temporarily\n"
               "305 Use proxy\n380 Alternative service\n400 Bad request\n401 Unauthorized\n"
               "402 Payment required\n403 Forbidden\n404 Not found\n405 Method not allowed\n"
               "406 Not acceptable\n407 Proxy authentication required\n408 Request timeout\n409 Conflict\n"
               "410 Gone\n412 Length required\n413 Request entity too large\n414 Request-URI too long\n"
               "415 Unsupported media type\n416 Unsupported URI scheme\n420 Bad extension\n"
               "421 Extension required\n422 Session interval too small\n423 Interval too brief\n"
               "429 Provide referrer identity\n480 Temporarily not available\n"
               "481 Call leg/transaction does not exist\n482 Loop detected\n483 Too many hops\n"
               "484 Address incomplete\n485 Ambiguous\n486 Busy here\n487 Request terminated\n"
               "488 Not acceptable here\n489 Bad event\n491 Request pending\n493 Undecipherable\n"
               "500 Internal server error\n501 Not implemented\n502 Bad gateway\n503 Service unavailable\n"
               "504 Server timeout\n505 SIP version not supported\n513 Message too large\n"
               "580 Precondition failed\n600 Busy everywhere\n603 Decline\n604 Does not exist anywhere\n"
               "606 Not acceptable\n",
               known );
    EXPECT_ABORT( telsxStatusCodeReasonPhrase( TELSX_STATUS_CODE_INVALID ), "telsxStatusCodeOk( sc )" );
}

TEST( WarnCode, HasTextAndDigits )
{
    std::string known;
    for ( int64_t code = 0; code <= 999; ++code )
    {
        EXPECT_EQ( std::to_string( code ), utf8( telsx___WarnCodeEncode( code ) ) );
        std::string text = utf8( telsxWarnCodeToString( code ) );
        if ( !text.starts_with( "Warning \"" ) )
            known += std::to_string( code ) + " " + text + "\n";
    }
    EXPECT_EQ( "300 Incompatible network protocol\n301 Incompatible network address formats\n"
               "302 Incompatible transport protocol\n303 Incompatible bandwidth units\n304 Media type not "
               "available\n"
               "305 Incompatible media format\n306 Attribute not understood\n"
               "307 Session description parameter not understood\n330 Multicast not available\n"
               "331 Unicast not available\n370 Insufficient bandwidth\n399 Miscellaneous warning\n",
               known );
    EXPECT_EQ( "Warning \"007\"", utf8( telsxWarnCodeToString( 7 ) ) );
    EXPECT_EQ( 7, applied( telsx___WarnCodeDecode, "007" ) );
    EXPECT_ABORT(
        applied( telsx___WarnCodeDecode, "39x" ),
        "rtFormatTryDecodeIntChars( chs, length, 10, &result, &charsRead ) && charsRead == length" );
    EXPECT_ABORT( telsx___WarnCodeEncode( 1000 ), "telsxWarnCodeOk( warnCode )" );
}

TEST( ReasonPhrase, IsEscapedOnTheWire )
{
    // The ASCII characters that need no escape; all other characters need one.
    const std::string plain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789;/?:@&=+$,-_.!~*'() \t";
    for ( RT_CHAR ch = 0; ch < 0x180; ++ch )
    {
        Ref<RT_STRING> phrase = adopt( rtStringCreateFromCharsCopy( &ch, 1 ) );
        EXPECT_TRUE( telsxReasonPhraseOk( phrase.get() ) );
        Ref<RT_STRING> encoded = adopt( telsx___ReasonPhraseEncode( phrase.get() ) );
        bool isPlain = ch >= 0x80 || plain.find( static_cast<char>( ch ) ) != plain.npos;
        char escape[8];
        std::snprintf( escape, sizeof escape, "%%%02X", ch );
        EXPECT_EQ( isPlain ? utf8( phrase ) : escape, utf8( encoded ) );
        EXPECT_EQ( phrase, adopt( telsx___ReasonPhraseDecode( rtStringBacking( encoded.get() ),
                                                              rtStringLength( encoded.get() ) ) ) );
    }
    for ( auto [wire, phrase] : { std::pair( "", "" ),
                                  { "%41%6a%4A", "AjJ" },
                                  { "%", "%" },
                                  { "%4", "%4" },
                                  { "%zz%4", "%zz%4" },
                                  { "%%41", "%A" },
                                  { "%2541", "%41" },
                                  { "a%4g%41b", "a%4gAb" },
                                  { "%C3%A4", "\u00C3\u00A4" } } )
        EXPECT_EQ( phrase, utf8( applied( telsx___ReasonPhraseDecode, wire ) ) );
    EXPECT_EQ( "a%22b%25", utf8( telsx___ReasonPhraseEncode( str( "a\"b%" ).get() ) ) );
}
