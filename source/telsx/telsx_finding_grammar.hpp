// The grammars of headers once more, to tell where a text stops following one. Only the decoders decide whether it does.
#pragma once

#include "telsx/telsx_finding_rules.hpp"
#include "telsx/telsx_text.hpp"

namespace telsx
{

// Where a text stops following its grammar, and what was expected there: an element of the grammar, by its name in
// functions; or else the piece, which may be a number in that range.
struct Obstacle
{
    int64_t at = 0;
    const GrammarPiece *piece = grammarPiece( "unreadable" );
    std::string_view element = {};
    int64_t least = -1, most = -1;
};

// Where the text of a type that its decoder refuses stops following the grammar. The type is one of telsx_values.def, or
// a header with fields of telsx_headers.def, by its name there. In a list a comma ends the text.
Obstacle findObstacle( std::string_view type, Text value, bool isInList );

// The section that defines the header of that canonical name.
std::string_view headerReference( std::string_view name );

} // namespace telsx
