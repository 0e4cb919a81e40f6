/* Security mechanism: how a hop can be protected.
 *
 *     sec-mechanism = mechanism-name *( SEMI mech-parameters )
 *     mechanism-name = "digest" / "tls" / "ipsec-ike" / "ipsec-man" / token
 *     mech-parameters = preference / digest-algorithm / digest-qop / digest-verify / generic-param
 *     preference = "q" EQUAL qvalue
 *     digest-algorithm = "d-alg" EQUAL token
 *     digest-qop = "d-qop" EQUAL token
 *     digest-verify = "d-ver" EQUAL LDQUOT 32LHEX RDQUOT
 *
 * (RFC 3329, 2.2) Values sort by the fields in the order below. */
#ifndef TELSX_TELSX_SECURITY_MECHANISM_H
#define TELSX_TELSX_SECURITY_MECHANISM_H

#include "telsx/telsx_generic_params.h"

RT_BEGIN

TELSX_VALUE_OBJECT( SecurityMechanism, SECURITY_MECHANISM )
TELSX_COMPARE_FUNC( SecurityMechanism )
TELSX_TO_STRING_FUNC( SecurityMechanism )

/* A mechanism of this name and nothing else. Aborts unless telsxTokenOk. */
RT_API TELSX_SECURITY_MECHANISM telsxSecurityMechanismCreate( RT_STRING mechanism );

/* The name, in its original case, such as tls, never null. Set aborts unless telsxTokenOk. */
RT_API RT_STRING telsxSecurityMechanismMechanism( TELSX_SECURITY_MECHANISM securityMechanism );
RT_API void telsxSecurityMechanismSetMechanism( TELSX_SECURITY_MECHANISM *securityMechanism,
                                                RT_STRING mechanism );

/* The preference in thousandths, 0 to 1000, or -1 if there is none. Set aborts unless telsxQvalueOk. */
RT_API int64_t telsxSecurityMechanismQvalue( TELSX_SECURITY_MECHANISM securityMechanism );
RT_API RT_BOOL telsxSecurityMechanismHasQvalue( TELSX_SECURITY_MECHANISM securityMechanism );
RT_API void telsxSecurityMechanismSetQvalue( TELSX_SECURITY_MECHANISM *securityMechanism, int64_t qvalue );
RT_API void telsxSecurityMechanismDelQvalue( TELSX_SECURITY_MECHANISM *securityMechanism );

/* The algorithm (d-alg) and the quality of protection (d-qop) of the digest, in their original case, or null. Set
 * aborts unless telsxTokenOk. */
RT_API RT_STRING telsxSecurityMechanismDigestAlgorithm( TELSX_SECURITY_MECHANISM securityMechanism );
RT_API RT_BOOL telsxSecurityMechanismHasDigestAlgorithm( TELSX_SECURITY_MECHANISM securityMechanism );
RT_API void telsxSecurityMechanismSetDigestAlgorithm( TELSX_SECURITY_MECHANISM *securityMechanism,
                                                      RT_STRING digestAlgorithm );
RT_API void telsxSecurityMechanismDelDigestAlgorithm( TELSX_SECURITY_MECHANISM *securityMechanism );
RT_API RT_STRING telsxSecurityMechanismDigestQop( TELSX_SECURITY_MECHANISM securityMechanism );
RT_API RT_BOOL telsxSecurityMechanismHasDigestQop( TELSX_SECURITY_MECHANISM securityMechanism );
RT_API void telsxSecurityMechanismSetDigestQop( TELSX_SECURITY_MECHANISM *securityMechanism,
                                                RT_STRING digestQop );
RT_API void telsxSecurityMechanismDelDigestQop( TELSX_SECURITY_MECHANISM *securityMechanism );

/* The digest of the list (d-ver), without its quotes, or null. Set aborts unless telsxDigestVerifyOk. */
RT_API RT_STRING telsxSecurityMechanismDigestVerify( TELSX_SECURITY_MECHANISM securityMechanism );
RT_API RT_BOOL telsxSecurityMechanismHasDigestVerify( TELSX_SECURITY_MECHANISM securityMechanism );
RT_API void telsxSecurityMechanismSetDigestVerify( TELSX_SECURITY_MECHANISM *securityMechanism,
                                                   RT_STRING digestVerify );
RT_API void telsxSecurityMechanismDelDigestVerify( TELSX_SECURITY_MECHANISM *securityMechanism );

/* All other parameters, never null. When the text is written, a field takes precedence over a parameter of its name.
 * Set aborts for null. */
RT_API TELSX_GENERIC_PARAMS telsxSecurityMechanismGenericParams( TELSX_SECURITY_MECHANISM securityMechanism );
RT_API void telsxSecurityMechanismSetGenericParams( TELSX_SECURITY_MECHANISM *securityMechanism,
                                                    TELSX_GENERIC_PARAMS genericParams );

/* How many code points at the start of the text form such a value (see telsx_skip.h). */
RT_API int64_t telsx___SkipSecurityMechanism( const RT_CHAR *chs, int64_t length );

RT_END

#endif
