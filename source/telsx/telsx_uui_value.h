/* User-to-user information: data that the network hands on from one party to the other.
 *
 *     uui-value = uui-data *( SEMI uui-param )
 *     uui-data = token / quoted-string
 *     uui-param = pkg-param / cont-param / enc-param / generic-param
 *     pkg-param = "purpose" EQUAL token
 *     cont-param = "content" EQUAL token
 *     enc-param = "encoding" EQUAL ( token / "hex" )
 *
 * (RFC 7433, 4.1) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_UUI_VALUE_H
#define TELSX_TELSX_UUI_VALUE_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( UuiValue, UUI_VALUE )
TELSX_COMPARE_FUNC( UuiValue )
TELSX_TO_STRING_FUNC( UuiValue )

/* A value with these data and nothing else. Aborts unless telsxQuotableStringOk. */
RT_API TELSX_UUI_VALUE telsxUuiValueCreate( RT_STRING uuiData );

/* The data as plain text, in their encoding, never null. They are written in quotes unless they are a token. Set
 * aborts unless telsxQuotableStringOk. */
RT_API RT_STRING telsxUuiValueUuiData( TELSX_UUI_VALUE uuiValue );
RT_API void telsxUuiValueSetUuiData( TELSX_UUI_VALUE *uuiValue, RT_STRING uuiData );

/* The package that defines the use of the data (purpose), what they are (content) and how they are encoded (encoding,
 * such as hex), in lower case, or null. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxUuiValuePurpose( TELSX_UUI_VALUE uuiValue );
RT_API RT_BOOL telsxUuiValueHasPurpose( TELSX_UUI_VALUE uuiValue );
RT_API void telsxUuiValueSetPurpose( TELSX_UUI_VALUE *uuiValue, RT_STRING purpose );
RT_API void telsxUuiValueDelPurpose( TELSX_UUI_VALUE *uuiValue );
RT_API RT_STRING telsxUuiValueContent( TELSX_UUI_VALUE uuiValue );
RT_API RT_BOOL telsxUuiValueHasContent( TELSX_UUI_VALUE uuiValue );
RT_API void telsxUuiValueSetContent( TELSX_UUI_VALUE *uuiValue, RT_STRING content );
RT_API void telsxUuiValueDelContent( TELSX_UUI_VALUE *uuiValue );
RT_API RT_STRING telsxUuiValueEncoding( TELSX_UUI_VALUE uuiValue );
RT_API RT_BOOL telsxUuiValueHasEncoding( TELSX_UUI_VALUE uuiValue );
RT_API void telsxUuiValueSetEncoding( TELSX_UUI_VALUE *uuiValue, RT_STRING encoding );
RT_API void telsxUuiValueDelEncoding( TELSX_UUI_VALUE *uuiValue );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxUuiValueGenericParams( TELSX_UUI_VALUE uuiValue );
RT_API void telsxUuiValueSetGenericParams( TELSX_UUI_VALUE *uuiValue, TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipUuiValue( const RT_CHAR *chs, int64_t length );

RT_END

#endif
