// Mime-Version header (RFC 3261, 20.24).
#include "telsx/telsx_header_mime_version.h"

#include "telsx/telsx_header_of_text.hpp"
#include "telsx/telsx_mime_version.h"

using namespace telsx;

struct TELSX_HEADER_MIME_VERSION_
{
    RT_OBJECT object;
    Ref<RT_STRING> mimeVersion; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.mimeVersion ); }
};

TELSX_DEFINE_HEADER_OF_TEXT( HeaderMimeVersion, HEADER_MIME_VERSION, "Mime-Version", MimeVersion,
                             mimeVersion )
