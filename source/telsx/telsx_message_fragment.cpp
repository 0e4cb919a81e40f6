// Message fragment: start line, headers and body as a caller sets and reads them.
#include "telsx/telsx_message_fragment.h"

#include "telsx/telsx_iri.h"
#include "telsx/telsx_message_fragment.hpp"
#include "telsx/telsx_message_header.hpp"
#include "telsx/telsx_method.h"
#include "telsx/telsx_reason_phrase.h"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_text_forms.hpp"

using namespace telsx;

TELSX_DEFINE_OBJECT( MessageFragment, MESSAGE_FRAGMENT, telsx___MessageFragmentFreeFunc, nullptr, nullptr )
TELSX_DEFINE_FREE_FUNC( MessageFragment, frag )

TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreate( void )
{
    TELSX_MESSAGE_FRAGMENT frag = rt::create<TELSX_MESSAGE_FRAGMENT_>( telsxMessageFragmentSort() );
    frag->headers = createHeaderTable();
    return frag;
}

// Start lines

// The fragment, private to the handle, whose start line changes.
static TELSX_MESSAGE_FRAGMENT ownStartLine( TELSX_MESSAGE_FRAGMENT *frag )
{
    TELSX_MESSAGE_FRAGMENT own = TELSX_OWN( frag );
    own->startLineSize = -1;
    return own;
}

void telsxMessageFragmentSetRequest( TELSX_MESSAGE_FRAGMENT *frag, TELSX_VERSION version, RT_STRING method,
                                     RT_STRING iri )
{
    TELSX_ASSERT_HANDLE( frag );
    TELSX_ASSERT( version );
    TELSX_ASSERT_OK( telsxMethodOk, method );
    TELSX_ASSERT_OK( telsxIriOk, iri );
    TELSX_MESSAGE_FRAGMENT own = ownStartLine( frag );
    own->version = share( version );
    own->requestMethod = share( method );
    own->requestIri = share( iri );
    own->responseStatusCode = TELSX_STATUS_CODE_INVALID;
    own->responseReasonPhrase = {};
}

void telsxMessageFragmentSetResponseWithReasonPhrase( TELSX_MESSAGE_FRAGMENT *frag, TELSX_VERSION version,
                                                      int64_t sc, RT_STRING reasonPhrase )
{
    TELSX_ASSERT_HANDLE( frag );
    TELSX_ASSERT( version );
    TELSX_ASSERT( telsxStatusCodeOk( sc ) );
    TELSX_ASSERT_OK( telsxReasonPhraseOk, reasonPhrase );
    TELSX_MESSAGE_FRAGMENT own = ownStartLine( frag );
    own->version = share( version );
    own->requestMethod = {};
    own->requestIri = {};
    own->responseStatusCode = sc;
    own->responseReasonPhrase = share( reasonPhrase );
}

void telsxMessageFragmentSetResponse( TELSX_MESSAGE_FRAGMENT *frag, TELSX_VERSION version, int64_t sc )
{
    telsxMessageFragmentSetResponseWithReasonPhrase( frag, version, sc,
                                                     adopt( telsxStatusCodeReasonPhrase( sc ) ).get() );
}

void telsxMessageFragmentSetNeitherRequestNorResponse( TELSX_MESSAGE_FRAGMENT *frag )
{
    TELSX_ASSERT_HANDLE( frag );
    TELSX_MESSAGE_FRAGMENT own = ownStartLine( frag );
    own->version = {};
    own->requestMethod = {};
    own->requestIri = {};
    own->responseStatusCode = TELSX_STATUS_CODE_INVALID;
    own->responseReasonPhrase = {};
}

// A new fragment with the start line that the setter puts there.
template <class... ARG>
static TELSX_MESSAGE_FRAGMENT createWith( void ( *set )( TELSX_MESSAGE_FRAGMENT *frag, ARG... ), ARG... args )
{
    Ref<TELSX_MESSAGE_FRAGMENT> frag = adopt( telsxMessageFragmentCreate() );
    set( frag.address(), args... );
    return frag.take();
}

TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreateRequest( TELSX_VERSION version, RT_STRING method,
                                                          RT_STRING iri )
{
    return createWith( telsxMessageFragmentSetRequest, version, method, iri );
}

TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreateResponse( TELSX_VERSION version, int64_t sc )
{
    return createWith( telsxMessageFragmentSetResponse, version, sc );
}

TELSX_MESSAGE_FRAGMENT telsxMessageFragmentCreateResponseWithReasonPhrase( TELSX_VERSION version, int64_t sc,
                                                                           RT_STRING reasonPhrase )
{
    return createWith( telsxMessageFragmentSetResponseWithReasonPhrase, version, sc, reasonPhrase );
}

RT_BOOL telsxMessageFragmentIsRequest( TELSX_MESSAGE_FRAGMENT frag )
{
    TELSX_ASSERT( frag );
    return frag->requestMethod && frag->requestIri && frag->version;
}

RT_BOOL telsxMessageFragmentIsResponse( TELSX_MESSAGE_FRAGMENT frag )
{
    TELSX_ASSERT( frag );
    return frag->responseStatusCode != TELSX_STATUS_CODE_INVALID && frag->responseReasonPhrase;
}

RT_BOOL telsxMessageFragmentIsNeitherRequestNorResponse( TELSX_MESSAGE_FRAGMENT frag )
{
    TELSX_ASSERT( frag );
    return !frag->version;
}

// Fields of the start line: a setter first checks that the kind has the field.

#define ASSERT_HAS( ... ) TELSX_CHECK( ( *frag )->__VA_ARGS__, nullptr, "(*frag)->" #__VA_ARGS__ )

TELSX_DEFINE_GETTER( MessageFragment, frag, Version, version )
TELSX_DEFINE_GETTER( MessageFragment, frag, RequestMethod, requestMethod )
TELSX_DEFINE_GETTER( MessageFragment, frag, RequestIri, requestIri )
TELSX_DEFINE_GETTER( MessageFragment, frag, ResponseStatusCode, responseStatusCode )
TELSX_DEFINE_GETTER( MessageFragment, frag, ResponseReasonPhrase, responseReasonPhrase )

RT_BOOL telsxMessageFragmentHasVersion( TELSX_MESSAGE_FRAGMENT frag )
{
    TELSX_ASSERT( frag );
    return rt::present( frag->version );
}

void telsxMessageFragmentSetVersion( TELSX_MESSAGE_FRAGMENT *frag, TELSX_VERSION version )
{
    TELSX_ASSERT_HANDLE( frag );
    ASSERT_HAS( version );
    TELSX_ASSERT( version );
    rt::put( ownStartLine( frag )->version, version );
}

void telsxMessageFragmentSetRequestMethod( TELSX_MESSAGE_FRAGMENT *frag, RT_STRING method )
{
    TELSX_ASSERT_HANDLE( frag );
    ASSERT_HAS( requestMethod );
    TELSX_ASSERT_OK( telsxMethodOk, method );
    rt::put( ownStartLine( frag )->requestMethod, method );
}

void telsxMessageFragmentSetRequestIri( TELSX_MESSAGE_FRAGMENT *frag, RT_STRING iri )
{
    TELSX_ASSERT_HANDLE( frag );
    ASSERT_HAS( requestMethod );
    TELSX_ASSERT_OK( telsxIriOk, iri );
    rt::put( ownStartLine( frag )->requestIri, iri );
}

void telsxMessageFragmentSetResponseStatusCode( TELSX_MESSAGE_FRAGMENT *frag, int64_t sc,
                                                RT_BOOL updateReasonPhrase )
{
    TELSX_ASSERT_HANDLE( frag );
    ASSERT_HAS( responseStatusCode != TELSX_STATUS_CODE_INVALID );
    TELSX_ASSERT( telsxStatusCodeOk( sc ) );
    TELSX_MESSAGE_FRAGMENT own = ownStartLine( frag );
    own->responseStatusCode = sc;
    if ( updateReasonPhrase )
        own->responseReasonPhrase = adopt( telsxStatusCodeReasonPhrase( sc ) );
}

void telsxMessageFragmentSetResponseReasonPhrase( TELSX_MESSAGE_FRAGMENT *frag, RT_STRING reasonPhrase )
{
    TELSX_ASSERT_HANDLE( frag );
    ASSERT_HAS( responseReasonPhrase );
    TELSX_ASSERT_OK( telsxReasonPhraseOk, reasonPhrase );
    rt::put( ownStartLine( frag )->responseReasonPhrase, reasonPhrase );
}

// Headers

RT_VECTOR telsxMessageFragmentHeadersVector( TELSX_MESSAGE_FRAGMENT frag )
{
    TELSX_ASSERT( frag );
    return headersVector( frag->headers.get() );
}

TELSX_MESSAGE_HEADER telsxMessageFragmentHeader( TELSX_MESSAGE_FRAGMENT frag, RT_STRING name )
{
    TELSX_ASSERT( frag );
    TELSX_ASSERT( name );
    Ref<RT_STRING> normal = adopt( telsxMessageHeaderNameNormalize( name ) );
    HeaderEntry *entry = findHeader( frag->headers.get(), headerName( normal.get() ) );
    return entry ? share( headerAt( frag->headers.get(), *entry ) ).take() : nullptr;
}

RT_BOOL telsxMessageFragmentHasHeader( TELSX_MESSAGE_FRAGMENT frag, RT_STRING name )
{
    TELSX_ASSERT( frag );
    TELSX_ASSERT( name );
    Ref<RT_STRING> normal = adopt( telsxMessageHeaderNameNormalize( name ) );
    return findHeader( frag->headers.get(), headerName( normal.get() ) ) != nullptr;
}

void telsxMessageFragmentSetHeader( TELSX_MESSAGE_FRAGMENT *frag, TELSX_MESSAGE_HEADER header )
{
    TELSX_ASSERT_HANDLE( frag );
    TELSX_ASSERT( header );
    setHeader( TELSX_OWN( frag )->headers, headerName( header->name.get() ), share( header ) );
}

void telsxMessageFragmentDelHeader( TELSX_MESSAGE_FRAGMENT *frag, RT_STRING name )
{
    TELSX_ASSERT_HANDLE( frag );
    TELSX_ASSERT( name );
    Ref<RT_STRING> normal = adopt( telsxMessageHeaderNameNormalize( name ) );
    delHeader( TELSX_OWN( frag )->headers, headerName( normal.get() ) );
}

RT_BOOL telsxMessageFragmentHasLoneLineEnds( TELSX_MESSAGE_FRAGMENT frag )
{
    TELSX_ASSERT( frag );
    return haveLineEnds( frag->headers.get() );
}

// Body

TELSX_DEFINE_OPTIONAL_FIELD( MessageFragment, frag, Body, body, body )

// Functions that take a text, with the text as 8-bit and as wide characters

TELSX_DEFINE_TEXT_FORMS( TELSX_MESSAGE_FRAGMENT, MessageFragmentCreateRequest, ( TELSX_VERSION ),
                         ( RT_STRING ) )
TELSX_DEFINE_TEXT_FORMS( void, MessageFragmentSetRequest, ( TELSX_MESSAGE_FRAGMENT *, TELSX_VERSION ),
                         ( RT_STRING ) )
TELSX_DEFINE_TEXT_FORMS( TELSX_MESSAGE_FRAGMENT, MessageFragmentCreateResponseWithReasonPhrase,
                         ( TELSX_VERSION, int64_t ), () )
TELSX_DEFINE_TEXT_FORMS( void, MessageFragmentSetResponseWithReasonPhrase,
                         ( TELSX_MESSAGE_FRAGMENT *, TELSX_VERSION, int64_t ), () )
TELSX_DEFINE_TEXT_FORMS( void, MessageFragmentSetRequestMethod, (TELSX_MESSAGE_FRAGMENT *), () )
TELSX_DEFINE_TEXT_FORMS( void, MessageFragmentSetRequestIri, (TELSX_MESSAGE_FRAGMENT *), () )
TELSX_DEFINE_TEXT_FORMS( void, MessageFragmentSetResponseReasonPhrase, (TELSX_MESSAGE_FRAGMENT *), () )
TELSX_DEFINE_TEXT_FORMS( TELSX_MESSAGE_HEADER, MessageFragmentHeader, ( TELSX_MESSAGE_FRAGMENT ), () )
TELSX_DEFINE_TEXT_FORMS( RT_BOOL, MessageFragmentHasHeader, ( TELSX_MESSAGE_FRAGMENT ), () )
TELSX_DEFINE_TEXT_FORMS( void, MessageFragmentDelHeader, (TELSX_MESSAGE_FRAGMENT *), () )
