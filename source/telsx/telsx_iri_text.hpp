// The form in which objects hold text of addresses: escapes remain where they are needed, so that each text has one
// form. A character that is not reserved stands for itself if it may stand there or is one that an IRI may hold outside
// ASCII. An escape of a reserved character stays an escape, since the two may differ in meaning. Any other character is
// the escapes of its UTF-8, in capitals.
#pragma once

#include <string_view>

#include "telsx/telsx_char.hpp"
#include "telsx/telsx_iri_text.h"
#include "telsx/telsx_text.hpp"

namespace telsx
{

constexpr rt::CharSet with( rt::CharSet set, std::string_view chars )
{
    for ( char ch : chars )
        set.add( static_cast<unsigned char>( ch ) );
    return set;
}

// The ASCII characters that need no escape in a part of an address (RFC 3261, 25.1; RFC 3966, 3).
inline constexpr rt::CharSet userChars = with( charSet<classUnreserved>, "&=+$,;?/" ),
                             passwordChars = with( charSet<classUnreserved>, "&=+$," ),
                             paramChars = with( charSet<classUnreserved>, "[]/:&+$" ),
                             headerChars = with( charSet<classUnreserved>, "[]/?:+$" );

// The form of a text in which the accepted characters may stand unescaped; those that are not plain become escapes. Null
// if the text holds another character.
Ref<RT_STRING> escapedForm( Text text, const rt::CharSet &plain, const rt::CharSet &accepted );
inline Ref<RT_STRING> escapedForm( Text text, const rt::CharSet &plain )
{
    return escapedForm( text, plain, plain );
}

// The text with its escapes resolved (see telsx_iri_text.h), and the form of such a text.
Ref<RT_STRING> resolved( Text text );
Ref<RT_STRING> escaped( Text text, const rt::CharSet &plain );

// The same as resolved, for a field, which may be null.
Ref<RT_STRING> resolvedOf( const Ref<RT_STRING> &form );

// The text with its ASCII letters in lower case, also those of escapes.
Ref<RT_STRING> asciiLowerCase( const Ref<RT_STRING> &text );

// The text before the first of these characters.
template <class... CHAR>
Text until( Text text, CHAR... ends )
{
    int64_t at = 0;
    while ( at < text.length && ( ( text.chs[at] != RT_CHAR( ends ) ) && ... ) )
        ++at;
    return text.first( at );
}

inline bool hasEscapes( Text text ) { return until( text, '%' ).length < text.length; }

} // namespace telsx
