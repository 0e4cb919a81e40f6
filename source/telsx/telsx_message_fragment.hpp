// The inside of a fragment, for the units that carry it between bytes and objects.
#pragma once

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
        startLineSize; // as it came, with its line end, before the headers' lines; -1 once it is another one

    static auto fields( auto &self )
    {
        return std::tie( self.requestMethod, self.requestIri, self.responseStatusCode,
                         self.responseReasonPhrase, self.version, self.headers, self.body,
                         self.startLineSize );
    }
};

namespace telsx
{

// The fragment of a head without its blank line, or null; contentLength as in
// telsxMessageFragmentTryDecodeHeaders.
Ref<TELSX_MESSAGE_FRAGMENT> tryDecodeHead( Bytes head, int64_t *contentLength );

// Where the blank line behind a head begins, at that place or behind it, or npos.
std::size_t findHeadEnd( Bytes bytes, std::size_t from );

} // namespace telsx
