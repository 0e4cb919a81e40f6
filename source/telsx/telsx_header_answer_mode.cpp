// Answer-Mode header (RFC 5373).
#include "telsx/telsx_header_answer_mode.h"

#include "telsx/telsx_answer_mode.hpp"

using namespace telsx;

struct TELSX_HEADER_ANSWER_MODE_ : AnswerMode
{
};

TELSX_DEFINE_HEADER_OBJECT( HeaderAnswerMode, HEADER_ANSWER_MODE, hdr, "Answer-Mode" )
TELSX_DEFINE_ANSWER_MODE( HeaderAnswerMode, "Answer-Mode" )
