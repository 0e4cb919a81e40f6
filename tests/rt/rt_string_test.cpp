// Strings, their formats, and numbers in text.
#include <cstdarg>

#include "model.hpp"

using namespace support;
using model::Random;
using model::texts;

static Ref<RT_STRING> inner( const Ref<RT_STRING> &string, int64_t offset, int64_t length )
{
    return adopt( rtStringCreateFromInner( string.get(), offset, length ) );
}

static std::string spaces( std::size_t count ) { return std::string( count, ' ' ); }

TEST( RtString, TakesTextOfThreeWidths )
{
    EXPECT_EQ( "aÿ", utf8( rtStringCreateFromCstr( "a\xFF", -1 ) ) );
    EXPECT_EQ( "a", utf8( rtStringCreateFromCstr( "abc", 1 ) ) );
    EXPECT_EQ( "a€", utf8( rtStringCreateFromWcstr( L"a€", -1 ) ) );
    const RT_CHAR chs[] = { 'a', 0x1F600, 0 };
    EXPECT_EQ( "a😀", utf8( rtStringCreateFromCharsCopy( chs, -1 ) ) );
    EXPECT_EQ( 3, rtStringLength( adopt( rtStringCreateFromCharsCopy( chs, 3 ) ).get() ) );
    EXPECT_EQ( "", utf8( rtStringCreateFromCharsCopy( nullptr, 0 ) ) );
}

TEST( RtString, PartsShareTheTextWhereThatIsCheap )
{
    Ref<RT_STRING> whole = str( spaces( 1000 ) + "some text" );
    const RT_CHAR *begin = rtStringBacking( whole.get() ), *end = begin + rtStringLength( whole.get() );
    auto isShared = [&]( const Ref<RT_STRING> &part )
    {
        const RT_CHAR *backing = rtStringBacking( part.get() );
        return backing >= begin && backing < end;
    };
    Ref<RT_STRING> large = inner( whole, 1, -1 ), ofLarge = inner( large, 1, 900 ),
                   small = inner( whole, 1000, 4 );
    EXPECT_TRUE( isShared( large ) );
    EXPECT_TRUE( isShared( ofLarge ) );
    EXPECT_FALSE( isShared( small ) );
    EXPECT_FALSE( isShared( inner( ofLarge, 0, 20 ) ) );
    EXPECT_EQ( "some", utf8( small ) );
    EXPECT_EQ( whole.get(), inner( whole, 0, -1 ).get() );

    // The parts outlive the whole, and changing one leaves the others alone.
    Ref<RT_STRING> other = ofLarge;
    rtStringSetCharAt( large.address(), 0, 'x' );
    rtStringAppendChar( ofLarge.address(), 'y' );
    whole = {};
    EXPECT_EQ( "x" + spaces( 998 ) + "some text", utf8( large ) );
    EXPECT_EQ( spaces( 900 ) + "y", utf8( ofLarge ) );
    EXPECT_EQ( spaces( 900 ), utf8( other ) );
}

using Side = model::Side<RT_STRING, std::u32string>;

static void step( Side &side, const Side &other, Random &random )
{
    Ref<RT_STRING> &real = side.real;
    std::u32string &text = side.model;
    const std::u32string source = other.model;
    auto first = static_cast<std::size_t>( random.upTo( source.size() ) ),
         count = static_cast<std::size_t>( random.upTo( source.size() - first ) );
    std::u32string run( static_cast<std::size_t>( random.below( 20 ) ),
                        U'a' + char32_t( random.below( 300 ) ) );
    auto *chs = reinterpret_cast<const RT_CHAR *>( run.data() );
    int64_t place = text.empty() ? 0 : random.below( std::ssize( text ) );
    const std::function<void()> actions[] = {
        [&] { rtStringAppendChars( real.address(), chs, std::ssize( run ) ), text += run; },
        [&] { rtStringAppendChar( real.address(), 0x10FFFF ), text += U'\x10FFFF'; },
        [&] { rtStringAppend( real.address(), other.real.get() ), text += source; },
        [&] { rtStringAppendCstr( real.address(), "abc", 2 ), text += U"ab"; },
        [&]
        {
            if ( !text.empty() )
                rtStringSetCharAt( real.address(), place, 'z' ),
                    text[static_cast<std::size_t>( place )] = U'z';
        },
        [&]
        {
            real = inner( other.real, static_cast<int64_t>( first ), static_cast<int64_t>( count ) );
            text = source.substr( first, count );
        },
        [&] { real = inner( real, 0, std::ssize( text ) / 3 ), text.resize( text.size() / 3 ); },
    };
    text.size() > 3000 ? std::end( actions )[-1]() : random.act( actions );
}

TEST( RtString, ActsLikeItsModel )
{
    auto same = []( const Side &side )
    {
        auto *expected = reinterpret_cast<const RT_CHAR *>( side.model.data() );
        EXPECT_TRUE( rtStringEqualsChars( side.real.get(), expected, std::ssize( side.model ) ) );
    };
    model::run<std::u32string>( adopt( rtStringCreate() ), 20000, step, same );
}

TEST( RtString, OrdersByCodePointAndAPrefixFirst )
{
    auto make = []( const char *text ) { return rtStringObj( str( text ).take() ); };
    model::expectAscending( make, "", "a", "ab", "b", "é", "\uFFFD", "😀" );
}

TEST( RtString, Finds )
{
    for ( auto [in, offset, what] : { std::tuple( "abcabc", 1, "bc" ),
                                      { "abcabc", 2, "bc" },
                                      { "abcabc", 5, "bc" },
                                      { "aab", 0, "ab" },
                                      { "ab", 0, "abc" },
                                      { "", 0, "a" },
                                      { "ab", 2, "" } } )
    {
        Ref<RT_STRING> needle = str( what );
        Text text = rt::textOf( needle );
        auto at =
            static_cast<int64_t>( std::string_view( in ).find( what, static_cast<std::size_t>( offset ) ) );
        EXPECT_EQ( at, rtStringFindChars( str( in ).get(), offset, text.chs, text.length ) ) << in << what;
    }
}

TEST( RtString, Splits )
{
    using Pieces = std::vector<std::string>;
    struct
    {
        const char *text;
        int64_t maxParts;
        Pieces pieces;
    } cases[] = {
        { "", -1, { "" } },
        { ";a;;b;", -1, { "", "a", "", "b", "" } },
        { "a;b;c", 1, { "a;b;c" } },
        { "a;b;c", 2, { "a", "b;c" } },
        { "a;b;c", 4, { "a", "b", "c" } },
    };
    for ( auto &[text, maxParts, pieces] : cases )
        EXPECT_EQ( pieces, texts( adopt( rtStringSplitChar( str( text ).get(), ';', maxParts ) ) ) ) << text;
    const RT_CHAR crLf[] = { '\r', '\n', 0 };
    for ( int64_t length : { 2, -1 } )
        EXPECT_EQ( ( Pieces{ "a\rb", "", "\n" } ),
                   texts( adopt( rtStringSplitChars( str( "a\rb\r\n\r\n\n" ).get(), crLf, length, -1 ) ) ) );
    EXPECT_ABORT( rtStringSplitChar( str( "a" ).get(), ';', 0 ), "maxParts > 0 || maxParts == -1" );
}

// The simple mappings of Unicode, which keep the number of code points.
TEST( RtString, MapsCase )
{
    struct
    {
        const char *text, *lower, *upper;
    } cases[] = {
        { "azAZ09@[`{ßİıÿ", "azaz09@[`{ßiıÿ", "AZAZ09@[`{ßİIŸ" },
        { "ΣΑΣςǅ𐐨𐐀", "σασςǆ𐐨𐐨", "ΣΑΣΣǄ𐐀𐐀" },
    };
    for ( auto &[text, lower, upper] : cases )
    {
        Ref<RT_STRING> original = str( text ), lowered = original, uppered = original;
        rtStringToLower( lowered.address() );
        rtStringToUpper( uppered.address() );
        EXPECT_EQ( lower, utf8( lowered ) );
        EXPECT_EQ( upper, utf8( uppered ) );
        EXPECT_EQ( text, utf8( original ) );
    }
    RT_CHAR mapping = 7;
    EXPECT_EQ( 0, rt___UnicodeUpperCaseDbLookup( 0x110000, &mapping ) );
    EXPECT_EQ( 7u, mapping );
    EXPECT_EQ( 1, rt___UnicodeUpperCaseDbLookup( 0xE9, &mapping ) );
    EXPECT_EQ( 0xC9u, mapping );
}

static std::string format( const char *text, ... )
{
    va_list args;
    va_start( args, text );
    std::string result = utf8( rtStringCreateFromFormatCstrArgList( text, -1, args ) );
    va_end( args );
    va_start( args, text );
    EXPECT_EQ( result, utf8( rtStringCreateFromFormatArgList( str( text ).get(), args ) ) );
    va_end( args );
    return result;
}

TEST( RtString, FormatsAndDelimits )
{
    Ref<RT_STRING> text = str( "€" );
    EXPECT_EQ( "", format( "" ) );
    EXPECT_EQ( "100%", format( "100%%" ) );
    EXPECT_EQ( "0 -1 12", format( "%i %i %i", int64_t{ 0 }, int64_t{ -1 }, int64_t{ 12 } ) );
    EXPECT_EQ( "-9223372036854775808 9223372036854775807", format( "%i %i", INT64_MIN, INT64_MAX ) );
    EXPECT_EQ( "05 55 555", format( "%02i %02i %02i", int64_t{ 5 }, int64_t{ 55 }, int64_t{ 555 } ) );
    EXPECT_EQ( "0A FF", format( "%^02!16i %^02!16i", int64_t{ 10 }, int64_t{ 255 } ) );
    EXPECT_EQ( "0 07 099", format( "%.*A %.*A %.*A", int64_t{ 9 }, int64_t{ 0 }, int64_t{ 10 }, int64_t{ 7 },
                                   int64_t{ 100 }, int64_t{ 99 } ) );
    EXPECT_EQ( "<€>", format( "<%s>", text.get() ) );
    EXPECT_EQ( "x€7", utf8( rtStringCreateFromFormatCstr( "x%~s%i", -1, text.retained(), int64_t{ 7 } ) ) );
    // The string may be one of its own arguments.
    rtStringAppendFormatCstr( text.address(), "+%s%s!", -1, text.get(), text.get() );
    EXPECT_EQ( "€+€€!", utf8( text ) );
    rtStringDelimitedAppendCharDelimiter( text.address(), text.get(), ',' );
    EXPECT_EQ( "€+€€!,€+€€!", utf8( text ) );
    Ref<RT_STRING> list = adopt( rtStringCreate() );
    for ( const char *item : { "", "a", "b" } )
        rtStringDelimitedAppendCharDelimiter( list.address(), str( item ).get(), ',' );
    EXPECT_EQ( "a,b", utf8( list ) );
    for ( const char *bad : { "%", "%d", "%0", "%.i" } )
        EXPECT_ABORT( rtStringCreateFromFormatCstr( bad, -1, int64_t{ 1 }, int64_t{ 1 } ), "format" );
    EXPECT_ABORT( rtStringCreateFromFormatCstr( "%s", -1, nullptr ), "other" );
}

TEST( RtString, ReadsNumbers )
{
    struct
    {
        std::string text;
        int64_t radix, number, digits;
    } cases[] = {
        { "12x", 10, 12, 2 },
        { std::string( 100, '0' ) + "7", 10, 7, 101 },
        { "9223372036854775807", 10, INT64_MAX, 19 },
        { "9223372036854775807x", 10, INT64_MAX, 19 },
        { "7fffffffffffffff", 16, INT64_MAX, 16 },
        { "102", 2, 2, 2 },
        { "zZ", 36, 35 * 36 + 35, 2 },
        { "1Y2p0IJ32E8E7", 36, INT64_MAX, 13 },
    };
    for ( auto &[text, radix, number, digits] : cases )
    {
        int64_t value = -7, consumed = -7;
        EXPECT_TRUE( rtStringScanInt( str( text ).get(), 0, -1, radix, &value, &consumed ) ) << text;
        EXPECT_EQ( number, value );
        EXPECT_EQ( digits, consumed );
    }
    int64_t value = -7, consumed = -7;
    for ( const std::string &text :
          { std::string( 100, '9' ), std::string( "9223372036854775808" ),
            std::string( "18446744073709551617" ), std::string(), std::string( "x" ), std::string( "-1" ),
            std::string( " 1" ), std::string( "٣" ) } )
        EXPECT_FALSE( rtStringScanInt( str( text ).get(), 0, -1, 10, &value, &consumed ) ) << text;
    EXPECT_FALSE( rtStringScanInt( str( "1y2p0ij32e8e8" ).get(), 0, -1, 36, &value, &consumed ) );
    EXPECT_FALSE( rtStringScanInt( str( "8000000000000000" ).get(), 0, -1, 16, &value, &consumed ) );
    EXPECT_EQ( -14, value + consumed );
    EXPECT_TRUE( rtStringScanInt( str( "x1234" ).get(), 2, 2, 10, &value, nullptr ) );
    EXPECT_EQ( 23, value );
    EXPECT_FALSE( rtFormatTryDecodeIntChars( nullptr, 0, 10, &value, nullptr ) );
    EXPECT_ABORT( rtFormatTryDecodeIntChars( nullptr, 0, 37, &value, nullptr ), "radix >= 2 && radix <= 36" );
}

TEST( RtString, AbortsForBreaches )
{
    Ref<RT_STRING> string = str( "ab" );
    EXPECT_ABORT( rtStringCharAt( string.get(), 2 ), "index >= 0 && index < string->length" );
    EXPECT_ABORT( rtStringCreateFromInner( string.get(), 1, 2 ),
                  "length >= -1 && length <= string->length - offset" );
}
