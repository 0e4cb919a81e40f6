// Internationalised domain names, label by label: labels that match the ASCII grammar stay as they are; only the
// others, and those that begin with "xn--", go through libidn2.
//
//     host     = hostname / "[" IPv6address "]"
//     hostname = label *( "." label ) [ "." ]
//     label    = 1*( ALPHA / DIGIT / "-" / "%" HEXDIG HEXDIG )  ; no "-" at either end
#include "net/net_dns_idna.h"

#include <idn2.h>

#include <algorithm>
#include <array>

#include "net/net_address.h"
#include "rt/rt_ascii.hpp"
#include "rt/rt_text.hpp"

using rt::adopt;
using rt::covers;
using rt::Ref;
using rt::share;
using rt::Text;
using rt::textOf;

// The longest domain name, without the dot at the end (RFC 1035, 2.3.4). The work of libidn2 grows faster than its
// text, so it never sees a longer text than this, nor an "xn--" label longer than IDN2_LABEL_MAX_LENGTH.
constexpr int64_t DOMAIN_MAX_LENGTH = 253;

static bool isDomainSized( Text name )
{
    return name.length <= DOMAIN_MAX_LENGTH
           || ( name.length == DOMAIN_MAX_LENGTH + 1 && name.chs[DOMAIN_MAX_LENGTH] == '.' );
}

static bool isAlphanum( RT_CHAR ch ) { return rt::isDigit( ch ) || rt::isLetter( ch ); }

static int64_t skipLabel( const RT_CHAR *chs, int64_t length )
{
    int64_t end = 0;
    for ( int64_t at = 0; at < length; )
        if ( isAlphanum( chs[at] ) )
            end = ++at;
        else if ( chs[at] == '-' && at > 0 )
            ++at;
        else if ( chs[at] == '%' && length - at > 2 && rt::isHexdig( chs[at + 1] )
                  && rt::isHexdig( chs[at + 2] ) )
            end = at += 3;
        else
            break;
    return end;
}

static bool isAsciiHost( Text host )
{
    if ( !host )
        return false;
    if ( host.chs[0] == '[' )
        return host.length > 2 && host.chs[host.length - 1] == ']'
               && covers( net___SkipIpV6Address, Text{ host.chs + 1, host.length - 2 } );
    while ( host )
        if ( !host.take( skipLabel ) || ( host && host.take( 1 ).chs[0] != '.' ) )
            return false;
    return true;
}

// The text up to the next dot, which may be any of the four characters that UTS 46 treats as dots.
static Text takeLabel( Text *name )
{
    auto isDot = []( RT_CHAR ch ) { return ch == '.' || ch == 0x3002 || ch == 0xFF0E || ch == 0xFF61; };
    return name->take( std::find_if( name->chs, name->chs + name->length, isDot ) - name->chs );
}

// Whether libidn2 could convert a text. Aborts if it ran out of memory.
static bool hasConverted( int result )
{
    RT_CHECK( result != IDN2_MALLOC, "out of memory", "result" );
    return result == IDN2_OK;
}

// The ASCII form of the label by UTS 46, or null if that is not a label of letters, digits and hyphens. The flag of
// libidn2 for that rule won't do: it drops the other characters.
static Ref<RT_STRING> tryConvertToAscii( Text label )
{
    std::array<uint32_t, DOMAIN_MAX_LENGTH + 2> input{};
    if ( label.length >= std::ssize( input ) || std::count( label.chs, label.chs + label.length, 0 ) )
        return {};
    std::copy_n( label.chs, label.length, input.begin() );
    char *output = nullptr;
    if ( !hasConverted( idn2_to_ascii_4z( input.data(), &output, IDN2_NFC_INPUT | IDN2_NONTRANSITIONAL ) ) )
        return {};
    Ref<RT_STRING> ascii = adopt( rtStringCreateFromCstr( output, -1 ) );
    idn2_free( output );
    const RT_CHAR percent = '%';
    bool good = covers( skipLabel, ascii.get() ) && rtStringLength( ascii.get() ) <= IDN2_LABEL_MAX_LENGTH
                && rtStringFindChars( ascii.get(), 0, &percent, 1 ) < 0;
    return good ? ascii : Ref<RT_STRING>();
}

// The Unicode form of an "xn--" label, or null if it doesn't convert back to the label.
static Ref<RT_STRING> tryConvertToUnicode( Text label )
{
    constexpr std::array<uint32_t, 4> prefix{ 'x', 'n', '-', '-' };
    if ( label.length < std::ssize( prefix ) || label.length > IDN2_LABEL_MAX_LENGTH )
        return {};
    std::array<uint32_t, IDN2_LABEL_MAX_LENGTH + 1> input{};
    std::transform( label.chs, label.chs + label.length, input.begin(), rt::lowerAscii<RT_CHAR> );
    uint32_t *output = nullptr;
    if ( !std::equal( prefix.begin(), prefix.end(), input.begin() )
         || !hasConverted( idn2_to_unicode_4z4z( input.data(), &output, 0 ) ) )
        return {};
    Ref<RT_STRING> unicode = adopt( rtStringCreateFromCharsCopy( output, -1 ) );
    idn2_free( output );
    Ref<RT_STRING> ascii = tryConvertToAscii( textOf( unicode ) );
    bool good = ascii && rtStringEqualsChars( ascii.get(), input.data(), label.length );
    return good ? unicode : Ref<RT_STRING>();
}

// Null if the name is not a host.
static Ref<RT_STRING> tryConvertHostToAscii( RT_STRING name )
{
    Text rest = textOf( name );
    if ( isAsciiHost( rest ) )
        return share( name );
    if ( !rest || !isDomainSized( rest ) )
        return {};
    Ref<RT_STRING> ascii = adopt( rtStringCreate() );
    while ( rest )
    {
        Text label = takeLabel( &rest );
        Ref<RT_STRING> converted = covers( skipLabel, label ) ? label.copy() : tryConvertToAscii( label );
        if ( !converted )
            return {};
        rtStringAppend( ascii.address(), converted.get() );
        if ( rest )
        {
            rest.take( 1 );
            rtStringAppendChar( ascii.address(), '.' );
        }
    }
    return isDomainSized( textOf( ascii ) ) ? ascii : Ref<RT_STRING>();
}

RT_BOOL netDnsIdnaDomainNameOk( RT_STRING name )
{
    RT_ASSERT( name );
    return bool( tryConvertHostToAscii( name ) );
}

RT_STRING netDnsIdnaDomainNameToAscii( RT_STRING name )
{
    RT_ASSERT( name );
    Ref<RT_STRING> ascii = tryConvertHostToAscii( name );
    RT_CHECK( ascii, nullptr, "netDnsIdnaDomainNameOk( name )" );
    return ascii.take();
}

RT_STRING netDnsIdnaDomainNameToUnicode( RT_STRING name )
{
    RT_ASSERT( netDnsIdnaDomainNameOk( name ) );
    Text text = textOf( name ), rest = text;
    if ( !isDomainSized( text ) )
        return share( name ).take();
    Ref<RT_STRING> result = adopt( rtStringCreate() );
    int64_t copied = 0;
    while ( rest )
    {
        Text label = takeLabel( &rest );
        if ( Ref<RT_STRING> unicode = tryConvertToUnicode( label ) )
        {
            Text before = text.after( copied ).first( label.chs - text.chs - copied );
            rtStringAppendChars( result.address(), before.chs, before.length );
            rtStringAppend( result.address(), unicode.get() );
            copied = text.length - rest.length;
        }
        rest.take( rtIntMin( rest.length, 1 ) );
    }
    if ( copied == 0 )
        return share( name ).take();
    rtStringAppendChars( result.address(), text.chs + copied, text.length - copied );
    return result.take();
}
