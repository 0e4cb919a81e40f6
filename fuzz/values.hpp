// The structured values and the addresses in one list, and the properties that hold for every text. The fuzz target and the tests go
// through it.
#pragma once

#include <algorithm>
#include <memory>
#include <string_view>

#include "erased.hpp"
#include "rsc/rsc.h"
#include "rt/rt_text.hpp"
#include "telsx/telsx.h"

namespace values
{

using rt::adopt;
using rt::Ref;
using rt::Text;

struct Type
{
    std::string_view name;
    rt::Skipper skip;
    RT_OBJ ( *tryDecode )( const RT_CHAR *chs, int64_t length );
    RT_STRING ( *encode )( RT_OBJ value );
    RT_BOOL ( *equivalent )( RT_OBJ a, RT_OBJ b ) = nullptr; // for addresses

    // From a heap block of exactly the text's size, so that a sanitizer sees a read past its end.
    Ref<RT_OBJ> decoded( Text text ) const
    {
        auto block = std::make_unique<RT_CHAR[]>( static_cast<std::size_t>( text.length ) );
        std::copy( text.chs, text.chs + text.length, block.get() );
        return adopt( tryDecode( block.get(), text.length ) );
    }
    Ref<RT_STRING> encoded( const Ref<RT_OBJ> &value ) const { return adopt( encode( value.get() ) ); }
};

#define TELSX_VALUE( NAME, ... ) \
    { #NAME, telsx___Skip##NAME, ERASED( telsx___##NAME##TryDecode ), ERASED( telsx___##NAME##Encode ) },
#define TELSX_ADDRESS( NAME, ... )                                                                   \
    { #NAME, telsx___SkipUri, ERASED( telsx___##NAME##TryDecode ), ERASED( telsx___##NAME##Encode ), \
      ERASED( telsx##NAME##Equivalent ) },
inline const Type all[] = {
    // clang-format off
    TELSX_VALUE( GenericParam )
    TELSX_VALUE( GenericParams )
    TELSX_VALUE( Version )
// clang-format on
#include "telsx/telsx_addresses.def"
#include "telsx/telsx_values.def"
};
#undef TELSX_ADDRESS
#undef TELSX_VALUE

inline int64_t count( Text text, RT_CHAR ch ) { return std::count( text.chs, text.chs + text.length, ch ); }

// Whether two objects of a type are equal; those that can't be compared are distinguished by their texts only.
inline bool areEqual( const Ref<RT_OBJ> &a, const Ref<RT_OBJ> &b ) { return !a->sort->compareFunc || a == b; }

// Whether the text is a warning with a code below 100, which is written without leading zeros and is then not a warning
// for any reader.
inline bool isShortWarning( const Type &type, Text text )
{
    return type.name == "WarningValue" && telsx___SkipDigits( text.chs, text.length ) < 3;
}

// The address after it has been written to a message and read from it.
inline Ref<RT_OBJ> overTheWire( const Type &type, const Ref<RT_STRING> &iri )
{
    Ref<RT_STRING> uri = adopt( rscTryConvertToUri( iri.get() ) ),
                   again = uri ? adopt( rscTryConvertFromUri( uri.get() ) ) : uri;
    return again ? type.decoded( rt::textOf( again ) ) : Ref<RT_OBJ>();
}

// Whether an address of record is that of itself, and a number is the same after it has been a SIP address.
inline bool isMadeAgain( const Type &type, const Ref<RT_OBJ> &value )
{
    if ( value->sort == telsxSipIriSort() )
    {
        auto record = adopt( telsxSipIriAddressOfRecord( telsxSipIriFrom( value.get() ) ) ),
             again = adopt( telsxSipIriAddressOfRecord( record.get() ) );
        return record == again;
    }
    Ref<RT_STRING> host = adopt( rtStringCreateFromCstr( "a", 1 ) );
    auto sip = adopt( telsxSipIriTryCreateFromTelIri( telsxTelIriFrom( value.get() ), host.get() ) );
    auto tel = adopt( sip ? telsxTelIriTryCreateFromSipIri( sip.get() ) : nullptr );
    return !sip || ( tel && type.equivalent( value.get(), rt::asObj( tel.get() ) ) );
}

// The same as broken, for one address or for two with a line feed between them.
inline const char *brokenAddress( const Type &type, Text text )
{
    int64_t end = std::find( text.chs, text.chs + text.length, RT_CHAR( '\n' ) ) - text.chs;
    Ref<RT_OBJ> value = type.decoded( text.first( end ) );
    if ( !value )
        return nullptr;
    Ref<RT_STRING> encoded = type.encoded( value );
    Text iri = rt::textOf( encoded );
    if ( type.skip( iri.chs, iri.length ) != iri.length )
        return "what is encoded is an IRI";
    Ref<RT_OBJ> again = type.decoded( iri );
    if ( again != value || !type.equivalent( value.get(), again.get() ) )
        return "what is encoded decodes to the same";
    if ( type.encoded( again ) != encoded )
        return "what is encoded doesn't change any more";
    if ( overTheWire( type, encoded ) != value )
        return "a message doesn't change an address";
    if ( !isMadeAgain( type, value ) )
        return "what is made of an address makes the same again";
    Ref<RT_OBJ> other = end < text.length ? type.decoded( text.after( end + 1 ) ) : Ref<RT_OBJ>();
    if ( other && type.equivalent( value.get(), other.get() ) != type.equivalent( other.get(), value.get() ) )
        return "equivalence is symmetric";
    return nullptr;
}

// The first property that doesn't hold, or null.
inline const char *broken( const Type &type, Text text )
{
    if ( type.equivalent )
        return brokenAddress( type, text );
    Ref<RT_OBJ> value = type.decoded( text );
    if ( !value )
        return nullptr;
    Ref<RT_STRING> encoded = type.encoded( value );
    Text wire = rt::textOf( encoded );
    if ( isShortWarning( type, wire ) )
        return nullptr;
    if ( type.skip( wire.chs, wire.length ) != wire.length )
        return "the skipper takes the whole of what is encoded";
    Ref<RT_OBJ> again = type.decoded( wire );
    if ( !again )
        return "what is encoded decodes";
    // An escape may hide what the field of a parameter requires; the encoded text shows it.
    bool mayHide = count( text, '\\' );
    if ( type.encoded( again ) != encoded )
        return mayHide ? broken( type, wire ) : "what is encoded doesn't change any more";
    bool allStand = count( wire, ';' ) == count( text, ';' );
    if ( allStand && !mayHide && !areEqual( value, again ) )
        return "what is encoded decodes to the same, unless a parameter fell away beside another of its name";
    return nullptr;
}

} // namespace values
