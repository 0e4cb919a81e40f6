// Tables for objects that are read from text and written as text: what they read, how they sort, what their setters do.
#pragma once

#include <functional>
#include <optional>

#include "../../fuzz/headers.hpp"
#include "../../fuzz/values.hpp"
#include "telsx/telsx_support.hpp"

namespace support
{

inline bool isAmong( std::string_view name, const char *names )
{
    std::vector<std::string> all = words( names );
    return std::find( all.begin(), all.end(), name ) != all.end();
}

// Texts of the types named, with blanks between the names: those that are written as they are read, those that are
// written differently, and bad ones. Each text is preceded by the front. For headers, @lists and @sets are all of that
// shape, @ with the name of a value or element is all lists and sets of it, and those with an exclamation mark are left
// out. The lines of a header have line feeds between them; null means no lines, as does an empty text that is written.
struct Texts
{
    const char *names, *front;
    std::vector<const char *> kept;
    std::vector<std::pair<const char *, const char *>> changed;
    std::vector<const char *> bad;

    bool areFor( const std::string &name ) const
    {
        auto kind = std::ranges::find( headers::all, name, &headers::Kind::name );
        bool hasShape = kind != std::end( headers::all ) && kind->at
                        && ( isAmong( "@lists", names ) || ( kind->add && isAmong( "@sets", names ) )
                             || isAmong( "@" + std::string( kind->item ), names ) );
        return isAmong( name, names ) || ( hasShape && !isAmong( "!" + name, names ) );
    }
};
extern const std::vector<Texts> valueTexts, headerTexts;

// A good text for the elements named, its normal form and a bad text.
struct Sample
{
    const char *names, *good, *normal, *bad;
};
extern const std::vector<Sample> elementSamples;

inline const Sample &sampleOf( std::string_view element )
{
    static const Sample none = { "", "", "", "" };
    for ( const Sample &sample : elementSamples )
        if ( isAmong( element, sample.names ) )
            return sample;
    ADD_FAILURE() << "rows_elements.def needs a row for " << element;
    return none;
}

using OptionalText = std::optional<std::string>;

template <class LIST>
const auto &named( const LIST &list, std::string_view name )
{
    return *std::find_if( std::begin( list ), std::end( list ),
                          [&]( auto &entry ) { return entry.name == name; } );
}

inline headers::Raw rawHeader( std::string_view name, const OptionalText &lines )
{
    headers::Raw raw = adopt( telsxMessageHeaderCreate( str( name ).get() ) );
    for ( std::size_t at = 0, end = 0; lines && end != lines->npos; at = end + 1 )
    {
        end = lines->find( '\n', at );
        telsxMessageHeaderAppendLine( raw.address(), str( lines->substr( at, end - at ) ).get() );
    }
    return raw;
}

inline std::string linesOf( const headers::Raw &raw )
{
    std::string lines;
    for ( int64_t i = 0; i < headers::linesOf( raw ); ++i )
        lines += ( i ? "\n" : "" ) + utf8( telsxMessageHeaderLineAt( raw.get(), i ) );
    return lines;
}

// The object that the text is, or null, and the text of an object.
inline Ref<RT_OBJ> read( const values::Type &type, const OptionalText &text )
{
    return type.decoded( rt::textOf( str( *text ) ) );
}
inline Ref<RT_OBJ> read( const headers::Kind &kind, const OptionalText &lines )
{
    return adopt( kind.tryDecode( rawHeader( kind.name, lines ).get() ) );
}

inline std::string write( const values::Type &type, const Ref<RT_OBJ> &value )
{
    return utf8( type.encoded( value ) );
}
inline std::string write( const headers::Kind &kind, const Ref<RT_OBJ> &hdr )
{
    return linesOf( adopt( kind.encode( hdr.get() ) ) );
}

// A property that does not hold for the text, or for a text that it begins with.
inline const char *broken( const values::Type &type, const OptionalText &text )
{
    Ref<RT_STRING> whole = str( *text );
    const char *property = nullptr;
    for ( int64_t length = rtStringLength( whole.get() ); length >= 0 && !property; --length )
        property = values::broken( type, rt::textOf( whole ).first( length ) );
    return property;
}
inline const char *broken( const headers::Kind &kind, const OptionalText &lines )
{
    return headers::broken( kind, rawHeader( kind.name, lines ) );
}

// Calls the test with each text and, if it is good, with what should be written.
template <class TEST>
void forEach( const Texts &texts, TEST test )
{
    auto whole = [&]( const char *text )
    { return text ? OptionalText( texts.front + std::string( text ) ) : OptionalText(); };
    for ( const char *text : texts.kept )
        test( whole( text ), whole( text ) );
    for ( auto [text, written] : texts.changed )
        test( whole( text ), whole( written ) );
    for ( const char *text : texts.bad )
        test( whole( text ), OptionalText() );
}

// The first text of the type that is written as it is read.
inline std::string firstText( const std::vector<Texts> &tables, const std::string &name )
{
    for ( const Texts &texts : tables )
        if ( texts.areFor( name ) && !texts.kept.empty() )
            return std::string( texts.front ) + texts.kept[0];
    return {};
}

// Each type of the list must have good and bad texts. No text does harm to a type that it is not meant for.
template <class LIST>
void expectTexts( const LIST &list, const std::vector<Texts> &tables, const char *file )
{
    for ( auto &type : list )
    {
        int good = 0, bad = 0;
        for ( const Texts &texts : tables )
        {
            bool isMeant = texts.areFor( std::string( type.name ) );
            forEach( texts,
                     [&]( const OptionalText &text, const OptionalText &written )
                     {
                         SCOPED_TRACE( std::string( type.name ) + ": " + text.value_or( "(no lines)" ) );
                         EXPECT_EQ( nullptr, broken( type, text ) );
                         if ( !isMeant )
                             return;
                         ++( written ? good : bad );
                         Ref<RT_OBJ> object = read( type, text );
                         EXPECT_EQ( written.value_or( "(null)" ), object ? write( type, object ) : "(null)" );
                     } );
        }
        EXPECT_TRUE( good && bad ) << file << " needs a row with good and bad texts for " << type.name;
    }
}

// The texts in ascending order: each makes an object that sorts before those of all texts after it.
template <class TYPE>
void expectAscending( const TYPE &type, const std::vector<const char *> &texts )
{
    for ( std::size_t i = 0; i < texts.size(); ++i )
        for ( std::size_t j = 0; j < texts.size(); ++j )
        {
            Ref<RT_OBJ> a = read( type, texts[i] ), b = read( type, texts[j] );
            ASSERT_TRUE( a && b ) << type.name << ": " << texts[i] << " and " << texts[j];
            EXPECT_EQ( i < j ? -1 : i > j, rtObjCompare( a.get(), b.get() ) )
                << texts[i] << " and " << texts[j];
        }
}

inline std::string shown( int64_t number ) { return std::to_string( number ); }
template <class HANDLE>
std::string shown( HANDLE object )
{
    return object ? utf8( rtObjToString( adopt( rt::asObj( object ) ).get() ) ) : "(null)";
}

} // namespace support
