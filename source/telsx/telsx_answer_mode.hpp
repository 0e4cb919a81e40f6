// What Answer-Mode and Priv-Answer-Mode share: two headers with one content.
#pragma once

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_token.h"
#include "telsx/telsx_value.hpp"

namespace telsx
{

struct AnswerMode
{
    RT_OBJECT object;
    Ref<RT_STRING> answerModeValue; // lower case, never null
    RT_BOOL require;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.answerModeValue, self.require, self.genericParams );
    }
};
static_assert( rt::listsAllFields<AnswerMode>() );

inline Ref<RT_STRING> encodeAnswerMode( const AnswerMode &hdr )
{
    Ref<RT_STRING> line = hdr.answerModeValue;
    ParamWriter params( line );
    params.writeMark<"require">( hdr.require );
    params.writeGeneric( hdr.genericParams );
    return line;
}

// A new header from its line, or null for bad text.
template <class HANDLE>
HANDLE decodeAnswerMode( Text line, HANDLE ( *create )( RT_STRING answerModeValue ) )
{
    Text value = line.take( telsx___SkipToken );
    if ( !value )
        return nullptr;
    Ref<HANDLE> hdr = adopt( create( value.copy().get() ) );

    ParamReader param( line );
    while ( param.next() )
    {
        param.readMark<"require">( hdr->require );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}

} // namespace telsx

// The unit of the header NAME after its frame line.
#define TELSX_DEFINE_ANSWER_MODE( NAME, SIP_NAME )                                                           \
    TELSX_DEFINE_NORMAL_FIELD( NAME, hdr, AnswerModeValue, answerModeValue, telsxTokenOk( answerModeValue ), \
                               telsxTokenNormalize )                                                         \
    TELSX_DEFINE_FLAG( NAME, hdr, Require, require )                                                         \
    TELSX_DEFINE_FIELD( NAME, hdr, GenericParams, genericParams, genericParams )                             \
    TELSX_HANDLE( NAME ) telsx##NAME##Create( RT_STRING answerModeValue )                                    \
    {                                                                                                        \
        TELSX_ASSERT_OK( telsxTokenOk, answerModeValue );                                                    \
        auto hdr = rt::create<std::remove_pointer_t<TELSX_HANDLE( NAME )>>( telsx##NAME##Sort() );           \
        hdr->answerModeValue = telsx::adopt( telsxTokenNormalize( answerModeValue ) );                       \
        hdr->genericParams = telsx::noGenericParams();                                                       \
        return hdr;                                                                                          \
    }                                                                                                        \
    TELSX_MESSAGE_HEADER telsx##NAME##Encode( TELSX_HANDLE( NAME ) hdr )                                     \
    {                                                                                                        \
        TELSX_ASSERT( hdr );                                                                                 \
        return telsx::createHeader( telsx::literal<SIP_NAME>(), telsx::encodeAnswerMode( *hdr ) );           \
    }                                                                                                        \
    static TELSX_HANDLE( NAME ) decode( telsx::HeaderLines &lines )                                          \
    {                                                                                                        \
        return telsx::decodeAnswerMode( lines.lastText(), telsx##NAME##Create );                             \
    }
