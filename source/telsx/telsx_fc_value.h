/* Feature-Caps value: what a proxy on the way supports.
 *
 *     fc-value = "*" *( SEMI feature-cap )
 *     feature-cap = "+" fcap-name [ EQUAL LDQUOT ( fcap-value-list / fcap-string-value ) RDQUOT ]
 *     fcap-name = ALPHA *( ALPHA / DIGIT / "!" / "'" / "." / "-" / "%" )
 *     fcap-value-list = tag-value *( "," tag-value )
 *     tag-value = [ "!" ] ( token-nobang / numeric )
 *     numeric = "#" ( ">=" / "<=" / "=" / ( number ":" ) ) number
 *     number = [ "+" / "-" ] 1*DIGIT [ "." *DIGIT ]
 *     fcap-string-value = "<" *( qdtext / quoted-pair ) ">"
 *
 * (RFC 6809, 6; RFC 3840, 9) Values sort by their feature capabilities. */
#ifndef TELSX_TELSX_FC_VALUE_H
#define TELSX_TELSX_FC_VALUE_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( FcValue, FC_VALUE )
TELSX_COMPARE_FUNC( FcValue )
TELSX_TO_STRING_FUNC( FcValue )

/* A value without feature capabilities. */
RT_API TELSX_FC_VALUE telsxFcValueCreate( void );

/* The feature capabilities, as parameters whose names begin with a plus sign, never null. Set aborts for null, and
 * unless telsxFeatureCapsOk. */
RT_API TELSX_GENERIC_PARAMS telsxFcValueFeatureCaps( TELSX_FC_VALUE fcValue );
RT_API void telsxFcValueSetFeatureCaps( TELSX_FC_VALUE *fcValue, TELSX_GENERIC_PARAMS featureCaps );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipFcValue( const RT_CHAR *chs, int64_t length );

/* Whether all parameters are feature capabilities; an empty set is Ok. Aborts for null. */
RT_API RT_BOOL telsxFeatureCapsOk( TELSX_GENERIC_PARAMS featureCaps );

RT_END

#endif
