// Raw headers: names in canonical form, lines, stores.
#include "rt/model.hpp"
#include "telsx/telsx_known_names.hpp"
#include "telsx_support.hpp"

using namespace support;

static std::string canonical( std::string_view name )
{
    return utf8( telsxMessageHeaderNameNormalize( str( name ).get() ) );
}

TEST( MessageHeaderName, HasOneCanonicalForm )
{
    // Capitals are at the start and after each hyphen, whatever the RFC writes; a single letter that is not a compact
    // form is an ordinary name.
    for ( const std::string &pair : words(
              "CSeq=Cseq CSEQ=Cseq call-ID=Call-Id Min-SE=Min-Se RAck=Rack WWW-Authenticate=Www-Authenticate "
              "P-Asserted-Identity=P-Asserted-Identity x-a_b.c=X-A_b.c -abc=-Abc a--b=A--B a-=A- -=- "
              "1a-2b=1a-2b "
              "to=To ab=Ab a=Accept-Contact b=Referred-By c=Content-Type d=Request-Disposition "
              "e=Content-Encoding f=From i=Call-Id j=Reject-Contact k=Supported l=Content-Length m=Contact "
              "n=Identity-Info o=Event r=Refer-To s=Subject t=To u=Allow-Events v=Via x=Session-Expires "
              "y=Identity I=Call-Id g=G h=H p=P q=Q w=W z=Z" ) )
    {
        auto [name, expected] = halves( pair );
        EXPECT_EQ( expected, canonical( name ) );
        EXPECT_EQ( expected, canonical( expected ) );
        Ref<TELSX_MESSAGE_HEADER> made = header( name.c_str(), {} );
        EXPECT_EQ( expected, utf8( telsxMessageHeaderName( made.get() ) ) );
        EXPECT_TRUE( telsxMessageHeaderNameEquals( made.get(), str( name ).get() ) );
        EXPECT_FALSE( telsxMessageHeaderNameEqualsCstr( made.get(), "Xy", -1 ) );
    }
}

// The canonical form of a known name, empty for any other; both ways to find it must agree.
static std::string knownForm( std::string name )
{
    int64_t number = telsx::knownNameNumber( name.data(), name.size() );
    std::string padded = name + std::string( rt::scanSlack, '\xFF' );
    EXPECT_EQ( number, telsx::scanKnownNameNumber( padded.data(), name.size() ) ) << name;
    return std::string( number == -1 ? "" : telsx::knownNames[number].bytes );
}

// The table of constants agrees with the rules, for each name in it and in any case.
TEST( MessageHeaderName, IsAConstantIfKnown )
{
    for ( const telsx::KnownName &known : telsx::knownNames )
    {
        std::string name( known.spelling ), expected = canonical( name );
        for ( char &ch : name )
        {
            ch = static_cast<char>( std::toupper( ch ) );
            EXPECT_EQ( expected, knownForm( name ) );
        }
        EXPECT_EQ( "", knownForm( name + "x" ) );
        EXPECT_EQ( "", knownForm( name + "\r" ) );
        for ( char &ch : name )
        {
            ch ^= 0x40;
            EXPECT_EQ( "", knownForm( name ) );
            ch ^= 0x40;
        }
    }
    EXPECT_EQ( "", knownForm( "" ) );
    EXPECT_EQ( "", knownForm( "call\rid" ) );
}

TEST( MessageHeaderName, IsSetInThreeForms )
{
    Ref<TELSX_MESSAGE_HEADER> made = adopt( telsxMessageHeaderCreateWcstr( L"call-idx", 7 ) );
    EXPECT_TRUE( telsxMessageHeaderNameEqualsWcstr( made.get(), L"i", -1 ) );
    telsxMessageHeaderSetName( made.address(), str( "v" ).get() );
    EXPECT_EQ( "Via:", dump( made.get() ) );
    telsxMessageHeaderSetNameCstr( made.address(), "tx", 1 );
    EXPECT_EQ( "To:", dump( made.get() ) );
    telsxMessageHeaderSetNameWcstr( made.address(), L"x-y", -1 );
    EXPECT_EQ( "X-Y:", dump( made.get() ) );
    for ( auto bad : { "", " ", "a b", " a", "a:b", "a/b", "ä", "a\r\n" } )
        EXPECT_FALSE( telsxMessageHeaderNameOk( str( bad ).get() ) ) << bad;
    EXPECT_FALSE( telsxMessageHeaderNameOk( str( { "a\0", 2 } ).get() ) );
}

TEST( MessageHeaderLine, HoldsNoLineEnd )
{
    for ( auto line : { "", "a\rb", "a\nb", "\n\r", "ä, b" } )
        EXPECT_TRUE( telsxMessageHeaderLineOk( str( line ).get() ) ) << line;
    for ( auto line : { "a\r\nb", "\r\n", "a\r\r\n", "\n\r\n" } )
        EXPECT_FALSE( telsxMessageHeaderLineOk( str( line ).get() ) ) << line;
}

TEST( MessageHeaderLine, IsAddedReplacedAndTakenOut )
{
    Ref<TELSX_MESSAGE_HEADER> made = header( "Via", {} );
    TELSX_MESSAGE_HEADER *via = made.address();
    EXPECT_EQ( 0, telsxMessageHeaderLinesLength( *via ) );
    EXPECT_EQ( nullptr, telsxMessageHeaderLastLine( *via ) );

    telsxMessageHeaderAppendLine( via, str( "a" ).get() );
    telsxMessageHeaderAppendLineCstr( via, "bc", 1 );
    telsxMessageHeaderAppendLineWcstr( via, L"c", -1 );
    telsxMessageHeaderAppendLineFormat( via, str( "d%i" ).get(), int64_t( 1 ) );
    telsxMessageHeaderAppendLineFormatCstr( via, "e%ix", 3, int64_t( 2 ) );
    telsxMessageHeaderAppendLineFormatWcstr( via, L"f%s", -1, str( "3" ).get() );
    EXPECT_EQ( "Via: <a> <b> <c> <d1> <e2> <f3>", dump( *via ) );
    EXPECT_EQ( "f3", utf8( telsxMessageHeaderLastLine( *via ) ) );

    telsxMessageHeaderSetLineAt( via, 0, str( "" ).get() );
    telsxMessageHeaderSetLineAtCstr( via, 1, "B", -1 );
    telsxMessageHeaderSetLineAtWcstr( via, 2, L"Cx", 1 );
    telsxMessageHeaderSetLineAtFormat( via, 3, str( "%i%%" ).get(), int64_t( -4 ) );
    telsxMessageHeaderSetLineAtFormatCstr( via, 4, "%03i", -1, int64_t( 5 ) );
    telsxMessageHeaderSetLineAtFormatWcstr( via, 5, L"%~s", -1, str( "6" ).take() );
    EXPECT_EQ( "Via: <> <B> <C> <-4%> <005> <6>", dump( *via ) );

    telsxMessageHeaderDelLineAt( via, 5 );
    telsxMessageHeaderDelLineAt( via, 0 );
    EXPECT_EQ( "Via: <B> <C> <-4%> <005>", dump( *via ) );
}

TEST( MessageHeaderLine, VectorIsPrivateToItsHolder )
{
    Ref<TELSX_MESSAGE_HEADER> via = header( "Via", { "a", "b" } ), other = header( "To", {} );
    Ref<RT_VECTOR> lines = adopt( telsxMessageHeaderLinesVector( via.get() ) );
    telsxMessageHeaderSetLinesVector( other.address(), lines.get() );
    rtVectorDelAt( lines.address(), 0 );
    telsxMessageHeaderAppendLineCstr( other.address(), "c", -1 );
    EXPECT_EQ( "Via: <a> <b>", dump( via.get() ) );
    EXPECT_EQ( "To: <a> <b> <c>", dump( other.get() ) );
    EXPECT_EQ( 1, rtVectorLength( lines.get() ) );
}

TEST( MessageHeader, SortsByNameThenLines )
{
    auto make = []( const Ref<TELSX_MESSAGE_HEADER> &made ) { return rt::asObj( made.retained() ); };
    model::expectAscending( make, header( "To", { "z" } ), header( "v", {} ), header( "Via", { "a" } ),
                            header( "VIA", { "a", "" } ), header( "via", { "b" } ) );
}

TEST( MessageHeaderStore, RestoresTheSameHeader )
{
    Ref<TELSX_MESSAGE_HEADER> headers[] = { header( "Via", {} ), header( "Via", { "" } ),
                                            header( "i", { "ä\r" } ), header( "Via", { "a", "b", "a" } ) };
    for ( int i = 3; i < 10; ++i )
        telsxMessageHeaderAppendLineFormatCstr( headers[3].address(), "%i", -1, int64_t( i ) );
    for ( auto &saved : headers )
    {
        Ref<RT_STORE> store = adopt( telsxMessageHeaderStore( saved.get() ) ),
                      lines = adopt( telsxMessageHeaderStoreLines( saved.get() ) );
        EXPECT_EQ( 2, rtStoreLength( store.get() ) );
        EXPECT_EQ( lines, adopt( rtStoreStoreCstr( store.get(), "lines", -1 ) ) );
        EXPECT_EQ( telsxMessageHeaderLinesLength( saved.get() ), rtStoreLength( lines.get() ) );
        EXPECT_EQ( saved, adopt( telsxMessageHeaderTryRestore( store.get() ) ) );
        Ref<RT_STRING> name = adopt( telsxMessageHeaderName( saved.get() ) );
        EXPECT_EQ( saved, adopt( telsxMessageHeaderRestoreLines( name.get(), lines.get() ) ) );
    }
    Ref<RT_STORE> lines = adopt( telsxMessageHeaderStoreLines( headers[3].get() ) );
    EXPECT_EQ( "9", utf8( rtStoreValueCstr( lines.get(), "9", -1 ) ) );
    EXPECT_EQ( headers[3], adopt( telsxMessageHeaderRestoreLinesCstr( "viax", 3, lines.get() ) ) );
    EXPECT_EQ( headers[3], adopt( telsxMessageHeaderRestoreLinesWcstr( L"v", -1, lines.get() ) ) );
}

// Words key=value; a key that begins with "lines." belongs to the store of lines, and {} is an empty store.
static Ref<RT_STORE> storeOf( const std::string &entries )
{
    Ref<RT_STORE> store = adopt( rtStoreCreate() ), lines = store;
    auto put = []( Ref<RT_STORE> &into, const std::string &key, const std::string &value )
    {
        if ( value == "{}" )
            rtStoreSetStoreCstr( into.address(), key.c_str(), -1, adopt( rtStoreCreate() ).get() );
        else
            rtStoreSetValueCstr( into.address(), key.c_str(), -1, str( value ).get() );
    };
    for ( const std::string &entry : words( entries ) )
    {
        auto [key, value] = halves( entry );
        if ( key.starts_with( "lines." ) )
        {
            put( lines, key.substr( 6 ), value );
            rtStoreSetStoreCstr( store.address(), "lines", -1, lines.get() );
        }
        else
            put( store, key, value );
    }
    return store;
}

TEST( MessageHeaderStore, GivesWhatIsLeftOfADamagedOne )
{
    for ( auto [entries, expected] :
          { std::pair( "name=via lines.9=a lines.1= lines.x=b\r", "Via: <a> <> <b\r>" ),
            { "x={} y=z lines.0=a lines.1={} lines.2=c name=To", "To: <a> <c>" },
            { "name=Via lines={}", "Via:" },
            { "name=Via lines.0=a lines=b", "(null)" },
            { "name=Via", "(null)" },
            { "lines.0=a", "(null)" },
            { "name={} lines.0=a", "(null)" },
            { "name=a:b lines.0=a", "(null)" },
            { "name= lines.0=a", "(null)" },
            { "name=Via lines.0=a lines.1=\r\n lines.2=b", "(null)" } } )
    {
        auto restored = adopt( telsxMessageHeaderTryRestore( storeOf( entries ).get() ) );
        EXPECT_EQ( expected, restored ? dump( restored.get() ) : "(null)" ) << entries;
    }
}

TEST( MessageHeader, AbortsForBrokenContracts )
{
    Ref<TELSX_MESSAGE_HEADER> via = header( "Via", { "a" } );
    TELSX_MESSAGE_HEADER none = nullptr;
    Ref<RT_STRING> good = str( "a" ), bad = str( "a:\r\n" );
    Ref<RT_STORE> store = adopt( rtStoreCreate() );
    Ref<RT_VECTOR> numbers = adopt( rtVectorCreate() ), badLines = numbers;
    rtVectorAppend( numbers.address(), rtStoreObj( store.get() ) );
    rtVectorAppendString( badLines.address(), bad.get() );

    EXPECT_ABORT( telsxMessageHeaderCreateCstr( "a b", -1 ), "telsxMessageHeaderNameOk( name )" );
    EXPECT_ABORT( telsxMessageHeaderAppendLine( via.address(), bad.get() ),
                  "telsxMessageHeaderLineOk( value )" );
    EXPECT_ABORT( telsxMessageHeaderSetLineAtFormatCstr( via.address(), 0, "%s", -1, bad.get() ),
                  "telsxMessageHeaderLineOk( value )" );
    EXPECT_ABORT( telsxMessageHeaderSetLinesVector( via.address(), numbers.get() ),
                  "rtVectorContainsOnly( lines, rtStringSort() )" );
    EXPECT_DEATH( telsxMessageHeaderSetLinesVector( via.address(), badLines.get() ), "LineOk" );
    EXPECT_DEATH( telsxMessageHeaderLineAt( via.get(), 1 ), "source/rt/rt_vector" );
    EXPECT_ABORT( telsxMessageHeaderTryRestore( nullptr ), "store" );
    EXPECT_ABORT( telsxMessageHeaderDelLineAt( &none, 0 ), "*header" );
}
