// The headers that are a list of tokens: all of such a unit but the name and the element. A token may stand in the list more
// than once. A header is written with all tokens on one line.
#pragma once

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_items.hpp"

namespace telsx
{

struct TokenList
{
    RT_OBJECT object;
    Ref<RT_VECTOR> tokens; // never null

    static auto fields( auto &self ) { return std::tie( self.tokens ); }
};

// Fills a new list with the tokens of the raw header; false for bad text, and for no lines.
bool decodeTokens( TokenList *list, HeaderLines &lines, Skipper skipToken,
                   RT_STRING ( *normalize )( RT_STRING ) );

} // namespace telsx

// The unit of the header NAME, a list of WORDs, after its frame line.
#define TELSX_DEFINE_TOKEN_LIST( NAME, SIP_NAME, WORD )                                                    \
    TELSX_DEFINE_GETTER( NAME, hdr, WORD##sVector, tokens )                                                \
    TELSX_HANDLE( NAME ) telsx##NAME##Create( void )                                                       \
    {                                                                                                      \
        auto hdr = rt::create<std::remove_pointer_t<TELSX_HANDLE( NAME )>>( telsx##NAME##Sort() );         \
        hdr->tokens = telsx::adopt( rtVectorCreate() );                                                    \
        return hdr;                                                                                        \
    }                                                                                                      \
    TELSX_MESSAGE_HEADER telsx##NAME##Encode( TELSX_HANDLE( NAME ) hdr )                                   \
    {                                                                                                      \
        TELSX_ASSERT( hdr );                                                                               \
        return telsx::createHeaderOfItems( telsx::literal<SIP_NAME>(), hdr->tokens, ',' );                 \
    }                                                                                                      \
    static TELSX_HANDLE( NAME ) decode( telsx::HeaderLines &lines )                                        \
    {                                                                                                      \
        auto hdr = telsx::adopt( telsx##NAME##Create() );                                                  \
        return telsx::decodeTokens( hdr.get(), lines, telsx___Skip##WORD, telsx##WORD##Normalize )         \
                   ? hdr.take()                                                                            \
                   : nullptr;                                                                              \
    }                                                                                                      \
    void telsx##NAME##Clear##WORD##s( TELSX_HANDLE( NAME ) * hdr )                                         \
    {                                                                                                      \
        TELSX_ASSERT_HANDLE( hdr );                                                                        \
        rtVectorClear( TELSX_OWN( hdr )->tokens.address() );                                               \
    }                                                                                                      \
    int64_t telsx##NAME##WORD##sLength( TELSX_HANDLE( NAME ) hdr )                                         \
    {                                                                                                      \
        TELSX_ASSERT( hdr );                                                                               \
        return rtVectorLength( hdr->tokens.get() );                                                        \
    }                                                                                                      \
    RT_STRING telsx##NAME##WORD##At( TELSX_HANDLE( NAME ) hdr, int64_t index )                             \
    {                                                                                                      \
        TELSX_ASSERT( hdr );                                                                               \
        return rtStringFrom( rtVectorObjAt( hdr->tokens.get(), index ) );                                  \
    }                                                                                                      \
    void telsx##NAME##Set##WORD##At( TELSX_HANDLE( NAME ) * hdr, int64_t index, RT_STRING element )        \
    {                                                                                                      \
        TELSX_ASSERT_HANDLE( hdr );                                                                        \
        auto token = telsx::adopt( telsx##WORD##Normalize( element ) );                                    \
        rtVectorSetStringAt( TELSX_OWN( hdr )->tokens.address(), index, token.get() );                     \
    }                                                                                                      \
    void telsx##NAME##Del##WORD##At( TELSX_HANDLE( NAME ) * hdr, int64_t index )                           \
    {                                                                                                      \
        TELSX_ASSERT_HANDLE( hdr );                                                                        \
        rtVectorDelAt( TELSX_OWN( hdr )->tokens.address(), index );                                        \
    }                                                                                                      \
    void telsx##NAME##Prepend##WORD( TELSX_HANDLE( NAME ) * hdr, RT_STRING element )                       \
    {                                                                                                      \
        TELSX_ASSERT_HANDLE( hdr );                                                                        \
        auto token = telsx::adopt( telsx##WORD##Normalize( element ) );                                    \
        rtVectorPrependString( TELSX_OWN( hdr )->tokens.address(), token.get() );                          \
    }                                                                                                      \
    void telsx##NAME##Append##WORD( TELSX_HANDLE( NAME ) * hdr, RT_STRING element )                        \
    {                                                                                                      \
        TELSX_ASSERT_HANDLE( hdr );                                                                        \
        auto token = telsx::adopt( telsx##WORD##Normalize( element ) );                                    \
        rtVectorAppendString( TELSX_OWN( hdr )->tokens.address(), token.get() );                           \
    }                                                                                                      \
    void telsx##NAME##Insert##WORD( TELSX_HANDLE( NAME ) * hdr, int64_t index, RT_STRING element )         \
    {                                                                                                      \
        TELSX_ASSERT_HANDLE( hdr );                                                                        \
        auto token = telsx::adopt( telsx##WORD##Normalize( element ) );                                    \
        rtVectorInsertString( TELSX_OWN( hdr )->tokens.address(), index, token.get() );                    \
    }                                                                                                      \
    void telsx##NAME##Set##WORD##sVector( TELSX_HANDLE( NAME ) * hdr, RT_VECTOR vec )                      \
    {                                                                                                      \
        TELSX_ASSERT( vec );                                                                               \
        TELSX_CHECK( rtVectorContainsOnly( vec, rtStringSort() ), nullptr,                                 \
                     "rtVectorContainsOnly( vec, rtStringSort() )" );                                      \
        auto elements = telsx::share( vec );                                                               \
        telsx##NAME##Clear##WORD##s( hdr );                                                                \
        for ( int64_t i = 0; i < rtVectorLength( elements.get() ); ++i )                                   \
            telsx##NAME##Append##WORD( hdr, rtStringFrom( rt___VectorObjBorrowed( elements.get(), i ) ) ); \
    }
