/* Priv-Answer-Mode header: whether a call is to be answered by itself, for callers with that privilege (RFC 5373).
 *
 *     Priv-Answer-Mode = "Priv-Answer-Mode" HCOLON answer-mode-value *( SEMI answer-mode-param )
 *     answer-mode-value = "Manual" / "Auto" / token
 *     answer-mode-param = "require" / generic-param
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_PRIV_ANSWER_MODE_H
#define TELSX_TELSX_HEADER_PRIV_ANSWER_MODE_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderPrivAnswerMode, HEADER_PRIV_ANSWER_MODE )
TELSX_FREE_FUNC( HeaderPrivAnswerMode )

/* A header with this mode and nothing else. Aborts unless telsxTokenOk. */
RT_API TELSX_HEADER_PRIV_ANSWER_MODE telsxHeaderPrivAnswerModeCreate( RT_STRING answerModeValue );

/* The mode, in lower case, never null. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxHeaderPrivAnswerModeAnswerModeValue( TELSX_HEADER_PRIV_ANSWER_MODE hdr );
RT_API void telsxHeaderPrivAnswerModeSetAnswerModeValue( TELSX_HEADER_PRIV_ANSWER_MODE *hdr,
                                                         RT_STRING answerModeValue );

/* Whether the call is to be refused rather than answered in another mode. */
RT_API RT_BOOL telsxHeaderPrivAnswerModeRequire( TELSX_HEADER_PRIV_ANSWER_MODE hdr );
RT_API void telsxHeaderPrivAnswerModeSetRequire( TELSX_HEADER_PRIV_ANSWER_MODE *hdr, RT_BOOL require );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderPrivAnswerModeGenericParams( TELSX_HEADER_PRIV_ANSWER_MODE hdr );
RT_API void telsxHeaderPrivAnswerModeSetGenericParams( TELSX_HEADER_PRIV_ANSWER_MODE *hdr,
                                                       TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
