// IRI (RFC 3987) and the URIs of the grammar (RFC 3261, 25.1).
#include "telsx/telsx_iri.h"

#include "rsc/rsc.h"
#include "telsx/telsx_char.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

RT_BOOL telsxIriOk( RT_STRING iri )
{
    TELSX_ASSERT( iri );
    return rscGensValidatePart( RSC_GENS_PART_IRI, iri );
}

int64_t telsx___SkipUri( const RT_CHAR *chs, int64_t length ) { return rsc___SkipIri( chs, length ); }

int64_t telsx___SkipAddrSpec( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return rsc___SkipIriUntil( chs, length, ';' );
}

int64_t telsx___SkipUric( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    int64_t at = 0;
    for ( ;; )
    {
        at += runOf<classReserved | classUnreserved>( { chs + at, length - at } );
        if ( !isEscape( { chs + at, length - at } ) )
            return at;
        at += 3;
    }
}
