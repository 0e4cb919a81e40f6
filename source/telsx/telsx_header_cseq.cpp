// Cseq header (RFC 3261, 20.16).
#include "telsx/telsx_header_cseq.h"

#include "telsx/telsx_cseq.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_method.hpp"
#include "telsx/telsx_number.hpp"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text_forms.hpp"

using namespace telsx;

struct TELSX_HEADER_CSEQ_
{
    RT_OBJECT object;
    int64_t cseq;
    Ref<RT_STRING> method; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.cseq, self.method ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderCseq, HEADER_CSEQ, cs, "Cseq" )
TELSX_DEFINE_GETTER( HeaderCseq, hdr, Cseq, cseq )
TELSX_DEFINE_GETTER( HeaderCseq, hdr, Method, method )

void telsxHeaderCseqSetCseq( TELSX_HEADER_CSEQ *cs, int64_t cseq )
{
    TELSX_ASSERT_HANDLE( cs );
    TELSX_ASSERT( telsxCseqOk( cseq ) );
    TELSX_OWN( cs )->cseq = cseq;
}

void telsxHeaderCseqSetMethod( TELSX_HEADER_CSEQ *cs, RT_STRING method )
{
    TELSX_ASSERT_HANDLE( cs );
    TELSX_ASSERT_OK( telsxMethodOk, method );
    rt::put( TELSX_OWN( cs )->method, method );
}

static TELSX_HEADER_CSEQ create( int64_t cseq, Ref<RT_STRING> method )
{
    TELSX_HEADER_CSEQ hdr = rt::create<TELSX_HEADER_CSEQ_>( telsxHeaderCseqSort() );
    hdr->cseq = cseq;
    hdr->method = std::move( method );
    return hdr;
}

TELSX_HEADER_CSEQ telsxHeaderCseqCreate( int64_t cseq, RT_STRING method )
{
    TELSX_ASSERT( telsxCseqOk( cseq ) );
    TELSX_ASSERT_OK( telsxMethodOk, method );
    return create( cseq, share( method ) );
}

TELSX_MESSAGE_HEADER telsxHeaderCseqEncode( TELSX_HEADER_CSEQ hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Cseq">(), joined( Decimal( hdr->cseq ), ' ', hdr->method ) );
}

static TELSX_HEADER_CSEQ decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    int64_t cseq = tryDecodeNumber( rest.take( telsx___SkipDigits ), telsxCseqOk );
    if ( cseq == -1 || !rest.take( telsx___SkipLws ) )
        return nullptr;
    Ref<RT_STRING> method = tryDecodeMethod( rest );
    return method ? create( cseq, std::move( method ) ) : nullptr;
}

TELSX_DEFINE_TEXT_FORMS( void, HeaderCseqSetMethod, (TELSX_HEADER_CSEQ *), () )
