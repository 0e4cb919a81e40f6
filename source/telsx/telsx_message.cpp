// Message: a fragment with the guarantee that it has a start line.
#include "telsx/telsx_message.h"

#include "telsx/telsx_message.hpp"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_text_forms.hpp"

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

TELSX_MESSAGE telsxMessageCreateResponse( TELSX_VERSION version, int64_t sc )
{
    return create( telsxMessageFragmentCreateResponse( version, sc ) );
}

TELSX_MESSAGE telsxMessageCreateResponseWithReasonPhrase( TELSX_VERSION version, int64_t sc,
                                                          RT_STRING reasonPhrase )
{
    return create( telsxMessageFragmentCreateResponseWithReasonPhrase( version, sc, reasonPhrase ) );
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

RT_BOOL telsxMessageHasHeader( TELSX_MESSAGE msg, RT_STRING name )
{
    return telsxMessageFragmentHasHeader( read( msg ), name );
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

void telsxMessageSetResponse( TELSX_MESSAGE *msg, TELSX_VERSION version, int64_t sc )
{
    telsxMessageFragmentSetResponse( change( msg ), version, sc );
}

void telsxMessageSetResponseWithReasonPhrase( TELSX_MESSAGE *msg, TELSX_VERSION version, int64_t sc,
                                              RT_STRING reasonPhrase )
{
    telsxMessageFragmentSetResponseWithReasonPhrase( change( msg ), version, sc, reasonPhrase );
}

void telsxMessageSetRequestMethod( TELSX_MESSAGE *msg, RT_STRING method )
{
    telsxMessageFragmentSetRequestMethod( change( msg ), method );
}

void telsxMessageSetRequestIri( TELSX_MESSAGE *msg, RT_STRING iri )
{
    telsxMessageFragmentSetRequestIri( change( msg ), iri );
}

void telsxMessageSetResponseStatusCode( TELSX_MESSAGE *msg, int64_t sc, RT_BOOL updateReasonPhrase )
{
    telsxMessageFragmentSetResponseStatusCode( change( msg ), sc, updateReasonPhrase );
}

void telsxMessageSetResponseReasonPhrase( TELSX_MESSAGE *msg, RT_STRING reasonPhrase )
{
    telsxMessageFragmentSetResponseReasonPhrase( change( msg ), reasonPhrase );
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

void telsxMessageSetBody( TELSX_MESSAGE *msg, RT_BUFFER body )
{
    telsxMessageFragmentSetBody( change( msg ), body );
}

void telsxMessageDelBody( TELSX_MESSAGE *msg ) { telsxMessageFragmentDelBody( change( msg ) ); }

// What takes a text, with the text as 8-bit and as wide characters

TELSX_DEFINE_TEXT_FORMS( TELSX_MESSAGE, MessageCreateRequest, ( TELSX_VERSION ), ( RT_STRING ) )
TELSX_DEFINE_TEXT_FORMS( TELSX_MESSAGE, MessageCreateResponseWithReasonPhrase, ( TELSX_VERSION, int64_t ),
                         () )
TELSX_DEFINE_TEXT_FORMS( TELSX_MESSAGE_HEADER, MessageHeader, ( TELSX_MESSAGE ), () )
TELSX_DEFINE_TEXT_FORMS( RT_BOOL, MessageHasHeader, ( TELSX_MESSAGE ), () )
TELSX_DEFINE_TEXT_FORMS( void, MessageSetRequest, ( TELSX_MESSAGE *, TELSX_VERSION ), ( RT_STRING ) )
TELSX_DEFINE_TEXT_FORMS( void, MessageSetResponseWithReasonPhrase,
                         ( TELSX_MESSAGE *, TELSX_VERSION, int64_t ), () )
TELSX_DEFINE_TEXT_FORMS( void, MessageSetRequestMethod, (TELSX_MESSAGE *), () )
TELSX_DEFINE_TEXT_FORMS( void, MessageSetRequestIri, (TELSX_MESSAGE *), () )
TELSX_DEFINE_TEXT_FORMS( void, MessageSetResponseReasonPhrase, (TELSX_MESSAGE *), () )
TELSX_DEFINE_TEXT_FORMS( void, MessageDelHeader, (TELSX_MESSAGE *), () )
