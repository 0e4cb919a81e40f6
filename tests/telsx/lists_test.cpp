// Lists of values as they change, what they share with the raw header, and the star.

#include "telsx/object_tables.hpp"
#include "telsx/samples.hpp"

using namespace support;

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

TEST( Lists, AbortForNullAndForIndicesOutside )
{
    for ( const List &list : lists )
    {
        SCOPED_TRACE( list.name );
        Ref<RT_OBJ> hdr = adopt( list.create() ), value = list.value( formOf( list ).text( 'a' ) );
        list.append( hdr.address(), value.get() );
        for ( int64_t index : { int64_t( -1 ), int64_t( 1 ) } )
        {
            EXPECT_DEATH( list.at( hdr.get(), index ), "rt_vector.*index" );
            EXPECT_DEATH( list.set( hdr.address(), index, value.get() ), "rt_vector.*index" );
            EXPECT_DEATH( list.del( hdr.address(), index ), "rt_vector.*index" );
            EXPECT_DEATH( list.insert( hdr.address(), 2 * index, value.get() ), "rt_vector.*index" );
        }

        EXPECT_ABORT( list.length( nullptr ), "hdr" );
        EXPECT_ABORT( list.at( nullptr, 0 ), "hdr" );
        const std::function<void( RT_OBJ * )> changes[] = {
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
            EXPECT_ABORT( change( hdr.address() ), formOf( list ).self );
        }
        EXPECT_ABORT( list.clear( nullptr ), "hdr" );
        EXPECT_ABORT( list.del( nullptr, 0 ), "hdr" );
    }
}

// A value that passes in the list may be none for its decoder; the others stand, and all go out as they came, until
// one is set: that of an object is in its normal form.
TEST( Lists, KeepTextsAndNotObjects )
{
    auto hdr =
             adopt( telsxHeaderAcceptTryDecode( header( "Accept", { "A/B;Q=1, a/b;q=1.5", "a/b" } ).get() ) ),
         other = hdr;
    EXPECT_FALSE( adopt( telsxHeaderAcceptTryDecodeAcceptAt( hdr.get(), 1 ) ) );
    auto accept = adopt( telsxHeaderAcceptTryDecodeAcceptAt( hdr.get(), 0 ) );
    telsxHeaderAcceptSetAcceptAt( hdr.address(), 0, accept.get() );
    telsxAcceptDelQvalue( accept.address() );
    EXPECT_EQ( "a/b;q=1.000, a/b;q=1.5, a/b", utf8( telsxHeaderAcceptToString( hdr.get() ) ) );
    EXPECT_EQ( "A/B;Q=1, a/b;q=1.5, a/b", utf8( telsxHeaderAcceptToString( other.get() ) ) );
    EXPECT_NE( hdr, other );
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
        list.del( hdr.address(), 1 );
        EXPECT_EQ( before, linesOf( raw ) );
        EXPECT_EQ( encodedBefore, linesOf( encoded ) );
    }
}

TEST( Lists, ContactIsAStarOrAList )
{
    Ref<TELSX_HEADER_CONTACT> hdr = adopt( telsxHeaderContactCreate() ), empty = hdr;
    Ref<TELSX_CONTACT> contact = adopt( telsxContactCreate( str( "sip:a" ).get() ) );
    auto expectForm = [&]( RT_BOOL starForm, const char *text )
    {
        EXPECT_EQ( starForm, telsxHeaderContactIsStarForm( hdr.get() ) );
        EXPECT_EQ( text, utf8( telsxHeaderContactToString( hdr.get() ) ) );
        EXPECT_FALSE( telsxHeaderContactIsStarForm( empty.get() ) );
    };
    expectForm( 0, "" );
    telsxHeaderContactSetStarForm( hdr.address(), -2 );
    expectForm( 1, "*" );
    EXPECT_EQ( 0, telsxHeaderContactContactsLength( hdr.get() ) );
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
    for ( auto &add : adds )
    {
        telsxHeaderContactSetStarForm( hdr.address(), 1 );
        add( hdr.address() );
        expectForm( 0, "<sip:a>" );
        telsxHeaderContactSetStarForm( hdr.address(), 1 );
        expectForm( 1, "*" );
        telsxHeaderContactClear( hdr.address() );
        expectForm( 0, "" );
        add( hdr.address() );
        telsxHeaderContactSetStarForm( hdr.address(), 0 );
        expectForm( 0, "" );
    }

    TELSX_HEADER_CONTACT none = nullptr;
    EXPECT_ABORT( telsxHeaderContactIsStarForm( nullptr ), "hdr" );
    EXPECT_ABORT( telsxHeaderContactSetStarForm( nullptr, 1 ), "hdr" );
    EXPECT_ABORT( telsxHeaderContactSetStarForm( &none, 1 ), "*hdr" );
}

// A Via header keeps its first value decoded. It must be what the value's text is decoded to, also where a decoder
// that looks for names stops inside of what a skipper takes for a value.
TEST( ViaList, KeepsItsFirstValueAsItsTextIsDecoded )
{
    struct
    {
        const char *line;
        int64_t count; // -1: no list at all
        bool firstIsGood;
    } cases[] = {
        { "SIP/2.0/UDP a", 1, true },
        { "SIP/2.0/UDP a:5060;branch=b , SIP/2.0/TCP c", 2, true },
        { "SIP / 2.0 / udp a ; ttl = 1 ; received = ::1,SIP/2.0/TCP c", 2, true },
        { "SIP/2.0/UDP a;maddr=b_c, SIP/2.0/TCP c", 2, false },
        { "SIP/2.0/UDP a;ttl=1x", 1, false },
        { "SIP/2.0/UDP a;ttl=300;rport=99999999999999999999,SIP/2.0/TCP c", 2, true },
        { "SIP/2.0/UDP a;rportx;rport=1x", 1, false },
        { "SIP/2.0/UDP a;x=\"y,z\";y", 1, true },
        { "SIP/2.0/UDP xn--a,SIP/2.0/TCP c", 2, true },
        { "SIP/2.0/UDP a;,SIP/2.0/TCP c", -1, false },
        { "SIP/2.0/UDP a;received=1.2.3.4x", -1, false },
        { "SIP/2.0/UDP a;branch=b x", -1, false },
        { "SIP/2.0/UDP a,", -1, false },
    };
    for ( auto &[line, count, firstIsGood] : cases )
    {
        auto msg = adopt( telsxMessageTryDecode(
            buffer( "OPTIONS sip:a SIP/2.0\r\nVia: " + std::string( line ) + "\r\n\r\n" ).get() ) );
        auto list = adopt( telsxHeaderViaTryDecodeFromMessage( msg.get() ) );
        ASSERT_EQ( count != -1, bool( list ) ) << line;
        if ( !list )
            continue;
        EXPECT_EQ( count, telsxHeaderViaViasLength( list.get() ) ) << line;
        auto value =
            adopt( telsxMessageHeaderLineAt( adopt( telsxHeaderViaEncode( list.get() ) ).get(), 0 ) );
        auto first = adopt( telsxHeaderViaTryDecodeViaAt( list.get(), 0 ) );
        EXPECT_EQ( firstIsGood, bool( first ) ) << line;
        EXPECT_EQ(
            adopt( telsx___ViaTryDecode( rtStringBacking( value.get() ), rtStringLength( value.get() ) ) ),
            first )
            << line;
        EXPECT_TRUE( !first || rt::asObj( first.get() )->count == 1 ) << "each reading gives its own";

        // It leaves with the value, also from a copy, and lists are compared without it.
        auto copy = list;
        if ( first )
            telsxHeaderViaSetViaAt( copy.address(), 0, first.get() );
        telsxHeaderViaPrependVia(
            copy.address(), adopt( telsxViaCreateDummy( adopt( telsxVersionCreateSip20() ).get() ) ).get() );
        EXPECT_NE( first, adopt( telsxHeaderViaTryDecodeViaAt( copy.get(), 0 ) ) ) << line;
        telsxHeaderViaDelViaAt( copy.address(), 0 );
        EXPECT_EQ( first, adopt( telsxHeaderViaTryDecodeViaAt( copy.get(), 0 ) ) ) << line;
        EXPECT_EQ( first, adopt( telsxHeaderViaTryDecodeViaAt( list.get(), 0 ) ) ) << line;
    }
}
