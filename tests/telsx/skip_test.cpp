// Character classes, and what the skippers match.
#include "../../fuzz/elements.hpp"
#include "telsx/telsx_support.hpp"

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
    const struct
    {
        const char *names;
        std::vector<const char *> texts;
    } rows[] = {
#include "telsx/rows_skips.def"
    };
    for ( auto &[names, texts] : rows )
        for ( const std::string &name : words( names ) )
            for ( const char *text : texts )
            {
                SCOPED_TRACE( name );
                expectStop( elements::named( name ).skip, text );
            }
    EXPECT_EQ( 4, applied( telsx___SkipQuotedString, { "\"\\\0\"", 4 } ) );
}

TEST( Skip, NestsCommentsWithoutLimit )
{
    std::string open( 200'000, '(' ), close( 200'000, ')' );
    EXPECT_EQ( 400'000, applied( telsx___SkipComment, open + close ) );
    EXPECT_EQ( 0, applied( telsx___SkipComment, open + close.substr( 1 ) ) );
}

// Only ASCII letters have two cases.
TEST( Skip, FoldsLetters )
{
    for ( auto [text, skipped, length] : { std::tuple( "vIa:", "ViA", 3 ),
                                           { "@[", "`{", 0 },
                                           { "`{", "@[", 0 },
                                           { "\u212A", "k", 0 },
                                           { "Ä", "ä", 0 },
                                           { "ä", "ä", 1 },
                                           { "a", "", 0 } } )
    {
        std::vector<RT_CHAR> chs = codePoints( text ), skip = codePoints( skipped );
        EXPECT_EQ( length, telsx___SkipCharsAsciiCaseFold( chs.data(), std::ssize( chs ), skip.data(),
                                                           std::ssize( skip ) ) )
            << text;
    }
}

TEST( Skip, NamesOfDates )
{
    auto expectNames = []( auto *skip, int64_t first, const char *names )
    {
        for ( const std::string &name : words( names ) )
        {
            std::vector<RT_CHAR> chs = codePoints( name + "x" );
            int64_t index = -7;
            EXPECT_EQ( 0, skip( chs.data(), 2, &index ) + skip( chs.data() + 1, 3, &index ) );
            EXPECT_EQ( -7, index ) << "untouched without a match";
            EXPECT_EQ( 3, skip( chs.data(), 4, &index ) );
            EXPECT_EQ( first++, index ) << name;
        }
    };
    expectNames( telsx___SkipMonth, 1, "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec" );
    expectNames( telsx___SkipWkday, 0, "Mon Tue Wed Thu Fri Sat Sun" );
}

// What all of them require of their text is tested in tests/aborts.
TEST( Skip, AbortsForBrokenContracts )
{
    RT_CHAR ch = 'a';
    EXPECT_ABORT( telsx___SkipChars( &ch, 1, &ch, -1 ), "skipLength >= 0" );
    EXPECT_ABORT( telsx___SkipCharsAsciiCaseFold( &ch, 1, nullptr, 1 ), "skipChs || skipLength == 0" );
    EXPECT_ABORT( telsx___SkipChar( &ch, 1, 0x110000 ), "RT_CHAR_OK( ch )" );
    EXPECT_ABORT( telsx___SkipSwsCharSws( nullptr, 0, 0x110000 ), "RT_CHAR_OK( ch )" );
}
