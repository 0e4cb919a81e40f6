// Priv-Answer-Mode header (RFC 5373).
#include "telsx/telsx_header_priv_answer_mode.h"

#include "telsx/telsx_answer_mode.hpp"

using namespace telsx;

struct TELSX_HEADER_PRIV_ANSWER_MODE_ : AnswerMode
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderPrivAnswerMode, HEADER_PRIV_ANSWER_MODE, hdr, "Priv-Answer-Mode" )
TELSX_DEFINE_ANSWER_MODE( HeaderPrivAnswerMode, "Priv-Answer-Mode" )
