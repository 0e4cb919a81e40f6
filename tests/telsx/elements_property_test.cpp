// What holds for every element and every text (fuzz/elements.hpp), over generated text.
#include "../../fuzz/elements.hpp"
#include "rt/model.hpp"
#include "telsx/telsx_support.hpp"

using namespace support;
using elements::Element;
using model::Random;

// What the grammar tells apart: whole values and their parts, delimiters, and what may stand nowhere.
static constexpr auto pieces = list(
    "a", "Z", "0", "9", "00", "255", "399", ".", "-", "_", "%", "%41", "*", "/", ":", ";", ",", "=", "@", "?",
    "<", ">", "(", ")", "[", "]", "\"", "\\", "\\\"", "&", "|", " ", "  ", "\t", "\r", "\n", "\x01", "\x7F",
    "\u00E9", "\u0130", "\u212A", "\u00A0", "\U0001F600", "\U0010FFFF", "uac", "UAS", "Jan", "Sun", "SIP",
    "SIP/2.0/UDP ", "sip:a", "<sip:a>", "\"q \\\" r\"", "\"\"", "(c)", ";p", ";p=v", ";p=\"v\"",
    ";received=::1", "received=1.2.3.4", "[::1]", "::1", "1.2.3.4", "xn--mnchen-3ya", "a.b", "a@b", "a/1",
    "text/*", "399 h \"t\"", "0.5", "1.000", "<urn:a>", "18446744073709551616" );

static std::string generated( Random &random )
{
    std::string text;
    for ( int64_t count = random.below( 7 ); count > 0; --count )
        text += pieces[static_cast<std::size_t>( random.below( std::ssize( pieces ) ) )];
    return text;
}

TEST( ElementsProperty, HoldForGeneratedText )
{
    Random random;
    int counted[std::size( elements::all )] = {};
    for ( int i = 0; i < 5000 && !HasFailure(); ++i )
    {
        Ref<RT_STRING> text = str( generated( random ) );
        for ( const Element &element : elements::all )
        {
            const char *property = elements::broken( element, rt::textOf( text ) );
            EXPECT_FALSE( property ) << element.name << ": " << property << ": " << utf8( text );
            if ( element.skip && element.skip( rtStringBacking( text.get() ), rtStringLength( text.get() ) ) )
                ++counted[&element - elements::all];
        }
    }
    for ( const Element &element : elements::all )
        EXPECT_TRUE( !element.skip || counted[&element - elements::all] >= 10 )
            << element.name << " is hardly ever found: " << counted[&element - elements::all];
}

TEST( ElementsProperty, HoldForTheEmptyTextWithoutCodePoints )
{
    for ( const Element &element : elements::all )
    {
        EXPECT_EQ( nullptr, elements::broken( element, {} ) ) << element.name;
        EXPECT_TRUE( !element.skip || element.skip( nullptr, 0 ) == 0 ) << element.name;
    }
}

TEST( ElementsProperty, HoldForNumbers )
{
    Random random;
    for ( const Element &element : elements::all )
        for ( int i = 0; element.numberOk && i < 1000; ++i )
        {
            int64_t number = random.below( INT64_MAX ) >> random.below( 63 );
            EXPECT_EQ( nullptr, elements::brokenNumber( element, number ) ) << element.name << ": " << number;
        }
}
