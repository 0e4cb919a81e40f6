// Every setter with every value that it accepts: the object can be written, and what is written is the object.
//
// The first byte picks the object; behind it stands one change a line, whose first byte picks the setter and
// whose rest is the value. A value that the setter must refuse is passed over.
#include <algorithm>
#include <charconv>
#include <vector>

#include "fuzz.hpp"
#include "rsc/rsc.h"
#include "rt/rt_text.hpp"

using namespace fuzz;
using rt::asObj;

namespace
{

using Object = Ref<RT_OBJ>;

struct Change
{
    Object object;
    std::string_view bytes;
    Ref<RT_STRING> text;
    Ref<TELSX_GENERIC_PARAMS> params; // grow with each change that names one
    // Whether all values come back as they were. An address may have several texts, and a parameter may look
    // like one of another type or like a field.
    bool exact = true;

    int64_t number() const
    {
        int64_t value = -1;
        std::from_chars( bytes.data(), bytes.data() + bytes.size(), value );
        return value;
    }
};

struct Setter
{
    void ( *apply )( Change &change );
};

struct Type
{
    std::string_view name;
    RT_OBJ ( *create )();
    RT_OBJ ( *encode )( RT_OBJ object );
    RT_OBJ ( *tryDecode )( RT_OBJ encoded );
    std::vector<Setter> setters;
};

// Lets the function change the object; what else it is given stands behind.
template <class HANDLE, class... VALUE>
void call( Change &change, void ( *function )( HANDLE *, VALUE... ), VALUE... value )
{
    auto handle = reinterpret_cast<HANDLE>( change.object.take() );
    function( &handle, value... );
    change.object = adopt( asObj( handle ) );
}

bool isSameIri( RT_STRING iri )
{
    Ref<RT_STRING> uri = adopt( rscTryConvertToUri( iri ) );
    require( bool( uri ), "a good address has a form for the wire" );
    Ref<RT_STRING> again = adopt( rscTryConvertFromUri( uri.get() ) );
    require( bool( again ), "an address on the wire has a plain form" );
    return rtStringEquals( again.get(), iri );
}

bool isSameHost( RT_STRING host )
{
    Ref<RT_STRING> encoded = adopt( telsx___HostEncode( host ) );
    Ref<RT_STRING> again = adopt( rt::textOf( encoded ).as( telsx___HostTryDecode ) );
    return again && rtStringEquals( again.get(), host );
}

template <class HANDLE>
void take( Change &change, void ( *function )( HANDLE *, RT_STRING ), RT_BOOL ( *ok )( RT_STRING ) )
{
    RT_STRING value = change.text.get();
    if ( !ok( value ) )
        return;
    if ( ok == telsxIriOk )
        change.exact &= isSameIri( value );
    if ( ok == telsxHostOk )
        change.exact &= isSameHost( value );
    call( change, function, value );
}

template <class HANDLE>
void take( Change &change, void ( *function )( HANDLE *, int64_t ), RT_BOOL ( *ok )( int64_t ) )
{
    if ( ok( change.number() ) )
        call( change, function, change.number() );
}

// A parameter from a text: its name, and behind an equal sign the digit of its type and its value. Null for
// none.
Ref<TELSX_GENERIC_PARAM> param( Change &change )
{
    std::string_view name = change.bytes.substr( 0, change.bytes.find( '=' ) ),
                     rest = change.bytes.substr( std::min( name.size() + 1, change.bytes.size() ) );
    Ref<RT_STRING> nameText = text( name );
    if ( !telsxGenericParamNameOk( nameText.get() ) )
        return {};
    change.exact &= name.starts_with( 'x' ); // No field has such a name.
    if ( name.size() == change.bytes.size() || rest.empty() )
        return adopt( telsxGenericParamCreate( nameText.get() ) );
    int64_t type = static_cast<uint8_t>( rest[0] ) % 3;
    Ref<RT_STRING> value = text( rest.substr( 1 ) );
    if ( !telsxGenericParamValueOk( type, value.get() ) )
        return {};
    auto made = adopt( telsxGenericParamCreateWithValue( nameText.get(), type, value.get() ) );
    if ( type == TELSX_GENERIC_PARAM_VALUE_TYPE_HOST ) // on the wire it may be a token
    {
        Ref<RT_STRING> encoded = adopt( telsx___GenericParamEncode( made.get() ) );
        change.exact &= made == adopt( rt::textOf( encoded ).as( telsx___GenericParamTryDecode ) );
    }
    return made;
}

template <class HANDLE>
void setParams( Change &change, void ( *function )( HANDLE *, TELSX_GENERIC_PARAMS ) )
{
    if ( auto added = param( change ) )
        telsxGenericParamsSetParam( change.params.address(), added.get() );
    call( change, function, change.params.get() );
}

void setParam( Change &change )
{
    if ( auto added = param( change ) )
        call( change, telsxGenericParamsSetParam, added.get() );
}
void setParamValue( Change &change )
{
    auto from = param( change );
    if ( from && telsxGenericParamHasValue( from.get() ) )
        call( change, telsxGenericParamSetValue, telsxGenericParamValueType( from.get() ),
              adopt( telsxGenericParamValueNonNormalized( from.get() ) ).get() );
}
// A name, and behind an equal sign its value, if they are good.
template <auto SET>
void setPair( Change &change )
{
    std::string_view name = change.bytes.substr( 0, change.bytes.find( '=' ) );
    bool hasValue = name.size() < change.bytes.size();
    Ref<RT_STRING> nameText = text( name ), value = text( change.bytes.substr( name.size() + hasValue ) );
    if ( !telsxIriNameOk( nameText.get() ) || !telsxIriTextOk( value.get() ) )
        return;
    change.exact &= name.starts_with( 'x' ); // No field has such a name.
    call( change, SET, nameText.get(), hasValue ? value.get() : nullptr );
}
void setSecure( Change &change ) { call( change, telsxSipIriSetSecure, RT_BOOL( change.number() > 0 ) ); }
void setLr( Change &change ) { call( change, telsxSipIriSetLr, RT_BOOL( change.number() > 0 ) ); }
void setVersion( Change &change )
{
    if ( auto version = adopt( rt::textOf( change.text ).as( telsx___VersionTryDecode ) ) )
        call( change, telsxViaSetVersion, version.get() );
}
void setReceived( Change &change )
{
    if ( auto address = adopt( rt::textOf( change.text ).as( netAddressTryCreateFromChars ) ) )
        call( change, telsxViaSetReceived, address.get() );
}
void setWarnCode( Change &change )
{
    int64_t code = change.number();
    if ( telsxWarnCodeOk( code ) )
        call( change, telsxWarningValueSetWarnCode, code, RT_BOOL( code % 2 ) );
}
void setStarForm( Change &change )
{
    call( change, telsxHeaderContactSetStarForm, RT_BOOL( change.number() > 0 ) );
}
void setEarlyOnly( Change &change )
{
    call( change, telsxHeaderReplacesSetEarlyOnly, RT_BOOL( change.number() > 0 ) );
}
// The time as one number of its digits, from the year to the second. It must be valid, which the caller owes.
void setTime( Change &change )
{
    int64_t number = change.number();
    auto next = [&]( int64_t base ) { return std::exchange( number, number / base ) % base; };
    Ref<RT_TIME> time = adopt( rtTimeCreate() );
    rtTimeSetSecond( time.address(), next( 100 ) );
    rtTimeSetMinute( time.address(), next( 100 ) );
    rtTimeSetHour( time.address(), next( 100 ) );
    rtTimeSetDay( time.address(), next( 100 ) );
    rtTimeSetMonth( time.address(), next( 100 ) );
    rtTimeSetYear( time.address(), number );
    if ( rtTimeValid( time.get() ) )
        call( change, telsxHeaderDateSetTime, time.get() );
}

TELSX_MESSAGE_HEADER header( const char *name, const char *line )
{
    TELSX_MESSAGE_HEADER raw = telsxMessageHeaderCreateCstr( name, -1 );
    telsxMessageHeaderAppendLineCstr( &raw, line, -1 );
    return raw;
}

// clang-format off
#define VALUE( NAME, TEXT, ... )                                                                                \
    { #NAME,                                                                                                    \
      [] { return asObj( rt::textOf( text( TEXT ) ).as( telsx___##NAME##TryDecode ) ); },                       \
      []( RT_OBJ object ) { return asObj( telsx___##NAME##Encode( telsx##NAME##From( object ) ) ); },           \
      []( RT_OBJ encoded ) { return asObj( rt::textOf( rtStringFrom( encoded ) ).as( telsx___##NAME##TryDecode ) ); }, \
      { __VA_ARGS__ } },
#define HEADER( NAME, SIP_NAME, LINE, ... )                                                                     \
    { #NAME,                                                                                                    \
      [] { return asObj( telsx##NAME##TryDecode( adopt( header( SIP_NAME, LINE ) ).get() ) ); },                \
      []( RT_OBJ object ) { return asObj( telsx##NAME##Encode( telsx##NAME##From( object ) ) ); },              \
      []( RT_OBJ encoded ) { return asObj( telsx##NAME##TryDecode( telsxMessageHeaderFrom( encoded ) ) ); },    \
      { __VA_ARGS__ } },
#define TAKE( NAME, FUNCTION, ELEMENT ) \
    { []( Change &change ) { take( change, telsx##NAME##FUNCTION, telsx##ELEMENT##Ok ); } },
#define CALL( NAME, FUNCTION ) { []( Change &change ) { call( change, telsx##NAME##FUNCTION ); } },
#define OTHER( FUNCTION ) { FUNCTION },
#define FIELD( NAME, WORD, ELEMENT ) TAKE( NAME, Set##WORD, ELEMENT )
#define OPTION( NAME, WORD, ELEMENT ) FIELD( NAME, WORD, ELEMENT ) DEL( ELEMENT, telsx##NAME##Del##WORD )
#define DEL( ELEMENT, FUNCTION ) { []( Change &change ) { del( change, FUNCTION, telsx##ELEMENT##Ok ); } },
#define PAIRS( NAME, WORD ) OTHER( setPair<telsx##NAME##Set##WORD> ) \
    TAKE( NAME, Del##WORD, IriName ) CALL( NAME, Clear##WORD##s )
#define PARAMS( NAME ) { []( Change &change ) { setParams( change, telsx##NAME##SetGenericParams ); } },
#define ADDRESS( NAME ) FIELD( NAME, Iri, Iri ) OPTION( NAME, DisplayName, DisplayName ) PARAMS( NAME )
// clang-format on

// Del of an option needs no value, and of an element of a set needs the element.
template <class HANDLE, class OK>
void del( Change &change, void ( *function )( HANDLE * ), OK )
{
    call( change, function );
}
template <class HANDLE>
void del( Change &change, void ( *function )( HANDLE *, RT_STRING ), RT_BOOL ( *ok )( RT_STRING ) )
{
    take( change, function, ok );
}

const Type types[] = {
#include "setters.def"
};

// Whether the wire can say what the object holds: no subtype without a type, no coding that is absent (it is
// written as a star, which is read as a coding), no password without a user, no warning below 100 (it is written without zeros in front,
// which is read as none).
bool canBeSaid( RT_OBJ object )
{
    RT_SORT sort = rtObjSort( object );
    if ( sort == telsxAcceptSort() )
        return telsxAcceptHasMediaType( telsxAcceptFrom( object ) )
               || !telsxAcceptHasMediaSubtype( telsxAcceptFrom( object ) );
    if ( sort == telsxSipIriSort() )
        return telsxSipIriHasUser( telsxSipIriFrom( object ) )
               || !telsxSipIriHasPassword( telsxSipIriFrom( object ) );
    if ( sort == telsxAcceptEncodingSort() )
        return telsxAcceptEncodingHasContentCoding( telsxAcceptEncodingFrom( object ) );
    return sort != telsxWarningValueSort()
           || telsxWarningValueWarnCode( telsxWarningValueFrom( object ) ) >= 100;
}

// The first property that doesn't hold of the changed object, or null.
const char *broken( const Type &type, const Change &change )
{
    Object encoded = adopt( type.encode( change.object.get() ) ),
           again = adopt( type.tryDecode( encoded.get() ) );
    bool isEmptyList = rtObjSort( encoded.get() ) == telsxMessageHeaderSort()
                       && !telsxMessageHeaderLinesLength( telsxMessageHeaderFrom( encoded.get() ) );
    if ( !change.exact || isEmptyList || !canBeSaid( change.object.get() ) )
        return nullptr;
    if ( !again )
        return "what is encoded decodes";
    if ( adopt( type.encode( again.get() ) ) != encoded )
        return "what is encoded doesn't change any more";
    if ( again->sort->compareFunc && again != change.object )
        return "what is encoded decodes to the same";
    return nullptr;
}

void test( const Type &type, std::string_view lines )
{
    Change change;
    change.object = adopt( type.create() );
    change.params = adopt( telsxGenericParamsCreate() );
    Object before = change.object, encoded = adopt( type.encode( before.get() ) );
    while ( !lines.empty() )
    {
        change.bytes = lines.substr( 0, lines.find( '\n' ) );
        lines.remove_prefix( std::min( change.bytes.size() + 1, lines.size() ) );
        if ( change.bytes.empty() )
            continue;
        auto picked = static_cast<uint8_t>( change.bytes[0] );
        change.bytes.remove_prefix( 1 );
        change.text = text( change.bytes );
        forPicked( picked, type.setters, [&]( const Setter &setter ) { setter.apply( change ); } );
    }
    requireNone( broken( type, change ), type.name );
    require( adopt( type.encode( before.get() ) ) == encoded, "another holder sees no change" );
}

} // namespace

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    if ( size == 0 )
        return 0;
    std::string_view lines( reinterpret_cast<const char *>( data ) + 1, size - 1 );
    return run( [&] { forPicked( data[0], types, [&]( const Type &type ) { test( type, lines ); } ); } );
}
