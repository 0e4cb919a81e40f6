// A program in C++ that calls all four libraries and goes through the list of kinds.
#include <cstring>
#include <initializer_list>
#include <net/net.h>
#include <rsc/rsc.h>
#include <telsx/telsx.h>

#define TELSX_KIND( NAME, SORT, SIP_NAME ) { SIP_NAME, telsx##NAME##Sort },
static const struct
{
    const char *name;
    RT_SORT ( *sort )();
} kinds[] = {
#include <telsx/telsx_headers.def>
};

int main()
{
    if ( !rtModuleStart( telsxModule() ) )
        return 1;
    RT_STRING host = rtStringCreateFromCstr( "xn--mhle-0ra.example", -1 );
    RT_STRING uri = rtStringCreateFromCstr( "sip:a", -1 );
    RT_STRING unicode = netDnsIdnaDomainNameToUnicode( host ), iri = rscTryConvertFromUri( uri );
    bool good = rtStringLength( unicode ) == 13 && rtStringEquals( iri, uri ) && telsxHostOk( unicode );
    for ( const auto &kind : kinds )
        good = good && std::strlen( kind.name ) > 0 && kind.sort();
    for ( RT_STRING string : { host, uri, unicode, iri } )
        rtStringRelease( string );
    rtModuleStop( telsxModule() );
    return good ? 0 : 1;
}
