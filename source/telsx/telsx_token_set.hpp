// The headers that are a set of tokens: the whole of such a unit except the name, the element and the separator. The
// tokens are the keys of a dictionary, each its own value. A header is written with all tokens on one line.
#pragma once

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_items.hpp"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text_forms.hpp"

namespace telsx
{

struct TokenSet
{
    RT_OBJECT object;
    Ref<RT_DICT> tokens; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.tokens ); }
};
static_assert( rt::listsAllFields<TokenSet>() );

// The separator between two tokens.
struct Separator
{
    Skipper skip;
    RT_CHAR ch;
};
inline constexpr Separator comma = { telsx___SkipComma, ',' };
inline constexpr Separator semicolon = { telsx___SkipSemi, ';' };

// The normal form of a token, a new reference. Case-sensitive tokens are their own normal form.
using Normalizer = RT_STRING ( * )( RT_STRING token );
inline RT_STRING asItIs( RT_STRING token ) { return share( token ).take(); }

RT_BOOL hasToken( const TokenSet *set, const Ref<RT_STRING> &token );
void setToken( TokenSet *set, const Ref<RT_STRING> &token );
void delToken( TokenSet *set, const Ref<RT_STRING> &token );

// Fills a new set with the tokens of the raw header; false for bad text, and for no lines.
bool decodeTokens( TokenSet *set, HeaderLines &lines, Skipper skipToken, Normalizer normalize,
                   Separator separator );

TELSX_MESSAGE_HEADER encodeTokens( RT_STRING name, const TokenSet *set, RT_CHAR separator );

// Adds the text of each element of the vector to the set.
template <class T>
void setEach( T **hdr, RT_VECTOR vec, void ( *set )( T **hdr, RT_STRING element ) )
{
    for ( int64_t i = 0; i < rtVectorLength( vec ); ++i )
        set( hdr, adopt( rtObjToString( rt___VectorObjBorrowed( vec, i ) ) ).get() );
}

} // namespace telsx

// The unit of the header NAME, a set of WORDs, after its frame line. separatorOf tells findings what stands between two.
#define TELSX_DEFINE_TOKEN_SET( NAME, SIP_NAME, WORD, NORMALIZE, SEPARATOR )                       \
    namespace telsx                                                                                \
    {                                                                                              \
    Separator separatorOf( TELSX_HANDLE( NAME ) );                                                 \
    Separator separatorOf( TELSX_HANDLE( NAME ) ) { return SEPARATOR; }                            \
    }                                                                                              \
    TELSX_HANDLE( NAME ) telsx##NAME##Create( void )                                               \
    {                                                                                              \
        auto hdr = rt::create<std::remove_pointer_t<TELSX_HANDLE( NAME )>>( telsx##NAME##Sort() ); \
        hdr->tokens = telsx::adopt( rtDictCreate() );                                              \
        return hdr;                                                                                \
    }                                                                                              \
    TELSX_MESSAGE_HEADER telsx##NAME##Encode( TELSX_HANDLE( NAME ) hdr )                           \
    {                                                                                              \
        TELSX_ASSERT( hdr );                                                                       \
        return telsx::encodeTokens( telsx::literal<SIP_NAME>(), hdr, SEPARATOR.ch );               \
    }                                                                                              \
    static TELSX_HANDLE( NAME ) decode( telsx::HeaderLines &lines )                                \
    {                                                                                              \
        auto hdr = telsx::adopt( telsx##NAME##Create() );                                          \
        return telsx::decodeTokens( hdr.get(), lines, telsx___Skip##WORD, NORMALIZE, SEPARATOR )   \
                   ? hdr.take()                                                                    \
                   : nullptr;                                                                      \
    }                                                                                              \
    int64_t telsx##NAME##WORD##sLength( TELSX_HANDLE( NAME ) hdr )                                 \
    {                                                                                              \
        TELSX_ASSERT( hdr );                                                                       \
        return rtDictLength( hdr->tokens.get() );                                                  \
    }                                                                                              \
    RT_STRING telsx##NAME##WORD##At( TELSX_HANDLE( NAME ) hdr, int64_t index )                     \
    {                                                                                              \
        TELSX_ASSERT( hdr );                                                                       \
        return rtDictKeyAt( hdr->tokens.get(), index );                                            \
    }                                                                                              \
    RT_VECTOR telsx##NAME##WORD##sVector( TELSX_HANDLE( NAME ) hdr )                               \
    {                                                                                              \
        TELSX_ASSERT( hdr );                                                                       \
        return rtDictKeysVector( hdr->tokens.get() );                                              \
    }                                                                                              \
    RT_BOOL telsx##NAME##Has##WORD( TELSX_HANDLE( NAME ) hdr, RT_STRING element )                  \
    {                                                                                              \
        TELSX_ASSERT( hdr );                                                                       \
        TELSX_CHECK( element, nullptr, "element" );                                                \
        TELSX_CHECK( telsx##WORD##Ok( element ), nullptr, "telsx" #WORD "Ok( element )" );         \
        return telsx::hasToken( hdr, telsx::adopt( NORMALIZE( element ) ) );                       \
    }                                                                                              \
    void telsx##NAME##Set##WORD( TELSX_HANDLE( NAME ) * hdr, RT_STRING element )                   \
    {                                                                                              \
        TELSX_ASSERT_HANDLE( hdr );                                                                \
        TELSX_CHECK( element, nullptr, "element" );                                                \
        TELSX_CHECK( telsx##WORD##Ok( element ), nullptr, "telsx" #WORD "Ok( element )" );         \
        telsx::setToken( TELSX_OWN( hdr ), telsx::adopt( NORMALIZE( element ) ) );                 \
    }                                                                                              \
    void telsx##NAME##Del##WORD( TELSX_HANDLE( NAME ) * hdr, RT_STRING element )                   \
    {                                                                                              \
        TELSX_ASSERT_HANDLE( hdr );                                                                \
        TELSX_CHECK( element, nullptr, "element" );                                                \
        TELSX_CHECK( telsx##WORD##Ok( element ), nullptr, "telsx" #WORD "Ok( element )" );         \
        auto token = telsx::adopt( NORMALIZE( element ) );                                         \
        telsx::delToken( TELSX_OWN( hdr ), token );                                                \
    }                                                                                              \
    void telsx##NAME##Clear##WORD##s( TELSX_HANDLE( NAME ) * hdr )                                 \
    {                                                                                              \
        TELSX_ASSERT_HANDLE( hdr );                                                                \
        rtDictClear( TELSX_OWN( hdr )->tokens.address() );                                         \
    }                                                                                              \
    void telsx##NAME##Set##WORD##sVector( TELSX_HANDLE( NAME ) * hdr, RT_VECTOR vec )              \
    {                                                                                              \
        TELSX_ASSERT( vec );                                                                       \
        telsx##NAME##Clear##WORD##s( hdr );                                                        \
        telsx::setEach( hdr, vec, telsx##NAME##Set##WORD );                                        \
    }

// The same functions for 8-bit and for wide characters.
#define TELSX_DEFINE_TOKEN_SET_CHARS( NAME, WORD )                                    \
    TELSX_DEFINE_TEXT_FORMS( RT_BOOL, NAME##Has##WORD, ( TELSX_HANDLE( NAME ) ), () ) \
    TELSX_DEFINE_TEXT_FORMS( void, NAME##Set##WORD, (TELSX_HANDLE( NAME ) *), () )    \
    TELSX_DEFINE_TEXT_FORMS( void, NAME##Del##WORD, (TELSX_HANDLE( NAME ) *), () )
