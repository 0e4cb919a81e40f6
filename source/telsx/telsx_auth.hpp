// What challenges, credentials and Authentication-Info share: parameters with commas between them, each with a value
// that is a token or a quoted string, and no name twice (RFC 7235, 2.1; RFC 7615, 3).
#pragma once

#include "telsx/telsx_generic_params.hpp"
#include "telsx/telsx_quotable_string.h"
#include "telsx/telsx_text.hpp"

namespace telsx
{

// Reads the parameters, one in each turn of the loop. Each read is an attempt; the one that has the parameter's name
// takes it, and the others find nothing for the rest of the turn. Bad text, a name that occurs twice and a value that
// its field can't hold end the loop as failed.
//
//     AuthParamReader param( rest );
//     while ( param.next() )
//     {
//         param.read<"realm">( challenge->realm );
//         param.read<"algorithm">( challenge->algorithm, telsxTokenOk );
//         param.readGeneric( challenge->genericParams );
//     }
class AuthParamReader
{
public:
    explicit AuthParamReader( Text params ) : rest( params ) {}

    // Whether there is another parameter. False at the end and at bad text; failed() tells which.
    bool next();
    bool failed() const { return bad; }

    // Stores the plain text of the value, in quotes or not, if the parameter has this lower-case name, in any case.
    template <rt::Ascii NAME>
    void read( Ref<RT_STRING> &field, RT_BOOL ( *ok )( RT_STRING ) = telsxQuotableStringOk )
    {
        if ( open && name.length == std::ssize( NAME.chs ) - 1 && beginsInAnyCase<NAME>( name ) )
            store( field, ok );
    }
    void readGeneric( Ref<TELSX_GENERIC_PARAMS> &params );

private:
    void store( Ref<RT_STRING> &field, RT_BOOL ( *ok )( RT_STRING ) );

    Text rest, name, value;
    bool afterFirst = false;
    bool open = false; // nothing has taken the parameter yet
    bool bad = false;  // the loop has failed
};

// Writes them: each field that is present under its name, then the generic parameters except those that a field stands
// for. Values are written in quotes unless writeToken does it (RFC 7616, 3.3 to 3.5) or they are generic tokens.
class AuthParamWriter
{
public:
    // After a scheme, or into an empty text.
    explicit AuthParamWriter( Ref<RT_STRING> &to ) : text( to ) {}

    template <rt::Ascii NAME>
    void write( const Ref<RT_STRING> &field )
    {
        if ( field )
            append( text, separator(), noted<NAME>(), '=',
                    adopt( telsx___QuotableStringEncode( field.get() ) ) );
    }
    template <rt::Ascii NAME>
    void writeToken( const Ref<RT_STRING> &field )
    {
        if ( field )
            append( text, separator(), noted<NAME>(), '=', field );
    }
    void writeGeneric( const Ref<TELSX_GENERIC_PARAMS> &params );

private:
    // What goes before the next parameter.
    RT_STRING separator();

    template <rt::Ascii NAME>
    RT_STRING noted()
    {
        return written[count++] = literal<NAME>();
    }

    Ref<RT_STRING> &text;
    bool afterFirst = false;
    RT_STRING written[16]; // More fields than any value has.
    std::size_t count = 0;
};

// How many code points at the start form a challenge or credentials.
int64_t skipAuth( Text text );

// The front of such a text: takes the scheme, and the token68 if that is what follows; what is left is parameters.
// False for bad text.
bool takeAuthFront( Text &rest, Text &scheme, Ref<RT_STRING> &token68 );

} // namespace telsx
