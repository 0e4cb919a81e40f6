// The grammars of headers once more, for whoever wants to know where a text stops following one. The decoders alone
// tell whether it does.
#pragma once

#include <initializer_list>

#include "telsx/telsx_finding_rules.hpp"
#include "telsx/telsx_text.hpp"

namespace telsx
{

// Where a text stops following its grammar, and what was expected there: a number in that range, or the piece; a
// null piece is the element that the header is a list of.
struct Obstacle
{
    int64_t at = 0;
    const GrammarPiece *piece = grammarPiece( "unreadable" );
    int64_t least = -1, most = -1;
};

class GrammarReader;

// A typed header: its RFC, and how its value is read, or each of its values. A set or list of texts has no grammar
// here, since its element says all.
struct HeaderGrammar
{
    std::string_view name, reference;
    bool ( *read )( GrammarReader &reader );
};

// All of them, and the one of that canonical name, or null.
std::span<const HeaderGrammar> headerGrammars();
const HeaderGrammar *findHeaderGrammar( std::string_view name );

// Where a value that its decoder refuses stops following the grammar. In a list a comma ends the value.
Obstacle findObstacle( const HeaderGrammar *grammar, Text value, bool isInList );

} // namespace telsx
