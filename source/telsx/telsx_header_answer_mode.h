/* Answer-Mode header: whether a call is to be answered by itself (RFC 5373).
 *
 *     Answer-Mode = "Answer-Mode" HCOLON answer-mode-value *( SEMI answer-mode-param )
 *     answer-mode-value = "Manual" / "Auto" / token
 *     answer-mode-param = "require" / generic-param
 *
 * Headers sort by the fields in the order below. */
#ifndef TELSX_TELSX_HEADER_ANSWER_MODE_H
#define TELSX_TELSX_HEADER_ANSWER_MODE_H

#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderAnswerMode, HEADER_ANSWER_MODE )
TELSX_FREE_FUNC( HeaderAnswerMode )

/* A header with this mode and nothing else. Aborts unless telsxTokenOk. */
RT_API TELSX_HEADER_ANSWER_MODE telsxHeaderAnswerModeCreate( RT_STRING answerModeValue );

/* The mode, in lower case, never null. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxHeaderAnswerModeAnswerModeValue( TELSX_HEADER_ANSWER_MODE hdr );
RT_API void telsxHeaderAnswerModeSetAnswerModeValue( TELSX_HEADER_ANSWER_MODE *hdr,
                                                     RT_STRING answerModeValue );

/* Whether the call is to be refused rather than answered in another mode. */
RT_API RT_BOOL telsxHeaderAnswerModeRequire( TELSX_HEADER_ANSWER_MODE hdr );
RT_API void telsxHeaderAnswerModeSetRequire( TELSX_HEADER_ANSWER_MODE *hdr, RT_BOOL require );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxHeaderAnswerModeGenericParams( TELSX_HEADER_ANSWER_MODE hdr );
RT_API void telsxHeaderAnswerModeSetGenericParams( TELSX_HEADER_ANSWER_MODE *hdr,
                                                   TELSX_GENERIC_PARAMS genericParams );

RT_END

#endif
