// The inside of a fragment, for the units that carry it between bytes and objects.
#pragma once

#include <string_view>

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_message_fragment.h"

struct TELSX_MESSAGE_FRAGMENT_
{
    RT_OBJECT object;
    rt::Ref<RT_STRING> requestMethod;        // of a request
    rt::Ref<RT_STRING> requestIri;           // of a request
    int64_t responseStatusCode;              // of a response
    rt::Ref<RT_STRING> responseReasonPhrase; // of a response
    rt::Ref<TELSX_VERSION> version;          // of both
    rt::Ref<RT_DICT> headers;                // from canonical names to raw headers, never null
    rt::Ref<RT_BUFFER> body;

    static auto fields( auto &self )
    {
        return std::tie( self.requestMethod, self.requestIri, self.responseStatusCode,
                         self.responseReasonPhrase, self.version, self.headers, self.body );
    }
};

namespace telsx
{

// A span of bytes on their way in.
using Bytes = std::string_view;

inline Bytes bytesOf( RT_BUFFER buffer )
{
    return { static_cast<const char *>( rtBufferBacking( buffer ) ),
             static_cast<std::size_t>( rtBufferLength( buffer ) ) };
}

inline int64_t lengthOf( Bytes bytes ) { return static_cast<int64_t>( bytes.size() ); }

inline Ref<RT_BUFFER> bufferOf( Bytes bytes )
{
    return adopt( rtBufferCreateFromBytesCopy( bytes.data(), lengthOf( bytes ) ) );
}

constexpr Bytes lineEnd = "\r\n", headEnd = "\r\n\r\n";

// The fragment of a head without its blank line, or null; contentLength as in
// telsxMessageFragmentTryDecodeHeaders.
Ref<TELSX_MESSAGE_FRAGMENT> tryDecodeHead( Bytes head, int64_t *contentLength );

} // namespace telsx
