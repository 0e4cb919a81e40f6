// Operations on objects that several handles share, beside plain models of them: each handle holds what was
// done through it, and nothing of what was done through the others.
//
// The first byte picks the type; behind it stands one operation a line: a byte for the operation, one for the
// handle and the place in the object, and a text. Only the first operations of an input count.
#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "fuzz.hpp"
#include "rt/rt_text.hpp"

using namespace fuzz;

namespace
{

constexpr int mostSteps = 64;

struct Step
{
    char operation;
    std::size_t place;
    std::string_view bytes;

    // A place among so many; there must be one.
    int64_t below( std::size_t limit ) const { return static_cast<int64_t>( place % limit ); }
};

std::string utf8( const Ref<RT_STRING> &string )
{
    return std::string( bytes( adopt( rtCharsetStringToBuffer( RT_CHARSET_UTF8, string.get() ) ) ) );
}

std::string_view takeLine( std::string_view &lines )
{
    std::string_view line = lines.substr( 0, lines.find( '\n' ) );
    lines.remove_prefix( std::min( line.size() + 1, lines.size() ) );
    return line;
}

template <class HANDLE, class MODEL>
struct Side
{
    Ref<HANDLE> real;
    MODEL model{};
};

// CHANGE does a step to a side; SAME is whether a side is as its model.
template <class MODEL, class HANDLE, class CHANGE, class SAME>
void play( const Ref<HANDLE> &start, std::string_view lines, CHANGE change, SAME same )
{
    Side<HANDLE, MODEL> sides[] = { { start }, { start }, { start } };
    for ( int i = 0; i < mostSteps && !lines.empty(); ++i )
    {
        std::string_view line = takeLine( lines );
        if ( line.size() < 2 )
            continue;
        auto at = static_cast<uint8_t>( line[1] );
        if ( line[0] == '=' )
            sides[at % 3] = sides[at / 3 % 3];
        else
            change( sides[at % 3], Step{ line[0], at / 3u, line.substr( 2 ) } );
        for ( const auto &side : sides )
            require( same( side ), "a handle holds what was done through it and nothing else" );
    }
}

template <class LIST>
auto at( LIST &list, int64_t index )
{
    return list.begin() + index;
}

// Lists. READ makes a value of the text, or null; WRITE gives its text.
template <class HDR, class VALUE, class READ, class WRITE>
void playList( std::string_view lines, HDR ( *create )(), int64_t ( *length )( HDR ),
               VALUE ( *get )( HDR, int64_t ), void ( *set )( HDR *, int64_t, VALUE ),
               void ( *del )( HDR *, int64_t ), void ( *prepend )( HDR *, VALUE ),
               void ( *append )( HDR *, VALUE ), void ( *insert )( HDR *, int64_t, VALUE ), READ read,
               WRITE write )
{
    using Texts = std::vector<std::string>;
    auto change = [&]( Side<HDR, Texts> &side, const Step &step )
    {
        HDR *real = side.real.address();
        Texts &model = side.model;
        if ( step.operation == '-' )
        {
            if ( model.empty() )
                return;
            int64_t index = step.below( model.size() );
            del( real, index );
            model.erase( at( model, index ) );
            return;
        }
        // A value that doesn't come back from its own text is none for a list.
        Ref<VALUE> value = adopt( read( text( step.bytes ) ) );
        Ref<RT_STRING> written = value ? adopt( write( value.get() ) ) : Ref<RT_STRING>();
        Ref<VALUE> again = written ? adopt( read( written ) ) : Ref<VALUE>();
        if ( !again || adopt( write( again.get() ) ) != written )
            return;
        int64_t index = step.below( model.size() + 1 );
        switch ( step.operation )
        {
            case 'p':
                prepend( real, value.get() );
                model.insert( model.begin(), utf8( written ) );
                break;
            case 'i':
                insert( real, index, value.get() );
                model.insert( at( model, index ), utf8( written ) );
                break;
            case 's':
                if ( index == static_cast<int64_t>( model.size() ) )
                    break;
                set( real, index, value.get() );
                *at( model, index ) = utf8( written );
                break;
            default: append( real, value.get() ); model.push_back( utf8( written ) );
        }
    };
    auto same = [&]( const Side<HDR, Texts> &side )
    {
        Texts texts;
        for ( int64_t i = 0; i < length( side.real.get() ); ++i )
        {
            Ref<VALUE> value = adopt( get( side.real.get(), i ) );
            require( bool( value ), "a list gives back the values that it was given" );
            texts.push_back( utf8( adopt( write( value.get() ) ) ) );
        }
        return texts == side.model;
    };
    play<Texts>( adopt( create() ), lines, change, same );
}

// Sets of tokens, in the order in which they came.
template <class HDR>
void playSet( std::string_view lines, HDR ( *create )(), int64_t ( *length )( HDR ),
              RT_STRING ( *get )( HDR, int64_t ), RT_BOOL ( *has )( HDR, RT_STRING ),
              void ( *set )( HDR *, RT_STRING ), void ( *del )( HDR *, RT_STRING ),
              RT_BOOL ( *ok )( RT_STRING ) )
{
    using Texts = std::vector<std::string>;
    auto change = [&]( Side<HDR, Texts> &side, const Step &step )
    {
        Ref<RT_STRING> token = text( step.bytes );
        if ( !ok( token.get() ) )
            return;
        Ref<HDR> alone = adopt( create() );
        set( alone.address(), token.get() );
        std::string normal = utf8( adopt( get( alone.get(), 0 ) ) );
        auto found = std::ranges::find( side.model, normal );
        bool isThere = found != side.model.end();
        require( !has( side.real.get(), token.get() ) == !isThere, "a set has what was put into it" );
        if ( step.operation == '-' )
            del( side.real.address(), token.get() );
        else
            set( side.real.address(), token.get() );
        if ( step.operation == '-' && isThere )
            side.model.erase( found );
        if ( step.operation != '-' && !isThere )
            side.model.push_back( normal );
    };
    auto same = [&]( const Side<HDR, Texts> &side )
    {
        Texts texts;
        for ( int64_t i = 0; i < length( side.real.get() ); ++i )
            texts.push_back( utf8( adopt( get( side.real.get(), i ) ) ) );
        return texts == side.model;
    };
    play<Texts>( adopt( create() ), lines, change, same );
}

// Names and what stands under them, in the order in which the names came.
template <class VALUE>
class Entries
{
public:
    VALUE *find( const std::string &name )
    {
        auto found = std::ranges::find( entries, name, &Entry::first );
        return found == entries.end() ? nullptr : &found->second;
    }
    void set( const std::string &name, VALUE value )
    {
        if ( VALUE *there = find( name ) )
            *there = std::move( value );
        else
            entries.emplace_back( name, std::move( value ) );
    }
    void del( const std::string &name )
    {
        std::erase_if( entries, [&]( const Entry &entry ) { return entry.first == name; } );
    }
    auto begin() const { return entries.begin(); }
    auto end() const { return entries.end(); }

private:
    using Entry = std::pair<std::string, VALUE>;
    std::vector<Entry> entries;
};

void playGenericParams( std::string_view lines )
{
    using Params = Entries<std::string>;
    auto change = []( Side<TELSX_GENERIC_PARAMS, Params> &side, const Step &step )
    {
        Ref<RT_STRING> input = text( step.bytes );
        Ref<TELSX_GENERIC_PARAM> param = adopt( rt::textOf( input ).as( telsx___GenericParamTryDecode ) );
        if ( !param )
            return;
        Ref<RT_STRING> name = adopt( telsxGenericParamName( param.get() ) );
        require( !telsxGenericParamsHasParam( side.real.get(), name.get() )
                     == !side.model.find( utf8( name ) ),
                 "a set has the parameters that were put into it" );
        if ( step.operation == '-' )
        {
            telsxGenericParamsDelParam( side.real.address(), name.get() );
            side.model.del( utf8( name ) );
            return;
        }
        telsxGenericParamsSetParam( side.real.address(), param.get() );
        side.model.set( utf8( name ), utf8( adopt( telsx___GenericParamEncode( param.get() ) ) ) );
        // The set holds the parameter as it is now.
        telsxGenericParamDelValue( param.address() );
    };
    auto same = []( const Side<TELSX_GENERIC_PARAMS, Params> &side )
    {
        std::string whole;
        for ( const auto &[name, param] : side.model )
            whole += ";" + param;
        return utf8( adopt( telsx___GenericParamsEncode( side.real.get() ) ) ) == whole;
    };
    play<Params>( adopt( telsxGenericParamsCreate() ), lines, change, same );
}

using Lines = std::vector<std::string>;

Lines linesOf( TELSX_MESSAGE_HEADER header )
{
    Lines lines;
    for ( int64_t i = 0; i < telsxMessageHeaderLinesLength( header ); ++i )
        lines.push_back( utf8( adopt( telsxMessageHeaderLineAt( header, i ) ) ) );
    return lines;
}

void playHeader( std::string_view lines )
{
    using Header = std::pair<std::string, Lines>;
    auto change = []( Side<TELSX_MESSAGE_HEADER, Header> &side, const Step &step )
    {
        TELSX_MESSAGE_HEADER *real = side.real.address();
        auto &[name, model] = side.model;
        Ref<RT_STRING> value = text( step.bytes );
        int64_t index = model.empty() ? 0 : step.below( model.size() );
        switch ( step.operation )
        {
            case 'n':
                if ( !telsxMessageHeaderNameOk( value.get() ) )
                    break;
                telsxMessageHeaderSetName( real, value.get() );
                name = utf8( adopt( telsxMessageHeaderNameNormalize( value.get() ) ) );
                break;
            case '-':
                if ( model.empty() )
                    break;
                telsxMessageHeaderDelLineAt( real, index );
                model.erase( at( model, index ) );
                break;
            case 's':
                if ( model.empty() )
                    break;
                telsxMessageHeaderSetLineAt( real, index, value.get() );
                *at( model, index ) = utf8( value );
                break;
            case 'v':
            {
                // The vector is the caller's own from then on.
                Ref<RT_VECTOR> vector = adopt( telsxMessageHeaderLinesVector( *real ) );
                rtVectorPrependString( vector.address(), value.get() );
                telsxMessageHeaderSetLinesVector( real, vector.get() );
                rtVectorClear( vector.address() );
                model.insert( model.begin(), utf8( value ) );
                break;
            }
            default: telsxMessageHeaderAppendLine( real, value.get() ); model.push_back( utf8( value ) );
        }
    };
    auto same = []( const Side<TELSX_MESSAGE_HEADER, Header> &side )
    {
        std::string name = utf8( adopt( telsxMessageHeaderName( side.real.get() ) ) );
        return name == ( side.model.first.empty() ? "Plain" : side.model.first )
               && linesOf( side.real.get() ) == side.model.second;
    };
    play<Header>( adopt( telsxMessageHeaderCreateCstr( "Plain", -1 ) ), lines, change, same );
}

struct Message
{
    std::string startLine = "OPTIONS sip:a SIP/2.0";
    Entries<Lines> headers;
    std::optional<std::string> body;

    // What is sent.
    std::string encoded() const
    {
        std::string length = std::to_string( body ? body->size() : 0 ), text = startLine + "\r\n";
        Entries<Lines> all = headers;
        all.set( "Content-Length", { length } );
        for ( const auto &[name, lines] : all )
            for ( const std::string &line : lines )
                text += name + ": " + line + "\r\n";
        return text + "\r\n" + body.value_or( "" );
    }
};

void changeMessage( Side<TELSX_MESSAGE, Message> &side, const Step &step )
{
    static constexpr const char *names[] = { "Via", "x", "Content-Length", "m", "To" };
    Ref<TELSX_VERSION> version = adopt( telsxVersionCreateSip20() );
    TELSX_MESSAGE *real = side.real.address();
    const char *nameText = names[step.below( std::size( names ) )];
    Ref<RT_STRING> value = text( step.bytes ),
                   name = adopt( telsxMessageHeaderNameNormalize( text( nameText ).get() ) );
    Ref<TELSX_MESSAGE_HEADER> header = adopt( telsxMessageHeader( *real, name.get() ) );
    Lines *lines = side.model.headers.find( utf8( name ) );
    require( bool( header ) == bool( lines ), "a message has the headers that were put into it" );
    switch ( step.operation )
    {
        case 'q':
            if ( !telsxMethodOk( value.get() ) )
                break;
            telsxMessageSetRequest( real, version.get(), value.get(), text( "sip:b" ).get() );
            side.model.startLine = utf8( value ) + " sip:b SIP/2.0";
            break;
        case 'r':
            telsxMessageSetResponseWithReasonPhrase( real, version.get(), 200, text( "Yes" ).get() );
            side.model.startLine = "SIP/2.0 200 Yes";
            break;
        case 'b':
        {
            // The buffer is the caller's own from then on.
            Ref<RT_BUFFER> body = buffer( step.bytes );
            telsxMessageSetBody( real, body.get() );
            rtBufferAppendBytes( body.address(), "more", 4 );
            side.model.body = step.bytes;
            break;
        }
        case 'B':
            telsxMessageDelBody( real );
            side.model.body.reset();
            break;
        case '-':
            telsxMessageDelHeader( real, name.get() );
            side.model.headers.del( utf8( name ) );
            break;
        case 'f':
        {
            // A message keeps its fragment when the caller changes his.
            Ref<TELSX_MESSAGE_FRAGMENT> fragment = adopt( telsxMessageFragment( *real ) );
            side.real = adopt( telsxMessageCreate( fragment.get() ) );
            telsxMessageFragmentDelHeader( fragment.address(), name.get() );
            telsxMessageFragmentSetNeitherRequestNorResponse( fragment.address() );
            break;
        }
        default:
        {
            // One line more, or the first one. What is changed is the caller's header until it is set.
            if ( !header )
                header = adopt( telsxMessageHeaderCreate( name.get() ) );
            telsxMessageHeaderAppendLine( header.address(), value.get() );
            if ( step.operation == 'x' )
                break;
            telsxMessageSetHeader( real, header.get() );
            telsxMessageHeaderSetNameCstr( header.address(), "Other", -1 );
            Lines longer = lines ? *lines : Lines();
            longer.push_back( utf8( value ) );
            side.model.headers.set( utf8( name ), longer );
        }
    }
}

void playMessage( std::string_view lines )
{
    auto same = []( const Side<TELSX_MESSAGE, Message> &side )
    { return bytes( adopt( telsxMessageEncode( side.real.get() ) ) ) == side.model.encoded(); };
    Ref<TELSX_VERSION> version = adopt( telsxVersionCreateSip20() );
    play<Message>(
        adopt( telsxMessageCreateRequestCstr( version.get(), "OPTIONS", -1, text( "sip:a" ).get() ) ), lines,
        changeMessage, same );
}

void playCodings( std::string_view lines )
{
    playList(
        lines, telsxHeaderContentEncodingCreate, telsxHeaderContentEncodingContentCodingsLength,
        telsxHeaderContentEncodingContentCodingAt, telsxHeaderContentEncodingSetContentCodingAt,
        telsxHeaderContentEncodingDelContentCodingAt, telsxHeaderContentEncodingPrependContentCoding,
        telsxHeaderContentEncodingAppendContentCoding, telsxHeaderContentEncodingInsertContentCoding,
        []( const Ref<RT_STRING> &from )
        { return telsxContentCodingOk( from.get() ) ? from.retained() : nullptr; },
        telsxContentCodingNormalize );
}

// clang-format off
#define TELSX_KIND( NAME, SORT, SIP_NAME )
#define TELSX_KIND_OF_VALUES( NAME, SORT, SIP_NAME, WORD, VALUE )                                               \
    []( std::string_view lines )                                                                                \
    {                                                                                                           \
        playList( lines, telsx##NAME##Create, telsx##NAME##WORD##sLength, telsx##NAME##TryDecode##WORD##At,     \
                  telsx##NAME##Set##WORD##At, telsx##NAME##Del##WORD##At, telsx##NAME##Prepend##WORD,           \
                  telsx##NAME##Append##WORD, telsx##NAME##Insert##WORD,                                         \
                  []( const Ref<RT_STRING> &from ) { return rt::textOf( from ).as( telsx___##VALUE##TryDecode ); }, \
                  telsx___##VALUE##Encode );                                                                    \
    },
constexpr void ( *lists[] )( std::string_view lines ) = {
#include "telsx/telsx_headers.def"
    playCodings,
};

// Content-Encoding is a list, with functions of another shape.
#define PLAY_SET( NAME, WORD ) \
    []( std::string_view lines ) \
    { \
        playSet( lines, telsx##NAME##Create, telsx##NAME##WORD##sLength, telsx##NAME##WORD##At, \
                 telsx##NAME##Has##WORD, telsx##NAME##Set##WORD, telsx##NAME##Del##WORD, telsx##WORD##Ok ); \
    },
constexpr void ( *sets[] )( std::string_view lines ) = {
    PLAY_SET( HeaderAllow, Method )
    PLAY_SET( HeaderAllowEvents, EventType )
    PLAY_SET( HeaderInReplyTo, CallId )
    PLAY_SET( HeaderPrivacy, PrivValue )
    PLAY_SET( HeaderProxyRequire, OptionTag )
    PLAY_SET( HeaderRequire, OptionTag )
    PLAY_SET( HeaderSupported, OptionTag )
    PLAY_SET( HeaderUnsupported, OptionTag )
};
// clang-format on

constexpr void ( *others[] )( std::string_view lines ) = { playGenericParams, playHeader, playMessage };

} // namespace

int LLVMFuzzerTestOneInput( const uint8_t *data, std::size_t size )
{
    if ( size == 0 )
        return 0;
    std::string_view lines( reinterpret_cast<const char *>( data ) + 1, size - 1 );
    return run(
        [&]
        {
            uint8_t picked = data[0];
            auto test = [&]( auto *type ) { type( lines ); };
            if ( picked < 0x40 || picked == '~' )
                forPicked( picked, others, test );
            if ( ( picked >= 0x40 && picked < 0xA0 ) )
                forPicked( picked, lists, test );
            if ( picked >= 0xA0 || picked == '~' )
                forPicked( picked, sets, test );
        } );
}
