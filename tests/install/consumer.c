/* A program in C that counts a request up. <net/...> stays the system's for what is not ours. */
#include <net/if.h>
#include <string.h>
#include <telsx/telsx.h>

int main( void )
{
    static const char wire[] = "OPTIONS sip:a SIP/2.0\r\nCSeq: 7 OPTIONS\r\n\r\n";
    static const char counted[] = "OPTIONS sip:a SIP/2.0\r\nCseq: 8 OPTIONS\r\nContent-Length: 0\r\n\r\n";
    if ( !rtModuleStart( telsxModule() ) )
        return 1;
    RT_BUFFER bytes = rtBufferCreateFromBytesCopy( wire, sizeof wire - 1 );
    TELSX_MESSAGE message = telsxMessageTryDecode( bytes );
    TELSX_HEADER_CSEQ cseq = telsxHeaderCseqTryDecodeFromMessage( message );
    telsxHeaderCseqSetCseq( &cseq, telsxHeaderCseqCseq( cseq ) + 1 );
    telsxHeaderCseqEncodeToMessage( cseq, &message );
    RT_BUFFER out = telsxMessageEncode( message );
    int differs = rtBufferLength( out ) != sizeof counted - 1
                  || memcmp( rtBufferBacking( out ), counted, sizeof counted - 1 ) != 0;
    rtBufferRelease( out );
    telsxHeaderCseqRelease( cseq );
    telsxMessageRelease( message );
    rtBufferRelease( bytes );
    rtModuleStop( telsxModule() );
    return differs || IF_NAMESIZE < 1;
}
