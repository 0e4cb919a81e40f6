// UTF-8 (RFC 3629). Most text is ASCII, which goes in blocks that compilers turn into vector instructions.
#include "rt/rt_charset.h"

#include "rt/rt_buffer.h"
#include "rt/rt_frame.hpp"
#include "rt/rt_string.hpp"

static constexpr int64_t blockLength = 16;

template <int64_t LENGTH = blockLength, class FROM>
static bool isAsciiBlock( const FROM *from )
{
    constexpr uint64_t beyond = sizeof( FROM ) == 1 ? 0x8080808080808080 : 0xFFFFFF80FFFFFF80;
    uint64_t words[LENGTH * sizeof( FROM ) / sizeof( uint64_t )], all = 0;
    std::memcpy( words, from, sizeof words );
    for ( uint64_t word : words )
        all |= word;
    return ( all & beyond ) == 0;
}

// By way of copies, since bytes might be part of anything.
template <class FROM, class TO>
static void convertBlock( const FROM *from, TO *to )
{
    FROM read[blockLength];
    TO written[blockLength];
    std::memcpy( read, from, sizeof read );
    for ( int64_t i = 0; i < blockLength; ++i )
        written[i] = static_cast<TO>( read[i] );
    std::memcpy( to, written, sizeof written );
}

template <class FROM>
static bool isAscii( const FROM *from, int64_t length )
{
    int64_t at = 0;
    for ( ; length - at >= 4 * blockLength; at += 4 * blockLength )
        if ( !isAsciiBlock<4 * blockLength>( from + at ) )
            return false;
    for ( ; length - at >= blockLength; at += blockLength )
        if ( !isAsciiBlock( from + at ) )
            return false;
    if ( at )
        return isAsciiBlock( from + length - blockLength );
    FROM all = 0;
    for ( ; at < length; ++at )
        all = static_cast<FROM>( all | from[at] );
    return all < 0x80;
}

// Of ASCII, each way.
template <class FROM, class TO>
static void convert( const FROM *from, int64_t length, TO *to )
{
    int64_t at = 0;
    for ( ; length - at >= blockLength; at += blockLength )
        convertBlock( from + at, to + at );
    // What is left is done with some of what is done.
    if ( at && at < length )
        convertBlock( from + length - blockLength, to + length - blockLength );
    else
        for ( ; at < length; ++at )
            to[at] = static_cast<TO>( from[at] );
}

static bool isContinuation( unsigned char byte ) { return ( byte & 0xC0 ) == 0x80; }

static bool isSurrogate( RT_CHAR ch ) { return ch >= 0xD800 && ch <= 0xDFFF; }

static int64_t encodedSize( RT_CHAR ch ) { return 1 + ( ch >= 0x80 ) + ( ch >= 0x800 ) + ( ch >= 0x10000 ); }

// How many bytes form the character at the start, whose code point goes to the last argument; 0 if none does.
static int64_t decodeOne( const unsigned char *bytes, int64_t length, RT_CHAR *ch )
{
    unsigned char lead = bytes[0];
    if ( lead < 0x80 )
    {
        *ch = lead;
        return 1;
    }
    int64_t size = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if ( lead < 0xC2 || lead > 0xF4 || size > length )
        return 0;
    RT_CHAR code = lead & ( 0x7Fu >> size );
    for ( int64_t i = 1; i < size; ++i )
    {
        if ( !isContinuation( bytes[i] ) )
            return 0;
        code = code << 6 | ( bytes[i] & 0x3F );
    }
    *ch = code;
    return RT_CHAR_OK( code ) && !isSurrogate( code ) && encodedSize( code ) == size ? size : 0;
}

static void encodeOne( RT_CHAR ch, int64_t size, unsigned char *into )
{
    for ( int64_t i = size - 1; i > 0; --i, ch >>= 6 )
        into[i] = static_cast<unsigned char>( 0x80 | ( ch & 0x3F ) );
    into[0] = static_cast<unsigned char>( size == 1 ? ch : ( 0xF00 >> size & 0xFF ) | ch );
}

// The number of code points, -1 if the bytes are not strictly UTF-8. Without WRITES it only looks.
template <bool WRITES>
static int64_t decode( const unsigned char *bytes, int64_t length, RT_CHAR *into )
{
    int64_t at = 0, count = 0;
    while ( at < length )
    {
        if ( length - at >= blockLength && isAsciiBlock( bytes + at ) )
        {
            if constexpr ( WRITES )
                convertBlock( bytes + at, into + count );
            at += blockLength;
            count += blockLength;
            continue;
        }
        RT_CHAR ch;
        int64_t size = decodeOne( bytes + at, length - at, &ch );
        if ( size == 0 )
            return -1;
        if constexpr ( WRITES )
            into[count] = ch;
        at += size;
        ++count;
    }
    return count;
}

// The number of bytes. Without WRITES it only counts.
template <bool WRITES>
static int64_t encode( const RT_CHAR *chs, int64_t length, unsigned char *into )
{
    int64_t at = 0, count = 0;
    while ( at < length )
    {
        if ( length - at >= blockLength && isAsciiBlock( chs + at ) )
        {
            if constexpr ( WRITES )
                convertBlock( chs + at, into + count );
            at += blockLength;
            count += blockLength;
            continue;
        }
        RT_CHAR ch = RT_CHAR_OK( chs[at] ) && !isSurrogate( chs[at] ) ? chs[at] : 0xFFFD;
        int64_t size = encodedSize( ch );
        if constexpr ( WRITES )
            encodeOne( ch, size, into + count );
        ++at;
        count += size;
    }
    return count;
}

RT_BOOL rt___Utf8Ok( const unsigned char *bytes, int64_t length )
{
    return isAscii( bytes, length ) || decode<false>( bytes, length, nullptr ) != -1;
}

int64_t rt___Utf8Length( const unsigned char *bytes, int64_t length )
{
    int64_t at = 0, count = 0;
    for ( ; length - at >= blockLength; at += blockLength )
    {
        unsigned char block[blockLength], inBlock = 0;
        std::memcpy( block, bytes + at, sizeof block );
        for ( unsigned char byte : block )
            inBlock = static_cast<unsigned char>( inBlock + !isContinuation( byte ) );
        count += inBlock;
    }
    for ( ; at < length; ++at )
        count += !isContinuation( bytes[at] );
    return count;
}

int64_t rt___Utf8Decode( const unsigned char *bytes, int64_t length, RT_CHAR *into )
{
    if ( isAscii( bytes, length ) )
    {
        convert( bytes, length, into );
        return length;
    }
    return decode<true>( bytes, length, into );
}

RT_STRING rtStringTryCreateFromUtf8( const char *bytes, int64_t length )
{
    RT_ASSERT( length >= 0 );
    RT_ASSERT( bytes || length == 0 );
    if ( length == 0 )
        return rtStringCreate();
    auto *from = reinterpret_cast<const unsigned char *>( bytes );
    rt::Ref<RT_STRING> string;
    if ( isAscii( from, length ) )
    {
        convert( from, length, rt::newString( length, string.address() ) );
        return string.take();
    }
    RT_CHAR *chs = rt::newString( rt___Utf8Length( from, length ), string.address() );
    return rt___Utf8Decode( from, length, chs ) == -1 ? nullptr : string.take();
}

int64_t rt___StringUtf8Length( RT_STRING string )
{
    return isAscii( string->chs, string->length ) ? string->length
                                                  : encode<false>( string->chs, string->length, nullptr );
}

int64_t rt___StringUtf8Encode( RT_STRING string, unsigned char *into )
{
    if ( isAscii( string->chs, string->length ) )
    {
        convert( string->chs, string->length, into );
        return string->length;
    }
    return encode<true>( string->chs, string->length, into );
}

void rtBufferAppendUtf8( RT_BUFFER *buffer, RT_STRING string )
{
    RT_ASSERT( buffer );
    RT_ASSERT( *buffer );
    RT_ASSERT( string );
    rt___StringUtf8Encode( string, rt___BufferExtend( buffer, rt___StringUtf8Length( string ) ) );
}

RT_STRING rtCharsetBufferToStringWithFlags( int64_t charset, RT_BUFFER buffer, int64_t flags )
{
    RT_ASSERT( charset == RT_CHARSET_UTF8 );
    RT_ASSERT( flags == 1 );
    return rtStringTryCreateFromUtf8( static_cast<const char *>( rtBufferBacking( buffer ) ),
                                      rtBufferLength( buffer ) );
}

RT_BUFFER rtCharsetStringToBuffer( int64_t charset, RT_STRING string )
{
    RT_ASSERT( charset == RT_CHARSET_UTF8 );
    RT_ASSERT( string );
    RT_BUFFER buffer = rtBufferCreate();
    rtBufferAppendUtf8( &buffer, string );
    return buffer;
}
