// Fragments and messages as callers make, read and change them. Tests of what both have run for both.
#include "telsx_support.hpp"

using namespace support;

#define F( NAME, FUNCTION ) static constexpr auto FUNCTION = telsx##NAME##FUNCTION;
#define F2( NAME, A, B ) F( NAME, A ) F( NAME, B )
#define TEXT_F( NAME, FUNCTION ) F( NAME, FUNCTION ) F2( NAME, FUNCTION##Cstr, FUNCTION##Wcstr )
#define TEXT_F2( NAME, A, B ) TEXT_F( NAME, A ) TEXT_F( NAME, B )
#define FUNCTIONS( NAME, HANDLE )                                      \
    struct NAME                                                        \
    {                                                                  \
        using Handle = HANDLE;                                         \
        F2( NAME, CreateResponse, IsRequest )                          \
        F2( NAME, IsResponse, Version )                                \
        F2( NAME, RequestMethod, RequestIri )                          \
        F2( NAME, ResponseStatusCode, ResponseReasonPhrase )           \
        F2( NAME, HeadersVector, Body )                                \
        F2( NAME, HasBody, SetResponse )                               \
        F2( NAME, SetResponseStatusCode, SetVersion )                  \
        F2( NAME, SetHeader, SetBody )                                 \
        F2( NAME, DelBody, Encode )                                    \
        TEXT_F2( NAME, DelHeader, CreateRequest )                      \
        TEXT_F2( NAME, CreateResponseWithReasonPhrase, Header )        \
        TEXT_F2( NAME, HasHeader, SetRequest )                         \
        TEXT_F2( NAME, SetResponseWithReasonPhrase, SetRequestMethod ) \
        TEXT_F2( NAME, SetRequestIri, SetResponseReasonPhrase )        \
    };

namespace
{

FUNCTIONS( MessageFragment, TELSX_MESSAGE_FRAGMENT )
FUNCTIONS( Message, TELSX_MESSAGE )

template <class KIND>
struct FragmentAndMessage : testing::Test
{
    using Handle = typename KIND::Handle;

    Ref<TELSX_VERSION> version = adopt( telsxVersionCreateSip20() );
    Ref<RT_STRING> iri = str( "sip:b" );

    Ref<Handle> request() const
    {
        return adopt( KIND::CreateRequestCstr( version.get(), "INVITE", -1, iri.get() ) );
    }
    Ref<Handle> response() const { return adopt( KIND::CreateResponse( version.get(), 200 ) ); }
};

using Kinds = testing::Types<MessageFragment, Message>;
TYPED_TEST_SUITE( FragmentAndMessage, Kinds, );

} // namespace

TYPED_TEST( FragmentAndMessage, ChangesBetweenRequestAndResponse )
{
    using API = TypeParam;
    auto object = this->request();
    auto expectRequest = [&]( const char *method, const char *uri )
    {
        EXPECT_TRUE( API::IsRequest( object.get() ) && !API::IsResponse( object.get() ) );
        EXPECT_EQ( method, utf8( API::RequestMethod( object.get() ) ) );
        EXPECT_EQ( uri, utf8( API::RequestIri( object.get() ) ) );
        EXPECT_EQ( TELSX_STATUS_CODE_INVALID, API::ResponseStatusCode( object.get() ) );
        EXPECT_EQ( nullptr, API::ResponseReasonPhrase( object.get() ) );
    };
    auto expectResponse = [&]( int64_t status, const char *phrase )
    {
        EXPECT_TRUE( API::IsResponse( object.get() ) && !API::IsRequest( object.get() ) );
        EXPECT_EQ( nullptr, API::RequestMethod( object.get() ) );
        EXPECT_EQ( nullptr, API::RequestIri( object.get() ) );
        EXPECT_EQ( status, API::ResponseStatusCode( object.get() ) );
        EXPECT_EQ( phrase, utf8( API::ResponseReasonPhrase( object.get() ) ) );
    };
    API::SetHeader( object.address(), header( "v", { "a" } ).get() );
    API::SetBody( object.address(), buffer( "x" ).get() );
    expectRequest( "INVITE", "sip:b" );
    EXPECT_EQ( this->version, adopt( API::Version( object.get() ) ) );
    API::SetResponse( object.address(), this->version.get(), 799 );
    expectResponse( 799, "Unknown reason \"799\"" );
    API::SetRequest( object.address(), this->version.get(), str( "bye" ).get(), str( "tel:1" ).get() );
    expectRequest( "bye", "tel:1" );
    // An empty phrase is a phrase.
    API::SetResponseWithReasonPhrase( object.address(), this->version.get(), 100, str( "" ).get() );
    expectResponse( 100, "" );
    EXPECT_EQ( "SIP/2.0 100 <> | Via: <a> | body <x>", dump( object.get() ) );
    API::SetResponseStatusCode( object.address(), 404, 0 );
    expectResponse( 404, "" );
    API::SetResponseStatusCode( object.address(), 404, 2 );
    expectResponse( 404, "Not found" );
    API::SetVersion( object.address(), adopt( applied( telsx___VersionTryDecode, "a/B" ) ).get() );
    EXPECT_EQ( "A/b 404 <Not found> | Via: <a> | body <x>", dump( object.get() ) );
}

TYPED_TEST( FragmentAndMessage, TakesTextInThreeForms )
{
    using API = TypeParam;
    TELSX_VERSION sip20 = this->version.get();
    RT_STRING uri = this->iri.get();
    Ref<typename API::Handle> object;
#define EXPECT_MADE( EXPECTED, FUNCTION, ... )             \
    object = adopt( API::FUNCTION( sip20, __VA_ARGS__ ) ); \
    EXPECT_EQ( EXPECTED, dump( object.get() ) )
#define EXPECT_SET( EXPECTED, FUNCTION, ... )       \
    API::FUNCTION( object.address(), __VA_ARGS__ ); \
    EXPECT_EQ( EXPECTED, dump( object.get() ) )
    EXPECT_MADE( "A sip:b SIP/2.0", CreateRequest, str( "A" ).get(), uri );
    EXPECT_MADE( "B sip:b SIP/2.0", CreateRequestCstr, "Bx", 1, uri );
    EXPECT_SET( "D sip:b SIP/2.0", SetRequestCstr, sip20, "Dx", 1, uri );
    EXPECT_SET( "F sip:b SIP/2.0", SetRequestMethod, str( "F" ).get() );
    EXPECT_SET( "H sip:b SIP/2.0", SetRequestMethodWcstr, L"Hx", 1 );
    EXPECT_SET( "H a:ä SIP/2.0", SetRequestIri, str( "a:ä" ).get() );
    EXPECT_SET( "H a:ö SIP/2.0", SetRequestIriWcstr, L"a:öx", 3 );
    EXPECT_MADE( "SIP/2.0 200 <ä>", CreateResponseWithReasonPhrase, 200, str( "ä" ).get() );
    EXPECT_MADE( "SIP/2.0 200 <ä>", CreateResponseWithReasonPhraseCstr, 200, "\xE4y", 1 );
    EXPECT_SET( "SIP/2.0 301 <b>", SetResponseWithReasonPhraseWcstr, sip20, 301, L"bx", 1 );
    EXPECT_SET( "SIP/2.0 301 <c\r\n>", SetResponseReasonPhrase, str( "c\r\n" ).get() );
    EXPECT_SET( "SIP/2.0 301 <d>", SetResponseReasonPhraseCstr, "dx", 1 );
#undef EXPECT_MADE
#undef EXPECT_SET
}

TYPED_TEST( FragmentAndMessage, KeepsOneHeaderOfAName )
{
    using API = TypeParam;
    auto object = this->request();
    for ( auto [name, line] : { std::pair( "Via", "a" ), { "i", "b" }, { "x-Y", "c" } } )
        API::SetHeader( object.address(), header( name, { line, "z" } ).get() );
    API::SetHeader( object.address(), header( "VIA", { "d" } ).get() );
    API::SetHeader( object.address(), header( "t", {} ).get() );
    EXPECT_EQ( "INVITE sip:b SIP/2.0 | Via: <d> | Call-Id: <b> <z> | X-Y: <c> <z> | To:",
               dump( object.get() ) );

    Ref<TELSX_MESSAGE_HEADER> via = adopt( API::Header( object.get(), str( "vIa" ).get() ) );
    EXPECT_EQ( via.get(), adopt( API::HeaderCstr( object.get(), "vx", 1 ) ).get() );
    EXPECT_EQ( via.get(), adopt( API::HeaderWcstr( object.get(), L"viax", 3 ) ).get() );
    EXPECT_EQ( nullptr, API::HeaderCstr( object.get(), "g", -1 ) );
    EXPECT_TRUE( API::HasHeader( object.get(), str( "X-y" ).get() ) );
    EXPECT_TRUE( API::HasHeaderCstr( object.get(), "t", -1 ) );
    EXPECT_TRUE( API::HasHeaderWcstr( object.get(), L"ix", 1 ) );
    EXPECT_FALSE( API::HasHeaderCstr( object.get(), "g", -1 ) );

    // A header that was taken out and changed comes back only by SetHeader.
    telsxMessageHeaderAppendLineCstr( via.address(), "e", -1 );
    EXPECT_EQ( "Via: <d>", dump( adopt( API::HeaderCstr( object.get(), "v", -1 ) ).get() ) );
    API::SetHeader( object.address(), via.get() );
    API::DelHeader( object.address(), str( "I" ).get() );
    API::DelHeaderCstr( object.address(), "x-yx", 3 );
    API::DelHeaderWcstr( object.address(), L"tox", 2 );
    API::DelHeaderCstr( object.address(), "absent", -1 );
    EXPECT_EQ( "INVITE sip:b SIP/2.0 | Via: <d> <e>", dump( object.get() ) );
}

TYPED_TEST( FragmentAndMessage, HoldsABody )
{
    using API = TypeParam;
    auto object = this->response();
    EXPECT_FALSE( API::HasBody( object.get() ) );
    EXPECT_EQ( nullptr, API::Body( object.get() ) );
    Ref<RT_BUFFER> body = buffer( "" );
    API::SetBody( object.address(), body.get() );
    EXPECT_TRUE( API::HasBody( object.get() ) );
    EXPECT_EQ( body.get(), adopt( API::Body( object.get() ) ).get() );
    rtBufferAppendBytes( body.address(), "x", 1 );
    EXPECT_EQ( "", bytes( adopt( API::Body( object.get() ) ) ) );
    API::DelBody( object.address() );
    EXPECT_FALSE( API::HasBody( object.get() ) );
}

TYPED_TEST( FragmentAndMessage, AbortsForBrokenContracts )
{
    using API = TypeParam;
    typename API::Handle none = nullptr;
    std::string self = std::is_same_v<API, Message> ? "msg" : "frag";
    auto request = this->request(), response = this->response();
    TELSX_VERSION sip20 = this->version.get();
    Ref<RT_STRING> bad = str( "a b" ), method = str( "A" );
    EXPECT_ABORT( API::IsRequest( nullptr ), self );
    EXPECT_ABORT( API::DelBody( &none ), "*" + self );
    EXPECT_ABORT( API::CreateRequest( sip20, bad.get(), this->iri.get() ), "telsxMethodOk( method )" );
    EXPECT_ABORT( API::CreateRequest( sip20, method.get(), bad.get() ), "telsxIriOk( iri )" );
    EXPECT_ABORT( API::SetResponse( request.address(), sip20, 1000 ), "telsxStatusCodeOk( sc )" );
    EXPECT_ABORT( API::SetHeader( request.address(), nullptr ), "header" );
    EXPECT_ABORT( API::HasHeaderCstr( request.get(), "a:", -1 ), "telsxMessageHeaderNameOk( name )" );
    // A field that the kind does not have can't be set.
    EXPECT_ABORT( API::SetRequestMethod( response.address(), method.get() ), "(*frag)->requestMethod" );
    EXPECT_ABORT( API::SetResponseStatusCode( request.address(), 200, 0 ),
                  "(*frag)->responseStatusCode != TELSX_STATUS_CODE_INVALID" );
    EXPECT_ABORT( API::SetResponseReasonPhrase( request.address(), bad.get() ),
                  "(*frag)->responseReasonPhrase" );
}

TEST( Fragment, CanBeNeitherRequestNorResponse )
{
    Ref<TELSX_MESSAGE_FRAGMENT> frag = adopt( telsxMessageFragmentCreate() );
    EXPECT_EQ( "-", dump( frag.get() ) );
    EXPECT_FALSE( telsxMessageFragmentHasVersion( frag.get() ) );
    EXPECT_EQ( nullptr, telsxMessageFragmentVersion( frag.get() ) );
    EXPECT_EQ( TELSX_STATUS_CODE_INVALID, telsxMessageFragmentResponseStatusCode( frag.get() ) );
    Ref<TELSX_VERSION> version = adopt( telsxVersionCreateSip20() );
    EXPECT_ABORT( telsxMessageFragmentSetVersion( frag.address(), version.get() ), "(*frag)->version" );

    for ( const char *wire : { "A b:c D/1\r\nVia: a\r\n\r\nx", "SIP/2.0 200 OK\r\nVia: a\r\n\r\nx" } )
    {
        frag = fragment( wire );
        EXPECT_TRUE( telsxMessageFragmentHasVersion( frag.get() ) );
        telsxMessageFragmentSetNeitherRequestNorResponse( frag.address() );
        EXPECT_EQ( "- | Via: <a> | body <x>", dump( frag.get() ) );
        EXPECT_EQ( nullptr, telsxMessageFragmentRequestMethod( frag.get() ) );
        EXPECT_EQ( nullptr, telsxMessageFragmentResponseReasonPhrase( frag.get() ) );
        EXPECT_ABORT( telsxMessageCreate( frag.get() ), "telsxMessageFragmentIsRequest( fragment ) || "
                                                        "telsxMessageFragmentIsResponse( fragment )" );
    }
}

TEST( Message, IsAFragmentWithAStartLine )
{
    EXPECT_FALSE( message( "A: 1\r\n\r\n" ) );
    EXPECT_FALSE( message( "SIP/2.0 99 Odd\r\n\r\n" ) );
    Ref<TELSX_MESSAGE> msg = message( "A b:c D/1\r\n\r\nx" ), copy = msg;
    Ref<TELSX_MESSAGE_FRAGMENT> frag = adopt( telsxMessageFragment( msg.get() ) );
    EXPECT_EQ( frag.get(),
               adopt( telsxMessageFragment( adopt( telsxMessageCreate( frag.get() ) ).get() ) ).get() );

    // Neither the fragment nor the other holder of the message sees the change.
    telsxMessageSetBody( msg.address(), buffer( "y" ).get() );
    EXPECT_EQ( "A b:c D/1 | body <x>", dump( frag.get() ) );
    EXPECT_EQ( "A b:c D/1 | body <x>", dump( copy.get() ) );
    EXPECT_EQ( "A b:c D/1 | body <y>", dump( msg.get() ) );
}

// Known and other names, removed and set again, while others hold the previous state.
TEST( Fragment, HeadersKeepTheirOrderThroughDeletions )
{
    std::string wire = "BYE sip:a SIP/2.0\r\n", expected = "BYE sip:a SIP/2.0";
    for ( int i = 0; i < 40; ++i )
        wire += "X-" + std::to_string( i ) + ": 1\r\n" + ( i == 20 ? "Via: v\r\n" : "" );
    const Ref<TELSX_MESSAGE> before = message( wire + "\r\n" );
    Ref<TELSX_MESSAGE> msg = before;
    for ( int i = 0; i < 40; ++i )
        if ( i % 10 )
            telsxMessageDelHeader( msg.address(), str( "x-" + std::to_string( i ) ).get() );
    EXPECT_EQ( expected + " | X-0: <1> | X-10: <1> | X-20: <1> | Via: <v> | X-30: <1>", dump( msg.get() ) );

    telsxMessageDelHeaderCstr( msg.address(), "X-0", -1 );
    for ( const char *name : { "X-0", "X-5" } )
        telsxMessageSetHeader( msg.address(),
                               adopt( telsxMessageHeaderCstr( before.get(), name, -1 ) ).get() );
    telsxMessageDelHeaderCstr( msg.address(), "v", -1 );
    EXPECT_EQ( expected + " | X-10: <1> | X-20: <1> | X-30: <1> | X-0: <1> | X-5: <1>", dump( msg.get() ) );
    EXPECT_EQ( 41, rtVectorLength( adopt( telsxMessageHeadersVector( before.get() ) ).get() ) );
}
