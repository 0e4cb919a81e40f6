// What the tables of values and headers can't say: lists of values as they change, what they share with the
// raw header, the star, and the fields of the values.
#include <random>
#include <span>

#include "telsx/object_tables.hpp"
#include "telsx/samples.hpp"

using namespace support;

template <auto ENCODE>
static constexpr auto written = []( auto object ) { return utf8( ENCODE( object ) ); };

static Ref<TELSX_GENERIC_PARAMS> params( std::string_view text )
{
    return adopt( applied( telsx___GenericParamsTryDecode, text ) );
}

// Lists of values

namespace
{

// The operations of a list kind. Values go in and come out as text.
struct List
{
    std::string_view name, valueName;
    RT_OBJ ( *create )();
    int64_t ( *length )( RT_OBJ hdr );
    std::string ( *at )( RT_OBJ hdr, int64_t index );
    void ( *set )( RT_OBJ *hdr, int64_t index, RT_OBJ value );
    void ( *del )( RT_OBJ *hdr, int64_t index );
    void ( *prepend )( RT_OBJ *hdr, RT_OBJ value );
    void ( *append )( RT_OBJ *hdr, RT_OBJ value );
    void ( *insert )( RT_OBJ *hdr, int64_t index, RT_OBJ value );
    void ( *clear )( RT_OBJ *hdr );

    const headers::Kind &kind() const { return named( headers::all, name ); }
    Ref<RT_OBJ> read( const OptionalText &lines ) const { return support::read( kind(), lines ); }
    std::string lines( const Ref<RT_OBJ> &hdr ) const { return write( kind(), hdr ); }
    Ref<RT_OBJ> value( const std::string &text ) const
    {
        return support::read( named( values::all, valueName ), text );
    }
};

// What a value of the type is written as around a letter, and what its encoder says to null.
struct Form
{
    std::string_view valueName;
    const char *front, *back, *self;

    std::string text( char letter ) const { return front + std::string( 1, letter ) + back; }
};

const Form forms[] = {
    { "Accept", "a/", ";q=0.500", "accept" },
    { "AcceptEncoding", "", ";x=\",\"", "acceptEncoding" },
    { "AlertInfo", "<sip:", ">", "alertInfo" },
    { "CallInfo", "<sip:", ">;purpose=icon", "callInfo" },
    { "Contact", "\"A, B\" <sip:", ">;q=1.000", "contact" },
    { "Diversion", "<sip:", ">;counter=1", "diversion" },
    { "ErrorInfo", "<sip:", ">", "errorInfo" },
    { "HistoryInfo", "<sip:", ">;index=1.1", "hi" },
    { "IdentityValue", "<sip:", ">", "value" },
    { "Reason", "", ";cause=1", "reason" },
    { "Route", "<sip:", ";lr>;x", "route" },
    { "Via", "SIP/2.0/UDP ", ";branch=z9hG4bK1", "via" },
    { "WarningValue", "399 ", " \"a, \\\"b\\\"\"", "warning" },
};

const Form &formOf( const List &list )
{
    return *std::find_if( std::begin( forms ), std::end( forms ),
                          [&]( const Form &form ) { return form.valueName == list.valueName; } );
}

// A change of a list of one kind by a function for another handle type.
template <class HANDLE, class CHANGE>
void changeAs( RT_OBJ *hdr, CHANGE change )
{
    HANDLE handle = hdr ? reinterpret_cast<HANDLE>( *hdr ) : nullptr;
    change( hdr ? &handle : nullptr );
    *hdr = rt::asObj( handle );
}

} // namespace

// Two kinds have a name of their own for this.
#define telsxHeaderContactClearContacts telsxHeaderContactClear
#define telsxHeaderWarningClearWarnings telsxHeaderWarningWarningsClear

#define CHANGE( SORT, CALL ) changeAs<TELSX_##SORT>( hdr, [&]( TELSX_##SORT *handle ) { CALL; } )
#define TELSX_KIND( ... )
#define TELSX_KIND_OF_VALUES( NAME, SORT, SIP_NAME, WORD, VALUE )                                        \
    { SIP_NAME,                                                                                          \
      #VALUE,                                                                                            \
      [] { return telsx##NAME##Obj( telsx##NAME##Create() ); },                                          \
      []( RT_OBJ hdr ) { return telsx##NAME##WORD##sLength( telsx##NAME##From( hdr ) ); },               \
      []( RT_OBJ hdr, int64_t index )                                                                    \
      {                                                                                                  \
          auto value = adopt( telsx##NAME##TryDecode##WORD##At( telsx##NAME##From( hdr ), index ) );     \
          return value ? utf8( telsx___##VALUE##Encode( value.get() ) ) : "(null)";                      \
      },                                                                                                 \
      []( RT_OBJ *hdr, int64_t index, RT_OBJ value )                                                     \
      { CHANGE( SORT, telsx##NAME##Set##WORD##At( handle, index, telsx##VALUE##From( value ) ) ); },     \
      []( RT_OBJ *hdr, int64_t index ) { CHANGE( SORT, telsx##NAME##Del##WORD##At( handle, index ) ); }, \
      []( RT_OBJ *hdr, RT_OBJ value )                                                                    \
      { CHANGE( SORT, telsx##NAME##Prepend##WORD( handle, telsx##VALUE##From( value ) ) ); },            \
      []( RT_OBJ *hdr, RT_OBJ value )                                                                    \
      { CHANGE( SORT, telsx##NAME##Append##WORD( handle, telsx##VALUE##From( value ) ) ); },             \
      []( RT_OBJ *hdr, int64_t index, RT_OBJ value )                                                     \
      { CHANGE( SORT, telsx##NAME##Insert##WORD( handle, index, telsx##VALUE##From( value ) ) ); },      \
      []( RT_OBJ *hdr ) { CHANGE( SORT, telsx##NAME##Clear##WORD##s( handle ) ); } },
static const List lists[] = {
#include "telsx/telsx_headers.def"
};
#undef TELSX_KIND

static std::string joined( const std::vector<std::string> &lines )
{
    std::string text;
    for ( const std::string &line : lines )
        text += ( text.empty() ? "" : "\n" ) + line;
    return text;
}

// Random changes beside the same changes of a vector; every other time somebody else holds the header too.
TEST( Lists, ChangeByIndex )
{
    std::minstd_rand random( 1 );
    for ( const List &list : lists )
    {
        SCOPED_TRACE( list.name );
        Ref<RT_OBJ> hdr = adopt( list.create() );
        std::vector<std::string> model;
        for ( int step = 0; step < 100; ++step )
        {
            Ref<RT_OBJ> other = step % 2 ? hdr : Ref<RT_OBJ>();
            RT_OBJ before = hdr.get();
            std::string text = formOf( list ).text( static_cast<char>( 'a' + random() % 26 ) ),
                        linesBefore = list.lines( hdr );
            Ref<RT_OBJ> value = list.value( text );
            ASSERT_TRUE( value ) << text;
            auto length = std::ssize( model ),
                 index = static_cast<std::ptrdiff_t>( random() ) % ( length + 1 );
            switch ( step == 60 ? 5 : random() % ( index < length ? 5 : 3 ) )
            {
                case 0:
                    list.prepend( hdr.address(), value.get() );
                    model.insert( model.begin(), text );
                    break;
                case 1:
                    list.append( hdr.address(), value.get() );
                    model.push_back( text );
                    break;
                case 2:
                    list.insert( hdr.address(), index, value.get() );
                    model.insert( model.begin() + index, text );
                    break;
                case 3:
                    list.del( hdr.address(), index );
                    model.erase( model.begin() + index );
                    break;
                case 4:
                    list.set( hdr.address(), index, value.get() );
                    model[static_cast<std::size_t>( index )] = text;
                    break;
                default: list.clear( hdr.address() ); model.clear();
            }
            EXPECT_EQ( bool( other ), before != hdr.get() );
            EXPECT_TRUE( !other || linesBefore == list.lines( other ) );
            ASSERT_EQ( std::ssize( model ), list.length( hdr.get() ) );
            ASSERT_EQ( joined( model ), list.lines( hdr ) );
            for ( int64_t i = 0; i < std::ssize( model ); ++i )
                EXPECT_EQ( model[static_cast<std::size_t>( i )], list.at( hdr.get(), i ) );
        }
    }
}

TEST( Lists, AbortForNullAndForIndicesOutside )
{
    for ( const List &list : lists )
    {
        SCOPED_TRACE( list.name );
        Ref<RT_OBJ> hdr = adopt( list.create() ), value = list.value( formOf( list ).text( 'a' ) );
        list.append( hdr.address(), value.get() );
        for ( int64_t index : { int64_t( -1 ), int64_t( 1 ), INT64_MAX } )
        {
            EXPECT_DEATH( list.at( hdr.get(), index ), "rt_vector.*index" );
            EXPECT_DEATH( list.set( hdr.address(), index, value.get() ), "rt_vector.*index" );
            EXPECT_DEATH( list.del( hdr.address(), index ), "rt_vector.*index" );
            EXPECT_DEATH( list.insert( hdr.address(), index + ( index == 1 ), value.get() ),
                          "rt_vector.*index" );
        }

        EXPECT_ABORT( list.length( nullptr ), "hdr" );
        EXPECT_ABORT( list.at( nullptr, 0 ), "hdr" );
        const std::function<void( RT_OBJ * )> changes[] = {
            list.clear,
            [&]( RT_OBJ *of ) { list.del( of, 0 ); },
            [&]( RT_OBJ *of ) { list.set( of, 0, nullptr ); },
            [&]( RT_OBJ *of ) { list.insert( of, 0, nullptr ); },
            [&]( RT_OBJ *of ) { list.append( of, nullptr ); },
            [&]( RT_OBJ *of ) { list.prepend( of, nullptr ); },
        };
        for ( auto &change : changes )
        {
            RT_OBJ none = nullptr;
            EXPECT_ABORT( change( nullptr ), "hdr" );
            EXPECT_ABORT( change( &none ), "*hdr" );
        }
        for ( auto &change : std::span( changes ).subspan( 2 ) )
            EXPECT_ABORT( change( hdr.address() ), formOf( list ).self );
    }
}

// A decoded text stays as it was, that of an object is in its normal form, and texts are what compares.
TEST( Lists, KeepTextsAndNotObjects )
{
    auto hdr = adopt( telsxHeaderAcceptTryDecode( header( "Accept", { "A/B;Q=1" } ).get() ) ), other = hdr;
    auto accept = adopt( telsxHeaderAcceptTryDecodeAcceptAt( hdr.get(), 0 ) );
    telsxHeaderAcceptSetAcceptAt( hdr.address(), 0, accept.get() );
    telsxAcceptDelQvalue( accept.address() );
    EXPECT_EQ( "a/b;q=1.000", utf8( telsxHeaderAcceptToString( hdr.get() ) ) );
    EXPECT_EQ( "A/B;Q=1", utf8( telsxHeaderAcceptToString( other.get() ) ) );
    EXPECT_NE( hdr, other );
}

// A value that passes in the list may be none for its decoder; the others stand, and all go out as they came.
TEST( Lists, MeasureMoreThanValuesAre )
{
    for ( auto [name, bad] : std::initializer_list<std::pair<const char *, std::string>>{
              { "Accept", "a/b;q=1.5" },
              { "Accept-Encoding", "a;q=1.5" },
              { "Contact", "<sip:a>;expires=1x" },
              { "Diversion", "<sip:a>;counter=1a" },
              { "History-Info", "<sip:a>" },
              { "Reason", "SIP;cause=1x" },
              { "Via", "SIP/2.0/UDP a;ttl=12abc" } } )
    {
        const List &list = named( lists, name );
        std::string good = formOf( list ).text( 'b' );
        Ref<RT_OBJ> hdr = list.read( good + " , " + bad + "\n" + good );
        ASSERT_TRUE( hdr ) << name;
        EXPECT_EQ( good + "\n" + bad + "\n" + good, list.lines( hdr ) );
        for ( int again = 0; again < 2; ++again )
            EXPECT_EQ( "(null)", list.at( hdr.get(), 1 ) ) << name;
        EXPECT_EQ( good, list.at( hdr.get(), 2 ) );
        list.set( hdr.address(), 1, list.value( good ).get() );
        EXPECT_EQ( good, list.at( hdr.get(), 1 ) );
    }
}

TEST( Lists, OfViaAndWarningAreRestoredWithoutLines )
{
    for ( const List &list : lists )
        for ( RT_STORE store : { rtStoreCreate(), list.kind().store( adopt( list.create() ).get() ) } )
        {
            Ref<RT_OBJ> restored = adopt( list.kind().tryRestore( adopt( store ).get() ) );
            EXPECT_EQ( list.name == "Via" || list.name == "Warning", bool( restored ) ) << list.name;
            EXPECT_TRUE( !restored || list.length( restored.get() ) == 0 ) << list.name;
        }
}

// A line of one value is kept as it is, longer ones share their text, and a change leaves the lines alone.
TEST( Lists, ShareTheTextOfTheLines )
{
    auto lineAt = []( const headers::Raw &raw, int64_t index )
    { return adopt( telsxMessageHeaderLineAt( raw.get(), index ) ); };
    for ( const List &list : lists )
    {
        SCOPED_TRACE( list.name );
        std::string value = formOf( list ).text( 'a' ), two = value + ";y=" + std::string( 40, 'a' );
        bool hasParams = bool( list.read( two ) );
        two = hasParams ? two + ", " + two : value + "," + value;
        headers::Raw raw = rawHeader( list.name, value + "\n" + two );
        Ref<RT_OBJ> hdr = adopt( list.kind().tryDecode( raw.get() ) );
        ASSERT_TRUE( hdr );
        headers::Raw encoded = adopt( list.kind().encode( hdr.get() ) );
        EXPECT_EQ( lineAt( raw, 0 ).get(), lineAt( encoded, 0 ).get() );
        Text line = rt::textOf( lineAt( raw, 1 ) ), part = rt::textOf( lineAt( encoded, 2 ) );
        EXPECT_TRUE( !hasParams || line.chs + line.length == part.chs + part.length );

        std::string before = linesOf( raw ), encodedBefore = linesOf( encoded );
        list.set( hdr.address(), 0, list.value( formOf( list ).text( 'z' ) ).get() );
        list.del( hdr.address(), 1 );
        EXPECT_EQ( before, linesOf( raw ) );
        EXPECT_EQ( encodedBefore, linesOf( encoded ) );
        raw = {};
        encoded = {};
        EXPECT_EQ( list.lines( hdr ), list.lines( list.read( list.lines( hdr ) ) ) );
    }
}

TEST( Lists, ContactIsAStarOrAList )
{
    Ref<TELSX_HEADER_CONTACT> hdr = adopt( telsxHeaderContactCreate() ), empty = hdr;
    Ref<TELSX_CONTACT> contact = adopt( telsxContactCreate( str( "sip:a" ).get() ) );
    auto expectForm = [&]( RT_BOOL starForm, int64_t length, const char *text )
    {
        EXPECT_EQ( starForm, telsxHeaderContactIsStarForm( hdr.get() ) );
        EXPECT_EQ( length, telsxHeaderContactContactsLength( hdr.get() ) );
        EXPECT_EQ( text, utf8( telsxHeaderContactToString( hdr.get() ) ) );
        EXPECT_FALSE( telsxHeaderContactIsStarForm( empty.get() ) );
    };
    expectForm( 0, 0, "" );
    telsxHeaderContactSetStarForm( hdr.address(), -2 );
    expectForm( 1, 0, "*" );
    EXPECT_EQ( empty, hdr ) << "the star takes no part in comparison";
    Ref<RT_STORE> store = adopt( telsxHeaderContactStore( hdr.get() ) );
    EXPECT_TRUE( telsxHeaderContactIsStarForm( adopt( telsxHeaderContactTryRestore( store.get() ) ).get() ) );
    EXPECT_TRUE( telsxHeaderContactIsStarForm( adopt( telsxHeaderContactCreateFrom( hdr.get() ) ).get() ) );
    EXPECT_DEATH( telsxHeaderContactDelContactAt( hdr.address(), 0 ), "index" );

    const std::function<void( TELSX_HEADER_CONTACT * )> adds[] = {
        [&]( auto *to ) { telsxHeaderContactAppendContact( to, contact.get() ); },
        [&]( auto *to ) { telsxHeaderContactPrependContact( to, contact.get() ); },
        [&]( auto *to ) { telsxHeaderContactInsertContact( to, 0, contact.get() ); },
    };
    const std::function<void( TELSX_HEADER_CONTACT * )> ends[] = {
        []( auto *of ) { telsxHeaderContactSetStarForm( of, 0 ); },
        telsxHeaderContactClear,
    };
    for ( auto &add : adds )
        for ( auto &end : ends )
        {
            telsxHeaderContactSetStarForm( hdr.address(), 1 );
            add( hdr.address() );
            expectForm( 0, 1, "<sip:a>" );
            end( hdr.address() );
            expectForm( 0, 0, "" );
            telsxHeaderContactSetStarForm( hdr.address(), 1 );
            end( hdr.address() );
            expectForm( 0, 0, "" );
            add( hdr.address() );
            telsxHeaderContactDelContactAt( hdr.address(), 0 );
            expectForm( 0, 0, "" );
            add( hdr.address() );
            telsxHeaderContactSetStarForm( hdr.address(), 1 );
            expectForm( 1, 0, "*" );
        }

    TELSX_HEADER_CONTACT none = nullptr;
    EXPECT_ABORT( telsxHeaderContactIsStarForm( nullptr ), "hdr" );
    EXPECT_ABORT( telsxHeaderContactSetStarForm( nullptr, 1 ), "hdr" );
    EXPECT_ABORT( telsxHeaderContactSetStarForm( &none, 1 ), "*hdr" );
}

// Values

#define IRI( NAME, BEHIND )                                                                         \
    FIELD( NAME, Iri, str( "sip:ü@b" ).get(), "sip:ü@b", "<sip:%C3%BC@b>" BEHIND, str( "b" ).get(), \
           "telsxIriOk( iri )" )
#define DISPLAY_NAME( NAME, BEHIND )                                                          \
    OPTION( NAME, DisplayName, str( "" ).get(), "", "\"\" <sip:a>" BEHIND, str( "\n" ).get(), \
            "telsxDisplayNameOk( displayName )" )
#define INDEX( NAME, WORD, MEMBER )                                                                         \
    OPTION( NAME, WORD, str( "1.10" ).get(), "1.10", "<sip:a>;index=1;" #MEMBER "=1.10", str( "01" ).get(), \
            "telsxHistoryInfoIndexOk( " #MEMBER " )" )
#define GENERIC_PARAMS( NAME, FRONT ) \
    FIELD( NAME, GenericParams, params( ";A=B" ).get(), ";a=B", FRONT ";a=B", nullptr, "genericParams" )
#define QVALUE( NAME, FRONT ) \
    OPTION( NAME, Qvalue, 0, "0", FRONT ";q=0.000", 1001, "telsxQvalueOk( qvalue )" )

TEST( ListValues, SettersOfDiversionAndHistoryInfo )
{
    Ref<RT_STRING> iri = str( "sip:a" );
    expectFields(
        adopt( telsxDiversionCreate( iri.get() ) ), written<telsx___DiversionEncode>, "diversion",
        { IRI( Diversion, "" ), DISPLAY_NAME( Diversion, "" ),
          OPTION( Diversion, Reason, str( "Away" ).get(), "away", "<sip:a>;reason=away", nullptr, "reason" ),
          OPTION( Diversion, Counter, 99, "99", "<sip:a>;counter=99", 100,
                  "telsxDiversionCounterOk( counter )" ),
          OPTION( Diversion, Limit, 0, "0", "<sip:a>;limit=0", INT64_MIN, "telsxDiversionLimitOk( limit )" ),
          OPTION( Diversion, Privacy, str( "\"Ä, b\\" ).get(), "\"ä, b\\", "<sip:a>;privacy=\"\\\"ä, b\\\\\"",
                  nullptr, "privacy" ),
          OPTION( Diversion, Screen, str( "" ).get(), "", "<sip:a>;screen=\"\"", nullptr, "screen" ),
          GENERIC_PARAMS( Diversion, "<sip:a>" ) } );
    expectFields( adopt( telsxHistoryInfoCreate( iri.get(), str( "1" ).get() ) ),
                  written<telsx___HistoryInfoEncode>, "hi",
                  { IRI( HistoryInfo, ";index=1" ), DISPLAY_NAME( HistoryInfo, ";index=1" ),
                    FIELD( HistoryInfo, Index, str( "0.1" ).get(), "0.1", "<sip:a>;index=0.1",
                           str( "" ).get(), "telsxHistoryInfoIndexOk( index )" ),
                    INDEX( HistoryInfo, Rc, rc ), INDEX( HistoryInfo, Mp, mp ), INDEX( HistoryInfo, Np, np ),
                    GENERIC_PARAMS( HistoryInfo, "<sip:a>;index=1" ) } );

    auto named = adopt( telsxDiversionCreateWithDisplayName( iri.get(), str( "A" ).get() ) );
    EXPECT_EQ( "\"A\" <sip:a>", utf8( telsx___DiversionEncode( named.get() ) ) );
    telsxDiversionSetReason( named.address(), str( "a\rb" ).get() );
    EXPECT_DEATH( telsx___DiversionEncode( named.get() ), "quotable_string" );
}

TEST( ListValues, SettersOfReasonAndAccepts )
{
    expectFields( adopt( telsxReasonCreate( str( "SIP" ).get() ) ), written<telsx___ReasonEncode>, "reason",
                  { FIELD( Reason, Protocol, str( "q.850" ).get(), "q.850", "q.850", str( "a b" ).get(),
                           "telsxReasonProtocolOk( protocol )" ),
                    OPTION( Reason, Cause, str( "016" ).get(), "016", "SIP;cause=016", str( "" ).get(),
                            "telsxReasonCauseOk( cause )" ),
                    OPTION( Reason, Text, str( "a\\" ).get(), "a\\", "SIP;text=\"a\\\\\"", str( "\n" ).get(),
                            "telsxReasonTextOk( text )" ),
                    GENERIC_PARAMS( Reason, "SIP" ) } );
    auto text = adopt( telsxAcceptCreate() );
    telsxAcceptSetMediaType( text.address(), str( "Text" ).get() );
    expectFields( text, written<telsx___AcceptEncode>, "accept",
                  { FIELD( Accept, MediaType, str( "A*" ).get(), "a*", "a*/*", str( "*" ).get(),
                           "telsxMediaTypeOk( mediaType )" ),
                    OPTION( Accept, MediaSubtype, str( "B.c" ).get(), "b.c", "text/b.c", str( "*" ).get(),
                            "telsxMediaSubtypeOk( mediaSubtype )" ),
                    QVALUE( Accept, "text/*" ), GENERIC_PARAMS( Accept, "text/*" ) } );
    expectFields( adopt( telsxAcceptEncodingCreate() ), written<telsx___AcceptEncodingEncode>,
                  "acceptEncoding",
                  { OPTION( AcceptEncoding, ContentCoding, str( "GZIP" ).get(), "gzip", "gzip",
                            str( "a b" ).get(), "telsxContentCodingOk( contentCoding )" ),
                    QVALUE( AcceptEncoding, "*" ), GENERIC_PARAMS( AcceptEncoding, "*" ) } );
    auto gzip = adopt( telsxAcceptEncodingCreateWithContentCoding( str( "GZip" ).get() ) );
    EXPECT_EQ( "gzip", utf8( telsxAcceptEncodingToString( gzip.get() ) ) );
}

TEST( ListValues, AbsentHalvesAreStars )
{
    auto accept = adopt( telsxAcceptCreate() );
    telsxAcceptSetMediaSubtype( accept.address(), str( "Plain" ).get() );
    EXPECT_EQ( "*/*", utf8( telsxAcceptToString( accept.get() ) ) ) << "no subtype without a type";
    telsxAcceptSetMediaType( accept.address(), str( "TEXT" ).get() );
    EXPECT_EQ( "text/plain", utf8( telsxAcceptToString( accept.get() ) ) );
    telsxAcceptDelMediaType( accept.address() );
    EXPECT_FALSE( telsxAcceptHasMediaType( accept.get() ) );
    EXPECT_EQ( "plain", utf8( telsxAcceptMediaSubtype( accept.get() ) ) );

    auto made = adopt( telsxAcceptEncodingCreate() );
    auto read = adopt( applied( telsx___AcceptEncodingTryDecode, "*" ) );
    EXPECT_EQ( "*", utf8( telsxAcceptEncodingToString( made.get() ) ) );
    EXPECT_EQ( "*", utf8( telsxAcceptEncodingContentCoding( read.get() ) ) ) << "the star is a token";
    EXPECT_EQ( -1, telsxAcceptEncodingCompare( made.get(), read.get() ) );
    auto readAccept = adopt( applied( telsx___AcceptTryDecode, "*/*" ) );
    EXPECT_FALSE( telsxAcceptHasMediaType( readAccept.get() )
                  || telsxAcceptHasMediaSubtype( readAccept.get() ) );
}

TEST( ListValues, SettersOfInfos )
{
    Ref<RT_STRING> iri = str( "sip:a" );
    expectFields( adopt( telsxAlertInfoCreate( iri.get() ) ), written<telsx___AlertInfoEncode>, "alertInfo",
                  { IRI( AlertInfo, "" ), GENERIC_PARAMS( AlertInfo, "<sip:a>" ) } );
    expectFields( adopt( telsxErrorInfoCreate( iri.get() ) ), written<telsx___ErrorInfoEncode>, "errorInfo",
                  { IRI( ErrorInfo, "" ), GENERIC_PARAMS( ErrorInfo, "<sip:a>" ) } );
    expectFields( adopt( telsxCallInfoCreate( iri.get() ) ), written<telsx___CallInfoEncode>, "callInfo",
                  { IRI( CallInfo, "" ),
                    OPTION( CallInfo, Purpose, str( "ICON" ).get(), "icon", "<sip:a>;purpose=icon",
                            str( "" ).get(), "telsxPurposeOk( purpose )" ),
                    GENERIC_PARAMS( CallInfo, "<sip:a>" ) } );
}

TEST( ListValues, SettersOfWarningValue )
{
    Ref<RT_STRING> host = str( "h" ), bad = str( "a_b" );
    Ref<TELSX_WARNING_VALUE> original = adopt( telsxWarningValueCreate( 399, host.get() ) ), wv = original;
    auto text = [&] { return utf8( telsx___WarningValueEncode( wv.get() ) ); };
    EXPECT_EQ( "399 h \"Miscellaneous warning\"", text() );
    expectFields(
        original, written<telsx___WarningValueEncode>, "wv",
        { FIELD( WarningValue, WarnAgent, str( "[::1]:5" ).get(), "[::1]:5",
                 "399 [::1]:5 \"Miscellaneous warning\"", bad.get(), "telsxWarnAgentOk( warnAgent )" ),
          FIELD( WarningValue, WarnText, str( "" ).get(), "", "399 h \"\"", str( "\r" ).get(),
                 "telsxWarnTextOk( warnText )" ) } );
    telsxWarningValueSetWarnCode( wv.address(), 307, 0 );
    EXPECT_EQ( "307 h \"Miscellaneous warning\"", text() );
    EXPECT_EQ( 399, telsxWarningValueWarnCode( original.get() ) );
    telsxWarningValueSetWarnCode( wv.address(), 307, -1 );
    EXPECT_EQ( "307 h \"Session description parameter not understood\"", text() );

    // A code of less than three digits is written so, and nobody reads it.
    telsxWarningValueSetWarnCode( wv.address(), 7, 1 );
    EXPECT_EQ( "7 h \"Warning \\\"007\\\"\"", text() );
    EXPECT_FALSE( adopt( applied( telsx___WarningValueTryDecode, text() ) ) );

    TELSX_WARNING_VALUE none = nullptr;
    EXPECT_ABORT( telsxWarningValueWarnCode( nullptr ), "wv" );
    EXPECT_ABORT( telsxWarningValueSetWarnCode( nullptr, 1, 0 ), "wv" );
    EXPECT_ABORT( telsxWarningValueSetWarnCode( &none, 1, 0 ), "*wv" );
    EXPECT_ABORT( telsxWarningValueSetWarnCode( wv.address(), 1000, 0 ), "telsxWarnCodeOk( warnCode )" );
}

TEST( ListValues, CreateAbortsForBadArguments )
{
    Ref<RT_STRING> iri = str( "sip:a" ), bad = str( "a\n" );
    EXPECT_ABORT( telsxDiversionCreate( bad.get() ), "telsxIriOk( iri )" );
    EXPECT_ABORT( telsxDiversionCreateWithDisplayName( iri.get(), bad.get() ),
                  "telsxDisplayNameOk( displayName )" );
    EXPECT_ABORT( telsxHistoryInfoCreate( bad.get(), bad.get() ), "telsxIriOk( iri )" );
    EXPECT_ABORT( telsxHistoryInfoCreate( iri.get(), bad.get() ), "telsxHistoryInfoIndexOk( index )" );
    EXPECT_ABORT( telsxReasonCreate( bad.get() ), "telsxReasonProtocolOk( reasonProtocol )" );
    EXPECT_ABORT( telsxAcceptEncodingCreateWithContentCoding( bad.get() ),
                  "telsxContentCodingOk( contentCoding )" );
    EXPECT_ABORT( telsxAlertInfoCreate( bad.get() ), "telsxIriOk( iri )" );
    EXPECT_ABORT( telsxCallInfoCreate( bad.get() ), "telsxIriOk( iri )" );
    EXPECT_ABORT( telsxErrorInfoCreate( bad.get() ), "telsxIriOk( iri )" );
    EXPECT_ABORT( telsxWarningValueCreate( -1, bad.get() ), "telsxWarnCodeOk( warnCode )" );
    EXPECT_ABORT( telsxWarningValueCreate( 0, bad.get() ), "telsxWarnAgentOk( warnAgent )" );
    EXPECT_ABORT( telsxWarningValueCreateWithWarnText( 0, str( "a" ).get(), bad.get() ),
                  "telsxWarnTextOk( warnText )" );
}

// What is written leaves out the parameters that fields stand for; the set keeps them, and they come back
// when the field goes.
TEST( ListValues, FieldsWinOverParametersOfTheirNames )
{
    auto diversion = adopt( applied( telsx___DiversionTryDecode, "<sip:a>;reason=a;counter=1" ) );
    Ref<TELSX_GENERIC_PARAMS> hidden = params( ";reason;counter=x;limit;privacy;screen;y" );
    telsxDiversionSetGenericParams( diversion.address(), hidden.get() );
    EXPECT_EQ( "<sip:a>;reason=a;counter=1;limit;privacy;screen;y",
               utf8( telsx___DiversionEncode( diversion.get() ) ) );
    telsxDiversionSetLimit( diversion.address(), 2 );
    telsxDiversionSetPrivacy( diversion.address(), str( "p" ).get() );
    telsxDiversionSetScreen( diversion.address(), str( "s" ).get() );
    telsxDiversionDelCounter( diversion.address() );
    EXPECT_EQ( "<sip:a>;reason=a;limit=2;privacy=p;screen=s;counter=x;y",
               utf8( telsx___DiversionEncode( diversion.get() ) ) );
    EXPECT_EQ( hidden.get(), adopt( telsxDiversionGenericParams( diversion.get() ) ).get() );

    auto hi = adopt( telsxHistoryInfoCreate( str( "sip:a" ).get(), str( "1" ).get() ) );
    telsxHistoryInfoSetGenericParams( hi.address(), params( ";index=2;rc;mp=x;np" ).get() );
    EXPECT_EQ( "<sip:a>;index=1;rc;mp=x;np", utf8( telsx___HistoryInfoEncode( hi.get() ) ) );
    telsxHistoryInfoSetMp( hi.address(), str( "3" ).get() );
    EXPECT_EQ( "<sip:a>;index=1;mp=3;rc;np", utf8( telsx___HistoryInfoEncode( hi.get() ) ) );

    auto reason = adopt( applied( telsx___ReasonTryDecode, "SIP;text=abc;cause=x" ) );
    EXPECT_FALSE( telsxReasonHasText( reason.get() ) );
    telsxReasonSetText( reason.address(), str( "t" ).get() );
    EXPECT_EQ( "SIP;text=\"t\";cause=x", utf8( telsx___ReasonEncode( reason.get() ) ) );
    telsxReasonDelText( reason.address() );
    telsxReasonSetCause( reason.address(), str( "1" ).get() );
    EXPECT_EQ( "SIP;cause=1;text=abc", utf8( telsx___ReasonEncode( reason.get() ) ) );

    auto accept = adopt( applied( telsx___AcceptTryDecode, "a/b;q=x;q=1" ) );
    EXPECT_EQ( "a/b;q=1.000", utf8( telsxAcceptToString( accept.get() ) ) );
    telsxAcceptDelQvalue( accept.address() );
    EXPECT_EQ( "a/b;q=x", utf8( telsxAcceptToString( accept.get() ) ) );
    auto coding = adopt( applied( telsx___AcceptEncodingTryDecode, "a;q=1;q" ) );
    telsxAcceptEncodingDelQvalue( coding.address() );
    EXPECT_EQ( "a;q", utf8( telsxAcceptEncodingToString( coding.get() ) ) );
    auto callInfo = adopt( applied( telsx___CallInfoTryDecode, "<sip:a>;purpose=\"x\";purpose=a" ) );
    telsxCallInfoDelPurpose( callInfo.address() );
    EXPECT_EQ( "<sip:a>;purpose=\"x\"", utf8( telsxCallInfoToString( callInfo.get() ) ) );
}
