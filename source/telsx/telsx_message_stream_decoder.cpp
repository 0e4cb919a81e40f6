// Message stream decoder (RFC 3261, 18.3 and 7.5).
#include "telsx/telsx_message_stream_decoder.h"

#include "telsx/telsx_bytes.hpp"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

struct TELSX_MESSAGE_STREAM_DECODER_
{
    RT_OBJECT object;
    RT_BOOL error;
    Ref<RT_BUFFER> buffer;             // what has arrived and is not yet delivered, never null
    Ref<TELSX_MESSAGE> pendingMessage; // its head is decoded, its body is still to come; or null
    int64_t scanOffset;    // where the search for the blank line continues; for a pending message, its body
    int64_t contentLength; // of the last head

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.error, self.buffer, self.pendingMessage, self.scanOffset, self.contentLength );
    }
};

static_assert( rt::listsAllFields<TELSX_MESSAGE_STREAM_DECODER_>() );
RT_DEFINE_STDFUNCS( telsx, &telsx___module, MessageStreamDecoder, TELSX_MESSAGE_STREAM_DECODER,
                    telsx___MessageStreamDecoderFreeFunc, nullptr, nullptr )
TELSX_DEFINE_FREE_FUNC( MessageStreamDecoder, decoder )

TELSX_MESSAGE_STREAM_DECODER telsxMessageStreamDecoderCreate( void )
{
    auto *decoder = rt::create<TELSX_MESSAGE_STREAM_DECODER_>( telsxMessageStreamDecoderSort() );
    decoder->buffer = adopt( rtBufferCreate() );
    decoder->scanOffset = 0;
    decoder->contentLength = 0;
    return decoder;
}

TELSX_DEFINE_GETTER( MessageStreamDecoder, decoder, Error, error )

int64_t telsxMessageStreamDecoderLength( TELSX_MESSAGE_STREAM_DECODER decoder )
{
    TELSX_ASSERT( decoder );
    return rtBufferLength( decoder->buffer.get() );
}

int64_t telsxMessageStreamDecoderSpace( TELSX_MESSAGE_STREAM_DECODER decoder )
{
    TELSX_ASSERT( decoder );
    return rtBufferSpace( decoder->buffer.get() );
}

// Appends as the function does, unless the error latch is set.
template <class... ARG>
static RT_BOOL write( TELSX_MESSAGE_STREAM_DECODER decoder, void ( *append )( RT_BUFFER *buffer, ARG... ),
                      ARG... args )
{
    TELSX_ASSERT( decoder );
    if ( decoder->error )
        return 0;
    append( decoder->buffer.address(), args... );
    return 1;
}

RT_BOOL telsxMessageStreamDecoderWrite( TELSX_MESSAGE_STREAM_DECODER decoder, RT_BUFFER source )
{
    return write( decoder, rtBufferAppend, source );
}

RT_BOOL telsxMessageStreamDecoderWriteLeading( TELSX_MESSAGE_STREAM_DECODER decoder, RT_BUFFER source,
                                               int64_t length )
{
    return write( decoder, rtBufferAppendLeading, source, length );
}

RT_BOOL telsxMessageStreamDecoderWriteTrailing( TELSX_MESSAGE_STREAM_DECODER decoder, RT_BUFFER source,
                                                int64_t length )
{
    return write( decoder, rtBufferAppendTrailing, source, length );
}

RT_BOOL telsxMessageStreamDecoderWriteInner( TELSX_MESSAGE_STREAM_DECODER decoder, RT_BUFFER source,
                                             int64_t offset, int64_t length )
{
    return write( decoder, rtBufferAppendInner, source, offset, length );
}

RT_BOOL telsxMessageStreamDecoderWriteOuter( TELSX_MESSAGE_STREAM_DECODER decoder, RT_BUFFER source,
                                             int64_t offset, int64_t length )
{
    return write( decoder, rtBufferAppendOuter, source, offset, length );
}

static void dropLeadingLineEnds( TELSX_MESSAGE_STREAM_DECODER decoder )
{
    Bytes bytes = bytesOf( decoder->buffer.get() );
    int64_t dropped = 0;
    for ( ; bytes.starts_with( lineEnd ); bytes.remove_prefix( lineEnd.size() ) )
        dropped += lengthOf( lineEnd );
    if ( dropped )
        rtBufferDelLeading( decoder->buffer.address(), dropped );
}

// Finds and decodes the next head and makes the pending message of it. False if the head is not complete yet, and if it
// is bad, which sets the latch.
static bool readHead( TELSX_MESSAGE_STREAM_DECODER decoder )
{
    if ( decoder->scanOffset == 0 )
        dropLeadingLineEnds( decoder );
    Bytes bytes = bytesOf( decoder->buffer.get() );
    std::size_t end = findHeadEnd( bytes, static_cast<std::size_t>( decoder->scanOffset ) );
    if ( end == Bytes::npos )
    {
        decoder->scanOffset = rtIntMax( decoder->scanOffset, lengthOf( bytes ) - lengthOf( headEnd ) + 1 );
        return false;
    }
    auto fragment = tryDecodeHead( bytes.substr( 0, end + lineEnd.size() ), &decoder->contentLength );
    decoder->error = !fragment || decoder->contentLength == -1
                     || telsxMessageFragmentIsNeitherRequestNorResponse( fragment.get() );
    if ( decoder->error )
        return false;
    decoder->pendingMessage = adopt( telsxMessageCreate( fragment.get() ) );
    decoder->scanOffset = static_cast<int64_t>( end + headEnd.size() );
    return true;
}

TELSX_MESSAGE telsxMessageStreamDecoderRead( TELSX_MESSAGE_STREAM_DECODER decoder )
{
    TELSX_ASSERT( decoder );
    if ( decoder->error || ( !decoder->pendingMessage && !readHead( decoder ) ) )
        return nullptr;
    Bytes body = bytesOf( decoder->buffer.get() ).substr( static_cast<std::size_t>( decoder->scanOffset ) );
    if ( lengthOf( body ) < decoder->contentLength )
        return nullptr;
    Ref<TELSX_MESSAGE> message = std::move( decoder->pendingMessage );
    Ref<RT_BUFFER> copy = bufferOf( body.substr( 0, static_cast<std::size_t>( decoder->contentLength ) ) );
    telsxMessageSetBody( message.address(), copy.get() );
    rtBufferDelLeading( decoder->buffer.address(), decoder->scanOffset + decoder->contentLength );
    decoder->scanOffset = 0;
    return message.take();
}
