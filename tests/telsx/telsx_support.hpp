// What the tests of telsx share: texts for skippers and decoders, fragments and messages as readable text.
#pragma once

#include <array>
#include <utility>

#include "support/support.hpp"
#include "telsx/telsx.h"

namespace support
{

// Texts to go through.
template <class... TEXT>
constexpr auto list( const TEXT &...texts )
{
    return std::array{ std::string_view( texts )... };
}

inline Ref<TELSX_MESSAGE_HEADER> header( const char *name, std::initializer_list<const char *> lines )
{
    Ref<TELSX_MESSAGE_HEADER> made = adopt( telsxMessageHeaderCreateCstr( name, -1 ) );
    for ( const char *line : lines )
        telsxMessageHeaderAppendLine( made.address(), str( line ).get() );
    return made;
}

// "Via: <a> <b>", a pair of brackets for each line.
inline std::string dump( TELSX_MESSAGE_HEADER header )
{
    std::string text = utf8( telsxMessageHeaderName( header ) ) + ":";
    for ( int64_t i = 0; i < telsxMessageHeaderLinesLength( header ); ++i )
        text += " <" + utf8( telsxMessageHeaderLineAt( header, i ) ) + ">";
    return text;
}

// The start line, "-" for none, then headers and body, each after a bar.
inline std::string dump( TELSX_MESSAGE_FRAGMENT frag )
{
    if ( !frag )
        return "(null)";
    EXPECT_EQ( 1, ( telsxMessageFragmentIsRequest( frag ) ? 1 : 0 )
                      + ( telsxMessageFragmentIsResponse( frag ) ? 1 : 0 )
                      + ( telsxMessageFragmentIsNeitherRequestNorResponse( frag ) ? 1 : 0 ) );
    std::string text = "-";
    if ( auto version = adopt( telsxMessageFragmentVersion( frag ) ) )
    {
        std::string protocol = utf8( telsxVersionToString( version.get() ) );
        text = telsxMessageFragmentIsRequest( frag )
                   ? utf8( telsxMessageFragmentRequestMethod( frag ) ) + " "
                         + utf8( telsxMessageFragmentRequestIri( frag ) ) + " " + protocol
                   : protocol + " " + std::to_string( telsxMessageFragmentResponseStatusCode( frag ) ) + " <"
                         + utf8( telsxMessageFragmentResponseReasonPhrase( frag ) ) + ">";
    }
    Ref<RT_VECTOR> headers = adopt( telsxMessageFragmentHeadersVector( frag ) );
    for ( int64_t i = 0; i < rtVectorLength( headers.get() ); ++i )
        text += " | " + dump( telsxMessageHeaderFrom( adopt( rtVectorObjAt( headers.get(), i ) ).get() ) );
    if ( telsxMessageFragmentHasBody( frag ) )
        text += " | body <" + bytes( adopt( telsxMessageFragmentBody( frag ) ) ) + ">";
    return text;
}

inline std::string dump( TELSX_MESSAGE msg )
{
    return msg ? dump( adopt( telsxMessageFragment( msg ) ).get() ) : "(null)";
}

// A fragment or a message made from wire text.
inline Ref<TELSX_MESSAGE_FRAGMENT> fragment( std::string_view wire )
{
    return adopt( telsxMessageFragmentTryDecode( buffer( wire ).get() ) );
}
inline Ref<TELSX_MESSAGE> message( std::string_view wire )
{
    return adopt( telsxMessageTryDecode( buffer( wire ).get() ) );
}

inline std::string encoded( TELSX_MESSAGE_FRAGMENT frag )
{
    return bytes( adopt( telsxMessageFragmentEncode( frag ) ) );
}

} // namespace support
