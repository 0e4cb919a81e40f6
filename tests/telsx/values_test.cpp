// The structured values: what they read and write, how they sort, what their setters do.
#include "telsx/object_tables.hpp"

using namespace support;

// clang-format off
static const Texts texts[] = {
    { "GenericParam", "",
      { "a", "a=[2001:DB8::1]", "a=\"\"", "a=%zz" },
      { { "A=B", "a=B" }, { "a =\t1.2.3.4", "a=1.2.3.4" }, { "a = \"B \\c;,=\\\"é\"", "a=\"B c;,=\\\"é\"" } },
      { "", " a", "a ", "a=", "=b", "a=b ", "a=b:5", "a=[::1]:5", "a=[::1", "a=\"b", "a=\"b\"c", "a=é", "é" } },

    // The set alone may end with a semicolon, in a value nothing may.
    { "GenericParams", "",
      { "", ";a=\";b\";c=[::1]" },
      { { ";", "" }, { " ; ", "" }, { ";a;", ";a" }, { " ; B = x ; a ; ", ";b=x;a" }, { ";a;b;A=1", ";a=1;b" } },
      { ";a;;", ";;", ";a=", "a", ";a,b", " " } },

    { "Via", "",
      { "SIP/2.0/UDP h", "SIP/2.0/TLS [2001:DB8::1]:0", "SIP/2.0/UDP 10.0.0.1:99999",
        "SIP/2.0/UDP xn--bcher-kva.Example.", "SIP/2.0/UDP %41.b" },
      { { "sip / 2.0A /\tudp \t h", "SIP/2.0a/UDP h" },
        { "SIP / 2.0 / TCP host : 5060 ; rport = 1234", "SIP/2.0/TCP host:5060;rport=1234" } },
      { "", " SIP/2.0/UDP h", "SIP/2.0", "SIP/2.0/UDP ", "SIP/2.0/UDP[::1]", "SIP/2.0/UDP _", "SIP/2.0/UDP bücher",
        "SIP//UDP h", "SIP/2.0 h" } },
    { "Via", "SIP/2.0/UDP h",
      { ";ttl=0", ";ttl=99999999999999999999", ";ttl", ";ttl=\"1\"", ";ttlx=1", ";maddr=[::1];branch=b",
        ";maddr=\"h\"", ";branch=b;maddr=_a", ";received=::ffff:1.2.3.4;branch=b", ";received=10.2.3.4;branch=b",
        ";branch=b;received=foo", ";branch=b;received=[::1]", ";branch=b;received=1.2.3.256", ";branch=b;received",
        ";branch=b;rport=abc", ";branch=b;rport=99999999999999999999", ";branch=b;rport=\"5\"", ";branch",
        ";branch=-_~!.9" },
      { { ";X=Y;branch=b;rport=05;received=::1;maddr=M;ttl=1", ";ttl=1;maddr=M;received=::1;rport=5;branch=b;x=Y" },
        { ";RPORT;BRANCH=z9hG4bKa;ttl=7;x=1", ";ttl=7;rport;branch=z9hG4bKa;x=1" },
        { ";ttl=007", ";ttl=7" },
        { ";ttl=255;ttl=1", ";ttl=1" },
        { ";ttl=256;x=1;branch=b", ";branch=b;ttl=256;x=1" },
        { ";ttl=1;ttl=300", ";ttl=1" },
        { ";ttl=300;ttl=1", ";ttl=1" },
        { ";received=2001:DB8:0:0::1", ";received=2001:db8::1" },
        { ";rport;rport=5", ";rport=5" },
        { ";rport=5;rport", ";rport" },
        { "; rport ;branch=b", ";rport;branch=b" },
        { ";rport;rport=abc", ";rport" },
        { ";rport=5;rport=abc", ";rport=5" },
        { ";Branch=B;branch=\"x\"", ";branch=B" } },
      { " ", ", SIP/2.0/UDP i", ":", ":;x", ":5x", ":99999999999999999999", ";", ";x;", ";;x", ";=x", ";ttl=",
        ";ttl=12abc", ";maddr=a_b", ";received=1.2.3.4x", ";received=fe80::1%eth0", ";rport=", ";rport=5x", ";rportx",
        ";rportx=1", ";branch=a=b" } },

    { "Contact Route", "",
      { "<sip:host;x=1>;y=2", "<sip:host;lr>" },
      { { "sip:host", "<sip:host>" },
        { "sip:host;X=1", "<sip:host>;x=1" },
        { "sip:host ; x", "<sip:host>;x" },
        { "<sip:host> ; LR ; x = \"a,b\"", "<sip:host>;lr;x=\"a,b\"" },
        { "<sip:host>;a;b;A=[::1]", "<sip:host>;a=[::1];b" } },
      { "sip:host;", "<sip:host>;", "<sip:host>;x;", "<sip:host>;x=", "<sip:host>;x=1 " } },
    { "IdentityValue", "", {}, { { "sip:host", "<sip:host>" } }, { "sip:host;x=1", "<sip:host>;x=1" } },
    { "Contact Route IdentityValue Diversion", "",
      { "<sip:%C3%BC@a>", "<sip:%FF%0D%0A@a>" },
      { { "tel:+1", "<tel:+1>" },
        { "<sip:a;x=1?h=v> \t", "<sip:a;x=1?h=v>" },
        { " \t<sip:a>", "<sip:a>" },
        { "Bob  T.\tBuilder <sip:a>", "\"Bob T. Builder\" <sip:a>" },
        { "Bob<sip:a>", "\"Bob\" <sip:a>" },
        { "\"\"<sip:a>", "\"\" <sip:a>" },
        { "  \"é \\b\\\"<\" <sip:a>", "\"é b\\\"<\" <sip:a>" },
        { "<sip:ü@a>", "<sip:%C3%BC@a>" } },
      { "", "*", "Bob", "Bob sip:a", "\"Bob\" sip:a", "\"Bob <sip:a>", "Böb <sip:a>", "<>", "< sip:a>", "<sip:a",
        "<sip:a >", "<sip:a>, <sip:b>", "<sip:a>x", "<<sip:a>>", "sip:a>", " sip:a", "sip:a ", "sip:a,sip:b x" } },
    { "Contact", "<sip:a>",
      { ";x;q=abc", ";x;expires=9223372036854775808", ";expires=9223372036854775807;x", ";expires=-1",
        ";x;rc=01;mp=1.;np=\"1\"", ";x;+sip.instance=abc", ";x;+sip.instance=\"abc\"", ";x;+sip.instance=\"<>\"",
        ";x;+sip.instance=\" <urn:x>\"" },
      { { ";x=Y;NP=3;MP=2;RC=1.10;+SIP.Instance=\"<urn:X>\";expires=060;Q=1.",
          ";q=1.000;expires=60;rc=1.10;mp=2;np=3;+sip.instance=\"<urn:X>\";x=Y" },
        { ";q=0.5", ";q=0.500" },
        { ";q=1;q=0.", ";q=0.000" },
        { ";q=2;q=0.25;x", ";q=0.250;x" },
        { ";expires=1;EXPIRES=2", ";expires=2" },
        { ";expires=0;expires=abc", ";expires=0" } },
      { ";q=1.5", ";q=0.1234", ";expires=10x", ";rc=1-2", ";+sip.instance=\"<urn:x>\"y",
        ";+sip.instance=\"<urn:x>" } },
    { "Diversion", "<sip:a>",
      { ";counter=100;limit=abc", ";reason=\"time of day\"" },
      { { ";X=1;screen=No;privacy=Full;limit=3;counter=12;Reason=Unconditional",
          ";reason=unconditional;counter=12;limit=3;privacy=full;screen=no;x=1" },
        { ";COUNTER=5;counter=7", ";counter=7" },
        { ";reason=\"Busy\"", ";reason=busy" } },
      { ";counter=1a", ";reason=a=b", ";reason=\"a\"b" } },
    { "HistoryInfo", "",
      { "<sip:a>;index=1", "\"A\" <sip:a>;index=1.2.10;rc=1.2;mp=1;np=2;x" },
      { { "<sip:a>;x=1;NP=1;MP=1.1;RC=1;index=2", "<sip:a>;index=2;rc=1;mp=1.1;np=1;x=1" },
        { "<sip:a>;index=2;index=3;index=x;rc=01", "<sip:a>;index=3;rc=01" } },
      { "<sip:a>", "<sip:a>;x", "sip:a;index=1", "A sip:a;index=1", "<sip:a>;index=1x", "<sip:a>;index=1.x",
        "<sip:a>;index=1;" } },
    { "Reason", "",
      { "SIP;cause=200;text=\"a,b\"", "q.850", "SIP;cause=x;text=abc" },
      { { "Q.850 ; CAUSE = 016 ; Text = \"A\\b\";x", "Q.850;cause=016;text=\"Ab\";x" },
        { "SIP;cause=1;cause=2;text=x;text=\"y\"", "SIP;cause=2;text=\"y\"" } },
      { "", " SIP", ";cause=1", "SIP;cause=1x", "SIP;", "SIP, Q.850" } },
    { "Accept", "",
      { "text/*", "*/*", "*/*;q=x", "a*/*b" },
      { { "Application / SDP;level=1;Q=0.8", "application/sdp;q=0.800;level=1" }, { "*/*;q=1", "*/*;q=1.000" } },
      { "", "*", "*/plain", "text", "text/", "text/a;q=1.5", "text/a " } },
    { "AcceptEncoding", "", { "*", "gzip;q=2" }, { { "GZIP;q=0", "gzip;q=0.000" } }, { "", ";q=1", "a b", "a;q=1.5" } },
    { "AlertInfo ErrorInfo CallInfo", "",
      { "<sip:a>", "<http://a/b?c>;x=1" },
      { { " <sip:a> ; x = 1", "<sip:a>;x=1" } },
      { "", "sip:a", "A <sip:a>", "<sip:a", "<sip:a>;=", "<sip:a>x", "<sip:a>;x;" } },
    { "AlertInfo ErrorInfo", "<sip:a>;", { "x;purpose=ICON" }, {}, { ";" } },
    { "CallInfo", "<sip:a>;",
      { "x;purpose=\"ICON\"" },
      { { "x;purpose=ICON;Purpose=Info", "purpose=info;x" } },
      { "purpose=a=b" } },
    { "WarningValue", "",
      { "399 h \"x\"", "100 [::1]:5060 \"\"", "399 _p \"a\\\"\"" },
      { { "399 \th:1   \"\\x\"", "399 h:1 \"x\"" }, { "007 h \"\"", "7 h \"\"" } },
      { "", "39 h \"x\"", "3999 h \"x\"", "399 h x", "399 h", "399 a_b \"x\"", "399h \"x\"" } },
#include "telsx/rows_list_values.def"
};
// clang-format on

TEST( Values, AreReadAndWritten ) { expectTexts( values::all, texts ); }

TEST( Values, AbortForNullText )
{
    for ( const values::Type &type : values::all )
    {
        RT_CHAR ch = 'a';
        EXPECT_EQ( type.name == "GenericParams", bool( adopt( type.tryDecode( nullptr, 0 ) ) ) );
        EXPECT_ABORT( type.tryDecode( &ch, -1 ), "length >= 0" );
        EXPECT_ABORT( type.tryDecode( nullptr, 1 ), "chs || length == 0" );
        EXPECT_DEATH( type.encode( nullptr ), "" ) << type.name;
    }
}

// Neighbours differ in one field and against it in those behind it.
TEST( Values, SortByTheirFields )
{
    struct
    {
        const char *type;
        std::vector<const char *> texts;
    } cases[] = {
        { "Via",
          { "SIP/1.0/Z z:9", "SIP/2.0/A z:9", "SIP/2.0/B b:9", "SIP/2.0/B c;ttl=9", "SIP/2.0/B c:9;ttl=9",
            "SIP/2.0/B c:10;maddr=z", "SIP/2.0/B c:10;ttl=9;maddr=z", "SIP/2.0/B c:10;ttl=10;received=::1",
            "SIP/2.0/B c:10;ttl=10;maddr=a;branch=z", "SIP/2.0/B c:10;ttl=10;maddr=a;received=1.1.1.1;x",
            "SIP/2.0/B c:10;ttl=10;maddr=a;received=1.1.1.1;branch=A",
            "SIP/2.0/B c:10;ttl=10;maddr=a;received=1.1.1.1;branch=a",
            "SIP/2.0/B c:10;ttl=10;maddr=a;received=1.1.1.1;branch=a;a" } },
        { "Contact",
          { "Z <sip:a>", "<sip:b>;q=1", "\"\" <sip:b>;q=1", "B <sip:b>;expires=9", "B <sip:b>;q=0;rc=9",
            "B <sip:b>;q=0;expires=9;mp=9", "B <sip:b>;q=0;expires=10;mp=9",
            "B <sip:b>;q=0;expires=10;rc=1;np=9", "B <sip:b>;q=0;expires=10;rc=1;mp=1;+sip.instance=\"<z>\"",
            "B <sip:b>;q=0;expires=10;rc=1;mp=1;np=1;z",
            "B <sip:b>;q=0;expires=10;rc=1;mp=1;np=1;+sip.instance=\"<a>\"",
            "B <sip:b>;q=0;expires=10;rc=1;mp=1;np=1;+sip.instance=\"<a>\";a" } },
        { "Route", { "Z <sip:a>;z", "<sip:b>;z", "B <sip:b>", "B <sip:b>;a" } },
        { "IdentityValue", { "Z <sip:a>", "<sip:b>", "\"\" <sip:b>", "B <sip:b>" } },
        { "GenericParam",
          { "a=b", "b", "b=a", "b=B.", "b=[::1]", "b=[::A]", "b=[::a]", "b=\"\"", "b=\"a\"" } },
        { "HistoryInfo",
          { "Z <sip:a>;index=9", "<sip:b>;index=9", "B <sip:b>;index=1;np=9", "B <sip:b>;index=2",
            "B <sip:b>;index=2;rc=1", "B <sip:b>;index=2;rc=1;np=1", "B <sip:b>;index=2;rc=1;mp=1",
            "B <sip:b>;index=2;rc=1;mp=1;np=1", "B <sip:b>;index=2;rc=1;mp=1;np=1;a" } },
        { "Accept", { "*/*;q=1", "a/*;q=1", "a/a;z", "a/a;q=0.9;z", "a/a;q=1", "a/a;q=1;a" } },
        { "AcceptEncoding", { "a;z", "a;q=0.9;z", "a;q=1", "a;q=1;a", "b" } },
        { "AlertInfo", { "<sip:a>;z", "<sip:b>", "<sip:b>;a" } },
        { "ErrorInfo", { "<sip:a>;z", "<sip:b>", "<sip:b>;a" } },
        { "CallInfo",
          { "<sip:a>;z", "<sip:b>;z", "<sip:b>;purpose=a", "<sip:b>;purpose=a;a", "<sip:b>;purpose=b" } },
        { "WarningValue", { "099 z \"z\"", "100 a \"z\"", "100 b \"a\"", "100 b \"b\"" } },
    };
    for ( auto &[type, inOrder] : cases )
        expectAscending( named( values::all, type ), inOrder );
}

#define VIA( BEHIND ) "SIP/2.0/UDP h" BEHIND

template <auto ENCODE>
static constexpr auto written = []( auto object ) { return utf8( ENCODE( object ) ); };

static Ref<TELSX_VIA> via( std::string_view text ) { return adopt( applied( telsx___ViaTryDecode, text ) ); }
static Ref<TELSX_GENERIC_PARAMS> params( std::string_view text )
{
    return adopt( applied( telsx___GenericParamsTryDecode, text ) );
}

TEST( Values, SettersOfVia )
{
    auto address = adopt( applied( netAddressTryCreateFromChars, "2001:0DB8::1" ) );
    auto sip3 = adopt( applied( telsx___VersionTryDecode, "SIP/3.0" ) );
    expectFields( via( VIA() ), written<telsx___ViaEncode>, "via",
                  { FIELD( Via, Version, sip3.get(), "SIP/3.0", "SIP/3.0/UDP h", nullptr, "version" ),
                    FIELD( Via, Transport, str( "Tcp" ).get(), "tcp", "SIP/2.0/TCP h", str( "" ).get(),
                           "telsxTransportOk( transport )" ),
                    FIELD( Via, Host, str( "Bücher.example" ).get(), "Bücher.example",
                           "SIP/2.0/UDP xn--bcher-kva.example", str( "a_b" ).get(), "telsxHostOk( host )" ),
                    OPTION( Via, Port, 0, "0", VIA( ":0" ), -1, "telsxPortOk( port )" ),
                    OPTION( Via, Ttl, 255, "255", VIA( ";ttl=255" ), 256, "telsxTtlOk( ttl )" ),
                    OPTION( Via, Maddr, str( "bücher" ).get(), "bücher", VIA( ";maddr=xn--bcher-kva" ),
                            str( "" ).get(), "telsxHostOk( maddr )" ),
                    OPTION( Via, Received, address.get(), "2001:db8::1", VIA( ";received=2001:db8::1" ),
                            nullptr, "received" ),
                    OPTION( Via, Branch, str( "z9hG4bK" ).get(), "z9hG4bK", VIA( ";branch=z9hG4bK" ),
                            str( "a;b" ).get(), "telsxBranchOk( branch )" ),
                    FIELD( Via, GenericParams, params( ";A=B" ).get(), ";a=B", VIA( ";a=B" ), nullptr,
                           "genericParams" ) } );
}

TEST( Values, SettersOfContact )
{
    Ref<RT_STRING> index = str( "1.2" ), bad = str( "1." );
    expectFields(
        adopt( telsxContactCreate( str( "sip:a" ).get() ) ), written<telsx___ContactEncode>, "contact",
        { FIELD( Contact, Iri, str( "sip:ü@a" ).get(), "sip:ü@a", "<sip:%C3%BC@a>", str( "ü" ).get(),
                 "telsxIriOk( iri )" ),
          OPTION( Contact, DisplayName, str( "" ).get(), "", "\"\" <sip:a>", str( "\n" ).get(),
                  "telsxDisplayNameOk( displayName )" ),
          OPTION( Contact, Qvalue, 0, "0", "<sip:a>;q=0.000", 1001, "telsxQvalueOk( qvalue )" ),
          OPTION( Contact, Expires, 0, "0", "<sip:a>;expires=0", -1, "telsxDeltaSecondsOk( expires )" ),
          OPTION( Contact, Rc, index.get(), "1.2", "<sip:a>;rc=1.2", bad.get(),
                  "telsxHistoryInfoIndexOk( rc )" ),
          OPTION( Contact, Mp, index.get(), "1.2", "<sip:a>;mp=1.2", bad.get(),
                  "telsxHistoryInfoIndexOk( mp )" ),
          OPTION( Contact, Np, index.get(), "1.2", "<sip:a>;np=1.2", bad.get(),
                  "telsxHistoryInfoIndexOk( np )" ),
          OPTION( Contact, SipInstance, str( "<urn:x>" ).get(), "<urn:x>",
                  "<sip:a>;+sip.instance=\"<urn:x>\"", str( "urn:x" ).get(),
                  "telsxSipInstanceOk( sipInstance )" ),
          FIELD( Contact, GenericParams, params( ";b" ).get(), ";b", "<sip:a>;b", nullptr,
                 "genericParams" ) } );
}

TEST( Values, SettersOfRouteAndIdentityValue )
{
    expectFields(
        adopt( telsxRouteCreate( str( "sip:a" ).get() ) ), written<telsx___RouteEncode>, "route",
        { FIELD( Route, Iri, str( "sip:b" ).get(), "sip:b", "<sip:b>", str( "" ).get(), "telsxIriOk( iri )" ),
          OPTION( Route, DisplayName, str( "B" ).get(), "B", "\"B\" <sip:a>", str( "\r" ).get(),
                  "telsxDisplayNameOk( displayName )" ),
          FIELD( Route, GenericParams, params( ";b" ).get(), ";b", "<sip:a>;b", nullptr,
                 "genericParams" ) } );
    expectFields( adopt( telsxIdentityValueCreate( str( "sip:a" ).get() ) ),
                  written<telsx___IdentityValueEncode>, "value",
                  { FIELD( IdentityValue, Iri, str( "sip:b" ).get(), "sip:b", "<sip:b>", str( "" ).get(),
                           "telsxIriOk( iri )" ),
                    OPTION( IdentityValue, DisplayName, str( "B" ).get(), "B", "\"B\" <sip:a>",
                            str( "\r" ).get(), "telsxDisplayNameOk( displayName )" ) } );
}

TEST( Values, CreateAbortsForBadArguments )
{
    Ref<TELSX_VERSION> sip = adopt( telsxVersionCreateSip20() );
    Ref<RT_STRING> good = str( "a" ), bad = str( "" );
    EXPECT_ABORT( telsxViaCreate( nullptr, good.get(), good.get() ), "version" );
    EXPECT_ABORT( telsxViaCreate( sip.get(), bad.get(), good.get() ), "telsxTransportOk( transport )" );
    EXPECT_ABORT( telsxViaCreate( sip.get(), good.get(), bad.get() ), "telsxHostOk( host )" );
    EXPECT_ABORT( telsxViaCreateWithPort( sip.get(), good.get(), good.get(), -1 ), "telsxPortOk( port )" );
    EXPECT_ABORT( telsxContactCreate( bad.get() ), "telsxIriOk( iri )" );
    EXPECT_ABORT( telsxRouteCreate( bad.get() ), "telsxIriOk( iri )" );
    EXPECT_ABORT( telsxIdentityValueCreate( bad.get() ), "telsxIriOk( iri )" );

    auto withPort = adopt( telsxViaCreateWithPort( sip.get(), str( "TCP" ).get(), good.get(), 5060 ) );
    EXPECT_EQ( "SIP/2.0/TCP a:5060", utf8( telsxViaToString( withPort.get() ) ) );
    auto dummy = adopt( telsxViaCreateDummy( sip.get() ) );
    EXPECT_EQ( "SIP/2.0/UDP localhost", utf8( telsxViaToString( dummy.get() ) ) );
    EXPECT_EQ( "udp", utf8( telsxViaTransport( dummy.get() ) ) );
}

TEST( Values, RportIsOfOneFormAndTakesNoPartInComparison )
{
    Ref<TELSX_VIA> changed = via( VIA( ";rport=5;rport" ) );
    auto expectRport = [&]( bool isEmpty, int64_t number, const char *text )
    {
        EXPECT_EQ( isEmpty || number != -1, bool( telsxViaHasRport( changed.get() ) ) );
        EXPECT_EQ( isEmpty, bool( telsxViaHasRportEmpty( changed.get() ) ) );
        EXPECT_EQ( number != -1, bool( telsxViaHasRportNumeric( changed.get() ) ) );
        EXPECT_EQ( number, telsxViaRportNumeric( changed.get() ) );
        EXPECT_EQ( text, utf8( telsxViaToString( changed.get() ) ) );
        EXPECT_EQ( via( VIA() ), changed );
    };
    // Another holder sees nothing of the change.
    auto change = [&]( auto set )
    {
        Ref<TELSX_VIA> held = changed;
        std::string before = utf8( telsxViaToString( held.get() ) );
        set( changed.address() );
        EXPECT_EQ( before, utf8( telsxViaToString( held.get() ) ) );
    };
    expectRport( true, -1, VIA( ";rport" ) );
    change( []( TELSX_VIA *hop ) { telsxViaSetRportNumeric( hop, 0 ); } );
    expectRport( false, 0, VIA( ";rport=0" ) );
    change( telsxViaSetRportEmpty );
    expectRport( true, -1, VIA( ";rport" ) );
    change( []( TELSX_VIA *hop ) { telsxViaSetRportNumeric( hop, 5 ); } );
    expectRport( false, 5, VIA( ";rport=5" ) );
    for ( int i = 0; i < 2; ++i )
    {
        change( telsxViaDelRport );
        expectRport( false, -1, VIA() );
    }

    TELSX_VIA none = nullptr;
    EXPECT_ABORT( telsxViaHasRport( nullptr ), "via" );
    EXPECT_ABORT( telsxViaSetRportEmpty( &none ), "*via" );
    EXPECT_ABORT( telsxViaDelRport( nullptr ), "via" );
    EXPECT_ABORT( telsxViaSetRportNumeric( changed.address(), -1 ), "telsxPortOk( rport )" );
}

// What is written leaves out the parameters that fields stand for; the set keeps them, and they come back
// when the field goes.
TEST( Values, FieldsWinOverParametersOfTheirNames )
{
    Ref<TELSX_VIA> hop = via( VIA() );
    Ref<TELSX_GENERIC_PARAMS> hidden = params( ";ttl;maddr;received;rport=x;branch=c;y" );
    telsxViaSetGenericParams( hop.address(), hidden.get() );
    EXPECT_EQ( VIA( ";ttl;maddr;received;rport=x;branch=c;y" ), utf8( telsxViaToString( hop.get() ) ) );
    telsxViaSetBranch( hop.address(), str( "b" ).get() );
    telsxViaSetRportEmpty( hop.address() );
    telsxViaSetMaddr( hop.address(), str( "m" ).get() );
    EXPECT_EQ( VIA( ";maddr=m;rport;branch=b;ttl;received;y" ), utf8( telsxViaToString( hop.get() ) ) );
    EXPECT_EQ( hidden.get(), adopt( telsxViaGenericParams( hop.get() ) ).get() );
    EXPECT_EQ( 6, telsxGenericParamsLength( hidden.get() ) );
    telsxViaDelBranch( hop.address() );
    telsxViaDelRport( hop.address() );
    EXPECT_EQ( VIA( ";maddr=m;ttl;received;rport=x;branch=c;y" ), utf8( telsxViaToString( hop.get() ) ) );

    // The decoder, too, keeps what it can't put into the field.
    Ref<TELSX_VIA> decoded = via( VIA( ";ttl=1;ttl=300" ) );
    EXPECT_EQ( 1, telsxViaTtl( decoded.get() ) );
    EXPECT_EQ( ";ttl=300",
               utf8( telsxGenericParamsToString( adopt( telsxViaGenericParams( decoded.get() ) ).get() ) ) );

    Ref<TELSX_CONTACT> contact =
        adopt( applied( telsx___ContactTryDecode,
                        "<sip:a>;q=1;q=x;expires=1;expires=x;rc=1;rc;mp=1;mp;np=1;np;+sip.instance=\"<x>\";"
                        "+sip.instance;y" ) );
    EXPECT_EQ( "<sip:a>;q=1.000;expires=1;rc=1;mp=1;np=1;+sip.instance=\"<x>\";y",
               utf8( telsxContactToString( contact.get() ) ) );
    telsxContactDelMp( contact.address() );
    telsxContactDelQvalue( contact.address() );
    EXPECT_EQ( "<sip:a>;expires=1;rc=1;np=1;+sip.instance=\"<x>\";q=x;mp;y",
               utf8( telsxContactToString( contact.get() ) ) );
}

TEST( Values, KeepPlainText )
{
    Ref<TELSX_CONTACT> contact =
        adopt( applied( telsx___ContactTryDecode, "\"a\\\"\\b\" <sip:%C3%BC@a>;q=0.5;rc=1" ) );
    EXPECT_EQ( "a\"b", utf8( telsxContactDisplayName( contact.get() ) ) );
    EXPECT_EQ( "sip:ü@a", utf8( telsxContactIri( contact.get() ) ) );
    EXPECT_EQ( 500, telsxContactQvalue( contact.get() ) );
    EXPECT_EQ( -1, telsxContactExpires( contact.get() ) );
    EXPECT_EQ( "bücher", utf8( telsxViaHost( via( "SIP/2.0/UDP xn--bcher-kva" ).get() ) ) );
}
