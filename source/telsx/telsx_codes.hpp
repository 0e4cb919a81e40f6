// Tables of codes and their texts.
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

// The code's text, a new reference. The table is sorted; a code that it does not have gets the text that the format
// makes of it.
inline RT_STRING textOfCode( std::span<const CodeText> table, int64_t code, const char *unknownFormat )
{
    auto row = std::ranges::lower_bound( table, code, {}, &CodeText::code );
    if ( row != table.end() && row->code == code )
        return rtStringCreateFromCstr( row->text, -1 );
    return rtStringCreateFromFormatCstr( unknownFormat, -1, code );
}

} // namespace telsx
