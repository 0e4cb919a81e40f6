// Changes to lists and sets, what they share with the raw header, and the star.
#include "rt/model.hpp"
#include "telsx/samples.hpp"

using namespace support;

namespace
{

using Strings = std::vector<std::string>;

// A kind that is a list or a set.
struct List : headers::Kind
{
    Ref<RT_OBJ> read( const OptionalText &lines ) const { return support::read( *this, lines ); }
    std::string lines( const Ref<RT_OBJ> &hdr ) const { return write( *this, hdr ); }
    std::string text( const Ref<RT_OBJ> &of ) const
    {
        if ( !of )
            return "(null)";
        return vector ? utf8( rtStringFrom( of.retained() ) ) : write( named( values::all, item ), of );
    }
    Strings texts( const Ref<RT_OBJ> &hdr ) const
    {
        Strings all;
        for ( int64_t i = 0; i < length( hdr.get() ); ++i )
            all.push_back( text( adopt( at( hdr.get(), i ) ) ) );
        return all;
    }
    // Values from the rows of their type that are read back from what they are written as; texts from the rows of the
    // header, in other cases too.
    std::vector<Ref<RT_OBJ>> samples() const
    {
        std::vector<Ref<RT_OBJ>> found;
        auto takeValue = [&]( const OptionalText &, const OptionalText &written )
        {
            Ref<RT_OBJ> value =
                written ? support::read( named( values::all, item ), written ) : Ref<RT_OBJ>();
            if ( value && text( value ) == written )
                found.push_back( value );
        };
        auto takeTexts = [&]( const OptionalText &lines, const OptionalText & )
        {
            Ref<RT_OBJ> hdr = read( lines );
            for ( int64_t i = 0; hdr && i < length( hdr.get() ); ++i )
                found.push_back( adopt( at( hdr.get(), i ) ) );
        };
        for ( const Texts &texts : vector ? headerTexts : valueTexts )
            if ( texts.areFor( std::string( vector ? name : item ) ) )
                vector ? forEach( texts, takeTexts ) : forEach( texts, takeValue );
        for ( std::size_t i = found.size(); vector && i--; )
        {
            Ref<RT_STRING> upper = adopt( rtStringFrom( found[i].retained() ) );
            rtStringToUpper( upper.address() );
            found.push_back( adopt( rtStringObj( upper.take() ) ) );
        }
        return found;
    }
};

std::vector<List> allLists()
{
    std::vector<List> found;
    for ( const headers::Kind &kind : headers::all )
        if ( kind.at )
            found.push_back( { kind } );
    return found;
}
const std::vector<List> lists = allLists();

using Side = model::Side<RT_OBJ, Strings>;

void changeList( const List &list, const Ref<RT_OBJ> &item, Side &side, model::Random &random )
{
    RT_OBJ *hdr = side.real.address();
    Strings &texts = side.model;
    Ref<RT_OBJ> alone = adopt( list.create() );
    list.append( alone.address(), item.get() );
    const std::string text = list.texts( alone ).at( 0 ); // its normal form
    int64_t index = random.upTo( texts.size() );
    auto at = texts.begin() + index;
    const std::function<void()> actions[] = {
        [&] { list.append( hdr, item.get() ), texts.push_back( text ); },
        [&] { list.prepend( hdr, item.get() ), texts.insert( texts.begin(), text ); },
        [&] { list.insert( hdr, index, item.get() ), texts.insert( at, text ); },
        [&]
        {
            if ( at != texts.end() )
                list.set( hdr, index, item.get() ), *at = text;
        },
        [&]
        {
            if ( at != texts.end() )
                list.del( hdr, index ), texts.erase( at );
        },
    };
    random.act( actions );
}

void changeSet( const List &set, const Ref<RT_OBJ> &item, Side &side, model::Random &random )
{
    Ref<RT_OBJ> alone = adopt( set.create() );
    set.add( alone.address(), item.get() );
    const std::string text = set.texts( alone ).at( 0 );
    auto at = std::ranges::find( side.model, text );
    bool isThere = at != side.model.end();
    EXPECT_EQ( isThere, bool( set.has( side.real.get(), item.get() ) ) ) << text;
    if ( random.below( 3 ) )
    {
        set.add( side.real.address(), item.get() );
        if ( !isThere )
            side.model.push_back( text );
        return;
    }
    set.remove( side.real.address(), item.get() );
    if ( isThere )
        side.model.erase( at );
}

} // namespace

// A header that was read keeps more than one that was made, so it is read anew now and then.
TEST( Lists, ActLikeTheirModels )
{
    for ( const List &list : lists )
    {
        SCOPED_TRACE( list.name );
        const std::vector<Ref<RT_OBJ>> samples = list.samples();
        ASSERT_GT( samples.size(), 1u ) << "rows_headers.def and rows_values.def need rows for " << list.name;
        auto step = [&]( Side &side, const Side &other, model::Random &random )
        {
            const Ref<RT_OBJ> &item = samples[random.below( std::ssize( samples ) )];
            int64_t what = random.below( 16 );
            if ( what == 0 || side.model.size() > 12 )
                list.clear( side.real.address() ), side.model.clear();
            else if ( what == 1 && side.model.size() )
                side.real = list.read( list.lines( side.real ) );
            else if ( what == 2 && list.vector )
                list.setVector( side.real.address(), adopt( list.vector( other.real.get() ) ).get() ),
                    side.model = other.model;
            else
                ( list.add ? changeSet : changeList )( list, item, side, random );
        };
        auto same = [&]( const Side &side ) { EXPECT_EQ( side.model, list.texts( side.real ) ); };
        model::run<Strings>( adopt( list.create() ), 500, step, same );
    }
}

TEST( Lists, AbortForBrokenContracts )
{
    for ( const List &list : lists )
    {
        SCOPED_TRACE( list.name );
        Ref<RT_OBJ> hdr = adopt( list.create() ), item = list.samples().at( 0 ),
                    bad = adopt( rtStringObj( str( "a b" ).take() ) );
        RT_OBJ none = nullptr;
        EXPECT_ABORT( list.length( nullptr ), "hdr" );
        EXPECT_ABORT( list.at( nullptr, 0 ), "hdr" );
        EXPECT_DEATH( list.at( hdr.get(), 0 ), "index" );
        EXPECT_ABORT( list.clear( nullptr ), "hdr" );
        EXPECT_ABORT( list.clear( &none ), "*hdr" );
        if ( list.add )
        {
            std::string condition = "telsx" + std::string( list.item ) + "Ok( element )";
            EXPECT_ABORT( list.has( nullptr, item.get() ), "hdr" );
            EXPECT_ABORT( list.add( nullptr, item.get() ), "hdr" );
            EXPECT_ABORT( list.has( hdr.get(), bad.get() ), condition );
            EXPECT_ABORT( list.add( hdr.address(), bad.get() ), condition );
            EXPECT_ABORT( list.remove( hdr.address(), bad.get() ), condition );
            EXPECT_ABORT( list.setVector( &none, nullptr ), "vec" );
            continue;
        }
        list.append( hdr.address(), item.get() );
        EXPECT_DEATH( list.set( hdr.address(), 1, item.get() ), "rt_vector.*index" );
        EXPECT_DEATH( list.del( hdr.address(), -1 ), "rt_vector.*index" );
        EXPECT_DEATH( list.insert( hdr.address(), 2, item.get() ), "rt_vector.*index" );
        EXPECT_ABORT( list.del( nullptr, 0 ), "hdr" );
        const std::function<void( RT_OBJ * )> changes[] = {
            [&]( RT_OBJ *of ) { list.set( of, 0, nullptr ); },
            [&]( RT_OBJ *of ) { list.insert( of, 0, nullptr ); },
            [&]( RT_OBJ *of ) { list.append( of, nullptr ); },
            [&]( RT_OBJ *of ) { list.prepend( of, nullptr ); },
        };
        for ( auto &change : changes )
        {
            EXPECT_ABORT( change( nullptr ), "hdr" );
            EXPECT_ABORT( change( &none ), "*hdr" );
            EXPECT_DEATH( change( hdr.address() ), "source/[a-z_/]*:[0-9]*: [a-zA-Z]+\n" );
        }
    }
}

// The vector of a set may hold anything that has a text, that of a list only strings.
TEST( Kinds, Sets )
{
    Ref<RT_VECTOR> vector = adopt( rtVectorCreate() ), texts = vector;
    for ( const char *text : { "X", "x" } )
        rtVectorAppendString( texts.address(), str( text ).get() );
    rtVectorAppend( vector.address(), rt::asObj( sample<TELSX_HEADER_PRIORITY>().get() ) );
    Ref<RT_VECTOR> bad = vector;
    rtVectorAppend( bad.address(), rt::asObj( sample<TELSX_HEADER_CSEQ>().get() ) );
    for ( const List &list : lists )
    {
        if ( !list.vector || !list.read( "x" ) ) // a resource value is more than a word
            continue;
        Ref<RT_OBJ> hdr = adopt( list.create() );
        list.setVector( hdr.address(), texts.get() );
        Strings set = list.texts( hdr );
        EXPECT_EQ( list.add && set.at( 0 ) == "x" ? 1u : 2u, set.size() ) << list.name;
        EXPECT_EQ( set.back(), "x" ) << list.name;
        if ( list.add )
        {
            list.setVector( hdr.address(), vector.get() );
            EXPECT_EQ( Strings{ "non-urgent" }, list.texts( hdr ) ) << list.name;
        }
        EXPECT_DEATH( list.setVector( hdr.address(), bad.get() ),
                      list.add ? "telsx" + std::string( list.item ) + "Ok.* element "
                               : ": rtVectorContainsOnly.* vec, rtStringSort" );
    }
    EXPECT_EQ( read( named( headers::all, "Allow" ), "a,b" ),
               read( named( headers::all, "Allow" ), "b\na" ) );
}

// A value that passes in the list may be bad for its decoder. The others remain, and all go out as they came until one
// is set: one set from an object is in its normal form.
TEST( Lists, KeepTextsAndNotObjects )
{
    auto hdr =
             adopt( telsxHeaderAcceptTryDecode( header( "Accept", { "A/B;Q=1, a/b;q=1.5", "a/b" } ).get() ) ),
         other = hdr;
    EXPECT_FALSE( adopt( telsxHeaderAcceptTryDecodeAcceptAt( hdr.get(), 1 ) ) );
    auto accept = adopt( telsxHeaderAcceptTryDecodeAcceptAt( hdr.get(), 0 ) );
    telsxHeaderAcceptSetAcceptAt( hdr.address(), 0, accept.get() );
    telsxAcceptDelQvalue( accept.address() );
    EXPECT_EQ( "a/b;q=1.000, a/b;q=1.5, a/b", utf8( telsxHeaderAcceptToString( hdr.get() ) ) );
    EXPECT_EQ( "A/B;Q=1, a/b;q=1.5, a/b", utf8( telsxHeaderAcceptToString( other.get() ) ) );
    EXPECT_NE( hdr, other );
}

TEST( Lists, OfViaAndWarningAreRestoredWithoutLines )
{
    for ( const List &list : lists )
        for ( RT_STORE store : { rtStoreCreate(), list.store( adopt( list.create() ).get() ) } )
        {
            Ref<RT_OBJ> restored = adopt( list.tryRestore( adopt( store ).get() ) );
            EXPECT_EQ( list.name == "Via" || list.name == "Warning", bool( restored ) ) << list.name;
            EXPECT_TRUE( !restored || list.length( restored.get() ) == 0 ) << list.name;
        }
}

// A line with one value is kept as it is, values of longer lines share its text, and a change leaves the lines alone.
TEST( Lists, ShareTheTextOfTheLines )
{
    auto lineAt = []( const headers::Raw &raw, int64_t index )
    { return adopt( telsxMessageHeaderLineAt( raw.get(), index ) ); };
    for ( const List &list : lists )
    {
        SCOPED_TRACE( list.name );
        if ( list.vector )
            continue;
        std::string value = sampleValue( list.item ), two = value + ";y=" + std::string( 40, 'a' );
        bool hasParams = bool( list.read( two ) );
        two = hasParams ? two + ", " + two : value + "," + value;
        headers::Raw raw = rawHeader( list.name, value + "\n" + two );
        Ref<RT_OBJ> hdr = adopt( list.tryDecode( raw.get() ) );
        ASSERT_TRUE( hdr );
        headers::Raw encoded = adopt( list.encode( hdr.get() ) );
        EXPECT_EQ( lineAt( raw, 0 ).get(), lineAt( encoded, 0 ).get() );
        Text line = rt::textOf( lineAt( raw, 1 ) ), part = rt::textOf( lineAt( encoded, 2 ) );
        EXPECT_TRUE( !hasParams || line.chs + line.length == part.chs + part.length );

        std::string before = linesOf( raw ), encodedBefore = linesOf( encoded );
        list.del( hdr.address(), 1 );
        EXPECT_EQ( before, linesOf( raw ) );
        EXPECT_EQ( encodedBefore, linesOf( encoded ) );
    }
}

TEST( Lists, ContactIsAStarOrAList )
{
    Ref<TELSX_HEADER_CONTACT> hdr = adopt( telsxHeaderContactCreate() ), empty = hdr;
    Ref<TELSX_CONTACT> contact = adopt( telsxContactCreate( str( "sip:a" ).get() ) );
    auto expectForm = [&]( RT_BOOL starForm, const char *text )
    {
        EXPECT_EQ( starForm, telsxHeaderContactIsStarForm( hdr.get() ) );
        EXPECT_EQ( text, utf8( telsxHeaderContactToString( hdr.get() ) ) );
        EXPECT_FALSE( telsxHeaderContactIsStarForm( empty.get() ) );
    };
    expectForm( 0, "" );
    telsxHeaderContactSetStarForm( hdr.address(), -2 );
    expectForm( 1, "*" );
    EXPECT_EQ( 0, telsxHeaderContactContactsLength( hdr.get() ) );
    EXPECT_EQ( empty, hdr ) << "the star takes no part in comparison";
    Ref<RT_STORE> store = adopt( telsxHeaderContactStore( hdr.get() ) );
    EXPECT_TRUE( telsxHeaderContactIsStarForm( adopt( telsxHeaderContactTryRestore( store.get() ) ).get() ) );
    EXPECT_TRUE( telsxHeaderContactIsStarForm( adopt( telsxHeaderContactCreateFrom( hdr.get() ) ).get() ) );
    EXPECT_DEATH( telsxHeaderContactDelContactAt( hdr.address(), 0 ), "index" );

    // A value replaces the star, and the star replaces the values.
    for ( auto *add : { telsxHeaderContactAppendContact, telsxHeaderContactPrependContact,
                        +[]( TELSX_HEADER_CONTACT *to, TELSX_CONTACT value )
                        { telsxHeaderContactInsertContact( to, 0, value ); } } )
    {
        telsxHeaderContactSetStarForm( hdr.address(), 1 );
        add( hdr.address(), contact.get() );
        expectForm( 0, "<sip:a>" );
        telsxHeaderContactSetStarForm( hdr.address(), 1 );
        expectForm( 1, "*" );
        telsxHeaderContactClear( hdr.address() );
        expectForm( 0, "" );
        add( hdr.address(), contact.get() );
        telsxHeaderContactSetStarForm( hdr.address(), 0 );
        expectForm( 0, "" );
    }

    TELSX_HEADER_CONTACT none = nullptr;
    EXPECT_ABORT( telsxHeaderContactIsStarForm( nullptr ), "hdr" );
    EXPECT_ABORT( telsxHeaderContactSetStarForm( nullptr, 1 ), "hdr" );
    EXPECT_ABORT( telsxHeaderContactSetStarForm( &none, 1 ), "*hdr" );
}

// A Via header keeps its first value decoded. It must be what the value's text decodes to, even if a decoder that looks
// for names stops inside what a skipper takes for a value.
TEST( ViaList, KeepsItsFirstValueAsItsTextIsDecoded )
{
    struct
    {
        const char *line;
        int64_t count; // -1: no list at all
        bool firstIsGood;
    } cases[] = {
        { "SIP/2.0/UDP a", 1, true },
        { "SIP/2.0/UDP a:5060;branch=b , SIP/2.0/TCP c", 2, true },
        { "SIP / 2.0 / udp a ; ttl = 1 ; received = ::1,SIP/2.0/TCP c", 2, true },
        { "SIP/2.0/UDP a;maddr=b_c, SIP/2.0/TCP c", 2, false },
        { "SIP/2.0/UDP a;ttl=1x", 1, false },
        { "SIP/2.0/UDP a;ttl=300;rport=99999999999999999999,SIP/2.0/TCP c", 2, true },
        { "SIP/2.0/UDP a;rportx;rport=1x", 1, false },
        { "SIP/2.0/UDP a;x=\"y,z\";y", 1, true },
        { "SIP/2.0/UDP xn--a,SIP/2.0/TCP c", 2, true },
        { "SIP/2.0/UDP a;,SIP/2.0/TCP c", -1, false },
        { "SIP/2.0/UDP a;received=1.2.3.4x", -1, false },
        { "SIP/2.0/UDP a;branch=b x", -1, false },
        { "SIP/2.0/UDP a,", -1, false },
    };
    for ( auto &[line, count, firstIsGood] : cases )
    {
        auto msg = adopt( telsxMessageTryDecode(
            buffer( "OPTIONS sip:a SIP/2.0\r\nVia: " + std::string( line ) + "\r\n\r\n" ).get() ) );
        auto list = adopt( telsxHeaderViaTryDecodeFromMessage( msg.get() ) );
        ASSERT_EQ( count != -1, bool( list ) ) << line;
        if ( !list )
            continue;
        EXPECT_EQ( count, telsxHeaderViaViasLength( list.get() ) ) << line;
        auto value =
            adopt( telsxMessageHeaderLineAt( adopt( telsxHeaderViaEncode( list.get() ) ).get(), 0 ) );
        auto first = adopt( telsxHeaderViaTryDecodeViaAt( list.get(), 0 ) );
        EXPECT_EQ( firstIsGood, bool( first ) ) << line;
        EXPECT_EQ(
            adopt( telsx___ViaTryDecode( rtStringBacking( value.get() ), rtStringLength( value.get() ) ) ),
            first )
            << line;
        EXPECT_TRUE( !first || rt::asObj( first.get() )->count == 1 ) << "each reading gives its own";
    }
}
