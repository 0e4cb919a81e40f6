// Character classes, core skippers and the elements that are single tokens.
#include "telsx_support.hpp"

using namespace support;

TEST( Char, ClassesHaveTheirMembers )
{
    const std::string alpha = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", digit = "0123456789",
                      alphanum = alpha + digit, mark = "-_.!~*'()";
    struct
    {
        const char *name;
        RT_BOOL ( *isMember )( RT_CHAR ch );
        std::string members;
        std::size_t count;
    } classes[] = {
        { "alpha", telsx___CharIsAlpha, alpha, 52 },
        { "digit", telsx___CharIsDigit, digit, 10 },
        { "alphanum", telsx___CharIsAlphanum, alphanum, 62 },
        { "lws", telsx___CharIsLws, " \t", 2 },
        { "mark", telsx___CharIsMark, mark, 9 },
        { "unreserved", telsx___CharIsUnreserved, alphanum + mark, 71 },
        { "reserved", telsx___CharIsReserved, ";/?:@&=+$,", 10 },
        { "hnv-unreserved", telsx___CharIsHnvUnreserved, "[]/?:+$", 7 },
        { "paramchar", telsx___CharIsParamChar, alphanum + mark + "[]/:&+$%", 79 },
        { "separator", telsx___CharIsSeparator, "()<>@,;:\\\"/[]?={} \t", 19 },
        { "token", telsx___CharIsToken, alphanum + "-.!%*_+`'~", 72 },
        { "token-nodot", telsx___CharIsTokenNodot, alphanum + "-!%*_+`'~", 71 },
        { "atom", telsx___CharIsAtom, alphanum + "-!%*_+`'~", 71 },
        { "word", telsx___CharIsWord, alphanum + "-.!%*_+`'~()<>:\\\"/[]?{}", 85 },
    };
    for ( auto &[name, isMember, members, count] : classes )
    {
        EXPECT_EQ( count, members.size() ) << name;
        for ( RT_CHAR ch = 0; ch < 0x80; ++ch )
            EXPECT_EQ( members.find( static_cast<char>( ch ) ) != members.npos, isMember( ch ) != 0 )
                << name << " " << ch;
        for ( RT_CHAR base : { 0x80u, 0x100u, 0x10000u, 0x80000000u } )
            for ( RT_CHAR ch = 0; ch < 0x80; ++ch )
                EXPECT_FALSE( isMember( base + ch ) ) << name << " " << base + ch;
    }
}

TEST( Char, HexDigitsHaveValues )
{
    const std::string digits = "0123456789abcdefABCDEF";
    for ( RT_CHAR ch = 0; ch < 0x180; ++ch )
    {
        std::size_t at = ch < 0x80 ? digits.find( static_cast<char>( ch ) ) : digits.npos;
        int64_t expected = at == digits.npos ? -1 : static_cast<int64_t>( at < 16 ? at : at - 6 ), value = 99;
        EXPECT_EQ( expected != -1, telsx___CharIsHexdig( ch, &value ) != 0 ) << ch;
        EXPECT_EQ( expected, value ) << ch;
        EXPECT_EQ( expected != -1, telsx___CharIsHexdig( ch, nullptr ) != 0 ) << ch;
    }
}

TEST( Skip, MeasuresElements )
{
#define SKIPPER( NAME ) #NAME, telsx___Skip##NAME
    struct
    {
        const char *name;
        rt::Skipper skip;
        std::vector<std::pair<std::string, int64_t>> cases;
    } skippers[] = {
        { SKIPPER( Digits ), { { "0123", 4 }, { "12a", 2 }, { "a12", 0 }, { "-1", 0 }, { "１", 0 } } },
        { SKIPPER( Token ), { { "a=b", 1 }, { "a.b c", 3 }, { "%41", 3 }, { "ä", 0 }, { " a", 0 } } },
        { SKIPPER( TokenNodot ), { { "a.b", 1 }, { ".b", 0 }, { "a-b", 3 } } },
        { SKIPPER( Word ), { { "a=b", 1 }, { "a/b", 3 }, { "a@b", 1 }, { "<[{()}]>\"\\", 10 } } },
        { SKIPPER( Atom ), { { "a.b", 1 }, { "a'b", 3 } } },
        { SKIPPER( Sws ), { { " \t a", 3 }, { "a", 0 }, { "\r\n ", 0 }, { "\u00A0", 0 } } },
        { SKIPPER( Lws ), { { " \t a", 3 }, { "a", 0 } } },
        { SKIPPER( Colon ), { { " : x", 3 }, { ":", 1 }, { "  a", 0 }, { "  ", 0 } } },
        { SKIPPER( Hcolon ), { { "\t:\t", 3 }, { "::", 1 } } },
        { SKIPPER( Comma ), { { ",, ", 1 }, { " , ", 3 }, { ";", 0 } } },
        { SKIPPER( Equal ), { { " = a", 3 } } },
        { SKIPPER( Lparen ), { { " ( a", 3 }, { ")", 0 } } },
        { SKIPPER( Rparen ), { { " ) a", 3 }, { "(", 0 } } },
        { SKIPPER( Semi ), { { " ; a", 3 }, { "  a", 0 } } },
        { SKIPPER( Slash ), { { " / a", 3 }, { "\\", 0 } } },
        { SKIPPER( Star ), { { " * a", 3 } } },
        { SKIPPER( Laquot ), { { " < a", 2 }, { ">", 0 } } },
        { SKIPPER( Ldquot ), { { " \" a", 2 }, { "'", 0 } } },
        { SKIPPER( Raquot ), { { "> a", 2 }, { " >", 0 } } },
        { SKIPPER( Rdquot ), { { "\" a", 2 }, { " \"", 0 } } },
        { SKIPPER( DotAtom ),
          { { "a.b.", 3 }, { ".a", 0 }, { "a..b", 1 }, { "a.b.c d", 5 }, { "a. b", 1 }, { ".", 0 } } },
        { SKIPPER( QuotedString ), { { " \t \"\"", 5 }, { "\"\" ", 2 },        { "\"a\"b\"", 3 },
                                     { "  ", 0 },       { "\"", 0 },           { "\"a", 0 },
                                     { "\"\\", 0 },     { "\"\\\"", 0 },       { "\"\\\"\"", 4 },
                                     { "\"\\\\\"", 4 }, { "\"\\ä\"", 4 },      { "\"\\\x01\"", 4 },
                                     { "\"a\nb\"", 0 }, { "\"a\rb\"", 0 },     { "\"\\\n\"", 0 },
                                     { "\"\\\r\"", 0 }, { "\"\x01\x7F\"", 4 }, { "\"ä\U0001F600\"", 4 },
                                     { "a\"\"", 0 },    { "\"(\"", 3 } } },
        { SKIPPER( Comment ),
          { { "(a(b)c)  ", 9 }, { "()", 2 },       { "(a", 0 },     { "(a))", 3 },    { " ( ) x", 5 },
            { "((( ) ) )", 9 }, { "(()", 0 },      { "(\\))", 4 },  { "(\\()", 4 },   { "(\\", 0 },
            { "(\\\n)", 0 },    { "(\\\x01)", 4 }, { "(\x01)", 0 }, { "(\x7F)", 0 },  { "(\r)", 0 },
            { "(\n)", 0 },      { "(\t\"ä~)", 6 }, { "a(b)", 0 },   { "(\"(\")", 0 }, { "(a)(b)", 3 } } },
    };
#undef SKIPPER
    for ( auto &[name, skip, cases] : skippers )
    {
        EXPECT_EQ( 0, skip( nullptr, 0 ) ) << name;
        for ( auto &[text, count] : cases )
            EXPECT_EQ( count, applied( skip, text ) ) << name << " on " << text;
    }
    std::string nul( "\"\\\0\"", 4 );
    EXPECT_EQ( 4, applied( telsx___SkipQuotedString, nul ) );
}

TEST( Skip, NestsCommentsWithoutLimit )
{
    std::string open( 200'000, '(' ), close( 200'000, ')' );
    EXPECT_EQ( 400'000, applied( telsx___SkipComment, open + close ) );
    EXPECT_EQ( 0, applied( telsx___SkipComment, open + close.substr( 1 ) ) );
}

TEST( Skip, MatchesLiteralText )
{
    struct
    {
        const char *text, *skipped;
        int64_t exact, folded;
    } cases[] = {
        { "via: x", "via", 3, 3 }, { "VIA", "via", 0, 3 }, { "vIa", "ViA", 0, 3 }, { "vi", "via", 0, 0 },
        { "vix", "via", 0, 0 },    { "via", "", 0, 0 },    { "", "", 0, 0 },       { "", "a", 0, 0 },
        { "Ä", "ä", 0, 0 },        { "ä", "ä", 1, 1 },     { "@[", "`{", 0, 0 },   { "\u212A", "k", 0, 0 },
    };
    for ( auto &[text, skipped, exact, folded] : cases )
    {
        std::vector<RT_CHAR> chs = codePoints( text ), skip = codePoints( skipped );
        EXPECT_EQ( exact,
                   telsx___SkipChars( chs.data(), std::ssize( chs ), skip.data(), std::ssize( skip ) ) )
            << text;
        EXPECT_EQ( folded, telsx___SkipCharsAsciiCaseFold( chs.data(), std::ssize( chs ), skip.data(),
                                                           std::ssize( skip ) ) )
            << text;
    }
}

TEST( Skip, MatchesOneCharacter )
{
    struct
    {
        const char *text;
        int64_t bare, before, behind, around; // with white space there
    } cases[] = {
        { "", 0, 0, 0, 0 },     { ";", 1, 1, 1, 1 },     { "; \t;", 1, 1, 3, 3 },
        { " \t;", 0, 3, 0, 3 }, { "  ; ;", 0, 3, 0, 4 }, { "  x", 0, 0, 0, 0 },
        { "  ", 0, 0, 0, 0 },   { "x;", 0, 0, 0, 0 },    { "\r\n;", 0, 0, 0, 0 },
    };
    for ( auto &[text, bare, before, behind, around] : cases )
    {
        std::vector<RT_CHAR> chs = codePoints( text );
        EXPECT_EQ( bare, telsx___SkipChar( chs.data(), std::ssize( chs ), ';' ) ) << text;
        EXPECT_EQ( before, telsx___SkipSwsChar( chs.data(), std::ssize( chs ), ';' ) ) << text;
        EXPECT_EQ( behind, telsx___SkipCharSws( chs.data(), std::ssize( chs ), ';' ) ) << text;
        EXPECT_EQ( around, telsx___SkipSwsCharSws( chs.data(), std::ssize( chs ), ';' ) ) << text;
    }
}

TEST( Skip, AbortsForBrokenContracts )
{
    RT_CHAR ch = 'a';
    EXPECT_ABORT( telsx___SkipToken( &ch, -1 ), "length >= 0" );
    EXPECT_ABORT( telsx___SkipComment( nullptr, 1 ), "chs || length == 0" );
    EXPECT_ABORT( telsx___SkipDotAtom( nullptr, 1 ), "chs || length == 0" );
    EXPECT_ABORT( telsx___SkipChars( &ch, 1, &ch, -1 ), "skipLength >= 0" );
    EXPECT_ABORT( telsx___SkipCharsAsciiCaseFold( &ch, 1, nullptr, 1 ), "skipChs || skipLength == 0" );
    EXPECT_ABORT( telsx___SkipChar( &ch, 1, 0x110000 ), "RT_CHAR_OK( ch )" );
    EXPECT_ABORT( telsx___SkipSwsCharSws( nullptr, 0, 0x110000 ), "RT_CHAR_OK( ch )" );
}

TEST( Token, IsOneElementAllThrough )
{
    for ( auto isOk : { telsxTokenOk, telsxMethodOk, telsxProtocolNameOk, telsxProtocolVersionOk,
                        telsxMessageHeaderNameOk } )
    {
        for ( std::string_view text : list( "a", "INVITE", "-.!%*_+`'~", "0" ) )
            EXPECT_TRUE( isOk( str( text ).get() ) ) << text;
        for ( std::string_view text : list( "", " ", "a b", " a", "a ", "a:b", "a\tb", "a/b", "ä", "a\r\n" ) )
            EXPECT_FALSE( isOk( str( text ).get() ) ) << text;
        EXPECT_FALSE( isOk( str( { "a\0", 2 } ).get() ) );
    }
}

TEST( Token, HasANormalForm )
{
    Ref<RT_STRING> mixed = str( "aB%1" );
    EXPECT_EQ( "ab%1", utf8( telsxTokenNormalize( mixed.get() ) ) );
    EXPECT_EQ( "AB%1", utf8( telsxProtocolNameNormalize( mixed.get() ) ) );
    EXPECT_EQ( "ab%1", utf8( telsxProtocolVersionNormalize( mixed.get() ) ) );
    EXPECT_EQ( "aB%1", utf8( mixed ) );
    EXPECT_ABORT( telsxTokenNormalize( str( "" ).get() ), "telsxTokenOk( token )" );
    EXPECT_ABORT( telsxProtocolNameNormalize( str( "a b" ).get() ), "telsxProtocolNameOk( protocolName )" );
}
