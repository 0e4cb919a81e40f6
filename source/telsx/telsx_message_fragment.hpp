// The inside of a fragment, for the units that convert it between bytes and objects.
#pragma once

#include "telsx/telsx_bytes.hpp"
#include "telsx/telsx_header_table.hpp"
#include "telsx/telsx_message_fragment.h"

struct TELSX_MESSAGE_FRAGMENT_
{
    RT_OBJECT object;
    rt::Ref<RT_STRING> requestMethod;        // of a request
    rt::Ref<RT_STRING> requestIri;           // of a request
    int64_t responseStatusCode;              // of a response
    rt::Ref<RT_STRING> responseReasonPhrase; // of a response
    rt::Ref<TELSX_VERSION> version;          // of both
    rt::Ref<telsx::HeaderTable *> headers;   // never null
    rt::Ref<RT_BUFFER> body;
    int64_t
        startLineSize; // with its line end, if it is still the one that the headers' bytes begin with; else -1

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.requestMethod, self.requestIri, self.responseStatusCode,
                         self.responseReasonPhrase, self.version, self.headers, self.body,
                         self.startLineSize );
    }
};

namespace telsx
{

// The fragment decoded from a head without its blank line, or null; contentLength is as in
// telsxMessageFragmentTryDecodeHeaders.
Ref<TELSX_MESSAGE_FRAGMENT> tryDecodeHead( Bytes head, int64_t *contentLength );

// Where the blank line after a head begins, at from or later, or npos.
std::size_t findHeadEnd( Bytes bytes, std::size_t from );

} // namespace telsx
