/* History-Info value: one target that a request had on its way.
 *
 *     hi-entry = name-addr *( SEMI hi-param )
 *     hi-param = hi-index / hi-target-param / hi-extension
 *     hi-index = "index" EQUAL index-val
 *     hi-target-param = ( "rc" / "mp" / "np" ) EQUAL index-val
 *
 * (RFC 7044, 5) The index is mandatory. Values sort by the fields in the order below; indices compare as texts. */
#ifndef TELSX_TELSX_HISTORY_INFO_H
#define TELSX_TELSX_HISTORY_INFO_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( HistoryInfo, HISTORY_INFO )
TELSX_COMPARE_FUNC( HistoryInfo )

/* A value with this address and index and nothing else. Aborts unless telsxIriOk and
 * telsxHistoryInfoIndexOk. */
RT_API TELSX_HISTORY_INFO telsxHistoryInfoCreate( RT_STRING iri, RT_STRING index );

/* The address as an IRI, never null. Set aborts unless telsxIriOk. */
RT_API RT_STRING telsxHistoryInfoIri( TELSX_HISTORY_INFO hi );
RT_API void telsxHistoryInfoSetIri( TELSX_HISTORY_INFO *hi, RT_STRING iri );

/* The display name, plain, possibly empty, or null. Set aborts unless telsxDisplayNameOk. */
RT_API RT_STRING telsxHistoryInfoDisplayName( TELSX_HISTORY_INFO hi );
RT_API RT_BOOL telsxHistoryInfoHasDisplayName( TELSX_HISTORY_INFO hi );
RT_API void telsxHistoryInfoSetDisplayName( TELSX_HISTORY_INFO *hi, RT_STRING displayName );
RT_API void telsxHistoryInfoDelDisplayName( TELSX_HISTORY_INFO *hi );

/* The index, such as 1.2.1, never null. Set aborts unless telsxHistoryInfoIndexOk. */
RT_API RT_STRING telsxHistoryInfoIndex( TELSX_HISTORY_INFO hi );
RT_API void telsxHistoryInfoSetIndex( TELSX_HISTORY_INFO *hi, RT_STRING index );

/* The indices that rc, mp and np name, or null. Set aborts unless telsxHistoryInfoIndexOk. */
RT_API RT_STRING telsxHistoryInfoRc( TELSX_HISTORY_INFO hi );
RT_API RT_BOOL telsxHistoryInfoHasRc( TELSX_HISTORY_INFO hi );
RT_API void telsxHistoryInfoSetRc( TELSX_HISTORY_INFO *hi, RT_STRING rc );
RT_API void telsxHistoryInfoDelRc( TELSX_HISTORY_INFO *hi );
RT_API RT_STRING telsxHistoryInfoMp( TELSX_HISTORY_INFO hi );
RT_API RT_BOOL telsxHistoryInfoHasMp( TELSX_HISTORY_INFO hi );
RT_API void telsxHistoryInfoSetMp( TELSX_HISTORY_INFO *hi, RT_STRING mp );
RT_API void telsxHistoryInfoDelMp( TELSX_HISTORY_INFO *hi );
RT_API RT_STRING telsxHistoryInfoNp( TELSX_HISTORY_INFO hi );
RT_API RT_BOOL telsxHistoryInfoHasNp( TELSX_HISTORY_INFO hi );
RT_API void telsxHistoryInfoSetNp( TELSX_HISTORY_INFO *hi, RT_STRING np );
RT_API void telsxHistoryInfoDelNp( TELSX_HISTORY_INFO *hi );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHistoryInfoGenericParams( TELSX_HISTORY_INFO hi );
RT_API void telsxHistoryInfoSetGenericParams( TELSX_HISTORY_INFO *hi, TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
