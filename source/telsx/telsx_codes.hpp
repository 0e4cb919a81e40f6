// Tables of numbers and their texts.
#pragma once

#include <algorithm>
#include <span>

#include "rt/rt.h"

namespace telsx
{

struct CodeText
{
    int64_t code;
    const char *text;
};

// The code's text, a new reference; if the table, which is in order, has none, what the format makes of the
// code.
inline RT_STRING textOfCode( std::span<const CodeText> table, int64_t code, const char *unknownFormat )
{
    auto row = std::ranges::lower_bound( table, code, {}, &CodeText::code );
    if ( row != table.end() && row->code == code )
        return rtStringCreateFromCstr( row->text, -1 );
    return rtStringCreateFromFormatCstr( unknownFormat, -1, code );
}

} // namespace telsx
