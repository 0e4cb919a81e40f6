// What the units need of text: the reading end of rt/rt_text.hpp, and strings from callers' characters.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "rt/rt_ascii.hpp"
#include "rt/rt_string.hpp"
#include "rt/rt_text.hpp"
#include "telsx/telsx_frame.hpp"

namespace telsx
{

using rt::covers;
using rt::literal;
using rt::Skipper;
using rt::Text;
using rt::textOf;

// The string of a Cstr or Wcstr argument.
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
    explicit Decimal( int64_t number );
    std::string_view chars() const { return { digits, static_cast<std::size_t>( size ) }; }

private:
    char digits[36]; // 20, and so much that they can be copied as blocks
    int64_t size;
};

inline int64_t lengthOf( std::string_view bytes ) { return static_cast<int64_t>( bytes.size() ); }

// A piece that texts are assembled from: ASCII or code points.
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
inline Piece pieceOf( std::string_view ascii ) { return { ascii.data(), lengthOf( ascii ), false }; }
inline Piece pieceOf( Text text ) { return { text.chs, text.length, true }; }
inline Piece pieceOf( const Decimal &number )
{
    return { number.chars().data(), lengthOf( number.chars() ), false };
}
inline Piece pieceOf( RT_STRING string ) { return pieceOf( textOf( string ) ); }
inline Piece pieceOf( const Ref<RT_STRING> &string ) { return pieceOf( string.get() ); }

// Appends the pieces; a text that is null is made with the exact room. One function for all texts: a template for each
// combination of pieces was 2 % of the code.
void appendPieces( Ref<RT_STRING> &text, std::initializer_list<Piece> pieces );

// Appends pieces, one after another: literals, characters, numbers and other strings.
template <class... PIECE>
void append( Ref<RT_STRING> &text, const PIECE &...pieces )
{
    appendPieces( text, { pieceOf( pieces )... } );
}

// An empty text that grows to this length without being moved.
inline Ref<RT_STRING> textWithRoom( int64_t length ) { return adopt( rt::newStringWithRoom( length ) ); }

// The string of such pieces.
template <class... PIECE>
Ref<RT_STRING> joined( const PIECE &...pieces )
{
    Ref<RT_STRING> text;
    appendPieces( text, { pieceOf( pieces )... } );
    return text;
}

// The string in lower or upper case, a new reference; the string itself is unchanged.
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

// Whether the text is the word, or begins with it in any case; for the latter the word must be in lower case.
template <rt::Ascii WORD, std::size_t... AT>
bool isThere( const RT_CHAR *chs, std::index_sequence<AT...> )
{
    return ( ( chs[AT] == WORD.chs[AT] ) && ... );
}
template <rt::Ascii WORD, std::size_t... AT>
bool isThereInAnyCase( const RT_CHAR *chs, std::index_sequence<AT...> )
{
    return ( ( ( rt::isLetter( WORD.chs[AT] ) ? chs[AT] | 0x20 : chs[AT] ) == WORD.chs[AT] ) && ... );
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

// Elements with single dots between them; a dot that no element follows is not part of them.
inline int64_t skipDotted( Text text, Skipper skipElement )
{
    int64_t at = skipElement( text.chs, text.length );
    while ( at && at < text.length && text.chs[at] == '.' )
    {
        Text rest = text.after( at + 1 );
        int64_t element = skipElement( rest.chs, rest.length );
        if ( !element )
            break;
        at += 1 + element;
    }
    return at;
}

} // namespace telsx
