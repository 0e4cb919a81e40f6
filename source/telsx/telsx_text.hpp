// What the units need of text: the reading end of rt/rt_text.hpp, and strings from callers' characters.
#pragma once

#include <algorithm>
#include <string_view>

#include "rt/rt_scan.hpp"
#include "rt/rt_string.hpp"
#include "rt/rt_text.hpp"
#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_skip.h"

namespace telsx
{

using rt::covers;
using rt::literal;
using rt::Skipper;
using rt::Text;
using rt::textOf;

// The string of a Cstr or a Wcstr argument.
inline Ref<RT_STRING> text( const char *chars, int64_t length )
{
    return adopt( rtStringCreateFromCstr( chars, length ) );
}
inline Ref<RT_STRING> text( const wchar_t *chars, int64_t length )
{
    return adopt( rtStringCreateFromWcstr( chars, length ) );
}

// A number as a piece of text.
class Decimal
{
public:
    Decimal() = default;
    explicit Decimal( int64_t number );
    std::string_view chars() const { return { digits, static_cast<std::size_t>( size ) }; }

private:
    char digits[20 + rt::scanSlack];
    int64_t size;
};

inline int64_t lengthOf( std::string_view text ) { return static_cast<int64_t>( text.size() ); }

// A piece of a text that is put together, of ASCII or of code points.
struct Piece
{
    const void *chars;
    int64_t length;
    bool isWide;
};

template <std::size_t SIZE>
Piece pieceOf( const char ( &literal )[SIZE] )
{
    return { literal, SIZE - 1, false };
}
inline Piece pieceOf( const char &ch ) { return { &ch, 1, false }; }
inline Piece pieceOf( const Decimal &number )
{
    return { number.chars().data(), lengthOf( number.chars() ), false };
}
inline Piece pieceOf( RT_STRING string )
{
    Text text = textOf( string );
    return { text.chs, text.length, true };
}
inline Piece pieceOf( const Ref<RT_STRING> &string ) { return pieceOf( string.get() ); }

// One function for all texts, which goes through a list: code for each text would be as fast by itself, but all of it
// together does not stay in the processor's cache.
void appendPieces( Ref<RT_STRING> &text, const Piece *pieces, std::size_t count );

// Appends pieces, one behind the other: literals, characters, numbers and other strings.
template <class... PIECE>
void append( Ref<RT_STRING> &text, const PIECE &...pieces )
{
    const Piece list[] = { pieceOf( pieces )... };
    appendPieces( text, list, std::size( list ) );
}

// The string of such pieces.
template <class... PIECE>
Ref<RT_STRING> joined( const PIECE &...pieces )
{
    Ref<RT_STRING> text;
    append( text, pieces... );
    return text;
}

// Pieces that are collected one after the other and must stay where they are until then, so that a text with parts
// that may be absent is put together once. Numbers are kept here.
class Pieces
{
public:
    template <std::size_t SIZE>
    void add( const char ( &literal )[SIZE] )
    {
        put( pieceOf( literal ) );
    }
    void add( const Ref<RT_STRING> &string ) { put( pieceOf( string ) ); }
    void add( Ref<RT_STRING> && ) = delete;
    void add( int64_t number ) { put( pieceOf( numbers[numberCount++] = Decimal( number ) ) ); }

    template <class... PIECE>
    void add( PIECE &&...more ) requires( sizeof...( more ) > 1 )
    {
        ( add( std::forward<PIECE>( more ) ), ... );
    }
    Ref<RT_STRING> joined() const
    {
        Ref<RT_STRING> text;
        appendPieces( text, list, count );
        return text;
    }

private:
    static constexpr std::size_t most = 24, mostNumbers = 4;

    void put( Piece piece );

    Piece list[most];
    Decimal numbers[mostNumbers];
    std::size_t count = 0, numberCount = 0;
};

// The string in lower or upper case, a new reference; the string itself stays as it is.
inline RT_STRING lowerCase( RT_STRING string )
{
    Ref<RT_STRING> lower = share( string );
    rtStringToLower( lower.address() );
    return lower.take();
}
inline RT_STRING upperCase( RT_STRING string )
{
    Ref<RT_STRING> upper = share( string );
    rtStringToUpper( upper.address() );
    return upper.take();
}

// Whether the text is the word, or begins with it in any case: for the latter the word is in lower case.
template <rt::Ascii WORD, std::size_t... AT>
bool isThere( const RT_CHAR *chs, std::index_sequence<AT...> )
{
    return ( ( chs[AT] == WORD.chs[AT] ) && ... );
}
template <rt::Ascii WORD, std::size_t... AT>
bool isThereInAnyCase( const RT_CHAR *chs, std::index_sequence<AT...> )
{
    auto isLetter = []( RT_CHAR ch ) { return ch >= 'a' && ch <= 'z'; };
    return ( ( ( isLetter( WORD.chs[AT] ) ? chs[AT] | 0x20 : chs[AT] ) == WORD.chs[AT] ) && ... );
}
template <rt::Ascii WORD>
bool equals( Text text )
{
    constexpr std::size_t length = std::size( WORD.chs ) - 1;
    return text.length == int64_t( length ) && isThere<WORD>( text.chs, std::make_index_sequence<length>() );
}
template <rt::Ascii WORD>
bool beginsInAnyCase( Text text )
{
    constexpr std::size_t length = std::size( WORD.chs ) - 1;
    return text.length >= int64_t( length )
           && isThereInAnyCase<WORD>( text.chs, std::make_index_sequence<length>() );
}

// The word that the text is, a constant, or null.
template <rt::Ascii... WORD>
RT_STRING findWord( Text text )
{
    RT_STRING found = nullptr;
    (void)( ( equals<WORD>( text ) && ( found = literal<WORD>() ) ) || ... );
    return found;
}

template <rt::Ascii... WORD>
RT_STRING findWordInAnyCase( Text text )
{
    RT_STRING found = nullptr;
    (void)( ( text.length == std::ssize( WORD.chs ) - 1 && beginsInAnyCase<WORD>( text )
              && ( found = literal<WORD>() ) )
            || ... );
    return found;
}

// The length of the word if the text begins with it, its letters in any case, else 0.
inline int64_t skipWordInAnyCase( Text text, RT_STRING word )
{
    return telsx___SkipCharsAsciiCaseFold( text.chs, text.length, rtStringBacking( word ),
                                           rtStringLength( word ) );
}

// Elements with single dots between them; a dot that no element follows is left alone.
inline int64_t skipDotted( Text text, Skipper skipElement )
{
    int64_t at = skipElement( text.chs, text.length );
    while ( at && at < text.length && text.chs[at] == '.' )
    {
        Text rest = text.behind( at + 1 );
        int64_t element = skipElement( rest.chs, rest.length );
        if ( !element )
            break;
        at += 1 + element;
    }
    return at;
}

} // namespace telsx
