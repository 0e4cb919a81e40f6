// Finder: findings with a memory for headers.
#include "telsx/telsx_finder.h"

#include "telsx/telsx_bytes.hpp"
#include "telsx/telsx_finding_memory.hpp"
#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_message_findings.hpp"

using namespace telsx;

struct TELSX_FINDER_
{
    RT_OBJECT object;
    HeaderMemory *memory; // never null
};

RT_DEFINE_STDFUNCS( telsx, &telsx___module, Finder, TELSX_FINDER, telsx___FinderFreeFunc, nullptr, nullptr )

void telsx___FinderFreeFunc( RT_OBJ obj )
{
    TELSX_FINDER finder = telsxFinderFrom( obj );
    TELSX_ASSERT( finder );
    std::destroy_at( finder->memory );
    std::free( finder->memory );
}

TELSX_FINDER telsxFinderCreate( void )
{
    auto *finder =
        reinterpret_cast<TELSX_FINDER>( rt::createObject( sizeof( TELSX_FINDER_ ), telsxFinderSort() ) );
    finder->memory = std::construct_at( rt::allocate<HeaderMemory>( 1 ) );
    return finder;
}

RT_VECTOR telsxFinderFindings( TELSX_FINDER finder, RT_BUFFER buf )
{
    TELSX_ASSERT( finder );
    TELSX_ASSERT( buf );
    return findingsOf( buf, finder->memory ).take();
}
