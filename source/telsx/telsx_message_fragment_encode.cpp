// From a fragment to bytes (RFC 3261, 7), straight into one buffer.
#include "rsc/rsc.h"
#include "telsx/telsx_message_fragment.h"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_message_header.hpp"
#include "telsx/telsx_reason_phrase.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

static void append( Ref<RT_BUFFER> &to, Bytes bytes )
{
    rtBufferAppendBytes( to.address(), bytes.data(), lengthOf( bytes ) );
}

static void append( Ref<RT_BUFFER> &to, RT_STRING string ) { rtBufferAppendUtf8( to.address(), string ); }

static Ref<RT_STRING> startLine( TELSX_MESSAGE_FRAGMENT frag )
{
    if ( telsxMessageFragmentIsRequest( frag ) )
    {
        RT_STRING uri = rscTryConvertToUri( frag->requestIri.get() );
        TELSX_ASSERT( uri );
        return adopt( rtStringCreateFromFormatCstr( "%s %~s %~s", -1, frag->requestMethod.get(), uri,
                                                    telsx___VersionEncode( frag->version.get() ) ) );
    }
    return adopt( rtStringCreateFromFormatCstr(
        "%~s %03i %~s", -1, telsx___VersionEncode( frag->version.get() ), frag->responseStatusCode,
        telsx___ReasonPhraseEncode( frag->responseReasonPhrase.get() ) ) );
}

static void appendHeader( Ref<RT_BUFFER> &to, RT_STRING name, RT_STRING line )
{
    append( to, name );
    append( to, ": " );
    append( to, line );
    append( to, lineEnd );
}

RT_BUFFER telsxMessageFragmentEncode( TELSX_MESSAGE_FRAGMENT frag )
{
    TELSX_ASSERT( frag );
    Ref<RT_BUFFER> encoded = adopt( rtBufferCreate() );
    if ( !telsxMessageFragmentIsNeitherRequestNorResponse( frag ) )
    {
        append( encoded, startLine( frag ).get() );
        append( encoded, lineEnd );
    }

    // The true length stands where the fragment has that header, else behind all others.
    RT_STRING lengthName = literal<"Content-Length">();
    int64_t length = frag->body ? rtBufferLength( frag->body.get() ) : 0;
    Ref<RT_STRING> lengthLine = adopt( rtStringCreateFromFormatCstr( "%i", -1, length ) );
    bool lengthWritten = false;
    for ( int64_t i = 0; i < rtDictLength( frag->headers.get() ); ++i )
    {
        Ref<RT_STRING> name = adopt( rtDictKeyAt( frag->headers.get(), i ) );
        Ref<RT_OBJ> header = adopt( rtDictValueAt( frag->headers.get(), i ) );
        if ( rtStringEquals( name.get(), lengthName ) )
        {
            appendHeader( encoded, lengthName, lengthLine.get() );
            lengthWritten = true;
            continue;
        }
        RT_VECTOR lines = telsxMessageHeaderFrom( header.get() )->lines.get();
        for ( int64_t j = 0; j < rtVectorLength( lines ); ++j )
            appendHeader( encoded, name.get(), rtStringFrom( adopt( rtVectorObjAt( lines, j ) ).get() ) );
    }
    if ( !lengthWritten )
        appendHeader( encoded, lengthName, lengthLine.get() );
    append( encoded, lineEnd );
    if ( frag->body )
        rtBufferAppend( encoded.address(), frag->body.get() );
    return encoded.take();
}
