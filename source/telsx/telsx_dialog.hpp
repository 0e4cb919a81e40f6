// What the headers that name a dialog share: Join, Replaces and Target-Dialog. They are a call id with two tags as
// parameters, whose names differ.
#pragma once

#include "telsx/telsx_call_id.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_tag.h"
#include "telsx/telsx_value.hpp"

namespace telsx
{

// Fills a new header that has its call id from the parameters after it; false for bad text. The flag may be null.
template <rt::Ascii TAG, rt::Ascii OTHER_TAG>
bool decodeDialog( Text rest, Ref<RT_STRING> &tag, Ref<RT_STRING> &otherTag,
                   Ref<TELSX_GENERIC_PARAMS> &genericParams, RT_BOOL *earlyOnly = nullptr )
{
    ParamReader param( rest );
    while ( param.next() )
    {
        param.read<TAG>( tag, telsx___SkipTag );
        param.read<OTHER_TAG>( otherTag, telsx___SkipTag );
        if ( earlyOnly && param.isBare<"early-only">() )
            param.storeFlag( *earlyOnly );
        param.storeGeneric( genericParams );
    }
    return !param.failed();
}

} // namespace telsx

// The unit of the header NAME after its structure: a dialog with two tags, each of which has a word for the functions, a
// member, and the name of its parameter.
#define TELSX_DEFINE_DIALOG( NAME, SORT, SIP_NAME, WORD, TAG, PARAM, OTHER_WORD, OTHER_TAG, OTHER_PARAM )  \
    TELSX_DEFINE_HEADER_OBJECT( NAME, SORT, hdr, SIP_NAME )                                                \
    TELSX_DEFINE_FIELD( NAME, hdr, CallId, callId, telsxCallIdOk( callId ) )                               \
    TELSX_DEFINE_OPTIONAL_FIELD( NAME, hdr, WORD, TAG, telsxTagOk( TAG ) )                                 \
    TELSX_DEFINE_OPTIONAL_FIELD( NAME, hdr, OTHER_WORD, OTHER_TAG, telsxTagOk( OTHER_TAG ) )               \
    TELSX_DEFINE_FIELD( NAME, hdr, GenericParams, genericParams, genericParams )                           \
    TELSX_HANDLE( NAME ) telsx##NAME##Create( RT_STRING callId )                                           \
    {                                                                                                      \
        TELSX_ASSERT_OK( telsxCallIdOk, callId );                                                          \
        TELSX_HANDLE( NAME ) hdr = rt::create<TELSX_##SORT##_>( telsx##NAME##Sort() );                     \
        hdr->callId = telsx::share( callId );                                                              \
        hdr->genericParams = telsx::noGenericParams();                                                     \
        return hdr;                                                                                        \
    }                                                                                                      \
    TELSX_MESSAGE_HEADER telsx##NAME##Encode( TELSX_HANDLE( NAME ) hdr )                                   \
    {                                                                                                      \
        TELSX_ASSERT( hdr );                                                                               \
        telsx::Ref<RT_STRING> line = hdr->callId;                                                          \
        telsx::ParamWriter params( line );                                                                 \
        params.write<PARAM>( hdr->TAG );                                                                   \
        params.write<OTHER_PARAM>( hdr->OTHER_TAG );                                                       \
        params.writeGeneric( hdr->genericParams );                                                         \
        return telsx::createHeader( telsx::literal<SIP_NAME>(), line );                                    \
    }                                                                                                      \
    static TELSX_HANDLE( NAME ) decode( telsx::HeaderLines &lines )                                        \
    {                                                                                                      \
        telsx::Text rest = lines.lastText(), callId = rest.take( telsx___SkipCallId );                     \
        if ( !callId )                                                                                     \
            return nullptr;                                                                                \
        auto hdr = telsx::adopt( telsx##NAME##Create( callId.copy().get() ) );                             \
        bool isGood =                                                                                      \
            telsx::decodeDialog<PARAM, OTHER_PARAM>( rest, hdr->TAG, hdr->OTHER_TAG, hdr->genericParams ); \
        return isGood ? hdr.take() : nullptr;                                                              \
    }
