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
    int known = 0;
    for ( int64_t sc = 100; sc <= 999; ++sc )
    {
        EXPECT_TRUE( telsxStatusCodeOk( sc ) ) << sc;
        for ( int64_t i = 0; i < std::ssize( classes ); ++i )
            EXPECT_EQ( sc / 100 == i + 1, classes[i]( sc ) != 0 ) << sc;
        known +=
            utf8( telsxStatusCodeReasonPhrase( sc ) ) != "Unknown reason \"" + std::to_string( sc ) + "\"";
    }
    EXPECT_EQ( 57, known );
    for ( auto [sc, phrase] : { std::pair( 100, "Trying" ),
                                { 183, "Session progress" },
                                { 414, "Request-URI too long" },
                                { 481, "Call leg/transaction does not exist" },
                                { 606, "Not acceptable" } } )
        EXPECT_EQ( phrase, utf8( telsxStatusCodeReasonPhrase( sc ) ) );
    EXPECT_EQ( "Unknown reason \"411\"", utf8( telsxStatusCodeReasonPhrase( 411 ) ) );
    EXPECT_ABORT( telsxStatusCodeReasonPhrase( TELSX_STATUS_CODE_INVALID ), "telsxStatusCodeOk( sc )" );
}

TEST( WarnCode, HasTextAndDigits )
{
    int known = 0;
    for ( int64_t code = 0; code <= 999; ++code )
    {
        EXPECT_EQ( std::to_string( code ), utf8( telsx___WarnCodeEncode( code ) ) );
        known += !utf8( telsxWarnCodeToString( code ) ).starts_with( "Warning \"" );
    }
    EXPECT_EQ( 12, known );
    EXPECT_EQ( "Warning \"007\"", utf8( telsxWarnCodeToString( 7 ) ) );
    EXPECT_EQ( "Media type not available", utf8( telsxWarnCodeToString( 304 ) ) );
    EXPECT_EQ( "Miscellaneous warning", utf8( telsxWarnCodeToString( 399 ) ) );
    EXPECT_EQ( 7, applied( telsx___WarnCodeDecode, "007" ) );
    EXPECT_ABORT(
        applied( telsx___WarnCodeDecode, "39x" ),
        "rtFormatTryDecodeIntChars( chs, length, 10, &result, &charsRead ) && charsRead == length" );
    EXPECT_ABORT( telsx___WarnCodeEncode( 1000 ), "telsxWarnCodeOk( warnCode )" );
}

TEST( ReasonPhrase, IsEscapedOnTheWire )
{
    // The characters of ASCII that need no escape; all others do, and only they.
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
