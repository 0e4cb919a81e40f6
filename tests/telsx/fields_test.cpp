// The fields of headers and values: setters, getters and deleters.
#include <functional>

#include "telsx/object_tables.hpp"

using namespace support;

namespace
{

// Its functions, what the getter gives when it is set, what the object is written as then, and what the setter says to
// a bad value.
template <class HANDLE>
struct Field
{
    const char *word;
    std::function<void( HANDLE *object )> set;
    std::string ( *get )( HANDLE object );
    std::string got, written;
    std::function<void( HANDLE *object )> setBad;
    std::string condition;
    // Of a field that may be absent
    RT_BOOL ( *has )( HANDLE object ) = nullptr;
    void ( *del )( HANDLE *object ) = nullptr;
    // Of the parameters
    void ( *setParams )( HANDLE *object, TELSX_GENERIC_PARAMS params ) = nullptr;
};

Ref<TELSX_GENERIC_PARAMS> params( std::string_view text )
{
    return adopt( applied( telsx___GenericParamsTryDecode, text ) );
}

template <class HANDLE, class WRITE>
void expectIsSet( const Ref<HANDLE> &object, WRITE write, const Field<HANDLE> &field,
                  const std::string &self )
{
    std::string before = write( object.get() );
    Ref<HANDLE> changed = object;
    field.set( changed.address() );
    EXPECT_EQ( field.written, write( changed.get() ) );
    EXPECT_EQ( field.got, field.get( changed.get() ) );
    EXPECT_EQ( before, write( object.get() ) ) << "the other holder sees nothing";
    HANDLE held = changed.get(), none = nullptr;
    field.set( changed.address() );
    EXPECT_EQ( held, changed.get() ) << "the only holder's object is changed in place";

    EXPECT_ABORT( field.get( nullptr ), self );
    EXPECT_ABORT( field.set( nullptr ), self );
    EXPECT_ABORT( field.set( &none ), "*" + self );
    EXPECT_ABORT( field.setBad( changed.address() ), field.condition );
}

template <class HANDLE, class WRITE>
void expectIsDeleted( const Ref<HANDLE> &object, WRITE write, const Field<HANDLE> &field,
                      const std::string &self )
{
    EXPECT_FALSE( field.has( object.get() ) );
    Ref<HANDLE> changed = object;
    field.set( changed.address() );
    EXPECT_TRUE( field.has( changed.get() ) );
    Ref<HANDLE> other = changed;
    for ( int i = 0; i < 2; ++i )
    {
        field.del( changed.address() );
        EXPECT_EQ( field.written, write( other.get() ) );
        EXPECT_FALSE( field.has( changed.get() ) );
        EXPECT_EQ( field.get( object.get() ), field.get( changed.get() ) );
        EXPECT_EQ( write( object.get() ), write( changed.get() ) );
    }
    HANDLE none = nullptr;
    EXPECT_ABORT( field.has( nullptr ), self );
    EXPECT_ABORT( field.del( nullptr ), self );
    EXPECT_ABORT( field.del( &none ), "*" + self );
}

// A field that is written as a parameter hides one of its name, which stays in the set and is there again without it.
template <class HANDLE, class WRITE>
void expectHides( Ref<HANDLE> object, WRITE write, const Field<HANDLE> &field,
                  const Field<HANDLE> &paramsField )
{
    std::string front = write( object.get() ) + ";";
    if ( !field.written.starts_with( front ) )
        return;
    std::string name = field.written.substr( front.size() );
    name.resize( std::min( name.find( '=' ), name.size() ) );
    paramsField.setParams( object.address(), params( ";" + name + "=[::1];y" ).get() );
    EXPECT_FALSE( field.has( object.get() ) );
    field.set( object.address() );
    EXPECT_EQ( field.written + ";y", write( object.get() ) );
    field.del( object.address() );
    EXPECT_EQ( front + name + "=[::1];y", write( object.get() ) );
}

template <class HANDLE, class WRITE>
void expectFields( const Ref<HANDLE> &object, WRITE write, const std::string &self,
                   std::initializer_list<Field<HANDLE>> fields )
{
    for ( const Field<HANDLE> &field : fields )
    {
        SCOPED_TRACE( field.word );
        expectIsSet( object, write, field, self );
        if ( !field.has )
            continue;
        expectIsDeleted( object, write, field, self );
        for ( const Field<HANDLE> &paramsField : fields )
            if ( paramsField.setParams )
                expectHides( object, write, field, paramsField );
    }
}

} // namespace

// clang-format off
#define FIELD( NAME, WORD, GOOD, GOT, WRITTEN, BAD, CONDITION, ... ) \
    { #NAME #WORD, \
      [&]( auto *object ) { telsx##NAME##Set##WORD( object, GOOD ); }, \
      []( auto object ) { return shown( telsx##NAME##WORD( object ) ); }, GOT, WRITTEN, \
      [&]( auto *object ) { telsx##NAME##Set##WORD( object, BAD ); }, CONDITION __VA_ARGS__ }
#define OPTION( NAME, WORD, GOOD, GOT, WRITTEN, BAD, CONDITION ) \
    FIELD( NAME, WORD, GOOD, GOT, WRITTEN, BAD, CONDITION, , telsx##NAME##Has##WORD, telsx##NAME##Del##WORD )
#define NUMBER( NAME, WORD, GOOD, WRITTEN, BAD, CONDITION ) \
    FIELD( NAME, WORD, GOOD, #GOOD, WRITTEN, BAD, CONDITION )
#define NUMBER_OPTION( NAME, WORD, GOOD, WRITTEN, BAD, CONDITION ) \
    OPTION( NAME, WORD, GOOD, #GOOD, WRITTEN, BAD, CONDITION )
#define TEXT( NAME, WORD, GOOD, GOT, WRITTEN, BAD, CONDITION ) \
    FIELD( NAME, WORD, str( GOOD ).get(), GOT, WRITTEN, str( BAD ).get(), CONDITION )
#define TEXT_OPTION( NAME, WORD, GOOD, GOT, WRITTEN, BAD, CONDITION ) \
    OPTION( NAME, WORD, str( GOOD ).get(), GOT, WRITTEN, str( BAD ).get(), CONDITION )
#define PARAMS( NAME, FRONT, CONDITION ) \
    FIELD( NAME, GenericParams, params( ";A=B" ).get(), ";a=B", FRONT ";a=B", nullptr, CONDITION, , \
           nullptr, nullptr, telsx##NAME##SetGenericParams )
#define IRI( NAME, BEHIND ) \
    TEXT( NAME, Iri, "sip:ü@b", "sip:ü@b", "<sip:%C3%BC@b>" BEHIND, "b", "telsxIriOk( iri )" )
#define DISPLAY_NAME( NAME, BEHIND ) \
    TEXT_OPTION( NAME, DisplayName, "", "", "\"\" <sip:a>" BEHIND, "\n", "telsxDisplayNameOk( displayName )" )
#define PARTY( NAME ) IRI( NAME, "" ), DISPLAY_NAME( NAME, "" ), PARAMS( NAME, "<sip:a>", "genericParams" )
// clang-format on

TEST( Fields, AreSetReadAndDeleted )
{
    Ref<RT_STRING> iri = str( "sip:a" );
    Ref<TELSX_VERSION> sip20 = adopt( telsxVersionCreateSip20() ),
                       tls10 = adopt( applied( telsx___VersionTryDecode, "TLS/1.0" ) );
    Ref<RT_TIME> time = adopt( rtTimeCreate() );
    rtTimeSetYear( time.address(), 2010 );
    rtTimeSetMonth( time.address(), 11 );
    rtTimeSetDay( time.address(), 13 );
    Ref<RT_STRING> half = str( "a" ); // of a character
    rtStringSetCharAt( half.address(), 0, 0xD800 );
    Ref<NET_ADDRESS> address = adopt( applied( netAddressTryCreateFromChars, "2001:0DB8::1" ) );
#define HEADER( NAME, SELF, CREATED, ... )                                                            \
    expectFields(                                                                                     \
        adopt( CREATED ),                                                                             \
        []( auto hdr )                                                                                \
        { return utf8( telsxMessageHeaderLineAt( adopt( telsx##NAME##Encode( hdr ) ).get(), 0 ) ); }, \
        SELF, { __VA_ARGS__ } );
#define VALUE( NAME, SELF, CREATED, ... )                                                                 \
    expectFields( adopt( CREATED ), []( auto value ) { return utf8( telsx___##NAME##Encode( value ) ); }, \
                  SELF, { __VA_ARGS__ } );
#include "telsx/rows_fields.def"
}

TEST( Fields, MustBeGoodInNewObjects )
{
    Ref<TELSX_VERSION> sip = adopt( telsxVersionCreateSip20() );
    Ref<RT_STRING> good = str( "a" ), iri = str( "sip:a" ), bad = str( "a\n" );
#define EXPECT_BAD( CONDITION, NAME, ... ) EXPECT_ABORT( telsx##NAME( __VA_ARGS__ ), CONDITION )
    EXPECT_BAD( "telsxDeltaSecondsOk( deltaSeconds )", HeaderExpiresCreate, -1 );
    EXPECT_BAD( "telsxMaxForwardsOk( maxForwards )", HeaderMaxForwardsCreate, 256 );
    EXPECT_BAD( "telsxResponseNumOk( responseNum )", HeaderRseqCreate, 0 );
    EXPECT_BAD( "telsxResponseNumOk( responseNum )", HeaderRackCreate, 0, -1, nullptr );
    EXPECT_BAD( "telsxCseqOk( cseq )", HeaderCseqCreate, -1, bad.get() );
    EXPECT_BAD( "telsxMethodOk( method )", HeaderCseqCreate, 0, bad.get() );
    EXPECT_BAD( "telsxCallIdOk( callId )", HeaderCallIdCreate, bad.get() );
    EXPECT_BAD( "telsxEventTypeOk( eventType )", HeaderEventCreate, bad.get() );
    EXPECT_BAD( "telsxSubstateValueOk( substateValue )", HeaderSubscriptionStateCreate, bad.get() );
    EXPECT_BAD( "telsxDispositionTypeOk( dispositionType )", HeaderContentDispositionCreate, bad.get() );
    EXPECT_BAD( "telsxPriorityValueOk( priorityValue )", HeaderPriorityCreate, bad.get() );
    EXPECT_BAD( "subject", HeaderSubjectCreate, nullptr );
    EXPECT_BAD( "telsxIriOk( iri )", HeaderFromCreate, bad.get() );
    EXPECT_BAD( "version", ViaCreate, nullptr, good.get(), good.get() );
    EXPECT_BAD( "telsxTransportOk( transport )", ViaCreate, sip.get(), bad.get(), good.get() );
    EXPECT_BAD( "telsxHostOk( host )", ViaCreate, sip.get(), good.get(), bad.get() );
    EXPECT_BAD( "telsxPortOk( port )", ViaCreateWithPort, sip.get(), good.get(), good.get(), -1 );
    EXPECT_BAD( "telsxHostOk( host )", SipIriCreate, bad.get() );
    EXPECT_BAD( "telsxTelIriNumberOk( number )", TelIriCreate, bad.get() );
    EXPECT_BAD( "telsxIriOk( iri )", ContactCreate, bad.get() );
    EXPECT_BAD( "telsxIriOk( iri )", AlertInfoCreate, bad.get() );
    EXPECT_BAD( "telsxDisplayNameOk( displayName )", DiversionCreateWithDisplayName, iri.get(), bad.get() );
    EXPECT_BAD( "telsxIriOk( iri )", HistoryInfoCreate, bad.get(), bad.get() );
    EXPECT_BAD( "telsxHistoryInfoIndexOk( index )", HistoryInfoCreate, iri.get(), bad.get() );
    EXPECT_BAD( "telsxReasonProtocolOk( reasonProtocol )", ReasonCreate, bad.get() );
    EXPECT_BAD( "telsxContentCodingOk( contentCoding )", AcceptEncodingCreateWithContentCoding, bad.get() );
    EXPECT_BAD( "telsxWarnCodeOk( warnCode )", WarningValueCreate, -1, bad.get() );
    EXPECT_BAD( "telsxWarnAgentOk( warnAgent )", WarningValueCreate, 0, bad.get() );
    EXPECT_BAD( "telsxWarnTextOk( warnText )", WarningValueCreateWithWarnText, 0, good.get(), bad.get() );
    EXPECT_BAD( "telsxProtocolVersionOk( protocolVersion )", VersionCreate, good.get(), bad.get() );
#undef EXPECT_BAD
}

// What there are other functions for than for most fields.

TEST( Fields, OfCseqAreSetInThreeForms )
{
    Ref<TELSX_HEADER_CSEQ> original = adopt( telsxHeaderCseqCreate( 1, str( "ACK" ).get() ) ),
                           changed = original;
    telsxHeaderCseqSetCseq( changed.address(), 2147483647 );
    telsxHeaderCseqSetMethodCstr( changed.address(), "byes", 3 );
    EXPECT_EQ( "2147483647 bye", utf8( telsxHeaderCseqToString( changed.get() ) ) );
    telsxHeaderCseqSetMethodWcstr( changed.address(), L"BYE", -1 );
    EXPECT_EQ( "BYE", utf8( telsxHeaderCseqMethod( changed.get() ) ) );
    EXPECT_EQ( 2147483647, telsxHeaderCseqCseq( changed.get() ) );
    EXPECT_EQ( "1 ACK", utf8( telsxHeaderCseqToString( original.get() ) ) );

    TELSX_HEADER_CSEQ none = nullptr;
    Ref<RT_STRING> bad = str( "a b" );
    EXPECT_ABORT( telsxHeaderCseqCseq( nullptr ), "hdr" );
    EXPECT_ABORT( telsxHeaderCseqSetCseq( nullptr, 1 ), "cs" );
    EXPECT_ABORT( telsxHeaderCseqSetMethod( &none, bad.get() ), "*cs" );
    EXPECT_ABORT( telsxHeaderCseqSetCseq( changed.address(), 2147483648 ), "telsxCseqOk( cseq )" );
    EXPECT_ABORT( telsxHeaderCseqSetMethod( changed.address(), bad.get() ), "telsxMethodOk( method )" );
}

TEST( Fields, OfReplacesAndEvent )
{
    auto replaces = adopt( telsxHeaderReplacesCreate( str( "a" ).get() ) );
    telsxHeaderReplacesSetEarlyOnly( replaces.address(), 0x100 );
    EXPECT_EQ( 1, telsxHeaderReplacesEarlyOnly( replaces.get() ) );
    EXPECT_EQ( "a;early-only", utf8( telsxHeaderReplacesToString( replaces.get() ) ) );
    telsxHeaderReplacesSetEarlyOnly( replaces.address(), 0 );
    EXPECT_EQ( "a", utf8( telsxHeaderReplacesToString( replaces.get() ) ) );

    auto event = adopt( telsxHeaderEventCreateCstr( "ab", 1 ) );
    EXPECT_EQ( event, adopt( telsxHeaderEventCreateWcstr( L"a", -1 ) ) );
    telsxHeaderEventSetEventTypeCstr( event.address(), "b.c", -1 );
    EXPECT_EQ( "b.c", utf8( telsxHeaderEventToString( event.get() ) ) );
    telsxHeaderEventSetEventTypeWcstr( event.address(), L"b.c", 1 );
    EXPECT_EQ( "b", utf8( telsxHeaderEventToString( event.get() ) ) );
}

TEST( Fields, OfPriorityHaveNamedValues )
{
#define NAMED( WORD, NAME )                                                                              \
    {                                                                                                    \
        WORD, telsxHeaderPriorityCreate##NAME, telsxHeaderPrioritySet##NAME, telsxHeaderPriorityIs##NAME \
    }
    struct
    {
        const char *word;
        TELSX_HEADER_PRIORITY ( *create )( void );
        void ( *set )( TELSX_HEADER_PRIORITY *hdr );
        RT_BOOL ( *is )( TELSX_HEADER_PRIORITY hdr );
    } values[] = { NAMED( "emergency", Emergency ), NAMED( "urgent", Urgent ), NAMED( "normal", Normal ),
                   NAMED( "non-urgent", NonUrgent ) };
    Ref<TELSX_HEADER_PRIORITY> other = adopt( telsxHeaderPriorityCreate( str( "Other" ).get() ) );
    for ( auto &value : values )
    {
        Ref<TELSX_HEADER_PRIORITY> created = adopt( value.create() ), changed = other;
        EXPECT_EQ( value.word, utf8( telsxHeaderPriorityToString( created.get() ) ) );
        value.set( changed.address() );
        EXPECT_EQ( created, changed );
        EXPECT_FALSE( value.is( other.get() ) );
        for ( auto &each : values )
            EXPECT_EQ( &each == &value, bool( each.is( created.get() ) ) );
        EXPECT_ABORT( value.is( nullptr ), "hdr" );
        EXPECT_ABORT( value.set( nullptr ), "hdr" );
    }
#undef NAMED
}

// Of one form at a time, and no part of comparison
TEST( Fields, RportOfVia )
{
    auto via = []( std::string_view text ) { return adopt( applied( telsx___ViaTryDecode, text ) ); };
    Ref<TELSX_VIA> changed = via( "SIP/2.0/UDP h;rport=5;rport" );
    auto expectRport = [&]( bool isEmpty, int64_t number, const char *text )
    {
        EXPECT_EQ( isEmpty || number != -1, bool( telsxViaHasRport( changed.get() ) ) );
        EXPECT_EQ( isEmpty, bool( telsxViaHasRportEmpty( changed.get() ) ) );
        EXPECT_EQ( number != -1, bool( telsxViaHasRportNumeric( changed.get() ) ) );
        EXPECT_EQ( number, telsxViaRportNumeric( changed.get() ) );
        EXPECT_EQ( std::string( "SIP/2.0/UDP h" ) + text, utf8( telsxViaToString( changed.get() ) ) );
        EXPECT_EQ( via( "SIP/2.0/UDP h" ), changed );
    };
    expectRport( true, -1, ";rport" );
    telsxViaSetRportNumeric( changed.address(), 0 );
    expectRport( false, 0, ";rport=0" );
    Ref<TELSX_VIA> held = changed;
    telsxViaSetRportEmpty( changed.address() );
    expectRport( true, -1, ";rport" );
    telsxViaSetRportNumeric( changed.address(), 5 );
    expectRport( false, 5, ";rport=5" );
    telsxViaDelRport( changed.address() );
    expectRport( false, -1, "" );
    EXPECT_EQ( 0, telsxViaRportNumeric( held.get() ) );

    TELSX_VIA none = nullptr;
    EXPECT_ABORT( telsxViaSetRportEmpty( &none ), "*via" );
    EXPECT_ABORT( telsxViaDelRport( nullptr ), "via" );
    EXPECT_ABORT( telsxViaSetRportNumeric( changed.address(), -1 ), "telsxPortOk( rport )" );
}

TEST( Fields, WarnCodeBringsItsText )
{
    Ref<TELSX_WARNING_VALUE> original = adopt( telsxWarningValueCreate( 399, str( "h" ).get() ) ),
                             wv = original;
    auto text = [&] { return utf8( telsx___WarningValueEncode( wv.get() ) ); };
    EXPECT_EQ( "399 h \"Miscellaneous warning\"", text() );
    telsxWarningValueSetWarnCode( wv.address(), 307, 0 );
    EXPECT_EQ( "307 h \"Miscellaneous warning\"", text() );
    EXPECT_EQ( 399, telsxWarningValueWarnCode( original.get() ) );
    telsxWarningValueSetWarnCode( wv.address(), 307, -1 );
    EXPECT_EQ( "307 h \"Session description parameter not understood\"", text() );
    // A code of less than three digits is written so, and nobody reads it.
    telsxWarningValueSetWarnCode( wv.address(), 7, 1 );
    EXPECT_EQ( "7 h \"Warning \\\"007\\\"\"", text() );
    EXPECT_FALSE( adopt( applied( telsx___WarningValueTryDecode, text() ) ) );

    TELSX_WARNING_VALUE none = nullptr;
    EXPECT_ABORT( telsxWarningValueSetWarnCode( &none, 1, 0 ), "*wv" );
    EXPECT_ABORT( telsxWarningValueSetWarnCode( wv.address(), 1000, 0 ), "telsxWarnCodeOk( warnCode )" );
}

TEST( Fields, AbsentHalvesOfAcceptsAreStars )
{
    auto accept = adopt( telsxAcceptCreate() );
    telsxAcceptSetMediaSubtype( accept.address(), str( "Plain" ).get() );
    EXPECT_EQ( "*/*", utf8( telsxAcceptToString( accept.get() ) ) ) << "no subtype without a type";
    telsxAcceptSetMediaType( accept.address(), str( "TEXT" ).get() );
    EXPECT_EQ( "text/plain", utf8( telsxAcceptToString( accept.get() ) ) );
    telsxAcceptDelMediaType( accept.address() );
    EXPECT_FALSE( telsxAcceptHasMediaType( accept.get() ) );
    EXPECT_EQ( "plain", utf8( telsxAcceptMediaSubtype( accept.get() ) ) );

    auto made = adopt( telsxAcceptEncodingCreate() );
    auto read = adopt( applied( telsx___AcceptEncodingTryDecode, "*" ) );
    EXPECT_EQ( "*", utf8( telsxAcceptEncodingContentCoding( read.get() ) ) ) << "the star is a token";
    EXPECT_EQ( -1, telsxAcceptEncodingCompare( made.get(), read.get() ) );
    auto readAccept = adopt( applied( telsx___AcceptTryDecode, "*/*" ) );
    EXPECT_FALSE( telsxAcceptHasMediaType( readAccept.get() )
                  || telsxAcceptHasMediaSubtype( readAccept.get() ) );
}

TEST( Fields, GivenToOtherCreators )
{
    Ref<TELSX_VERSION> sip20 = adopt( telsxVersionCreateSip20() );
    Ref<RT_STRING> iri = str( "sip:a" );
    auto withPort =
        adopt( telsxViaCreateWithPort( sip20.get(), str( "TCP" ).get(), str( "a" ).get(), 5060 ) );
    EXPECT_EQ( "SIP/2.0/TCP a:5060", utf8( telsxViaToString( withPort.get() ) ) );
    auto dummy = adopt( telsxViaCreateDummy( sip20.get() ) );
    EXPECT_EQ( "SIP/2.0/UDP localhost", utf8( telsxViaToString( dummy.get() ) ) );
    EXPECT_EQ( "udp", utf8( telsxViaTransport( dummy.get() ) ) );
    auto gzip = adopt( telsxAcceptEncodingCreateWithContentCoding( str( "GZip" ).get() ) );
    EXPECT_EQ( "gzip", utf8( telsxAcceptEncodingToString( gzip.get() ) ) );
    auto named = adopt( telsxDiversionCreateWithDisplayName( iri.get(), str( "A" ).get() ) );
    EXPECT_EQ( "\"A\" <sip:a>", utf8( telsx___DiversionEncode( named.get() ) ) );
    telsxDiversionSetReason( named.address(), str( "a\rb" ).get() );
    EXPECT_DEATH( telsx___DiversionEncode( named.get() ), "quotable_string" );
}

TEST( Fields, FromAndToAreMadeFromEachOther )
{
    for ( const char *line : { "<sip:a>", "\"\" <sip:a>;tag=T;epid=E;tag=\"x\";y" } )
    {
        auto from = adopt( telsxHeaderFromTryDecode( header( "f", { line } ).get() ) );
        auto to = adopt( telsxHeaderToCreateFromHeaderFrom( from.get() ) );
        EXPECT_EQ( utf8( telsxHeaderFromToString( from.get() ) ), utf8( telsxHeaderToToString( to.get() ) ) );
        EXPECT_EQ( adopt( telsxHeaderFromGenericParams( from.get() ) ).get(),
                   adopt( telsxHeaderToGenericParams( to.get() ) ).get() );
        telsxHeaderToSetTag( to.address(), str( "other" ).get() );
        EXPECT_FALSE( utf8( telsxHeaderFromToString( from.get() ) ).ends_with( "other" ) );
        telsxHeaderToDelTag( to.address() );
        telsxHeaderFromDelTag( from.address() );
        EXPECT_EQ( from, adopt( telsxHeaderFromCreateFromHeaderTo( to.get() ) ) );
    }
    EXPECT_ABORT( telsxHeaderToCreateFromHeaderFrom( nullptr ), "hdrFrom" );
}

// Decoders keep, beside a field, the parameters of its name that don't suit it.
TEST( Fields, KeepHiddenParametersThatAreRead )
{
    auto via = adopt( applied( telsx___ViaTryDecode, "SIP/2.0/UDP h;ttl=1;ttl=300" ) );
    EXPECT_EQ( 1, telsxViaTtl( via.get() ) );
    telsxViaDelTtl( via.address() );
    EXPECT_EQ( "SIP/2.0/UDP h;ttl=300", utf8( telsxViaToString( via.get() ) ) );
    auto accept = adopt( applied( telsx___AcceptTryDecode, "a/b;q=x;q=1" ) );
    telsxAcceptDelQvalue( accept.address() );
    EXPECT_EQ( "a/b;q=x", utf8( telsxAcceptToString( accept.get() ) ) );
    auto contact = adopt( applied( telsx___ContactTryDecode, "<sip:a>;q=1;q=x;expires=1;rc=1;rc;y" ) );
    EXPECT_EQ( "<sip:a>;q=1.000;expires=1;rc=1;y", utf8( telsxContactToString( contact.get() ) ) );
    telsxContactDelRc( contact.address() );
    telsxContactDelQvalue( contact.address() );
    EXPECT_EQ( "<sip:a>;expires=1;q=x;rc;y", utf8( telsxContactToString( contact.get() ) ) );
    // The index is hidden always, for it is never absent.
    auto hi = adopt( telsxHistoryInfoCreate( str( "sip:a" ).get(), str( "1" ).get() ) );
    telsxHistoryInfoSetGenericParams( hi.address(), params( ";index=2;rc" ).get() );
    EXPECT_EQ( "<sip:a>;index=1;rc", utf8( telsx___HistoryInfoEncode( hi.get() ) ) );
}

// Values and headers hold plain text, whatever it looks like on the wire.
TEST( Fields, ArePlainText )
{
    auto contact = adopt( applied( telsx___ContactTryDecode, "\"a\\\"\\b\" <sip:%C3%BC@a>;q=0.5;rc=1" ) );
    EXPECT_EQ( "a\"b", utf8( telsxContactDisplayName( contact.get() ) ) );
    EXPECT_EQ( "sip:ü@a", utf8( telsxContactIri( contact.get() ) ) );
    EXPECT_EQ( 500, telsxContactQvalue( contact.get() ) );
    EXPECT_EQ( -1, telsxContactExpires( contact.get() ) );
    auto via = adopt( applied( telsx___ViaTryDecode, "SIP/2.0/UDP xn--bcher-kva" ) );
    EXPECT_EQ( "bücher", utf8( telsxViaHost( via.get() ) ) );
}
