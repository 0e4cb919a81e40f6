// Host (RFC 3261, 25.1; RFC 3986, 3.2.2; RFC 5891).
#include "telsx/telsx_host.h"

#include <algorithm>

#include "net/net.h"
#include "rsc/rsc.h"
#include "telsx/telsx_char.hpp"
#include "telsx/telsx_host.hpp"
#include "telsx/telsx_port.h"
#include "telsx/telsx_text.hpp"

using namespace telsx;

// A label, or labels with single dots between them and perhaps one after the last. A label ends with a letter, a digit
// or an escape, and does not begin with a hyphen.
template <bool HAS_DOTS>
static int64_t skipLabels( Text text )
{
    int64_t at = 0, label = 0, end = 0; // where the label begins, and where the part found so far ends
    for ( ;; )
    {
        while ( at < text.length && isIn( text.chs[at], classAlphanum ) )
            end = ++at;
        if ( at == text.length )
            return end;
        RT_CHAR ch = text.chs[at];
        if ( HAS_DOTS && ch == '.' && at > label && end == at )
            label = end = ++at;
        else if ( ch == '-' && at > label )
            ++at;
        else if ( ch == '%' && isEscape( text.after( at ) ) )
            end = at += 3;
        else
            return end;
    }
}

int64_t telsx___SkipDomainLabel( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipLabels<false>( { chs, length } );
}

int64_t telsx___SkipHostname( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipLabels<true>( { chs, length } );
}

int64_t telsx___SkipIpV4Address( const RT_CHAR *chs, int64_t length )
{
    return rsc___SkipIpV4Address( chs, length );
}

int64_t telsx___SkipIpV6Address( const RT_CHAR *chs, int64_t length )
{
    return rsc___SkipIpV6Address( chs, length );
}

int64_t telsx___SkipIpV6Reference( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    if ( !rest || rest.take( 1 ).chs[0] != '[' || !rest.take( telsx___SkipIpV6Address ) )
        return 0;
    return rest && rest.take( 1 ).chs[0] == ']' ? length - rest.length : 0;
}

int64_t telsx___SkipHost( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    // An IPv4 address is a hostname as well.
    int64_t name = skipLabels<true>( { chs, length } );
    return name ? name : telsx___SkipIpV6Reference( chs, length );
}

int64_t telsx___SkipHostPort( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t host = telsx___SkipHost( chs, length );
    if ( !host || host == length || chs[host] != ':' )
        return host;
    int64_t port = telsx___SkipPort( chs + host + 1, length - host - 1 );
    return port ? host + 1 + port : host;
}

RT_BOOL telsxHostOk( RT_STRING host )
{
    TELSX_ASSERT( host );
    if ( covers( telsx___SkipHost, host ) )
        return 1;
    return netDnsIdnaDomainNameOk( host )
           && covers( telsx___SkipHost, adopt( netDnsIdnaDomainNameToAscii( host ) ).get() );
}

RT_STRING telsx___HostEncode( RT_STRING host )
{
    TELSX_ASSERT( host );
    if ( covers( telsx___SkipHost, host ) )
        return share( host ).take();
    RT_STRING result =
        netDnsIdnaDomainNameOk( host ) ? netDnsIdnaDomainNameToAscii( host ) : rtStringCreate();
    int64_t length = rtStringLength( result );
    TELSX_ASSERT( length && length == telsx___SkipHost( rtStringBacking( result ), length ) );
    return result;
}

Ref<RT_STRING> telsx::hostOf( Text text )
{
    Ref<RT_STRING> copy = text.copy();
    const RT_CHAR *end = text.chs + text.length;
    if ( std::adjacent_find( text.chs, end, []( RT_CHAR a, RT_CHAR b ) { return a == '-' && b == '-'; } )
         == end )
        return copy; // no label in it is encoded
    return adopt( netDnsIdnaDomainNameOk( copy.get() ) ? netDnsIdnaDomainNameToUnicode( copy.get() )
                                                       : nullptr );
}

RT_STRING telsx___HostTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text text = { chs, length };
    return covers( telsx___SkipHost, text ) ? hostOf( text ).take() : nullptr;
}
