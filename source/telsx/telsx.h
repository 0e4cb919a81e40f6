/* telsx: the syntax of SIP messages. */
#ifndef TELSX_TELSX_H
#define TELSX_TELSX_H

#include "telsx/telsx_char.h"
#include "telsx/telsx_host.h"
#include "telsx/telsx_iri.h"
#include "telsx/telsx_message.h"
#include "telsx/telsx_message_fragment.h"
#include "telsx/telsx_message_header.h"
#include "telsx/telsx_message_stream_decoder.h"
#include "telsx/telsx_method.h"
#include "telsx/telsx_module.h"
#include "telsx/telsx_object.h"
#include "telsx/telsx_port.h"
#include "telsx/telsx_protocol_name.h"
#include "telsx/telsx_protocol_version.h"
#include "telsx/telsx_reason_phrase.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_status_code.h"
#include "telsx/telsx_token.h"
#include "telsx/telsx_version.h"
#include "telsx/telsx_warn_code.h"

#endif
