// UTF-8 (RFC 3629). Most text is ASCII, which is converted in blocks.
#include "rt/rt_charset.h"

#include "rt/rt_buffer.h"
#include "rt/rt_frame.hpp"
#include "rt/rt_scan.hpp"
#include "rt/rt_string.hpp"

static constexpr int64_t blockLength = 16;

template <int64_t LENGTH = blockLength>
static bool isAsciiBlock( const unsigned char *from )
{
    auto block = rt::ByteBlock::at( from );
    for ( int64_t at = blockLength; at < LENGTH; at += blockLength )
        block = block | rt::ByteBlock::at( from + at );
    return block.mask() == 0;
}
template <int64_t LENGTH = blockLength>
static bool isAsciiBlock( const RT_CHAR *from )
{
    rt::FourChars chs = rt::FourChars::at( from );
    for ( int64_t at = 4; at < LENGTH; at += 4 )
        chs = chs | rt::FourChars::at( from + at );
    return chs.areAscii();
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

// Writes the code points as bytes and tells whether they are ASCII. If they aren't, what was written is not valid.
static bool tryNarrow( const RT_CHAR *from, int64_t length, unsigned char *to )
{
    int64_t at = 0;
    rt::FourChars all = {};
    for ( ; length - at >= blockLength; at += blockLength )
        all = all | rt::narrow( from + at, to + at );
    if ( at && at < length )
        all = all | rt::narrow( from + length - blockLength, to + length - blockLength );
    else
        for ( ; at < length; ++at )
        {
            if ( from[at] >= 0x80 )
                return false;
            to[at] = static_cast<unsigned char>( from[at] );
        }
    return all.areAscii();
}

static bool isContinuation( unsigned char byte ) { return ( byte & 0xC0 ) == 0x80; }

static bool isSurrogate( RT_CHAR ch ) { return ch >= 0xD800 && ch <= 0xDFFF; }

static int64_t encodedSize( RT_CHAR ch ) { return 1 + ( ch >= 0x80 ) + ( ch >= 0x800 ) + ( ch >= 0x10000 ); }

// How many bytes form the character at the start, or 0 if there is none. Its code point goes to the last argument.
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

// The number of code points, or -1 if the bytes are not strict UTF-8. Without WRITES it only counts.
template <bool WRITES>
static int64_t decode( const unsigned char *bytes, int64_t length, RT_CHAR *into )
{
    int64_t at = 0, count = 0;
    while ( at < length )
    {
        if ( length - at >= blockLength && isAsciiBlock( bytes + at ) )
        {
            if constexpr ( WRITES )
                rt::ByteBlock::at( bytes + at ).widen( into + count );
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
                rt::narrow( chs + at, into + count );
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

RT_BOOL rt___AsciiOk( const char *bytes, int64_t length )
{
    return isAscii( reinterpret_cast<const unsigned char *>( bytes ), length );
}

RT_STRING rt___StringCreateFromAscii( const char *bytes, int64_t length )
{
    if ( length == 0 )
        return rtStringCreate();
    RT_STRING string;
    rt::widenExactly( bytes, length, rt::newString( length, &string ) );
    return string;
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
        rt::widenExactly( reinterpret_cast<const char *>( bytes ), length, into );
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
    if ( isAscii( from, length ) )
        return rt___StringCreateFromAscii( bytes, length );
    rt::Ref<RT_STRING> string;
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
    return tryNarrow( string->chs, string->length, into ) ? string->length
                                                          : encode<true>( string->chs, string->length, into );
}

RT_BOOL rt___StringTryNarrow( RT_STRING string, unsigned char *into )
{
    return tryNarrow( string->chs, string->length, into );
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
