// What the tests of all layers share: conversion of text to strings and back, aborts with their text, leaks.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "rt/rt.h"
#include "rt/rt_frame.hpp"
#include "rt/rt_text.hpp"

namespace support
{

using rt::adopt;
using rt::Ref;
using rt::share;
using rt::Text;

// A string of UTF-8 text.
inline Ref<RT_STRING> str( std::string_view utf8 )
{
    return adopt( rtStringTryCreateFromUtf8( utf8.data(), static_cast<int64_t>( utf8.size() ) ) );
}

inline Ref<RT_BUFFER> buffer( std::string_view bytes )
{
    return adopt( rtBufferCreateFromBytesCopy( bytes.data(), static_cast<int64_t>( bytes.size() ) ) );
}

inline std::string bytes( const Ref<RT_BUFFER> &from )
{
    if ( !from )
        return "(null)";
    return { static_cast<const char *>( rtBufferBacking( from.get() ) ),
             static_cast<std::size_t>( rtBufferLength( from.get() ) ) };
}

// The text as UTF-8; "(null)" for no string. The second form takes over the reference.
inline std::string utf8( const Ref<RT_STRING> &string )
{
    if ( !string )
        return "(null)";
    return bytes( adopt( rtCharsetStringToBuffer( RT_CHARSET_UTF8, string.get() ) ) );
}
inline std::string utf8( RT_STRING string ) { return utf8( adopt( string ) ); }

// The code points of a UTF-8 text, in a heap block of exactly their number.
inline std::vector<RT_CHAR> codePoints( std::string_view text )
{
    Ref<RT_STRING> string = str( text );
    const RT_CHAR *chs = rtStringBacking( string.get() );
    return { chs, chs + rtStringLength( string.get() ) };
}

// What a skipper or a decoder makes of the text, in such a block.
template <class FUNCTION>
auto applied( FUNCTION *function, std::string_view text )
{
    std::vector<RT_CHAR> exact = codePoints( text );
    return function( exact.data(), std::ssize( exact ) );
}

// The words between single blanks.
inline std::vector<std::string> words( const std::string &text )
{
    std::vector<std::string> found;
    std::istringstream stream( text );
    for ( std::string word; std::getline( stream, word, ' ' ); )
        found.push_back( word );
    return found;
}

// The parts before and after the first equals sign.
inline std::pair<std::string, std::string> halves( const std::string &text )
{
    std::size_t at = text.find( '=' );
    return { text.substr( 0, at ), text.substr( at + 1 ) };
}

// The skipper must stop at the bar, or at the end if there is none.
inline void expectStop( rt::Skipper skip, std::string_view marked )
{
    std::string text( marked.substr( 0, marked.find( '|' ) ) );
    int64_t count = std::ssize( codePoints( text ) );
    if ( text.size() < marked.size() )
        text += marked.substr( text.size() + 1 );
    EXPECT_EQ( count, applied( skip, text ) ) << marked;
}

// Every test must leave as many objects behind as it found.
class LeakCheck : public testing::EmptyTestEventListener
{
    void OnTestStart( const testing::TestInfo & ) override { before = rtObjsAlive(); }
    void OnTestEnd( const testing::TestInfo & ) override
    {
        EXPECT_EQ( before, rtObjsAlive() ) << "objects leaked";
    }

    int64_t before = 0;
};

} // namespace support

// The statement must abort with exactly this condition.
#define EXPECT_ABORT( STATEMENT, EXPRESSION ) \
    EXPECT_DEATH( STATEMENT, testing::HasSubstr( std::string( ": " ) + EXPRESSION + "\n" ) )
