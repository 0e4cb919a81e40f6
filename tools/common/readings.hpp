// The typed reading of a message: what its headers say, for each kind that the library has a type for.
#pragma once

#include "listing.hpp"

// Tells what a value, an address or a header says, field by field; what is absent is left out.
class Reading
{
public:
    explicit Reading( Listing &listing ) : to( listing ) {}

    // One for each value, each address and each header with fields. The library's lists of types name the fields too.
#define TELSX_TEXT( NAME, WORD, ELEMENT )                  \
    field( #WORD, telsx##NAME##WORD( object ) );           \
    if constexpr ( std::string_view( #ELEMENT ) == "Iri" ) \
        parts( #WORD, telsx##NAME##WORD( object ) );
#define TELSX_OPTIONAL_TEXT TELSX_TEXT
#define TELSX_NUMBER( NAME, WORD, ELEMENT ) \
    number<std::string_view( #ELEMENT ) == "Qvalue">( #WORD, telsx##NAME##WORD( object ) );
#define TELSX_OPTIONAL_NUMBER TELSX_NUMBER
#define TELSX_READ_NUMBER( NAME, WORD ) number( #WORD, telsx##NAME##WORD( object ) );
#define TELSX_FLAG( NAME, WORD ) mark( #WORD, telsx##NAME##WORD( object ) );
#define TELSX_MARK( NAME, WORD ) mark( #WORD, telsx##NAME##Has##WORD( object ) );
#define TELSX_OBJECT_OF( NAME, WORD, TYPE )           \
    if ( Owned owned{ telsx##NAME##WORD( object ) } ) \
        field( #WORD, TYPE##ToString( owned.get() ) );
#define TELSX_PARAMS( NAME ) parameters( telsx##NAME##GenericParams( object ) );
#define TELSX_PAIRS( NAME, WORD )                                            \
    pairs(                                                                   \
        #WORD, telsx##NAME##WORD##sLength( object ),                         \
        [&]( int64_t i ) { return telsx##NAME##WORD##NameAt( object, i ); }, \
        [&]( int64_t i ) { return telsx##NAME##WORD##ValueAt( object, i ); } );
#define OPERATOR( SORT, FIELDS ) \
    void operator()( TELSX_##SORT object ) const { FIELDS }
#define TELSX_VALUE( NAME, SORT, FIELDS ) OPERATOR( SORT, FIELDS )
#include <telsx/telsx_values.def>
#define TELSX_ADDRESS( NAME, SORT, FIELDS ) OPERATOR( SORT, FIELDS )
#include <telsx/telsx_addresses.def>
#define TELSX_KIND( NAME, SORT, SIP_NAME )
#define TELSX_KIND_OF_FIELDS( NAME, SORT, SIP_NAME, FIELDS ) OPERATOR( SORT, FIELDS )
#include <telsx/telsx_headers.def>

private:
    // The label of DisplayName is "display name".
    static std::string labelOf( std::string_view word )
    {
        std::string label;
        for ( char ch : word )
        {
            bool isCapital = ch >= 'A' && ch <= 'Z';
            label += isCapital && !label.empty() ? " " : "";
            label += static_cast<char>( isCapital ? ch + 0x20 : ch );
        }
        return label;
    }

    // What the getters return: a new reference or null, a number or -1, whether a mark is there.
    void field( const char *word, RT_STRING text ) const
    {
        if ( Owned owned{ text } )
            to.field( labelOf( word ).c_str(), owned );
    }
    template <bool IS_IN_THOUSANDTHS = false>
    void number( const char *word, int64_t number ) const
    {
        if ( number != -1 && IS_IN_THOUSANDTHS )
            to.weight( labelOf( word ).c_str(), number );
        else if ( number != -1 )
            to.field( labelOf( word ).c_str(), number );
    }
    void mark( const char *word, RT_BOOL isThere ) const
    {
        if ( isThere )
            to.mark( labelOf( word ).c_str() );
    }

    // The parts of an address, if the library knows its scheme.
    void parts( const char *word, RT_STRING iri ) const
    {
        Owned owned( iri );
        Owned sip( telsxSipIriTryDecode( iri ) );
        Owned tel( telsxTelIriTryDecode( iri ) );
        if ( !sip && !tel )
            return;
        to.beginParts( labelOf( word ).c_str() );
        sip ? operator()( sip.get() ) : operator()( tel.get() );
        to.endParts();
    }

    // Names with values, from functions that return new references or null.
    template <class NAME_AT, class VALUE_AT>
    void pairs( const char *word, int64_t length, NAME_AT nameAt, VALUE_AT valueAt ) const
    {
        if ( length == 0 )
            return;
        to.beginPairs( labelOf( word ).c_str() );
        for ( int64_t i = 0; i < length; ++i )
            to.pair( String( nameAt( i ) ), String( valueAt( i ) ) );
        to.endPairs();
    }
    void parameters( TELSX_GENERIC_PARAMS params ) const
    {
        Owned owned( params );
        auto param = [&]( int64_t i ) { return Owned( telsxGenericParamsParamAt( params, i ) ); };
        pairs(
            "Parameter", telsxGenericParamsLength( params ),
            [&]( int64_t i ) { return telsxGenericParamName( param( i ).get() ); },
            [&]( int64_t i ) { return telsxGenericParamValueNonNormalized( param( i ).get() ); } );
    }

    Listing &to;
};

#undef OPERATOR
#undef TELSX_KIND
#undef TELSX_VALUE
#undef TELSX_ADDRESS
#undef TELSX_TEXT
#undef TELSX_OPTIONAL_TEXT
#undef TELSX_NUMBER
#undef TELSX_OPTIONAL_NUMBER
#undef TELSX_READ_NUMBER
#undef TELSX_FLAG
#undef TELSX_MARK
#undef TELSX_OBJECT_OF
#undef TELSX_PARAMS
#undef TELSX_PAIRS

// Of a kind that has fields.
template <class HANDLE>
void listFields( Listing &to, const char *name, const Owned<HANDLE> &header )
{
    to.beginHeader( name, 1 );
    to.beginValue();
    Reading{ to }( header.get() );
    to.endValue();
    to.endHeader();
}

inline bool isStar( TELSX_HEADER_CONTACT header ) { return telsxHeaderContactIsStarForm( header ); }
inline bool isStar( const void * ) { return false; }

// Of a kind that is a list of values.
template <class HANDLE, class VALUE>
void listValues( Listing &to, const char *name, const Owned<HANDLE> &header, int64_t ( *lengthOf )( HANDLE ),
                 VALUE ( *tryDecodeAt )( HANDLE, int64_t ) )
{
    bool star = isStar( header.get() );
    int64_t length = lengthOf( header.get() );
    to.beginHeader( name, star ? 1 : length );
    if ( star )
        to.text( toString( "*" ) );
    for ( int64_t i = 0; i < length; ++i )
    {
        if ( Owned value{ tryDecodeAt( header.get(), i ) } )
        {
            to.beginValue();
            Reading{ to }( value.get() );
            to.endValue();
        }
        else
            to.unreadableValue();
    }
    to.endHeader();
}

// Of a kind that is a list or a set of texts.
template <class HANDLE>
void listTexts( Listing &to, const char *name, const Owned<HANDLE> &header, int64_t ( *lengthOf )( HANDLE ),
                RT_STRING ( *textAt )( HANDLE, int64_t ) )
{
    int64_t length = lengthOf( header.get() );
    to.beginHeader( name, length );
    for ( int64_t i = 0; i < length; ++i )
        to.text( Owned( textAt( header.get(), i ) ) );
    to.endHeader();
}

// Goes through all kinds and tells those that the message holds.
inline void listTyped( const Message &message, Listing &to )
{
    TELSX_MESSAGE msg = message.get();
    to.beginTyped();
#define LIST( NAME, SIP_NAME, CALL )                                \
    if ( Owned header{ telsx##NAME##TryDecodeFromMessage( msg ) } ) \
        CALL;                                                       \
    else if ( telsx##NAME##PresentInMessage( msg ) )                \
        to.unreadable( SIP_NAME );
#define TELSX_KIND_OF_FIELDS( NAME, SORT, SIP_NAME, FIELDS ) \
    LIST( NAME, SIP_NAME, listFields( to, SIP_NAME, header ) )
#define TELSX_KIND_OF_VALUES( NAME, SORT, SIP_NAME, WORD, VALUE ) \
    LIST( NAME, SIP_NAME,                                         \
          listValues( to, SIP_NAME, header, telsx##NAME##WORD##sLength, telsx##NAME##TryDecode##WORD##At ) )
#define TELSX_KIND_OF_TEXTS( NAME, SORT, SIP_NAME, WORD ) \
    LIST( NAME, SIP_NAME,                                 \
          listTexts( to, SIP_NAME, header, telsx##NAME##WORD##sLength, telsx##NAME##WORD##At ) )
#include <telsx/telsx_headers.def>
#undef LIST
    to.endTyped();
}
