// Accept-Encoding value (RFC 3261, 20.2).
#include "telsx/telsx_accept_encoding.h"

#include "telsx/telsx_accept_of_text.hpp"
#include "telsx/telsx_content_coding.h"

using namespace telsx;

struct TELSX_ACCEPT_ENCODING_
{
    RT_OBJECT object;
    Ref<RT_STRING> contentCoding;            // lower case; null for the star
    int64_t qvalue;                          // thousandths
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.contentCoding, self.qvalue, self.genericParams );
    }
};

TELSX_DEFINE_ACCEPT_OF_TEXT( AcceptEncoding, ACCEPT_ENCODING, acceptEncoding, ContentCoding, contentCoding,
                             ContentCoding )

TELSX_ACCEPT_ENCODING telsxAcceptEncodingCreateWithContentCoding( RT_STRING contentCoding )
{
    TELSX_ASSERT_OK( telsxContentCodingOk, contentCoding );
    TELSX_ACCEPT_ENCODING acceptEncoding = telsxAcceptEncodingCreate();
    acceptEncoding->contentCoding = adopt( telsxContentCodingNormalize( contentCoding ) );
    return acceptEncoding;
}
