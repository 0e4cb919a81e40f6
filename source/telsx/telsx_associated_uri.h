/* Associated address: another address of a registered party. Element of P-Associated-Uri.
 *
 *     p-aso-uri-spec = name-addr *( SEMI ai-param )  ; RFC 7315
 *     ai-param = generic-param
 *
 * (RFC 7315, 5.1) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_ASSOCIATED_URI_H
#define TELSX_TELSX_ASSOCIATED_URI_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( AssociatedUri, ASSOCIATED_URI )
TELSX_COMPARE_FUNC( AssociatedUri )
TELSX_TO_STRING_FUNC( AssociatedUri )

/* A value with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_ASSOCIATED_URI telsxAssociatedUriCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxAssociatedUriIri( TELSX_ASSOCIATED_URI associatedUri );
RT_API void telsxAssociatedUriSetIri( TELSX_ASSOCIATED_URI *associatedUri, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxAssociatedUriDisplayName( TELSX_ASSOCIATED_URI associatedUri );
RT_API RT_BOOL telsxAssociatedUriHasDisplayName( TELSX_ASSOCIATED_URI associatedUri );
RT_API void telsxAssociatedUriSetDisplayName( TELSX_ASSOCIATED_URI *associatedUri, RT_STRING displayName );
RT_API void telsxAssociatedUriDelDisplayName( TELSX_ASSOCIATED_URI *associatedUri );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxAssociatedUriGenericParams( TELSX_ASSOCIATED_URI associatedUri );
RT_API void telsxAssociatedUriSetGenericParams( TELSX_ASSOCIATED_URI *associatedUri,
                                                TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipAssociatedUri( const RT_CHAR *chs, int64_t length );

RT_END

#endif
