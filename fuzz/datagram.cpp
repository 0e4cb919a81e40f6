// A datagram that decodes is written in a form that decodes to the same message and no longer changes.
#include "fuzz.hpp"
#include "mutator.hpp"

using namespace fuzz;

const std::size_t fuzz::messageOffset = 0;

namespace
{

using Fragment = Ref<TELSX_MESSAGE_FRAGMENT>;

Fragment decode( const Ref<RT_BUFFER> &input )
{
    return adopt( telsxMessageFragmentTryDecode( input.get() ) );
}
Ref<RT_BUFFER> encode( const Fragment &frag ) { return adopt( telsxMessageFragmentEncode( frag.get() ) ); }

// All headers except Content-Length, which the encoder makes anew.
Ref<RT_VECTOR> headers( Fragment frag )
{
    telsxMessageFragmentDelHeaderCstr( frag.address(), "Content-Length", -1 );
    return adopt( telsxMessageFragmentHeadersVector( frag.get() ) );
}

void requireSame( const Fragment &a, const Fragment &b )
{
    auto flag = [&]( auto *is ) { return !is( a.get() ) == !is( b.get() ); };
    auto part = [&]( auto *get ) { return adopt( get( a.get() ) ) == adopt( get( b.get() ) ); };

    require( flag( telsxMessageFragmentIsRequest ), "requests stay requests" );
    require( flag( telsxMessageFragmentIsResponse ), "responses stay responses" );
    require( flag( telsxMessageFragmentIsNeitherRequestNorResponse ), "what is neither stays so" );
    require( part( telsxMessageFragmentVersion ), "the version stays" );
    require( part( telsxMessageFragmentRequestMethod ), "the method stays" );
    require( part( telsxMessageFragmentRequestIri ), "the request target stays" );
    require( telsxMessageFragmentResponseStatusCode( a.get() )
                 == telsxMessageFragmentResponseStatusCode( b.get() ),
             "the status code stays" );
    require( part( telsxMessageFragmentResponseReasonPhrase ), "the reason phrase stays" );
    require( headers( a ) == headers( b ), "the headers stay, with their lines and their order" );
    require( part( telsxMessageFragmentBody ), "the body stays" );
}

void requireTrueContentLength( const Fragment &frag )
{
    Ref<RT_BUFFER> body = adopt( telsxMessageFragmentBody( frag.get() ) );
    Ref<TELSX_MESSAGE_HEADER> header =
        adopt( telsxMessageFragmentHeaderCstr( frag.get(), "Content-Length", -1 ) );
    require( header && telsxMessageHeaderLinesLength( header.get() ) == 1, "there is one Content-Length" );
    int64_t length = body ? rtBufferLength( body.get() ) : 0;
    require( adopt( telsxMessageHeaderLastLine( header.get() ) )
                 == adopt( rtStringCreateFromFormatCstr( "%i", -1, length ) ),
             "Content-Length is the body's length" );
}

void test( const Ref<RT_BUFFER> &input )
{
    Fragment first = decode( input );
    bool whole = first && !telsxMessageFragmentIsNeitherRequestNorResponse( first.get() );
    Ref<TELSX_MESSAGE> message = adopt( telsxMessageTryDecode( input.get() ) );
    require( bool( message ) == whole, "a message is a fragment that is a request or a response" );
    if ( !first )
        return;

    Ref<RT_BUFFER> encoded = encode( first );
    require( !message || adopt( telsxMessageEncode( message.get() ) ) == encoded,
             "a message is encoded as its fragment is" );

    Fragment second = decode( encoded );
    require( bool( second ), "what is encoded decodes" );
    requireSame( first, second );
    requireTrueContentLength( second );
    require( encode( second ) == encoded, "what is encoded doesn't change any more" );
}

} // namespace

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    return run( [&] { test( buffer( { reinterpret_cast<const char *>( data ), size } ) ); } );
}
