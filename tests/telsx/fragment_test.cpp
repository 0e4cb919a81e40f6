// Fragments and messages as callers make, read and change them. What both have runs for both.
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
    Ref<RT_BUFFER> body = buffer( "x" );
    auto object = this->request();
    API::SetHeader( object.address(), header( "v", { "a" } ).get() );
    API::SetBody( object.address(), body.get() );
    EXPECT_TRUE( API::IsRequest( object.get() ) );
    EXPECT_FALSE( API::IsResponse( object.get() ) );
    EXPECT_EQ( "INVITE", utf8( API::RequestMethod( object.get() ) ) );
    EXPECT_EQ( "sip:b", utf8( API::RequestIri( object.get() ) ) );
    EXPECT_EQ( this->version, adopt( API::Version( object.get() ) ) );
    EXPECT_EQ( TELSX_STATUS_CODE_INVALID, API::ResponseStatusCode( object.get() ) );
    EXPECT_EQ( nullptr, API::ResponseReasonPhrase( object.get() ) );

    API::SetResponse( object.address(), this->version.get(), 799 );
    EXPECT_FALSE( API::IsRequest( object.get() ) );
    EXPECT_TRUE( API::IsResponse( object.get() ) );
    EXPECT_EQ( nullptr, API::RequestMethod( object.get() ) );
    EXPECT_EQ( nullptr, API::RequestIri( object.get() ) );
    EXPECT_EQ( 799, API::ResponseStatusCode( object.get() ) );
    EXPECT_EQ( "Unknown reason \"799\"", utf8( API::ResponseReasonPhrase( object.get() ) ) );
    EXPECT_EQ( "SIP/2.0 799 <Unknown reason \"799\"> | Via: <a> | body <x>", dump( object.get() ) );

    API::SetRequest( object.address(), this->version.get(), str( "bye" ).get(), str( "tel:1" ).get() );
    EXPECT_EQ( "bye tel:1 SIP/2.0 | Via: <a> | body <x>", dump( object.get() ) );
    EXPECT_EQ( TELSX_STATUS_CODE_INVALID, API::ResponseStatusCode( object.get() ) );
    EXPECT_EQ( nullptr, API::ResponseReasonPhrase( object.get() ) );
    // An empty phrase is a phrase.
    API::SetResponseWithReasonPhrase( object.address(), this->version.get(), 100, str( "" ).get() );
    EXPECT_TRUE( API::IsResponse( object.get() ) );
    EXPECT_EQ( "SIP/2.0 100 <> | Via: <a> | body <x>", dump( object.get() ) );
}

TYPED_TEST( FragmentAndMessage, SetsSingleFieldsOfTheStartLine )
{
    using API = TypeParam;
    auto request = this->request(), response = this->response();
    API::SetRequestMethod( request.address(), str( "A" ).get() );
    API::SetRequestIri( request.address(), str( "x:ä" ).get() );
    API::SetVersion( request.address(), adopt( applied( telsx___VersionTryDecode, "a/B" ) ).get() );
    EXPECT_EQ( "A x:ä A/b", dump( request.get() ) );

    API::SetResponseStatusCode( response.address(), 404, 0 );
    EXPECT_EQ( "SIP/2.0 404 <OK>", dump( response.get() ) );
    API::SetResponseStatusCode( response.address(), 404, 2 );
    EXPECT_EQ( "SIP/2.0 404 <Not found>", dump( response.get() ) );
    API::SetResponseReasonPhrase( response.address(), str( "a\r\nb" ).get() );
    EXPECT_EQ( "SIP/2.0 404 <a\r\nb>", dump( response.get() ) );
}

TYPED_TEST( FragmentAndMessage, TakesTextInThreeForms )
{
    using API = TypeParam;
    TELSX_VERSION sip20 = this->version.get();
    RT_STRING uri = this->iri.get();
    auto check = []( const char *expected, Ref<typename API::Handle> object )
    { EXPECT_EQ( expected, dump( object.get() ) ); };
    check( "A sip:b SIP/2.0", adopt( API::CreateRequest( sip20, str( "A" ).get(), uri ) ) );
    check( "A sip:b SIP/2.0", adopt( API::CreateRequestCstr( sip20, "Ax", 1, uri ) ) );
    check( "A sip:b SIP/2.0", adopt( API::CreateRequestWcstr( sip20, L"A", -1, uri ) ) );
    check( "A/1 200 <ä>",
           adopt( API::CreateResponseWithReasonPhrase(
               adopt( applied( telsx___VersionTryDecode, "A/1" ) ).get(), 200, str( "ä" ).get() ) ) );
    check( "SIP/2.0 200 <ä>", adopt( API::CreateResponseWithReasonPhraseCstr( sip20, 200, "\xE4y", 1 ) ) );
    check( "SIP/2.0 200 <ä>", adopt( API::CreateResponseWithReasonPhraseWcstr( sip20, 200, L"ä", -1 ) ) );

    auto object = this->request();
    API::SetRequestCstr( object.address(), sip20, "Bx", 1, uri );
    check( "B sip:b SIP/2.0", object );
    API::SetRequestWcstr( object.address(), sip20, L"Cx", 1, uri );
    check( "C sip:b SIP/2.0", object );
    API::SetRequestMethodCstr( object.address(), "Dx", 1 );
    API::SetRequestIriCstr( object.address(), "a:bx", 3 );
    check( "D a:b SIP/2.0", object );
    API::SetRequestMethodWcstr( object.address(), L"Ex", 1 );
    API::SetRequestIriWcstr( object.address(), L"a:ä", -1 );
    check( "E a:ä SIP/2.0", object );
    API::SetResponseWithReasonPhraseCstr( object.address(), sip20, 300, "a", -1 );
    check( "SIP/2.0 300 <a>", object );
    API::SetResponseWithReasonPhraseWcstr( object.address(), sip20, 301, L"bx", 1 );
    check( "SIP/2.0 301 <b>", object );
    API::SetResponseReasonPhraseCstr( object.address(), "cx", 1 );
    check( "SIP/2.0 301 <c>", object );
    API::SetResponseReasonPhraseWcstr( object.address(), L"d", -1 );
    check( "SIP/2.0 301 <d>", object );
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
    EXPECT_EQ( 4, rtVectorLength( adopt( API::HeadersVector( object.get() ) ).get() ) );

    Ref<TELSX_MESSAGE_HEADER> via = adopt( API::Header( object.get(), str( "vIa" ).get() ) );
    EXPECT_EQ( via.get(), adopt( API::HeaderCstr( object.get(), "vx", 1 ) ).get() );
    EXPECT_EQ( via.get(), adopt( API::HeaderWcstr( object.get(), L"via", -1 ) ).get() );
    EXPECT_EQ( nullptr, API::HeaderCstr( object.get(), "g", -1 ) );
    EXPECT_TRUE( API::HasHeader( object.get(), str( "X-y" ).get() ) );
    EXPECT_TRUE( API::HasHeaderCstr( object.get(), "t", -1 ) );
    EXPECT_TRUE( API::HasHeaderWcstr( object.get(), L"i", 1 ) );
    EXPECT_FALSE( API::HasHeaderCstr( object.get(), "g", -1 ) );

    // What is done to a header that was taken out comes back by SetHeader only.
    telsxMessageHeaderAppendLineCstr( via.address(), "e", -1 );
    EXPECT_EQ( "Via: <d>", dump( adopt( API::HeaderCstr( object.get(), "v", -1 ) ).get() ) );
    API::SetHeader( object.address(), via.get() );
    telsxMessageHeaderSetNameCstr( via.address(), "Other", -1 );
    EXPECT_EQ( "Via: <d> <e>", dump( adopt( API::HeaderCstr( object.get(), "v", -1 ) ).get() ) );

    API::DelHeader( object.address(), str( "I" ).get() );
    API::DelHeaderCstr( object.address(), "x-yx", 3 );
    API::DelHeaderWcstr( object.address(), L"to", -1 );
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
    EXPECT_ABORT( API::Encode( nullptr ), self );
    EXPECT_ABORT( API::DelBody( &none ), "*" + self );
    EXPECT_ABORT( API::CreateRequest( nullptr, method.get(), this->iri.get() ), "version" );
    EXPECT_ABORT( API::CreateRequest( sip20, bad.get(), this->iri.get() ), "telsxMethodOk( method )" );
    EXPECT_ABORT( API::CreateRequest( sip20, method.get(), bad.get() ), "telsxIriOk( iri )" );
    EXPECT_ABORT( API::SetResponse( request.address(), sip20, 1000 ), "telsxStatusCodeOk( sc )" );
    EXPECT_ABORT( API::SetHeader( request.address(), nullptr ), "header" );
    EXPECT_ABORT( API::SetBody( request.address(), nullptr ), "body" );
    EXPECT_ABORT( API::HasHeaderCstr( request.get(), "a:", -1 ), "telsxMessageHeaderNameOk( name )" );
    // A field that the kind doesn't have can't be set.
    EXPECT_ABORT( API::SetRequestMethod( response.address(), method.get() ), "(*frag)->requestMethod" );
    EXPECT_ABORT( API::SetRequestIri( response.address(), this->iri.get() ), "(*frag)->requestMethod" );
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
