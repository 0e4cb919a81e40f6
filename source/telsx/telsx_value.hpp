// What structured values share, for reading and for writing: an address first, parameters after it.
#pragma once

#include "telsx/telsx_generic_params.hpp"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"

namespace telsx
{

// The element in double quotes, without white space; and the element in such a value.
template <Skipper SKIP>
int64_t skipInQuotes( const RT_CHAR *chs, int64_t length )
{
    Text rest = { chs, length };
    bool found = rest.take( telsx___SkipChar( chs, length, '"' ) ) && rest.take( SKIP )
                 && rest.take( telsx___SkipChar( rest.chs, rest.length, '"' ) );
    return found ? length - rest.length : 0;
}
inline Ref<RT_STRING> copyInQuotes( Text quoted )
{
    return quoted.first( quoted.length - 1 ).after( 1 ).copy();
}

// Reads the parameters after the front of a value, one in each turn of the loop. Each read is an attempt; the first that
// stores something takes the parameter, and the others find nothing for the rest of the turn. If several parameters
// have one name, the last one stays. A parameter that no attempt takes, or text after the value that does not begin
// with a semicolon, ends the loop as failed.
//
//     ParamReader param( rest );
//     while ( param.next() )
//     {
//         param.read<"cause">( reason->cause, telsx___SkipReasonCause );
//         param.storeGeneric( reason->genericParams );
//     }
class ParamReader
{
public:
    explicit ParamReader( Text afterFront ) : rest( afterFront ) {}

    // For a text that consists of parameters, and so has no semicolon before the first.
    static ParamReader withoutFront( Text params )
    {
        ParamReader param( params );
        param.atFirst = true;
        return param;
    }

    // Whether there is another parameter. False at the end and at bad text; failed() tells which.
    bool next();
    bool failed() const { return bad; }

    // Whether text is left that does not begin with a semicolon; some headers stop there instead of failing.
    bool stopped() const { return bad && !open && !afterSemi; }

    // Stores the value of the parameter with this name, in any case, if it begins as the skipper requires: as much of it
    // as the skipper matches, as it is, in its normal form, without its quotes, or as the decoder reads it unless that
    // is null or -1. Each returns whether it stored something.
    template <rt::Ascii NAME>
    bool read( Ref<RT_STRING> &field, Skipper skipValue )
    {
        return is<NAME>( skipValue ) && store( field, value.copy() );
    }
    template <rt::Ascii NAME, class FIELD, class DECODED>
    bool read( FIELD &field, Skipper skipValue, DECODED ( *tryDecode )( const RT_CHAR *chs, int64_t length ) )
    {
        return is<NAME>( skipValue ) && store( field, value.as( tryDecode ) );
    }
    template <rt::Ascii NAME>
    bool readNormal( Ref<RT_STRING> &field, Skipper skipValue, RT_STRING ( *normalize )( RT_STRING ) )
    {
        return is<NAME>( skipValue ) && storeNormal( field, value.copy().take(), normalize );
    }
    template <rt::Ascii NAME, Skipper SKIP>
    bool readInQuotes( Ref<RT_STRING> &field )
    {
        return is<NAME>( skipInQuotes<SKIP> ) && store( field, copyInQuotes( value ) );
    }

    // Sets the flag if the parameter is this name and no more, in any case. Names that only begin with it are other
    // parameters.
    template <rt::Ascii NAME>
    bool readMark( RT_BOOL &field )
    {
        if ( !open )
            return false;
        value = rest.first( telsx___SkipGenericParam( rest.chs, rest.length ) );
        return findWordInAnyCase<NAME>( value ) && storeFlag( field );
    }

    // What the attempts above consist of, for those that need more.

    // Whether the parameter has this name, in any case, and a value that begins as the skipper requires. The member
    // value is then as much of it as the skipper matches.
    template <rt::Ascii NAME>
    bool is( Skipper skipValue )
    {
        return open && beginsInAnyCase<NAME>( rest ) && hasValue( std::ssize( NAME.chs ) - 1, skipValue );
    }
    Text value;

    // Whether the parameter begins with this name, in any case, without an equal sign after it.
    template <rt::Ascii NAME>
    bool isBare()
    {
        return open && beginsInAnyCase<NAME>( rest ) && hasNoValue( std::ssize( NAME.chs ) - 1 );
    }

    // Stores the decoded value unless it is null or -1; returns whether it did.
    template <class HANDLE>
    bool store( Ref<HANDLE> &field, Ref<HANDLE> decoded )
    {
        return decoded && ( field = std::move( decoded ), take() );
    }
    template <class HANDLE>
    bool store( Ref<HANDLE> &field, HANDLE decoded )
    {
        return store( field, adopt( decoded ) );
    }
    bool storeNormal( Ref<RT_STRING> &field, RT_STRING decoded, RT_STRING ( *normalize )( RT_STRING ) )
    {
        Ref<RT_STRING> taken = adopt( decoded );
        return taken && store( field, normalize( taken.get() ) );
    }
    bool store( int64_t &field, int64_t decoded ) { return decoded != -1 && ( field = decoded, take() ); }
    bool storeFlag( RT_BOOL &field ) { return field = 1, take(); }

    void storeGeneric( Ref<TELSX_GENERIC_PARAMS> &params );

private:
    bool hasValue( int64_t nameLength, Skipper skipValue );
    bool hasNoValue( int64_t nameLength );
    bool take();

    Text rest;              // from the parameter's name on
    bool atFirst = false;   // no semicolon precedes the next parameter
    bool open = false;      // nothing has taken the parameter yet
    bool bad = false;       // the loop has failed
    bool afterSemi = false; // the last semicolon was found
};

// Reads all parameters after the front of a value as generic parameters; false for bad text.
bool readGenericParams( Text afterFront, Ref<TELSX_GENERIC_PARAMS> &params );

// The length of a value that begins with an element of that length, with the generic parameters after it; 0 without the
// element.
inline int64_t skipWithParams( Text text, int64_t front )
{
    Text rest = text.after( front );
    return front ? front + telsx___SkipGenericParams( rest.chs, rest.length ) : 0;
}

// The front of a value or header that is an address (RFC 3261, 25.1): name-addr, or addr-spec, in which semicolons
// belong to the value and not to the address.
struct Address
{
    Ref<RT_STRING> iri;
    Ref<RT_STRING> displayName = {}; // null if there is none
    bool inBrackets = false;
};

// Takes the address at the start; false for bad text. The bare form ends before the given character.
bool takeAddress( Text &rest, Address &address, RT_CHAR endOfBare = ';' );

// Appends the display name if there is one, and the address in angle brackets.
void appendAddress( Ref<RT_STRING> &text, const Ref<RT_STRING> &iri, const Ref<RT_STRING> &displayName = {} );

} // namespace telsx
