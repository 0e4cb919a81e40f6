// Addresses in their parts: which are the same, what is made of them, their lists.
#include "telsx/object_tables.hpp"

using namespace support;

namespace
{

Ref<TELSX_SIP_IRI> sipIri( std::string_view text )
{
    return adopt( telsxSipIriTryDecode( str( text ).get() ) );
}
Ref<TELSX_TEL_IRI> telIri( std::string_view text )
{
    return adopt( telsxTelIriTryDecode( str( text ).get() ) );
}
std::string shownSip( TELSX_SIP_IRI made )
{
    auto owned = adopt( made );
    return owned ? utf8( telsxSipIriToString( owned.get() ) ) : "(null)";
}
std::string shownTel( TELSX_TEL_IRI made )
{
    auto owned = adopt( made );
    return owned ? utf8( telsxTelIriToString( owned.get() ) ) : "(null)";
}

TEST( Addresses, AreTheSameOrNot )
{
    struct
    {
        const char *type;
        bool same;
        std::vector<std::pair<const char *, const char *>> pairs;
    } cases[] = {
        // RFC 3261, 19.1.4
        { "SipIri",
          true,
          { { "sip:%61lice@atlanta.com;transport=TCP", "sip:alice@AtLanTa.CoM;Transport=tcp" },
            { "sip:carol@chicago.com", "sip:carol@chicago.com;newparam=5" },
            { "sip:carol@chicago.com;security=on", "sip:carol@chicago.com;newparam=5" },
            { "sip:biloxi.com;transport=tcp;method=REGISTER?to=sip:bob%40biloxi.com",
              "sip:biloxi.com;method=REGISTER;transport=tcp?to=sip:bob%40biloxi.com" },
            { "sip:alice@atlanta.com?subject=project%20x&priority=urgent",
              "sip:alice@atlanta.com?priority=urgent&subject=project%20x" } } },
        { "SipIri",
          false,
          { { "SIP:ALICE@AtLanTa.CoM;Transport=udp", "sip:alice@AtLanTa.CoM;Transport=UDP" },
            { "sip:bob@biloxi.com", "sip:bob@biloxi.com:5060" },
            { "sip:bob@biloxi.com", "sip:bob@biloxi.com;transport=udp" },
            { "sip:bob@biloxi.com", "sip:bob@biloxi.com:6000;transport=tcp" },
            { "sip:carol@chicago.com", "sip:carol@chicago.com?Subject=next%20meeting" },
            { "sip:bob@phone21.boxesbybob.com", "sip:bob@192.0.2.4" },
            { "sip:carol@chicago.com;security=on", "sip:carol@chicago.com;security=off" } } },
        // RFC 5954, 4; escapes; and what there is no example for
        { "SipIri",
          true,
          { { "sip:[2001:db8::9:1]", "sip:[2001:DB8:0::9:01];maddr-x" },
            { "sip:ü@mühle", "sip:%c3%bc@XN--MHLE-0RA" },
            { "sip:a;maddr=[::1]", "sip:a;maddr=[0::1]" },
            { "sip:a;x=ON;ttl=01;lr", "sip:a;ttl=1;X=on" },
            { "sip:a?h=1&g=2&h=3&h=1", "sip:a?h=3&h=1&H=1&g=2" },
            { "sip:a%2db@h", "sip:a-b@h" } } },
        { "SipIri",
          false,
          { { "sip:a", "sips:a" },
            { "sip:a@h", "sip:h" },
            { "sip:a:@h", "sip:a@h" },
            { "sip:a:p@h", "sip:a:P@h" },
            { "sip:a;user=ip", "sip:a" },
            { "sip:a", "sip:a;ttl=1" },
            { "sip:a;maddr=b", "sip:a" },
            { "sip:a;ttl=x", "sip:a" },
            { "sip:a;method=A", "sip:a;method=a" },
            { "sip:a;x", "sip:a;x=" },
            { "sip:a;lr=on", "sip:a;lr" },
            { "sip:a%3Bb@h", "sip:a;b@h" },
            { "sip:%2B1@h", "sip:+1@h" },
            { "sip:a?h=1&h=1&g", "sip:a?h=1&g&g" },
            { "sip:a?h=v", "sip:a?h=V" } } },
        // RFC 3966, 4
        { "TelIri",
          true,
          { { "tel:+1-201-555-0123", "tel:+1(201)555.0123" },
            { "TEL:7042;Phone-Context=Example.COM", "tel:70-42;phone-context=example.com" },
            { "tel:863-1234;phone-context=+1-914-555", "tel:8631234;phone-context=+1914555" },
            { "tel:+1;a=X;ext=1-2;isub=A", "tel:+1;isub=a;ext=12;A=x" },
            { "tel:a*%23", "tel:A*#" } } },
        { "TelIri",
          false,
          { { "tel:+12", "tel:12" },
            { "tel:7042;phone-context=a.b", "tel:7042" },
            { "tel:1;phone-context=+1", "tel:1;phone-context=1" },
            { "tel:+1;ext=1", "tel:+1" },
            { "tel:+1;ext=1", "tel:+1;ext=2" },
            { "tel:+1", "tel:+1;x" },
            { "tel:+1;x=1", "tel:+1;x=2" } } },
    };
    for ( auto &[name, same, pairs] : cases )
        for ( auto [textA, textB] : pairs )
        {
            auto &type = named( values::all, name );
            Ref<RT_OBJ> a = read( type, OptionalText( textA ) ), b = read( type, OptionalText( textB ) );
            ASSERT_TRUE( a && b ) << textA << " and " << textB;
            EXPECT_EQ( same, bool( type.equivalent( a.get(), b.get() ) ) ) << textA << " and " << textB;
            EXPECT_EQ( same, bool( type.equivalent( b.get(), a.get() ) ) ) << textA << " and " << textB;
        }
    EXPECT_ABORT( telsxSipIriEquivalent( nullptr, sipIri( "sip:a" ).get() ), "sipIriA" );
    EXPECT_ABORT( telsxTelIriEquivalent( telIri( "tel:1" ).get(), nullptr ), "telIriB" );
}

TEST( Addresses, OfRecordAndOfTelephones )
{
    for ( auto [text, record] : std::vector<std::pair<const char *, const char *>>{
              { "sips:%61%3B%40ü:p@MÜHLE.B:5060;transport=tcp;lr;x?h", "sips:a;%40ü:p@mühle.b:5060" },
              { "sip:A@[2001:DB8:0::01]", "sip:A@[2001:db8::1]" } } )
        EXPECT_EQ( record, shownSip( telsxSipIriAddressOfRecord( sipIri( text ).get() ) ) );

    // RFC 3261, 19.1.6
    for ( auto [text, sip] : std::vector<std::pair<const char *, const char *>>{
              { "tel:+358-555-1234567;POSTD=PP22", "sip:+358-555-1234567;postd=pp22@h;user=phone" },
              { "tel:+358-555-1234567;postd=pp22;isub=1411",
                "sip:+358-555-1234567;isub=1411;postd=pp22@h;user=phone" },
              { "tel:*#;x=[;y=%3B;phone-context=A.b", "sip:*%23;phone-context=a.b;x=%5B;y=%3B@h;user=phone" },
              { "tel:911", "(null)" } } )
        EXPECT_EQ( sip,
                   shownSip( telsxSipIriTryCreateFromTelIri( telIri( text ).get(), str( "h" ).get() ) ) );
    for ( auto [text, tel] : std::vector<std::pair<const char *, const char *>>{
              { "sips:*%23;x=%5b;y=%3b:p@h:1;user=PHONE", "tel:*%23;x=[;y=%3B" },
              { "sip:+1@h", "(null)" },
              { "sip:+1@h;user=ip", "(null)" },
              { "sip:h;user=phone", "(null)" },
              { "sip:bob@h;user=phone", "(null)" } } )
        EXPECT_EQ( tel, shownTel( telsxTelIriTryCreateFromSipIri( sipIri( text ).get() ) ) );
    EXPECT_EQ( "A1*#", utf8( telsxTelIriDigits( telIri( "tel:A(1)-*.#" ).get() ) ) );
    EXPECT_TRUE( telsxTelIriIsGlobal( telIri( "tel:+1" ).get() ) );
    EXPECT_FALSE( telsxTelIriIsGlobal( telIri( "tel:1" ).get() ) );
}

// Escapes that are no UTF-8 are code points of their own, which only such escapes make.
TEST( Addresses, HoldAnyBytes )
{
    auto address = sipIri( "sip:%00%FF%C3%28%C3%BC%ED%B3%BF@h" );
    auto user = adopt( telsxSipIriUser( address.get() ) );
    const RT_CHAR chs[] = { 0, 0xDCFF, 0xDCC3, '(', 0xFC, 0xDCED, 0xDCB3, 0xDCBF };
    EXPECT_TRUE( rtStringEqualsChars( user.get(), chs, std::ssize( chs ) ) );
    EXPECT_TRUE( telsxIriTextOk( user.get() ) );
    auto other = sipIri( "sip:a@h" );
    telsxSipIriSetUser( other.address(), user.get() );
    EXPECT_EQ( "sip:%00%FF%C3(ü%ED%B3%BF@h", utf8( telsxSipIriEncode( other.get() ) ) );
    EXPECT_EQ( address, other );
    for ( std::vector<RT_CHAR> bad :
          { std::vector<RT_CHAR>{ 0xDCC3, 0xDCBC }, { 0xD800 }, { 0xDC7F }, { 0x110000 } } )
        EXPECT_FALSE(
            telsxIriTextOk( adopt( rtStringCreateFromCharsCopy( bad.data(), std::ssize( bad ) ) ).get() ) );
}

TEST( Addresses, HaveListsAndFlags )
{
    Ref<TELSX_SIP_IRI> original = sipIri( "sip:a;lr=on;x;y=;z=%41?h=1&g&h=%26" ), changed = original;
    auto text = [&] { return utf8( telsxSipIriEncode( changed.get() ) ); };
    auto ofParam = [&]( const char *name )
    {
        bool has = telsxSipIriHasParamCstr( changed.get(), name, -1 );
        return ( has ? "" : "no " ) + utf8( telsxSipIriParamValueCstr( changed.get(), name, -1 ) );
    };
    EXPECT_EQ( 3, telsxSipIriParamsLength( changed.get() ) );
    EXPECT_EQ( "z", utf8( telsxSipIriParamNameAt( changed.get(), 2 ) ) );
    EXPECT_EQ( "A", utf8( telsxSipIriParamValueAt( changed.get(), 2 ) ) );
    EXPECT_EQ( "(null)", ofParam( "X" ) );
    EXPECT_EQ( "", ofParam( "y" ) );
    EXPECT_EQ( "no (null)", ofParam( "lr" ) );
    telsxSipIriSetParamValueAt( changed.address(), 0, str( ";" ).get() );
    telsxSipIriSetParamWcstr( changed.address(), L"Y", -1, nullptr );
    telsxSipIriSetParamCstr( changed.address(), "lr", -1, nullptr ); // hidden
    telsxSipIriSetParam( changed.address(), str( "ü=" ).get(), str( "" ).get() );
    telsxSipIriDelParamAt( changed.address(), 2 );
    telsxSipIriDelParamCstr( changed.address(), "none", -1 );
    EXPECT_EQ( "sip:a;lr=on;x=%3B;y;ü%3D=?h=1&g&h=%26", text() );
    EXPECT_TRUE( telsxSipIriLr( changed.get() ) );
    telsxSipIriSetLr( changed.address(), 0 );
    telsxSipIriClearParams( changed.address() );
    telsxSipIriSetLr( changed.address(), 1 );
    telsxSipIriSetSecure( changed.address(), 7 );
    EXPECT_EQ( 1, telsxSipIriSecure( changed.get() ) );
    EXPECT_EQ( "sips:a;lr?h=1&g&h=%26", text() );

    EXPECT_EQ( 3, telsxSipIriHeadersLength( changed.get() ) );
    EXPECT_EQ( "h", utf8( telsxSipIriHeaderNameAt( changed.get(), 2 ) ) );
    EXPECT_EQ( "&", utf8( telsxSipIriHeaderValueAt( changed.get(), 2 ) ) );
    EXPECT_EQ( "1", utf8( telsxSipIriHeaderValueCstr( changed.get(), "H", -1 ) ) );
    EXPECT_EQ( "(null)", utf8( telsxSipIriHeaderValueWcstr( changed.get(), L"g", -1 ) ) );
    EXPECT_FALSE( telsxSipIriHasHeaderCstr( changed.get(), "i", -1 ) );
    telsxSipIriSetHeaderCstr( changed.address(), "H", -1, str( "=" ).get() );
    telsxSipIriSetHeaderValueAt( changed.address(), 1, str( "é" ).get() );
    telsxSipIriAppendHeaderCstr( changed.address(), "G", -1, nullptr );
    telsxSipIriSetHeaderCstr( changed.address(), "i", -1, str( "" ).get() );
    EXPECT_EQ( "sips:a;lr?h=%3D&g=é&g&i=", text() );
    telsxSipIriDelHeaderAt( changed.address(), 0 );
    telsxSipIriDelHeaderCstr( changed.address(), "g", -1 );
    EXPECT_EQ( "sips:a;lr?i=", text() );
    telsxSipIriClearHeaders( changed.address() );
    EXPECT_EQ( "sips:a;lr", text() );
    EXPECT_EQ( "sip:a;lr=on;x;y=;z=A?h=1&g&h=%26", utf8( telsxSipIriEncode( original.get() ) ) );

    TELSX_SIP_IRI none = nullptr;
    EXPECT_ABORT( telsxSipIriDelHeaderAt( original.address(), 3 ),
                  "index >= 0 && index < countHeaders( *sipIri )" );
    EXPECT_ABORT( telsxSipIriHasParamCstr( original.get(), "", -1 ), "telsxIriNameOk( name )" );
    EXPECT_ABORT( telsxSipIriSetLr( &none, 1 ), "*sipIri" );
    EXPECT_ABORT( telsxSipIriTryDecode( nullptr ), "iri" );
}

} // namespace
