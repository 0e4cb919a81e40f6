// Headers of earlier messages in which nothing was wrong.
#include "telsx/telsx_finding_memory.hpp"

#include <algorithm>
#include <climits>

#include "telsx/telsx_char.hpp"

namespace telsx
{

// The part of a line that is new in each dialog or transaction while the rest repeats: the tag after an address in
// brackets, and the branch after its cookie. It is empty, or one or more characters of a token that stand in a parameter or
// a quoted string, and the grammar tells no such characters apart there. To leave it out saves 30 % of the instructions for
// INVITEs that differ in it.
static Bytes changingPart( Bytes line, int64_t number )
{
    Bytes mark;
    if ( number == knownNumber<"Via">() )
        mark = ";branch=z9hG4bK";
    else if ( number == knownNumber<"From">() || number == knownNumber<"To">() )
        mark = ">;tag=";
    std::size_t at = mark.empty() ? Bytes::npos : line.find( mark );
    if ( at == Bytes::npos )
        return line.substr( line.size() );
    Bytes rest = line.substr( at + mark.size() );
    auto isInToken = []( char ch ) { return isIn( static_cast<unsigned char>( ch ), classToken ); };
    auto end = std::find_if_not( rest.begin(), rest.end(), isInToken );
    return rest.substr( 0, static_cast<std::size_t>( end - rest.begin() ) );
}

// Eight bytes at a time. Two headers with the same hash only push each other out.
static uint64_t hashOf( const char *text, std::size_t size )
{
    uint64_t hash = 0;
    for ( std::size_t at = 0; at < size; at += sizeof hash )
    {
        uint64_t eight;
        std::memcpy( &eight, text + at, sizeof eight );
        hash = ( hash ^ eight ) * 0x9E3779B97F4A7C15;
        hash ^= hash >> 32;
    }
    return hash;
}

// No line has a line end in it.
HeaderKey::HeaderKey( const HeaderTable &table, const HeaderEntry &entry )
{
    auto number = static_cast<char>( entry.number );
    static_assert( knownCount <= CHAR_MAX );
    size = 0;
    bool fits = append( { &number, 1 } );
    for ( const HeaderLine *line = &entry.first; fits; line = &table.moreLines.items[line->next] )
    {
        Bytes bytes = table.lineOf( *line ), changing = changingPart( bytes, entry.number );
        const char *end = bytes.data() + bytes.size(), *rest = changing.data() + changing.size();
        fits = append( { bytes.data(), changing.data() } ) && ( changing.empty() || append( "0" ) )
               && append( { rest, end } ) && append( lineEnd );
        if ( line->next == -1 )
            break;
    }
    if ( !fits )
        size = 0;
    std::memset( text + size, 0, sizeof( uint64_t ) );
    hashed = hashOf( text, size );
}

bool HeaderKey::append( Bytes piece )
{
    if ( piece.size() > most - size )
        return false;
    std::memcpy( text + size, piece.data(), piece.size() );
    size += piece.size();
    return true;
}

HeaderMemory::~HeaderMemory()
{
    for ( Slot &slot : slots )
        slot.key.clear();
}

const HeaderFacts *HeaderMemory::find( const HeaderKey &key )
{
    Slot &slot = slotOf( key );
    Bytes known( slot.key.items, static_cast<std::size_t>( slot.key.length ) );
    return !known.empty() && known == key.bytes() ? &slot.facts : nullptr;
}

void HeaderMemory::add( const HeaderKey &key, const HeaderFacts &facts )
{
    if ( key.isTooLong() )
        return;
    Slot &slot = slotOf( key );
    slot.key.length = 0;
    slot.key.reserve( lengthOf( key.bytes() ) );
    rt::copyItems( slot.key.items, key.bytes().data(), lengthOf( key.bytes() ) );
    slot.key.length = lengthOf( key.bytes() );
    slot.facts = facts;
}

} // namespace telsx
