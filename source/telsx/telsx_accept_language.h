/* Accept-Language value: a natural language that a party prefers.
 *
 *     language = language-range *( SEMI accept-param )
 *     language-range = language-tag / "*"
 *     accept-param = ( "q" EQUAL qvalue ) / generic-param
 *
 * (RFC 3261, 25.1; telsx_language_tag.h) An absent range stands for "*". Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_ACCEPT_LANGUAGE_H
#define TELSX_TELSX_ACCEPT_LANGUAGE_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( AcceptLanguage, ACCEPT_LANGUAGE )
TELSX_COMPARE_FUNC( AcceptLanguage )
TELSX_TO_STRING_FUNC( AcceptLanguage )

/* The value "*". */
RT_API TELSX_ACCEPT_LANGUAGE telsxAcceptLanguageCreate( void );

/* The language, in lower case, or null for "*". Set aborts unless telsxLanguageTagOk. */
RT_API RT_STRING telsxAcceptLanguageLanguageRange( TELSX_ACCEPT_LANGUAGE acceptLanguage );
RT_API RT_BOOL telsxAcceptLanguageHasLanguageRange( TELSX_ACCEPT_LANGUAGE acceptLanguage );
RT_API void telsxAcceptLanguageSetLanguageRange( TELSX_ACCEPT_LANGUAGE *acceptLanguage,
                                                 RT_STRING languageRange );
RT_API void telsxAcceptLanguageDelLanguageRange( TELSX_ACCEPT_LANGUAGE *acceptLanguage );

/* The weight in thousandths, 0 to 1000, or -1 if there is none. Set aborts unless telsxQvalueOk. */
RT_API int64_t telsxAcceptLanguageQvalue( TELSX_ACCEPT_LANGUAGE acceptLanguage );
RT_API RT_BOOL telsxAcceptLanguageHasQvalue( TELSX_ACCEPT_LANGUAGE acceptLanguage );
RT_API void telsxAcceptLanguageSetQvalue( TELSX_ACCEPT_LANGUAGE *acceptLanguage, int64_t qvalue );
RT_API void telsxAcceptLanguageDelQvalue( TELSX_ACCEPT_LANGUAGE *acceptLanguage );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxAcceptLanguageGenericParams( TELSX_ACCEPT_LANGUAGE acceptLanguage );
RT_API void telsxAcceptLanguageSetGenericParams( TELSX_ACCEPT_LANGUAGE *acceptLanguage,
                                                 TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipAcceptLanguage( const RT_CHAR *chs, int64_t length );

RT_END

#endif
