// Bytes on their way in and out.
#pragma once

#include <string_view>

#include "rt/rt_buffer.h"
#include "rt/rt_scan.hpp"
#include "telsx/telsx_text.hpp"

namespace telsx
{

using Bytes = std::string_view;

inline Bytes bytesOf( RT_BUFFER buffer )
{
    return { static_cast<const char *>( rtBufferBacking( buffer ) ),
             static_cast<std::size_t>( rtBufferLength( buffer ) ) };
}

inline Ref<RT_BUFFER> bufferOf( Bytes bytes )
{
    return adopt( rtBufferCreateFromBytesCopy( bytes.data(), lengthOf( bytes ) ) );
}

// The text of bytes that are known to be UTF-8, or even ASCII. A short one stands in the object.
class WideText
{
public:
    Text read( Bytes bytes, bool isAscii )
    {
        if ( !isAscii || lengthOf( bytes ) > mostChars )
            return readOther( bytes );
        rt::widen( bytes.data(), lengthOf( bytes ), chs );
        return { chs, lengthOf( bytes ) };
    }

private:
    static constexpr int64_t mostChars = 256;

    Text readOther( Bytes bytes );

    Ref<RT_STRING> string;
    RT_CHAR chs[mostChars + rt::scanSlack];
};

constexpr Bytes lineEnd = "\r\n", headEnd = "\r\n\r\n";

} // namespace telsx
