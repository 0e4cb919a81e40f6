/* Remote-Party-Id header: who the other party is (draft-ietf-sip-privacy-04, 5).
 *
 *     Remote-Party-ID = "Remote-Party-ID" HCOLON [display-name] LAQUOT addr-spec RAQUOT  ; RFC 3261
 *                       *( SEMI rpi-token )
 *
 * An address without brackets and any other parameter are read too.
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_REMOTE_PARTY_ID_H
#define TELSX_TELSX_HEADER_REMOTE_PARTY_ID_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderRemotePartyId, HEADER_REMOTE_PARTY_ID )
TELSX_FREE_FUNC( HeaderRemotePartyId )

/* A header with this address and nothing else. Aborts unless telsxIriOk. */
RT_API TELSX_HEADER_REMOTE_PARTY_ID telsxHeaderRemotePartyIdCreate( RT_STRING iri );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxHeaderRemotePartyIdIri( TELSX_HEADER_REMOTE_PARTY_ID hdr );
RT_API void telsxHeaderRemotePartyIdSetIri( TELSX_HEADER_REMOTE_PARTY_ID *hdr, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxHeaderRemotePartyIdDisplayName( TELSX_HEADER_REMOTE_PARTY_ID hdr );
RT_API RT_BOOL telsxHeaderRemotePartyIdHasDisplayName( TELSX_HEADER_REMOTE_PARTY_ID hdr );
RT_API void telsxHeaderRemotePartyIdSetDisplayName( TELSX_HEADER_REMOTE_PARTY_ID *hdr,
                                                    RT_STRING displayName );
RT_API void telsxHeaderRemotePartyIdDelDisplayName( TELSX_HEADER_REMOTE_PARTY_ID *hdr );

/* The parameters, never null. Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderRemotePartyIdGenericParams( TELSX_HEADER_REMOTE_PARTY_ID hdr );
RT_API void telsxHeaderRemotePartyIdSetGenericParams( TELSX_HEADER_REMOTE_PARTY_ID *hdr,
                                                      TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
