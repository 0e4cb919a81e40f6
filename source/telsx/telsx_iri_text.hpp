// Text of addresses as their objects hold it: with the escapes that must be there, so that each text has one form.
// A character that may stand there unescaped, and is not reserved, is itself, and so is one outside ASCII that an IRI
// may hold; of the reserved ones an escape stays an escape, since it may mean something else. Every other character is
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

// The characters of ASCII that stand in a part of an address as they are (RFC 3261, 25.1; RFC 3966, 3).
inline constexpr rt::CharSet userChars = with( charSet<classUnreserved>, "&=+$,;?/" ),
                             passwordChars = with( charSet<classUnreserved>, "&=+$," ),
                             paramChars = with( charSet<classUnreserved>, "[]/:&+$" ),
                             headerChars = with( charSet<classUnreserved>, "[]/?:+$" );

// The form of a text in which also other characters than these may stand unescaped, which become escapes; null if
// there is one that may not.
Ref<RT_STRING> escapedForm( Text text, const rt::CharSet &plain, const rt::CharSet &accepted );
inline Ref<RT_STRING> escapedForm( Text text, const rt::CharSet &plain )
{
    return escapedForm( text, plain, plain );
}

// The text with its escapes resolved, as telsx_iri_text.h tells, and the form of such a text.
Ref<RT_STRING> resolved( Text text );
Ref<RT_STRING> escaped( Text text, const rt::CharSet &plain );

// The first for a text that an object holds, which may be null.
Ref<RT_STRING> resolvedOf( const Ref<RT_STRING> &form );

// The text with the letters of ASCII in lower case. The escapes are no longer in capitals then.
Ref<RT_STRING> asciiLowerCase( const Ref<RT_STRING> &text );

// The text up to the first of these characters.
template <class... CHAR>
Text until( Text text, CHAR... ends )
{
    int64_t at = 0;
    while ( at < text.length && ( ( text.chs[at] != RT_CHAR( ends ) ) && ... ) )
        ++at;
    return text.first( at );
}

} // namespace telsx
