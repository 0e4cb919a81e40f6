// The inside of a raw header, for the units that carry it between bytes and objects.
#pragma once

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_known_names.hpp"
#include "telsx/telsx_message_header.h"

struct TELSX_MESSAGE_HEADER_
{
    RT_OBJECT object;
    rt::Ref<RT_STRING> name;  // canonical, never null
    rt::Ref<RT_VECTOR> lines; // of strings, never null

    static auto fields( auto &self ) { return std::tie( self.name, self.lines ); }
};

namespace telsx
{

// The canonical form of a name that has no compact form.
template <class CHAR>
Ref<RT_STRING> canonicalName( const CHAR *name, int64_t length )
{
    Ref<RT_STRING> canonical;
    RT_CHAR *into = rt::newString( length, canonical.address() );
    char before = '-';
    for ( int64_t i = 0; i < length; ++i )
        into[i] = static_cast<RT_CHAR>( canonicalAscii( std::exchange( before, static_cast<char>( name[i] ) ),
                                                        static_cast<char>( name[i] ) ) );
    return canonical;
}

// New raw headers of a canonical name: without lines, with one, with those of a vector.
TELSX_MESSAGE_HEADER createHeader( RT_STRING name );
TELSX_MESSAGE_HEADER createHeader( RT_STRING name, Ref<RT_STRING> line );
TELSX_MESSAGE_HEADER createHeader( RT_STRING name, Ref<RT_VECTOR> lines );

// Whether each text of the store is a line.
bool holdsLines( RT_STORE store );

} // namespace telsx
