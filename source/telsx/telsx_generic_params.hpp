// The inside of a set of generic parameters, and its text together with the fields that stand for some of them.
#pragma once

#include <span>

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_generic_params.h"
#include "telsx/telsx_text.hpp"

struct TELSX_GENERIC_PARAMS_
{
    RT_OBJECT object;
    rt::Ref<RT_DICT> params; // from lower-case names to parameters, never null

    static constexpr auto fields( auto &self ) { return std::tie( self.params ); }
};

namespace telsx
{

// One empty set serves all values without parameters; the first change makes another.
extern const TELSX_GENERIC_PARAMS_ emptyGenericParams;

inline Ref<TELSX_GENERIC_PARAMS> noGenericParams()
{
    return adopt( const_cast<TELSX_GENERIC_PARAMS>( &emptyGenericParams ) );
}

// Appends the parameters, each after a semicolon, except those with one of these lower-case names.
void appendGenericParams( Ref<RT_STRING> &text, TELSX_GENERIC_PARAMS params,
                          std::span<const RT_STRING> without = {} );

// Writes the parameters of a value: each field that is present under its name, then the generic parameters except those
// that a field stands for.
//
//     ParamWriter params( text );
//     params.write<"cause">( reason->cause );
//     params.write<"text">( reason->text, telsx___QuotableStringEncode );
//     params.writeGeneric( reason->genericParams );
class ParamWriter
{
public:
    explicit ParamWriter( Ref<RT_STRING> &to ) : text( to ) {}

    // A text or a number, as it is or as the encoder writes it.
    template <rt::Ascii NAME>
    void write( const Ref<RT_STRING> &field )
    {
        if ( field )
            write( literal<NAME>(), pieceOf( field ) );
    }
    template <rt::Ascii NAME>
    void write( int64_t field )
    {
        if ( rt::present( field ) )
            write( literal<NAME>(), pieceOf( Decimal( field ) ) );
    }
    template <rt::Ascii NAME, class HANDLE>
    void write( const Ref<HANDLE> &field, RT_STRING ( *encode )( HANDLE ) )
    {
        if ( field )
            write( literal<NAME>(), pieceOf( adopt( encode( field.get() ) ) ) );
    }
    template <rt::Ascii NAME>
    void write( int64_t field, RT_STRING ( *encode )( int64_t ) )
    {
        if ( rt::present( field ) )
            write( literal<NAME>(), pieceOf( adopt( encode( field ) ) ) );
    }

    template <rt::Ascii NAME>
    void writeInQuotes( const Ref<RT_STRING> &field )
    {
        if ( field )
        {
            write( literal<NAME>(), pieceOf( "\"" ) );
            append( text, field, '"' );
        }
    }
    template <rt::Ascii NAME>
    void writeMark( RT_BOOL field )
    {
        if ( field )
            append( text, ';', written[count++] = literal<NAME>() );
    }

    void writeGeneric( const Ref<TELSX_GENERIC_PARAMS> &params )
    {
        appendGenericParams( text, params.get(), std::span( written, count ) );
    }

private:
    void write( RT_STRING name, const Piece &value );

    Ref<RT_STRING> &text;
    RT_STRING written[16]; // More fields than any value has.
    std::size_t count = 0;
};

// The text of parameters that follow nothing: without the semicolon that the writer puts before the first.
inline Ref<RT_STRING> withoutFirstSemi( const Ref<RT_STRING> &params )
{
    Text text = textOf( params );
    return text.after( text ? 1 : 0 ).copy();
}

} // namespace telsx
