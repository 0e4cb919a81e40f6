// What the module says of its build. The numbers and texts in capitals come from the build.
#include "telsx/telsx_module.h"

const RT_MODULE_RECORD telsx___module_record = { 2,
                                                 "corvane",
                                                 "corvane",
                                                 { TELSX_RELEASE_1, TELSX_RELEASE_2, TELSX_RELEASE_3 },
                                                 TELSX_BUILD_TIME,
                                                 TELSX_VENDOR,
                                                 TELSX_LEGAL_NOTICE,
                                                 "telsx",
                                                 "The syntax of SIP messages",
                                                 "0.0",
                                                 "net rsc rt",
                                                 "" };
