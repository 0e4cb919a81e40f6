// The typed reading of a message: what its headers say, for each kind that the library has a type for.
#pragma once

#include <iomanip>

#include "example.hpp"

// Writes what a value, an address or a header says, one field per line; absent fields have no line.
class Reading
{
public:
    explicit Reading( std::ostream &to, int blanksBefore = 4 ) : out( to ), blanks( blanksBefore ) {}

    // One for each value, each address and each header with fields. The library's lists of types name the fields too.
#define TELSX_TEXT( NAME, WORD, ELEMENT )                  \
    field( #WORD, telsx##NAME##WORD( object ) );           \
    if constexpr ( std::string_view( #ELEMENT ) == "Iri" ) \
        parts( telsx##NAME##WORD( object ) );
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
#define TELSX_PAIRS( NAME, WORD )                                        \
    for ( int64_t i = 0; i < telsx##NAME##WORD##sLength( object ); ++i ) \
        pair( #WORD, telsx##NAME##WORD##NameAt( object, i ), telsx##NAME##WORD##ValueAt( object, i ) );
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
    void line( std::string_view word, const std::string &text ) const
    {
        std::string label;
        for ( char ch : word )
        {
            bool isCapital = ch >= 'A' && ch <= 'Z';
            label += isCapital && !label.empty() ? " " : "";
            label += static_cast<char>( isCapital ? ch + 0x20 : ch );
        }
        out << std::setw( blanks ) << "" << std::left << std::setw( 22 - blanks ) << label << text << '\n';
    }

    // What the getters return: a new reference or null, a number or -1, whether a mark is there.
    void field( const char *word, RT_STRING text ) const
    {
        if ( Owned owned{ text } )
            line( word, printable( owned ) );
    }
    template <bool IS_IN_THOUSANDTHS = false>
    void number( const char *word, int64_t number ) const
    {
        if ( number == -1 )
            return;
        line( word, IS_IN_THOUSANDTHS ? std::to_string( number / 1000 ) + '.'
                                            + std::to_string( 1000 + number % 1000 ).substr( 1 )
                                      : std::to_string( number ) );
    }
    void mark( const char *word, RT_BOOL isThere ) const
    {
        if ( isThere )
            line( word, "yes" );
    }
    void pair( const char *word, RT_STRING name, RT_STRING value ) const
    {
        Owned owned( name ), ownedValue( value );
        line( word, printable( owned ) + ( ownedValue ? "=" + printable( ownedValue ) : "" ) );
    }

    // The parts of an address, if the library knows its scheme.
    void parts( RT_STRING iri ) const
    {
        Owned owned( iri );
        Reading below( out, blanks + 2 );
        if ( Owned sip{ telsxSipIriTryDecode( iri ) } )
            below( sip.get() );
        if ( Owned tel{ telsxTelIriTryDecode( iri ) } )
            below( tel.get() );
    }

    void parameters( TELSX_GENERIC_PARAMS params ) const
    {
        Owned owned( params );
        for ( int64_t i = 0; i < telsxGenericParamsLength( params ); ++i )
        {
            Owned param( telsxGenericParamsParamAt( params, i ) );
            pair( "parameter", telsxGenericParamName( param.get() ),
                  telsxGenericParamValueNonNormalized( param.get() ) );
        }
    }

    std::ostream &out;
    int blanks;
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

// For a kind that has fields.
template <class HANDLE>
void showFields( const char *name, const Owned<HANDLE> &header )
{
    std::cout << "  " << name << '\n';
    Reading{ std::cout }( header.get() );
}

inline bool isStar( TELSX_HEADER_CONTACT header ) { return telsxHeaderContactIsStarForm( header ); }
inline bool isStar( const void * ) { return false; }

// For a kind that is a list of values.
template <class HANDLE, class VALUE>
void showValues( const char *name, const Owned<HANDLE> &header, int64_t ( *lengthOf )( HANDLE ),
                 VALUE ( *tryDecodeAt )( HANDLE, int64_t ) )
{
    int64_t length = lengthOf( header.get() );
    if ( length == 0 )
        std::cout << "  " << name << ( isStar( header.get() ) ? "\n    *\n" : " is empty\n" );
    for ( int64_t i = 0; i < length; ++i )
    {
        Owned value( tryDecodeAt( header.get(), i ) );
        std::cout << "  " << name;
        if ( length > 1 )
            std::cout << ' ' << i + 1 << " of " << length;
        std::cout << ( value ? "\n" : " does not decode\n" );
        if ( value )
            Reading{ std::cout }( value.get() );
    }
}

// For a kind that is a list or a set of texts.
template <class HANDLE>
void showTexts( const char *name, const Owned<HANDLE> &header, int64_t ( *lengthOf )( HANDLE ),
                RT_STRING ( *textAt )( HANDLE, int64_t ) )
{
    int64_t length = lengthOf( header.get() );
    std::cout << "  " << name << ( length ? "\n" : " is empty\n" );
    for ( int64_t i = 0; i < length; ++i )
        std::cout << "    " << printable( Owned( textAt( header.get(), i ) ) ) << '\n';
}

// Goes through all kinds and shows those that the message holds.
inline void showTyped( const Message &message )
{
    TELSX_MESSAGE msg = message.get();
    std::cout << "typed\n";
#define SHOW( NAME, SIP_NAME, CALL )                                \
    if ( Owned header{ telsx##NAME##TryDecodeFromMessage( msg ) } ) \
        CALL;                                                       \
    else if ( telsx##NAME##PresentInMessage( msg ) )                \
        std::cout << "  " SIP_NAME " does not decode\n";
#define TELSX_KIND_OF_FIELDS( NAME, SORT, SIP_NAME, FIELDS ) \
    SHOW( NAME, SIP_NAME, showFields( SIP_NAME, header ) )
#define TELSX_KIND_OF_VALUES( NAME, SORT, SIP_NAME, WORD, VALUE ) \
    SHOW( NAME, SIP_NAME,                                         \
          showValues( SIP_NAME, header, telsx##NAME##WORD##sLength, telsx##NAME##TryDecode##WORD##At ) )
#define TELSX_KIND_OF_TEXTS( NAME, SORT, SIP_NAME, WORD ) \
    SHOW( NAME, SIP_NAME, showTexts( SIP_NAME, header, telsx##NAME##WORD##sLength, telsx##NAME##WORD##At ) )
#include <telsx/telsx_headers.def>
#undef SHOW
}
