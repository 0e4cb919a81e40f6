// The headers that are one text, kept as it is: the whole of such a unit except its structure and the element.
#pragma once

#include "telsx/telsx_header.hpp"

// The unit of the header NAME after its structure, whose field MEMBER is a WORD and never null.
#define TELSX_DEFINE_HEADER_OF_TEXT( NAME, SORT, SIP_NAME, WORD, MEMBER )               \
    TELSX_DEFINE_HEADER_OBJECT( NAME, SORT, hdr, SIP_NAME )                             \
    TELSX_DEFINE_FIELD( NAME, hdr, WORD, MEMBER, telsx##WORD##Ok( MEMBER ) )            \
    TELSX_HANDLE( NAME ) telsx##NAME##Create( RT_STRING MEMBER )                        \
    {                                                                                   \
        TELSX_ASSERT_OK( telsx##WORD##Ok, MEMBER );                                     \
        TELSX_HANDLE( NAME ) hdr = rt::create<TELSX_##SORT##_>( telsx##NAME##Sort() );  \
        hdr->MEMBER = telsx::share( MEMBER );                                           \
        return hdr;                                                                     \
    }                                                                                   \
    TELSX_MESSAGE_HEADER telsx##NAME##Encode( TELSX_HANDLE( NAME ) hdr )                \
    {                                                                                   \
        TELSX_ASSERT( hdr );                                                            \
        return telsx::createHeader( telsx::literal<SIP_NAME>(), hdr->MEMBER );          \
    }                                                                                   \
    static TELSX_HANDLE( NAME ) decode( telsx::HeaderLines &lines )                     \
    {                                                                                   \
        RT_STRING line = lines.last();                                                  \
        return line && telsx##WORD##Ok( line ) ? telsx##NAME##Create( line ) : nullptr; \
    }
