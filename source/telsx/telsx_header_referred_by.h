/* Referred-By header: who referred a party elsewhere (RFC 3892, 3).
 *
 *     Referred-By = ( "Referred-By" / "b" ) HCOLON referrer-uri
 *                   *( SEMI ( referredby-id-param / generic-param ) )
 *     referrer-uri = name-addr / addr-spec  ; RFC 3892
 *     referredby-id-param = "cid" EQUAL DQUOTE sip-clean-msg-id DQUOTE
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_REFERRED_BY_H
#define TELSX_TELSX_HEADER_REFERRED_BY_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderReferredBy, HEADER_REFERRED_BY )
TELSX_FREE_FUNC( HeaderReferredBy )

/* A header with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_HEADER_REFERRED_BY telsxHeaderReferredByCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxHeaderReferredByIri( TELSX_HEADER_REFERRED_BY hdr );
RT_API void telsxHeaderReferredBySetIri( TELSX_HEADER_REFERRED_BY *hdr, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxHeaderReferredByDisplayName( TELSX_HEADER_REFERRED_BY hdr );
RT_API RT_BOOL telsxHeaderReferredByHasDisplayName( TELSX_HEADER_REFERRED_BY hdr );
RT_API void telsxHeaderReferredBySetDisplayName( TELSX_HEADER_REFERRED_BY *hdr, RT_STRING displayName );
RT_API void telsxHeaderReferredByDelDisplayName( TELSX_HEADER_REFERRED_BY *hdr );

/* The message id of the token that proves it, without its quotes, or null. Set aborts unless
 * telsxSipCleanMsgIdOk. */
RT_API RT_STRING telsxHeaderReferredByCid( TELSX_HEADER_REFERRED_BY hdr );
RT_API RT_BOOL telsxHeaderReferredByHasCid( TELSX_HEADER_REFERRED_BY hdr );
RT_API void telsxHeaderReferredBySetCid( TELSX_HEADER_REFERRED_BY *hdr, RT_STRING cid );
RT_API void telsxHeaderReferredByDelCid( TELSX_HEADER_REFERRED_BY *hdr );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderReferredByGenericParams( TELSX_HEADER_REFERRED_BY hdr );
RT_API void telsxHeaderReferredBySetGenericParams( TELSX_HEADER_REFERRED_BY *hdr,
                                                   TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
