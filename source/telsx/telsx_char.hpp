// The character classes, as bits of one table, and runs of them.
#pragma once

#include <array>
#include <string_view>

#include "rt/rt_scan.hpp"
#include "rt/rt_text.hpp"

namespace telsx
{

enum CharClass : uint32_t
{
    classAlpha = 1 << 0,
    classDigit = 1 << 1,
    classAlphanum = 1 << 2,
    classHexdig = 1 << 3,
    classLws = 1 << 4,
    classMark = 1 << 5,
    classUnreserved = 1 << 6,
    classReserved = 1 << 7,
    classHnvUnreserved = 1 << 8,
    classParamChar = 1 << 9,
    classSeparator = 1 << 10,
    classToken = 1 << 11,
    classTokenNodot = 1 << 12,
    classWord = 1 << 13,
};

consteval std::array<uint32_t, 0x80> makeCharClasses()
{
    std::array<uint32_t, 0x80> classes = {};
    auto add = [&classes]( uint32_t members, std::string_view chars )
    {
        for ( char ch : chars )
            classes[static_cast<std::size_t>( ch )] |= members;
    };
    constexpr uint32_t inAllTexts =
        classUnreserved | classParamChar | classToken | classTokenNodot | classWord;
    add( classAlpha | classAlphanum | inAllTexts, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz" );
    add( classDigit | classAlphanum | inAllTexts, "0123456789" );
    add( classHexdig, "0123456789ABCDEFabcdef" );
    add( classLws, " \t" );
    add( classMark | classUnreserved | classParamChar, "!'()*-._~" );
    add( classReserved, "$&+,/:;=?@" );
    add( classHnvUnreserved, "$+/:?[]" );
    add( classParamChar, "$%&+/:[]" );
    add( classSeparator, "\t \"(),/:;<=>?@[\\]{}" );
    add( classToken | classTokenNodot, "!%'*+-_`~" );
    add( classToken, "." );
    add( classWord, "!\"%'()*+-./:<>?[\\]_`{}~" );
    return classes;
}

inline constexpr std::array<uint32_t, 0x80> charClasses = makeCharClasses();

// Whether the code point is in any of the classes.
constexpr bool isIn( RT_CHAR ch, uint32_t members )
{
    return ch < charClasses.size() && ( charClasses[ch] & members );
}

template <uint32_t MEMBERS>
inline constexpr rt::CharSet charSet = []
{
    rt::CharSet set;
    for ( unsigned char ch = 0; ch < 0x80; ++ch )
        if ( isIn( ch, MEMBERS ) )
            set.add( ch );
    return set;
}();

// How many code points at the start are in any of the classes.
template <uint32_t MEMBERS>
int64_t runOf( rt::Text text )
{
    return charSet<MEMBERS>.runOf( text.chs, text.length );
}

// Whether the text begins with a percent sign and two hex digits.
inline bool isEscape( rt::Text text )
{
    return text.length > 2 && text.chs[0] == '%' && isIn( text.chs[1], classHexdig )
           && isIn( text.chs[2], classHexdig );
}

} // namespace telsx
