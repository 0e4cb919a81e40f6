// Message: a fragment with the guarantee that it has a start line.
#include "telsx/telsx_message.h"

#include "telsx/telsx_message.hpp"
#include "telsx/telsx_text.hpp"

using namespace telsx;

TELSX_DEFINE_OBJECT( Message, MESSAGE, telsx___MessageFreeFunc, nullptr, nullptr )
TELSX_DEFINE_FREE_FUNC( Message, msg )

static TELSX_MESSAGE create( Ref<TELSX_MESSAGE_FRAGMENT> fragment )
{
    TELSX_MESSAGE msg = rt::create<TELSX_MESSAGE_>( telsxMessageSort() );
    msg->fragment = std::move( fragment );
    return msg;
}

TELSX_MESSAGE telsxMessageCreate( TELSX_MESSAGE_FRAGMENT fragment )
{
    TELSX_ASSERT( telsxMessageFragmentIsRequest( fragment ) || telsxMessageFragmentIsResponse( fragment ) );
    return create( share( fragment ) );
}

TELSX_DEFINE_GETTER( Message, msg, Fragment, fragment )

TELSX_MESSAGE telsxMessageTryDecode( RT_BUFFER buf )
{
    Ref<TELSX_MESSAGE_FRAGMENT> fragment = adopt( telsxMessageFragmentTryDecode( buf ) );
    if ( !fragment || telsxMessageFragmentIsNeitherRequestNorResponse( fragment.get() ) )
        return nullptr;
    return create( std::move( fragment ) );
}

// Everything else belongs to the fragment. A new message holds the only reference to its fragment.

static TELSX_MESSAGE create( TELSX_MESSAGE_FRAGMENT fragment ) { return create( adopt( fragment ) ); }

static TELSX_MESSAGE_FRAGMENT read( TELSX_MESSAGE msg )
{
    TELSX_ASSERT( msg );
    return msg->fragment.get();
}

static TELSX_MESSAGE_FRAGMENT *change( TELSX_MESSAGE *msg )
{
    TELSX_ASSERT_HANDLE( msg );
    return TELSX_OWN( msg )->fragment.address();
}

TELSX_MESSAGE telsxMessageCreateRequest( TELSX_VERSION version, RT_STRING method, RT_STRING iri )
{
    return create( telsxMessageFragmentCreateRequest( version, method, iri ) );
}

TELSX_MESSAGE telsxMessageCreateRequestCstr( TELSX_VERSION version, const char *method, int64_t length,
                                             RT_STRING iri )
{
    return create( telsxMessageFragmentCreateRequestCstr( version, method, length, iri ) );
}

TELSX_MESSAGE telsxMessageCreateRequestWcstr( TELSX_VERSION version, const wchar_t *method, int64_t length,
                                              RT_STRING iri )
{
    return create( telsxMessageFragmentCreateRequestWcstr( version, method, length, iri ) );
}

TELSX_MESSAGE telsxMessageCreateResponse( TELSX_VERSION version, int64_t sc )
{
    return create( telsxMessageFragmentCreateResponse( version, sc ) );
}

TELSX_MESSAGE telsxMessageCreateResponseWithReasonPhrase( TELSX_VERSION version, int64_t sc,
                                                          RT_STRING reasonPhrase )
{
    return create( telsxMessageFragmentCreateResponseWithReasonPhrase( version, sc, reasonPhrase ) );
}

TELSX_MESSAGE telsxMessageCreateResponseWithReasonPhraseCstr( TELSX_VERSION version, int64_t sc,
                                                              const char *reasonPhrase, int64_t length )
{
    return create(
        telsxMessageFragmentCreateResponseWithReasonPhraseCstr( version, sc, reasonPhrase, length ) );
}

TELSX_MESSAGE telsxMessageCreateResponseWithReasonPhraseWcstr( TELSX_VERSION version, int64_t sc,
                                                               const wchar_t *reasonPhrase, int64_t length )
{
    return create(
        telsxMessageFragmentCreateResponseWithReasonPhraseWcstr( version, sc, reasonPhrase, length ) );
}

RT_BOOL telsxMessageIsRequest( TELSX_MESSAGE msg ) { return telsxMessageFragmentIsRequest( read( msg ) ); }

RT_BOOL telsxMessageIsResponse( TELSX_MESSAGE msg ) { return telsxMessageFragmentIsResponse( read( msg ) ); }

TELSX_VERSION telsxMessageVersion( TELSX_MESSAGE msg ) { return telsxMessageFragmentVersion( read( msg ) ); }

RT_STRING telsxMessageRequestMethod( TELSX_MESSAGE msg )
{
    return telsxMessageFragmentRequestMethod( read( msg ) );
}

RT_STRING telsxMessageRequestIri( TELSX_MESSAGE msg )
{
    return telsxMessageFragmentRequestIri( read( msg ) );
}

int64_t telsxMessageResponseStatusCode( TELSX_MESSAGE msg )
{
    return telsxMessageFragmentResponseStatusCode( read( msg ) );
}

RT_STRING telsxMessageResponseReasonPhrase( TELSX_MESSAGE msg )
{
    return telsxMessageFragmentResponseReasonPhrase( read( msg ) );
}

RT_VECTOR telsxMessageHeadersVector( TELSX_MESSAGE msg )
{
    return telsxMessageFragmentHeadersVector( read( msg ) );
}

TELSX_MESSAGE_HEADER telsxMessageHeader( TELSX_MESSAGE msg, RT_STRING name )
{
    return telsxMessageFragmentHeader( read( msg ), name );
}

TELSX_MESSAGE_HEADER telsxMessageHeaderCstr( TELSX_MESSAGE msg, const char *name, int64_t length )
{
    return telsxMessageFragmentHeaderCstr( read( msg ), name, length );
}

TELSX_MESSAGE_HEADER telsxMessageHeaderWcstr( TELSX_MESSAGE msg, const wchar_t *name, int64_t length )
{
    return telsxMessageFragmentHeaderWcstr( read( msg ), name, length );
}

RT_BOOL telsxMessageHasHeader( TELSX_MESSAGE msg, RT_STRING name )
{
    return telsxMessageFragmentHasHeader( read( msg ), name );
}

RT_BOOL telsxMessageHasHeaderCstr( TELSX_MESSAGE msg, const char *name, int64_t length )
{
    return telsxMessageFragmentHasHeaderCstr( read( msg ), name, length );
}

RT_BOOL telsxMessageHasHeaderWcstr( TELSX_MESSAGE msg, const wchar_t *name, int64_t length )
{
    return telsxMessageFragmentHasHeaderWcstr( read( msg ), name, length );
}

RT_BOOL telsxMessageHasLoneLineEnds( TELSX_MESSAGE msg )
{
    return telsxMessageFragmentHasLoneLineEnds( read( msg ) );
}

RT_BUFFER telsxMessageBody( TELSX_MESSAGE msg ) { return telsxMessageFragmentBody( read( msg ) ); }

RT_BOOL telsxMessageHasBody( TELSX_MESSAGE msg ) { return telsxMessageFragmentHasBody( read( msg ) ); }

RT_BUFFER telsxMessageEncode( TELSX_MESSAGE msg ) { return telsxMessageFragmentEncode( read( msg ) ); }

void telsxMessageSetRequest( TELSX_MESSAGE *msg, TELSX_VERSION version, RT_STRING method, RT_STRING iri )
{
    telsxMessageFragmentSetRequest( change( msg ), version, method, iri );
}

void telsxMessageSetRequestCstr( TELSX_MESSAGE *msg, TELSX_VERSION version, const char *method,
                                 int64_t length, RT_STRING iri )
{
    telsxMessageFragmentSetRequestCstr( change( msg ), version, method, length, iri );
}

void telsxMessageSetRequestWcstr( TELSX_MESSAGE *msg, TELSX_VERSION version, const wchar_t *method,
                                  int64_t length, RT_STRING iri )
{
    telsxMessageFragmentSetRequestWcstr( change( msg ), version, method, length, iri );
}

void telsxMessageSetResponse( TELSX_MESSAGE *msg, TELSX_VERSION version, int64_t sc )
{
    telsxMessageFragmentSetResponse( change( msg ), version, sc );
}

void telsxMessageSetResponseWithReasonPhrase( TELSX_MESSAGE *msg, TELSX_VERSION version, int64_t sc,
                                              RT_STRING reasonPhrase )
{
    telsxMessageFragmentSetResponseWithReasonPhrase( change( msg ), version, sc, reasonPhrase );
}

void telsxMessageSetResponseWithReasonPhraseCstr( TELSX_MESSAGE *msg, TELSX_VERSION version, int64_t sc,
                                                  const char *reasonPhrase, int64_t length )
{
    telsxMessageFragmentSetResponseWithReasonPhraseCstr( change( msg ), version, sc, reasonPhrase, length );
}

void telsxMessageSetResponseWithReasonPhraseWcstr( TELSX_MESSAGE *msg, TELSX_VERSION version, int64_t sc,
                                                   const wchar_t *reasonPhrase, int64_t length )
{
    telsxMessageFragmentSetResponseWithReasonPhraseWcstr( change( msg ), version, sc, reasonPhrase, length );
}

void telsxMessageSetRequestMethod( TELSX_MESSAGE *msg, RT_STRING method )
{
    telsxMessageFragmentSetRequestMethod( change( msg ), method );
}

void telsxMessageSetRequestMethodCstr( TELSX_MESSAGE *msg, const char *method, int64_t length )
{
    telsxMessageFragmentSetRequestMethodCstr( change( msg ), method, length );
}

void telsxMessageSetRequestMethodWcstr( TELSX_MESSAGE *msg, const wchar_t *method, int64_t length )
{
    telsxMessageFragmentSetRequestMethodWcstr( change( msg ), method, length );
}

void telsxMessageSetRequestIri( TELSX_MESSAGE *msg, RT_STRING iri )
{
    telsxMessageFragmentSetRequestIri( change( msg ), iri );
}

void telsxMessageSetRequestIriCstr( TELSX_MESSAGE *msg, const char *iri, int64_t length )
{
    telsxMessageFragmentSetRequestIriCstr( change( msg ), iri, length );
}

void telsxMessageSetRequestIriWcstr( TELSX_MESSAGE *msg, const wchar_t *iri, int64_t length )
{
    telsxMessageFragmentSetRequestIriWcstr( change( msg ), iri, length );
}

void telsxMessageSetResponseStatusCode( TELSX_MESSAGE *msg, int64_t sc, RT_BOOL updateReasonPhrase )
{
    telsxMessageFragmentSetResponseStatusCode( change( msg ), sc, updateReasonPhrase );
}

void telsxMessageSetResponseReasonPhrase( TELSX_MESSAGE *msg, RT_STRING reasonPhrase )
{
    telsxMessageFragmentSetResponseReasonPhrase( change( msg ), reasonPhrase );
}

void telsxMessageSetResponseReasonPhraseCstr( TELSX_MESSAGE *msg, const char *reasonPhrase, int64_t length )
{
    telsxMessageFragmentSetResponseReasonPhraseCstr( change( msg ), reasonPhrase, length );
}

void telsxMessageSetResponseReasonPhraseWcstr( TELSX_MESSAGE *msg, const wchar_t *reasonPhrase,
                                               int64_t length )
{
    telsxMessageFragmentSetResponseReasonPhraseWcstr( change( msg ), reasonPhrase, length );
}

void telsxMessageSetVersion( TELSX_MESSAGE *msg, TELSX_VERSION version )
{
    telsxMessageFragmentSetVersion( change( msg ), version );
}

void telsxMessageSetHeader( TELSX_MESSAGE *msg, TELSX_MESSAGE_HEADER header )
{
    telsxMessageFragmentSetHeader( change( msg ), header );
}

void telsxMessageDelHeader( TELSX_MESSAGE *msg, RT_STRING name )
{
    telsxMessageFragmentDelHeader( change( msg ), name );
}

void telsxMessageDelHeaderCstr( TELSX_MESSAGE *msg, const char *name, int64_t length )
{
    telsxMessageFragmentDelHeaderCstr( change( msg ), name, length );
}

void telsxMessageDelHeaderWcstr( TELSX_MESSAGE *msg, const wchar_t *name, int64_t length )
{
    telsxMessageFragmentDelHeaderWcstr( change( msg ), name, length );
}

void telsxMessageSetBody( TELSX_MESSAGE *msg, RT_BUFFER body )
{
    telsxMessageFragmentSetBody( change( msg ), body );
}

void telsxMessageDelBody( TELSX_MESSAGE *msg ) { telsxMessageFragmentDelBody( change( msg ) ); }
