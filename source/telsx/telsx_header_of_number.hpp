// The headers that are one number: the whole of such a unit except its structure, the name and the number.
#pragma once

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_number.hpp"

// TELSX_DEFINE_HEADER_OBJECT for a kind that refers to no other object, and so has nothing to free.
#define TELSX_DEFINE_NUMBER_OBJECT( NAME, SORT, SELF, SIP_NAME )                                          \
    TELSX_DEFINE_OBJECT( NAME, SORT, nullptr, telsx___##NAME##CompareFunc, telsx___##NAME##ToStringFunc ) \
    TELSX_DEFINE_COMPARE_FUNC( NAME, SELF )                                                               \
    TELSX_DEFINE_HEADER( NAME, SIP_NAME )

// The unit of the header NAME, a number that must be telsx<ELEMENT>Ok, after its frame line. The field is called WORD
// in the functions' names, and MEMBER in the structure.
#define TELSX_DEFINE_HEADER_OF_NUMBER( NAME, SELF, SIP_NAME, WORD, MEMBER, ELEMENT )                \
    TELSX_DEFINE_FIELD( NAME, SELF, WORD, MEMBER, telsx##ELEMENT##Ok( MEMBER ) )                    \
    TELSX_HANDLE( NAME ) telsx##NAME##Create( int64_t MEMBER )                                      \
    {                                                                                               \
        TELSX_CHECK( telsx##ELEMENT##Ok( MEMBER ), nullptr, "telsx" #ELEMENT "Ok( " #MEMBER " )" ); \
        auto hdr = rt::create<std::remove_pointer_t<TELSX_HANDLE( NAME )>>( telsx##NAME##Sort() );  \
        hdr->MEMBER = MEMBER;                                                                       \
        return hdr;                                                                                 \
    }                                                                                               \
    TELSX_MESSAGE_HEADER telsx##NAME##Encode( TELSX_HANDLE( NAME ) hdr )                            \
    {                                                                                               \
        TELSX_ASSERT( hdr );                                                                        \
        return telsx::createHeader( telsx::literal<SIP_NAME>(),                                     \
                                    telsx::adopt( telsx::encodeNumber( hdr->MEMBER ) ) );           \
    }                                                                                               \
    static TELSX_HANDLE( NAME ) decode( telsx::HeaderLines &lines )                                 \
    {                                                                                               \
        int64_t MEMBER = telsx::tryDecodeNumber( lines.lastText(), telsx##ELEMENT##Ok );            \
        return MEMBER == -1 ? nullptr : telsx##NAME##Create( MEMBER );                              \
    }
