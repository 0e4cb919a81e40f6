// Headers from damaged stores: what is left of the lines, or null, and never anything worse.
//
// The first byte picks the kind of typed header; behind it stands one step a line, whose first byte says what
// is done: "+" gives the header another line, all others damage its store.
#include <algorithm>
#include <optional>
#include <vector>

#include "fuzz.hpp"
#include "headers.hpp"

using namespace fuzz;

namespace
{

using Store = Ref<RT_STORE>;
using Lines = std::vector<Ref<RT_STRING>>;

struct Stored
{
    Ref<RT_STRING> name;
    Store whole, lines; // lines are put into whole at the end
    int64_t length = 0; // of the lines before the damage
};

void damage( Stored &stored, std::string_view step )
{
    Ref<RT_STRING> value = text( step.substr( 1 ) );
    int64_t length = static_cast<int64_t>( step.size() ) - 1,
            index = stored.length && length ? static_cast<uint8_t>( step[1] ) % stored.length : 0;
    Store empty = adopt( rtStoreCreate() );
    switch ( step[0] )
    {
        case 'n': rtStoreSetValueCstr( stored.whole.address(), "name", -1, value.get() ); break;
        case 'N': rtStoreSetStoreCstr( stored.whole.address(), "name", -1, empty.get() ); break;
        case 'l': rtStoreSetValueCstr( stored.whole.address(), "lines", -1, value.get() ); break;
        case 'k': rtStoreSetValueCstr( stored.lines.address(), step.data() + 1, length, value.get() ); break;
        case 'K': rtStoreSetStoreCstr( stored.lines.address(), step.data() + 1, length, empty.get() ); break;
        case 'r': rtStringAppendCstr( value.address(), "\r\n", -1 ); [[fallthrough]];
        case 'v':
            // Under the key of a line that is there.
            rtStoreSetValueFormatCstr( stored.lines.address(), "%.*A", -1, value.get(), stored.length - 1,
                                       index );
            break;
        case 'e': stored.lines = empty; break;
        case 's': stored.lines = stored.whole; break;
        default: break;
    }
}

// The lines that a store of lines still holds, or none at all if one of them is no line.
std::optional<Lines> linesIn( const Store &store )
{
    Lines lines;
    for ( int64_t i = 0; i < rtStoreLength( store.get() ); ++i )
        if ( auto line = adopt( rtStoreValueAt( store.get(), i ) ) )
            lines.push_back( std::move( line ) );
    if ( std::ranges::all_of( lines, []( auto &line ) { return telsxMessageHeaderLineOk( line.get() ); } ) )
        return lines;
    return {};
}

headers::Raw rawHeader( const Ref<RT_STRING> &name, const Lines &lines )
{
    headers::Raw raw = adopt( telsxMessageHeaderCreate( name.get() ) );
    for ( const Ref<RT_STRING> &line : lines )
        telsxMessageHeaderAppendLine( raw.address(), line.get() );
    return raw;
}

void testRaw( const Store &store )
{
    Ref<RT_STRING> name = adopt( rtStoreValueCstr( store.get(), "name", -1 ) );
    Store linesStore = adopt( rtStoreStoreCstr( store.get(), "lines", -1 ) );
    std::optional<Lines> lines = linesStore ? linesIn( linesStore ) : std::nullopt;
    headers::Raw raw = adopt( telsxMessageHeaderTryRestore( store.get() ) );
    if ( !lines || !name || !telsxMessageHeaderNameOk( name.get() ) )
        return require( !raw, "a store without a good name and good lines gives no header" );
    require( raw == rawHeader( name, *lines ), "a header is its name and lines in the store" );
    Store again = adopt( telsxMessageHeaderStore( raw.get() ) );
    require( adopt( telsxMessageHeaderTryRestore( again.get() ) ) == raw, "what is stored is restored" );
}

void testTyped( const headers::Kind &kind, const Ref<RT_STRING> &name, const Store &store )
{
    std::optional<Lines> lines = linesIn( store );
    Ref<RT_OBJ> hdr = adopt( kind.tryRestore( store.get() ) );
    if ( !lines )
        return require( !hdr, "a store with a bad line gives no header" );
    headers::Raw raw = rawHeader( name, *lines );
    require( headers::areSame( kind, hdr, adopt( kind.tryDecode( raw.get() ) ) ),
             "a store is restored as its lines decode" );
    requireNone( headers::broken( kind, raw ), kind.name );
}

void test( const headers::Kind &kind, std::string_view steps )
{
    Stored stored{ .name = adopt( kind.nameString() ), .whole = {}, .lines = {} };
    headers::Raw raw = adopt( telsxMessageHeaderCreate( stored.name.get() ) );
    while ( !steps.empty() )
    {
        std::string_view step = steps.substr( 0, steps.find( '\n' ) );
        steps.remove_prefix( std::min( step.size() + 1, steps.size() ) );
        if ( step.starts_with( '+' ) && !stored.whole )
            telsxMessageHeaderAppendLine( raw.address(), text( step.substr( 1 ) ).get() );
        else if ( !step.empty() )
        {
            if ( !stored.whole )
            {
                stored.whole = adopt( telsxMessageHeaderStore( raw.get() ) );
                stored.lines = adopt( telsxMessageHeaderStoreLines( raw.get() ) );
                stored.length = headers::linesOf( raw );
            }
            damage( stored, step );
        }
    }
    if ( !stored.whole )
        return;
    testTyped( kind, stored.name, stored.lines );
    testRaw( stored.whole );
    rtStoreSetStoreCstr( stored.whole.address(), "lines", -1, stored.lines.get() );
    testRaw( stored.whole );
}

} // namespace

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    if ( size == 0 )
        return 0;
    std::string_view steps( reinterpret_cast<const char *>( data ) + 1, size - 1 );
    return run(
        [&]
        { forPicked( data[0], headers::all, [&]( const headers::Kind &kind ) { test( kind, steps ); } ); } );
}
