/* Privacy header: how private a message is to be (RFC 3323, 4.2).
 *
 *     Privacy-hdr = "Privacy" HCOLON priv-value *( ";" priv-value )
 *
 * A set of privacy values, in the order in which they came. They are kept in lower case and looked up in
 * any case. All stand on one line when the header is written; an empty set is written without a line. */
#ifndef TELSX_TELSX_HEADER_PRIVACY_H
#define TELSX_TELSX_HEADER_PRIVACY_H

#include "telsx/telsx_header.h"

RT_BEGIN

TELSX_HEADER( HeaderPrivacy, HEADER_PRIVACY )
TELSX_FREE_FUNC( HeaderPrivacy )

/* A header with an empty set. */
RT_API TELSX_HEADER_PRIVACY telsxHeaderPrivacyCreate( void );

/* The privacy values: their number, the one at the index, which must be valid, and a new vector of all. */
RT_API int64_t telsxHeaderPrivacyPrivValuesLength( TELSX_HEADER_PRIVACY hdr );
RT_API RT_STRING telsxHeaderPrivacyPrivValueAt( TELSX_HEADER_PRIVACY hdr, int64_t index );
RT_API RT_VECTOR telsxHeaderPrivacyPrivValuesVector( TELSX_HEADER_PRIVACY hdr );

/* Whether the element is there; adding it; taking it out, which changes nothing if it is absent. They
 * abort unless telsxPrivValueOk. */
RT_API RT_BOOL telsxHeaderPrivacyHasPrivValue( TELSX_HEADER_PRIVACY hdr, RT_STRING element );
RT_API RT_BOOL telsxHeaderPrivacyHasPrivValueCstr( TELSX_HEADER_PRIVACY hdr, const char *chars,
                                                   int64_t length );
RT_API RT_BOOL telsxHeaderPrivacyHasPrivValueWcstr( TELSX_HEADER_PRIVACY hdr, const wchar_t *chars,
                                                    int64_t length );
RT_API void telsxHeaderPrivacySetPrivValue( TELSX_HEADER_PRIVACY *hdr, RT_STRING element );
RT_API void telsxHeaderPrivacySetPrivValueCstr( TELSX_HEADER_PRIVACY *hdr, const char *chars,
                                                int64_t length );
RT_API void telsxHeaderPrivacySetPrivValueWcstr( TELSX_HEADER_PRIVACY *hdr, const wchar_t *chars,
                                                 int64_t length );
RT_API void telsxHeaderPrivacyDelPrivValue( TELSX_HEADER_PRIVACY *hdr, RT_STRING element );
RT_API void telsxHeaderPrivacyDelPrivValueCstr( TELSX_HEADER_PRIVACY *hdr, const char *chars,
                                                int64_t length );
RT_API void telsxHeaderPrivacyDelPrivValueWcstr( TELSX_HEADER_PRIVACY *hdr, const wchar_t *chars,
                                                 int64_t length );

/* The set emptied, and filled anew with the texts of a vector's elements: null aborts, and so does a text
 * that is not Ok. */
RT_API void telsxHeaderPrivacyClearPrivValues( TELSX_HEADER_PRIVACY *hdr );
RT_API void telsxHeaderPrivacySetPrivValuesVector( TELSX_HEADER_PRIVACY *hdr, RT_VECTOR vec );

RT_END

#endif
