// Bytes on their way in and out.
#include "telsx/telsx_bytes.hpp"

#include "rt/rt_charset.h"

using namespace telsx;

Text WideText::readOther( Bytes bytes )
{
    if ( lengthOf( bytes ) > mostChars )
    {
        string = adopt( rtStringTryCreateFromUtf8( bytes.data(), lengthOf( bytes ) ) );
        return textOf( string );
    }
    return { chs, rt___Utf8Decode( reinterpret_cast<const unsigned char *>( bytes.data() ), lengthOf( bytes ),
                                   chs ) };
}
