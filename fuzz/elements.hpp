// The elements of the grammar in one list, each with its functions, and the properties that hold for every text. The
// fuzz target and the tests go through it.
#pragma once

#include <algorithm>
#include <memory>
#include <string_view>

#include "rt/rt_text.hpp"
#include "telsx/telsx.h"

namespace elements
{

using rt::adopt;
using rt::covers;
using rt::Ref;
using rt::Skipper;
using rt::Text;

struct Element
{
    std::string_view name;
    RT_BOOL ( *ok )( RT_STRING ) = nullptr;
    Skipper skip = nullptr;
    RT_STRING ( *normalize )( RT_STRING ) = nullptr;
    bool okIsWhole = false; // ok is true exactly if the skipper takes the whole text

    // Any plain text that is Ok can be encoded; if okIsWhole, any without line ends.
    RT_STRING ( *encode )( RT_STRING ) = nullptr;
    RT_STRING ( *tryDecode )( const RT_CHAR *chs, int64_t length ) = nullptr;
    bool isHost = false; // plain text comes back in a normal form, and not everything that is skipped decodes

    RT_BOOL ( *numberOk )( int64_t ) = nullptr;
    RT_STRING ( *encodeNumber )( int64_t ) = nullptr;
    int64_t ( *tryDecodeNumber )( const RT_CHAR *chs, int64_t length ) = nullptr;
};

// The word that skippers of an exact word are given.
inline constexpr RT_CHAR sip[] = { 'S', 'I', 'P' };

// The count; or -1, which no count may be, unless the index is set exactly if there is a match.
template <auto SKIP, int64_t FIRST, int64_t LAST>
int64_t skipName( const RT_CHAR *chs, int64_t length )
{
    int64_t index = -1, count = SKIP( chs, length, &index );
    bool isSet = index >= FIRST && index <= LAST;
    return SKIP( chs, length, nullptr ) == count && ( count ? isSet : index == -1 ) ? count : -1;
}

// clang-format off
#define FUNCTION( NAME, ... ) { .name = #NAME, .skip = __VA_ARGS__ },
#define MEASURED( NAME ) { .name = #NAME, .skip = telsx___Skip##NAME },
#define PLAIN( NAME, ... ) { .name = #NAME, .ok = telsx##NAME##Ok, __VA_ARGS__ },
#define JUDGED( NAME ) PLAIN( NAME, .skip = telsx___Skip##NAME, .okIsWhole = true )
#define FOLDED( NAME ) \
    PLAIN( NAME, .skip = telsx___Skip##NAME, .normalize = telsx##NAME##Normalize, .okIsWhole = true )
#define QUOTED( NAME ) \
    PLAIN( NAME, .skip = telsx___Skip##NAME, .normalize = telsx##NAME##Normalize, .okIsWhole = true, \
           CODED( NAME, TryDecode ) )
#define CODED( NAME, DECODE ) .encode = telsx___##NAME##Encode, .tryDecode = telsx___##NAME##DECODE
#define NUMBER( NAME ) \
    { .name = #NAME, .skip = telsx___Skip##NAME, .numberOk = telsx##NAME##Ok, \
      .encodeNumber = telsx___##NAME##Encode, .tryDecodeNumber = telsx___##NAME##TryDecode },
inline constexpr Element all[] = {
#include "elements.def"
};
#undef FUNCTION
#undef MEASURED
#undef PLAIN
#undef JUDGED
#undef FOLDED
#undef QUOTED
#undef CODED
#undef NUMBER
// clang-format on

// The element of that name, which must be there.
inline const Element &named( std::string_view name )
{
    auto found = std::ranges::find( all, name, &Element::name );
    RT_ASSERT( found != std::end( all ) );
    return *found;
}

// A text in a heap block of exactly its size, so that a sanitizer sees a read past its end.
class Block
{
public:
    explicit Block( Text from )
        : chs( std::make_unique<RT_CHAR[]>( static_cast<std::size_t>( from.length ) ) ), length( from.length )
    {
        std::copy( from.chs, from.chs + length, chs.get() );
    }
    Text text() const { return { chs.get(), length }; }

private:
    std::unique_ptr<RT_CHAR[]> chs;
    int64_t length;
};

// Each of these returns the first property that does not hold, or null.

// What follows a count can only end a run or make an optional part fail, and so does the end of the text: a text that
// is cut there has the same count. If a missing part makes the match fail, there is no count.
inline const char *brokenSkipping( const Element &element, Text text )
{
    int64_t count = element.skip( text.chs, text.length );
    if ( count < 0 || count > text.length )
        return "a count is from 0 to the length";
    Block cut( text.first( count ) );
    if ( element.skip( cut.text().chs, count ) != count )
        return "a text that is cut after the count has the same count";
    return nullptr;
}

inline const char *brokenNormalForm( const Element &element, const Ref<RT_STRING> &string )
{
    bool ok = element.ok( string.get() );
    if ( element.okIsWhole && ok != covers( element.skip, string.get() ) )
        return "a text is Ok exactly when the skipper takes the whole of it";
    if ( !ok || !element.normalize )
        return nullptr;
    Ref<RT_STRING> before = rt::textOf( string ).copy(), normal = adopt( element.normalize( string.get() ) );
    if ( string != before )
        return "normalizing leaves the text alone";
    if ( !element.ok( normal.get() ) )
        return "a normal form is Ok";
    if ( adopt( element.normalize( normal.get() ) ) != normal )
        return "normalizing a normal form changes nothing";
    return nullptr;
}

inline bool canEncode( const Element &element, const Ref<RT_STRING> &plain )
{
    return element.okIsWhole ? telsxQuotableStringOk( plain.get() ) : element.ok( plain.get() );
}

inline const char *brokenCoding( const Element &element, const Ref<RT_STRING> &plain )
{
    if ( !canEncode( element, plain ) )
        return nullptr;
    Ref<RT_STRING> encoded = adopt( element.encode( plain.get() ) );
    if ( element.skip && !covers( element.skip, encoded.get() ) )
        return "the skipper takes the whole of what is encoded";
    Text text = rt::textOf( encoded );
    Ref<RT_STRING> decoded = adopt( element.tryDecode( text.chs, text.length ) );
    if ( !decoded || ( decoded != plain && !element.isHost ) )
        return "what is encoded decodes to the same";
    return nullptr;
}

inline const char *brokenDecoding( const Element &element, Text text )
{
    Ref<RT_STRING> plain = adopt( element.tryDecode( text.chs, text.length ) );
    if ( element.skip && text && covers( element.skip, text ) != bool( plain )
         && ( plain || !element.isHost ) )
        return "a text decodes exactly when the skipper takes the whole of it";
    if ( !plain )
        return nullptr;
    if ( !canEncode( element, plain ) )
        return "what is decoded can be encoded";
    Element exact = element;
    exact.isHost = false;
    return brokenCoding( exact, plain );
}

inline const char *brokenNumber( const Element &element, int64_t number )
{
    if ( !element.numberOk( number ) )
        return nullptr;
    Ref<RT_STRING> encoded = adopt( element.encodeNumber( number ) );
    if ( !covers( element.skip, encoded.get() ) )
        return "the skipper takes the whole of an encoded number";
    Text text = rt::textOf( encoded );
    return element.tryDecodeNumber( text.chs, text.length ) != number ? "a number decodes to the same"
                                                                      : nullptr;
}

inline const char *broken( const Element &element, Text text )
{
    Block block( text );
    Ref<RT_STRING> string = text.copy();
    text = block.text();
    const char *property = element.skip ? brokenSkipping( element, text ) : nullptr;
    if ( !property && element.ok )
        property = brokenNormalForm( element, string );
    if ( !property && element.encode )
        property = brokenCoding( element, string );
    if ( !property && element.tryDecode )
        property = brokenDecoding( element, text );
    if ( !property && element.tryDecodeNumber )
    {
        int64_t number = element.tryDecodeNumber( text.chs, text.length );
        property = number != -1 && !element.numberOk( number ) ? "a number that is decoded is Ok"
                                                               : brokenNumber( element, number );
    }
    return property;
}

} // namespace elements
