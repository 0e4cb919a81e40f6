// Text of an address (RFC 3261, 19.1.2; RFC 3987, 3.2).
#include "telsx/telsx_iri_text.hpp"

#include <algorithm>
#include <bit>

#include "rsc/rsc_iri.hpp"
#include "rt/rt_charset.h"

using namespace telsx;

// A byte that is not part of a character is this code point plus the byte.
static constexpr RT_CHAR loneBytes = 0xDC00;
static bool isLoneByte( RT_CHAR ch ) { return ch >= loneBytes + 0x80 && ch <= loneBytes + 0xFF; }

// The byte of the escape at the start, or -1.
static int64_t escapedByte( Text text )
{
    return isEscape( text ) ? rt::digitOf( text.chs[1] ) << 4 | rt::digitOf( text.chs[2] ) : -1;
}

// Takes the escapes of one character, or that of one byte. The text must begin with an escape.
static RT_CHAR takeEscaped( Text &text )
{
    unsigned char bytes[4] = {};
    RT_CHAR chs[4] = {};
    int64_t count = 0, needed = 1;
    for ( int64_t byte; count < needed && ( byte = escapedByte( text.after( 3 * count ) ) ) != -1; ++count )
    {
        bytes[count] = static_cast<unsigned char>( byte );
        if ( count == 0 )
            needed = std::clamp( std::countl_one( bytes[0] ), 1, 4 );
    }
    bool isChar = count == needed && rt___Utf8Decode( bytes, count, chs ) == 1;
    text.take( isChar ? 3 * count : 3 );
    return isChar ? chs[0] : loneBytes + bytes[0];
}

static void appendByte( Ref<RT_STRING> &text, unsigned char byte )
{
    static constexpr char digits[] = "0123456789ABCDEF";
    append( text, '%', digits[byte >> 4], digits[byte & 0xF] );
}

static void appendChar( Ref<RT_STRING> &text, RT_CHAR ch, const rt::CharSet &plain )
{
    if ( plain.has( ch ) || ( rsc::isUcschar( ch ) && !rsc::isBidiControl( ch ) ) )
        rtStringAppendChar( text.address(), ch );
    else if ( ch < 0x80 || isLoneByte( ch ) )
        appendByte( text, static_cast<unsigned char>( ch ) );
    else
    {
        unsigned char bytes[4];
        int64_t length = rt___StringUtf8Encode( Text{ &ch, 1 }.copy().get(), bytes );
        std::for_each( bytes, bytes + length, [&]( unsigned char byte ) { appendByte( text, byte ); } );
    }
}

// Those of the characters that mean the same when they are escaped (RFC 3261, 19.1.4).
static rt::CharSet unreservedOf( rt::CharSet set )
{
    for ( int i = 0; i < 16; ++i )
        set.rows[i] &= static_cast<uint8_t>( ~charSet<classReserved>.rows[i] );
    return set;
}

Ref<RT_STRING> telsx::escapedForm( Text text, const rt::CharSet &plain, const rt::CharSet &accepted )
{
    if ( plain.runOf( text.chs, text.length ) == text.length )
        return text.copy();
    const rt::CharSet unreserved = unreservedOf( plain );
    Ref<RT_STRING> form = textWithRoom( text.length );
    while ( text )
    {
        append( form, text.take( plain.runOf( text.chs, text.length ) ) );
        if ( !text )
            break;
        if ( isEscape( text ) )
            appendChar( form, takeEscaped( text ), unreserved );
        else if ( RT_CHAR ch = text.take( 1 ).chs[0];
                  accepted.has( ch ) || rsc::isUcschar( ch ) || rsc::isIprivate( ch ) )
            appendChar( form, ch, plain );
        else
            return {};
    }
    return form;
}

Ref<RT_STRING> telsx::resolved( Text text )
{
    Ref<RT_STRING> plain = textWithRoom( text.length );
    while ( text )
    {
        append( plain, text.take( until( text, '%' ).length ) );
        if ( isEscape( text ) )
            rtStringAppendChar( plain.address(), takeEscaped( text ) );
        else if ( text )
            append( plain, text.take( 1 ) );
    }
    return plain;
}

Ref<RT_STRING> telsx::resolvedOf( const Ref<RT_STRING> &form )
{
    return form && hasEscapes( textOf( form ) ) ? resolved( textOf( form ) ) : form;
}

Ref<RT_STRING> telsx::escaped( Text text, const rt::CharSet &plain )
{
    Ref<RT_STRING> form = textWithRoom( text.length );
    while ( text )
    {
        append( form, text.take( plain.runOf( text.chs, text.length ) ) );
        if ( text )
            appendChar( form, text.take( 1 ).chs[0], plain );
    }
    return form;
}

Ref<RT_STRING> telsx::asciiLowerCase( const Ref<RT_STRING> &text )
{
    Text from = textOf( text );
    if ( std::all_of( from.chs, from.chs + from.length,
                      []( RT_CHAR ch ) { return ch == rt::lowerAscii( ch ); } ) )
        return text;
    Ref<RT_STRING> lower;
    std::transform( from.chs, from.chs + from.length, rt::newString( from.length, lower.address() ),
                    rt::lowerAscii<RT_CHAR> );
    return lower;
}

RT_BOOL telsxIriTextOk( RT_STRING text )
{
    TELSX_ASSERT( text );
    Text whole = textOf( text );
    if ( std::all_of( whole.chs, whole.chs + whole.length, []( RT_CHAR ch ) { return ch < 0x80; } ) )
        return 1;
    return rtStringEquals( resolved( textOf( escaped( whole, userChars ) ) ).get(), text );
}

RT_BOOL telsxIriNameOk( RT_STRING name )
{
    TELSX_ASSERT( name );
    return telsxIriTextOk( name ) && rtStringLength( name ) > 0;
}
