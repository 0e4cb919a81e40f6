// The fields of headers and values: setters, getters and deleters.
#include <map>

#include "telsx/object_tables.hpp"

using namespace support;

namespace
{

// A field, for objects of any type. A null text means no value at all.
struct Field
{
    std::string word, element;
    void ( *set )( RT_OBJ *object, const char *text );
    std::string ( *get )( RT_OBJ object );
    RT_BOOL ( *has )( RT_OBJ object ) = nullptr; // only for a field that may be absent
    void ( *del )( RT_OBJ *object ) = nullptr;
};

// A value, or, with a name on the wire, a header.
struct Type
{
    std::string name, wireName;
    std::vector<Field> fields;

    std::string sample() const
    {
        return wireName.empty() ? firstText( valueTexts, name ) : firstText( headerTexts, wireName );
    }
    Ref<RT_OBJ> read( const std::string &text ) const
    {
        return wireName.empty() ? support::read( named( values::all, name ), text )
                                : support::read( named( headers::all, wireName ), text );
    }
    std::string write( const Ref<RT_OBJ> &object ) const
    {
        return wireName.empty() ? support::write( named( values::all, name ), object )
                                : support::write( named( headers::all, wireName ), object );
    }
};

template <auto SET>
void setText( RT_OBJ *object, const char *text )
{
    void ( *set )( RT_OBJ *, RT_STRING ) = ERASED( SET );
    set( object, text ? str( text ).get() : nullptr );
}
template <auto SET>
void setNumber( RT_OBJ *object, const char *text )
{
    void ( *set )( RT_OBJ *, int64_t ) = ERASED( SET );
    set( object, std::stoll( text ) );
}
template <auto SET>
void setFlag( RT_OBJ *object, const char *text )
{
    void ( *set )( RT_OBJ *, RT_BOOL ) = ERASED( SET );
    set( object, static_cast<RT_BOOL>( std::stoll( text ) ) );
}
template <auto SET, auto READ>
void setObject( RT_OBJ *object, const char *text )
{
    void ( *set )( RT_OBJ *, RT_OBJ ) = ERASED( SET );
    set( object, text ? adopt( rt::asObj( applied( READ, text ) ) ).get() : nullptr );
}

RT_TIME readTime( const RT_CHAR *chs, int64_t length )
{
    auto raw = adopt( telsxMessageHeaderCreateCstr( "Date", -1 ) );
    telsxMessageHeaderAppendLine( raw.address(), adopt( rtStringCreateFromCharsCopy( chs, length ) ).get() );
    return telsxHeaderDateTime( adopt( telsxHeaderDateTryDecode( raw.get() ) ).get() );
}
#define telsxVersionRead telsx___VersionTryDecode
#define telsxGenericParamsRead telsx___GenericParamsTryDecode
#define netAddressRead netAddressTryCreateFromChars
#define rtTimeRead readTime

#define GET( NAME, WORD ) \
    []( RT_OBJ object ) { return shown( telsx##NAME##WORD( telsx##NAME##From( object ) ) ); }
#define OPTIONAL( NAME, WORD ) ERASED( telsx##NAME##Has##WORD ), ERASED( telsx##NAME##Del##WORD )
#define TELSX_TEXT( NAME, WORD, ELEMENT ) \
    { #WORD, #ELEMENT, setText<telsx##NAME##Set##WORD>, GET( NAME, WORD ) },
#define TELSX_OPTIONAL_TEXT( NAME, WORD, ELEMENT ) \
    { #WORD, #ELEMENT, setText<telsx##NAME##Set##WORD>, GET( NAME, WORD ), OPTIONAL( NAME, WORD ) },
#define TELSX_NUMBER( NAME, WORD, ELEMENT ) \
    { #WORD, #ELEMENT, setNumber<telsx##NAME##Set##WORD>, GET( NAME, WORD ) },
#define TELSX_OPTIONAL_NUMBER( NAME, WORD, ELEMENT ) \
    { #WORD, #ELEMENT, setNumber<telsx##NAME##Set##WORD>, GET( NAME, WORD ), OPTIONAL( NAME, WORD ) },
#define TELSX_FLAG( NAME, WORD )                      \
    { #WORD, "Flag", setFlag<telsx##NAME##Set##WORD>, \
      []( RT_OBJ object ) { return std::to_string( telsx##NAME##WORD( telsx##NAME##From( object ) ) ); } },
#define TELSX_OBJECT_OF( NAME, WORD, TYPE ) \
    { #WORD, #TYPE, setObject<telsx##NAME##Set##WORD, TYPE##Read>, GET( NAME, WORD ) },
#define TELSX_PARAMS( NAME )                                                    \
    { "GenericParams", "GenericParams",                                         \
      setObject<telsx##NAME##SetGenericParams, telsx___GenericParamsTryDecode>, \
      GET( NAME, GenericParams ) },
// These have tests of their own below.
#define TELSX_PAIRS( ... )
#define TELSX_MARK( ... )
#define TELSX_READ_NUMBER( ... )

#define TELSX_VALUE( NAME, SORT, ... ) { #NAME, "", { __VA_ARGS__ } },
#define TELSX_ADDRESS TELSX_VALUE
#define TELSX_KIND( ... )
#define TELSX_KIND_OF_FIELDS( NAME, SORT, SIP_NAME, ... ) { #NAME, SIP_NAME, { __VA_ARGS__ } },

const std::vector<Type> &types()
{
    // clang-format off
    static const std::vector<Type> all = {
#include "telsx/telsx_addresses.def"
#include "telsx/telsx_headers.def"
#include "telsx/telsx_values.def"
        TELSX_VALUE( Version, VERSION, TELSX_TEXT( Version, ProtocolName, ProtocolName )
                     TELSX_TEXT( Version, ProtocolVersion, ProtocolVersion ) )
    };
    // clang-format on
    return all;
}

std::string lower( std::string word )
{
    word[0] = static_cast<char>( std::tolower( word[0] ) );
    return word;
}

// The names that functions give the object and a value, where they are not the usual ones.
std::string argument( const Type &type, const std::string &word, const std::string &usual )
{
    static const std::map<std::string, std::string> others = {
        { "HistoryInfo", "hi" },
        { "IdentityValue", "value" },
        { "WarningValue", "wv" },
        { "HeaderCseq set", "cs" },
        { "HeaderMaxForwards", "mf" },
        { "HeaderMaxForwards set", "mf" },
        { "HeaderDate Time", "tm" },
        { "HeaderEvent Id", "token" },
        { "HeaderReplaces FromTag", "tag" },
        { "HeaderReplaces ToTag", "tag" },
        { "HeaderRetryAfter GenericParams", "params" },
        { "HeaderSubscriptionState Expires", "deltaSeconds" },
        { "HeaderSubscriptionState RetryAfter", "deltaSeconds" },
    };
    auto other = others.find( type.name + word );
    return other == others.end() ? usual : other->second;
}

void expectAborts( const Type &type, const Field &field, Ref<RT_OBJ> object, const Sample &sample )
{
    std::string usual = type.name.starts_with( "Header" ) ? "hdr" : lower( type.name ),
                self = argument( type, "", usual ), ofSetter = argument( type, " set", self ),
                value = argument( type, " " + field.word, lower( field.word ) );
    RT_OBJ none = nullptr;
    EXPECT_ABORT( field.get( nullptr ), self );
    EXPECT_ABORT( field.set( nullptr, sample.good ), ofSetter );
    EXPECT_ABORT( field.set( &none, sample.good ), "*" + ofSetter );
    if ( field.element == "Flag" )
        return;
    std::string condition = sample.bad ? "telsx" + field.element + "Ok( " + value + " )" : value;
    EXPECT_ABORT( field.set( object.address(), sample.bad ), condition );
    if ( !field.has )
        return;
    EXPECT_ABORT( field.has( nullptr ), self );
    EXPECT_ABORT( field.del( nullptr ), self );
    EXPECT_ABORT( field.del( &none ), "*" + self );
}

std::string lettersOf( std::string_view word )
{
    std::string letters;
    for ( char ch : word )
        if ( std::isalpha( ch ) )
            letters += static_cast<char>( std::tolower( ch ) );
    return letters;
}

// A field that is written as a parameter has the parameter's name, and hides a parameter of that name in the set;
// without the field the parameter is there again.
void expectHides( const Type &type, const Field &field, Ref<RT_OBJ> object, const Sample &sample )
{
    auto params = std::ranges::find( type.fields, "GenericParams", &Field::word );
    if ( params == type.fields.end() )
        return;
    params->set( object.address(), "" );
    Ref<RT_OBJ> changed = object;
    field.set( changed.address(), sample.good );
    std::string without = type.write( object ), with = type.write( changed );
    std::string name( std::ranges::mismatch( without, with ).in2, with.end() );
    if ( !name.starts_with( ';' ) )
        return;
    name = name.substr( 1, name.find( '=' ) - 1 );
    std::size_t at = 0;
    for ( char letter : lettersOf( name ) )
        at = std::min( lettersOf( field.word ).find( letter, at ), field.word.size() ) + 1;
    EXPECT_LE( at, field.word.size() ) << name << " abbreviates " << field.word;
    params->set( object.address(), ( ";" + name + "=[::1];y" ).c_str() );
    EXPECT_FALSE( field.has( object.get() ) );
    field.set( object.address(), sample.good );
    EXPECT_EQ( with + ";y", type.write( object ) );
    field.del( object.address() );
    EXPECT_EQ( without + ";" + name + "=[::1];y", type.write( object ) );
}

void expectField( const Type &type, const Field &field )
{
    const Sample &sample = sampleOf( field.element );
    Ref<RT_OBJ> object = type.read( type.sample() ), changed = object;
    ASSERT_TRUE( object ) << "the rows of " << type.name << " need a text that is kept";
    if ( field.has )
        field.del( object.address() );
    const std::string before = type.write( object );
    field.set( changed.address(), sample.good );
    Ref<RT_OBJ> again = type.read( type.write( changed ) );
    ASSERT_TRUE( again ) << type.write( changed );
    EXPECT_EQ( type.write( changed ), type.write( again ) );
    EXPECT_TRUE( values::areEqual( changed, again ) );
    EXPECT_EQ( sample.normal, field.get( changed.get() ) );
    EXPECT_EQ( sample.normal, field.get( again.get() ) );
    EXPECT_EQ( before, type.write( object ) ) << "the other holder sees nothing";
    RT_OBJ held = changed.get();
    field.set( changed.address(), sample.good );
    EXPECT_EQ( held, changed.get() ) << "the only holder's object is changed in place";
    expectAborts( type, field, object, sample );
    if ( field.element == "Flag" )
    {
        field.set( changed.address(), "0" );
        EXPECT_EQ( "0", field.get( changed.get() ) );
    }
    if ( !field.has )
        return;
    EXPECT_TRUE( field.has( changed.get() ) );
    EXPECT_FALSE( field.has( object.get() ) );
    Ref<RT_OBJ> other = changed;
    for ( int i = 0; i < 2; ++i )
    {
        field.del( changed.address() );
        EXPECT_TRUE( field.has( other.get() ) );
        EXPECT_FALSE( field.has( changed.get() ) );
        EXPECT_EQ( field.get( object.get() ), field.get( changed.get() ) );
    }
    expectHides( type, field, object, sample );
}

Ref<TELSX_GENERIC_PARAMS> params( std::string_view text )
{
    return adopt( applied( telsx___GenericParamsTryDecode, text ) );
}

} // namespace

TEST( Fields, AreSetReadAndDeleted )
{
    for ( const Type &type : types() )
        for ( const Field &field : type.fields )
        {
            SCOPED_TRACE( type.name + " " + field.word );
            expectField( type, field );
        }
}

// Which part of the text is which field: those with numbers, by the numbers.
TEST( Fields, AreWhatTheirTextSays )
{
    for ( auto [name, text, expected] :
          { std::tuple( "Accept", "a/b;q=0.5;c", "a|b|500|;c|" ),
            { "AcceptContact", "*;explicit;x", "0|1|;x|" },
            { "Contact", "\"a\\\"\\b\" <sip:%C3%BC@a>;q=0.5;expires=1;rc=2;mp=3;np=4",
              "sip:ü@a|a\"b|500|1|2|3|4|(null)||" },
            { "Diversion", "B <sip:a>;reason=r;counter=1;limit=2;privacy=p;screen=s", "sip:a|B|r|1|2|p|s||" },
            { "HistoryInfo", "B <sip:a>;index=1;rc=2;mp=3;np=4", "sip:a|B|1|2|3|4||" },
            { "Reason", "SIP;cause=1;text=\"t\"", "SIP|1|t||" },
            { "Via", "A/1/B xn--bcher-kva:1;ttl=2;maddr=m;received=::1;branch=b",
              "A/1|b|bücher|1|2|m|::1|b||" },
            { "WarningValue", "399 h \"t\"", "h|t|" },
            { "HeaderContentType", "a/b;charset=c;boundary=d;e=f", "a|b|c|d|;e=f|" },
            { "SipIri", "sip:%3B%61:b%40@c:1;transport=D;user=E;method=F;ttl=2;maddr=G",
              "0|;a|b@|c|1|d|e|F|2|G|0|" },
            { "TelIri", "tel:+1;ext=2;isub=%33;phone-context=d", "+1|2|3|d|" },
            { "HeaderPServedUser", "B <sip:a>;sescase=orig;regstate=reg", "sip:a|B|orig|reg||" },
            { "Passport", "a;info=<sip:b>;alg=c;ppt=d", "a|sip:b|c|d||" },
            { "SecurityMechanism", "a;q=0.5;d-alg=b;d-qop=c", "a|500|b|c|(null)||" },
            { "UuiValue", "a;purpose=b;content=c;encoding=d", "a|b|c|d||" },
            { "HeaderCseq", "1 A", "1|A|" },
            { "HeaderPChargingFunctionAddresses", "ccf=a;ecf=b;ccf-2=c;ecf-2=d", "a|b|c|d||" },
            { "HeaderPChargingVector",
              "icid-value=a;icid-generated-at=b;orig-ioi=c;term-ioi=d;transit-ioi=\"e.1\";related-icid=f"
              ";related-icid-generated-at=g",
              "a|b|c|d|e.1|f|g||" },
            { "HeaderRack", "1 2 A", "1|2|A|" },
            { "HeaderReplaces", "a;from-tag=f;to-tag=t", "a|f|t|0||" },
            { "HeaderSessionId", "ab30317f1a784dc48ff824d0d3715d86;remote=00000000000000000000000000000000",
              "ab30317f1a784dc48ff824d0d3715d86|00000000000000000000000000000000||" },
            { "HeaderTargetDialog", "a;local-tag=l;remote-tag=r", "a|l|r||" },
            { "HeaderSubscriptionState", "a;reason=r;expires=1;retry-after=2", "a|r|1|2||" } } )
    {
        const Type &type = *std::ranges::find( types(), name, &Type::name );
        std::string fields;
        for ( const Field &field : type.fields )
            fields += field.get( type.read( text ).get() ) + "|";
        EXPECT_EQ( expected, fields ) << text;
    }
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
    EXPECT_BAD( "telsxMediaSubtypeOk( mediaSubtype )", HeaderContentTypeCreate, good.get(), bad.get() );
    EXPECT_BAD( "telsxMimeVersionOk( mimeVersion )", HeaderMimeVersionCreate, bad.get() );
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
    EXPECT_BAD( "telsxQuotableStringOk( name )", VisitedNetworkCreate, bad.get() );
    EXPECT_BAD( "telsxTokenOk( answerModeValue )", HeaderAnswerModeCreate, bad.get() );
    EXPECT_BAD( "telsxCallIdOk( callId )", HeaderJoinCreate, bad.get() );
    EXPECT_BAD( "telsxDisplayNameOk( displayName )", DiversionCreateWithDisplayName, iri.get(), bad.get() );
    EXPECT_BAD( "telsxIriOk( iri )", HistoryInfoCreate, bad.get(), bad.get() );
    EXPECT_BAD( "telsxHistoryInfoIndexOk( index )", HistoryInfoCreate, iri.get(), bad.get() );
    EXPECT_BAD( "telsxReasonProtocolOk( reasonProtocol )", ReasonCreate, bad.get() );
    EXPECT_BAD( "telsxContentCodingOk( contentCoding )", AcceptEncodingCreateWithContentCoding, bad.get() );
    EXPECT_BAD( "telsxTokenOk( scheme )", ChallengeCreate, bad.get() );
    EXPECT_BAD( "telsxTokenOk( scheme )", CredentialsCreate, bad.get() );
    EXPECT_BAD( "telsxWarnCodeOk( warnCode )", WarningValueCreate, -1, bad.get() );
    EXPECT_BAD( "telsxWarnAgentOk( warnAgent )", WarningValueCreate, 0, bad.get() );
    EXPECT_BAD( "telsxWarnTextOk( warnText )", WarningValueCreateWithWarnText, 0, good.get(), bad.get() );
    EXPECT_BAD( "telsxProtocolVersionOk( protocolVersion )", VersionCreate, good.get(), bad.get() );
#undef EXPECT_BAD
}

// Fields that have other functions than most.

TEST( Fields, OfCseqAndEventAreSetInThreeForms )
{
    auto cseq = adopt( telsxHeaderCseqCreate( 1, str( "ACK" ).get() ) );
    telsxHeaderCseqSetMethodCstr( cseq.address(), "byes", 3 );
    EXPECT_EQ( "1 bye", utf8( telsxHeaderCseqToString( cseq.get() ) ) );
    auto event = adopt( telsxHeaderEventCreateCstr( "ab", 1 ) );
    telsxHeaderEventSetEventTypeWcstr( event.address(), L"b.c", 1 );
    EXPECT_EQ( "b", utf8( telsxHeaderEventToString( event.get() ) ) );
}

TEST( Fields, StaleAndParametersOfChallenges )
{
    Ref<TELSX_CHALLENGE> challenge = adopt( telsxChallengeCreate( str( "A" ).get() ) );
    telsxChallengeSetStale( challenge.address(), 2 );
    telsxChallengeSetGenericParams( challenge.address(), params( ";stale=x;a;b=[::1]" ).get() );
    EXPECT_EQ( 1, telsxChallengeStale( challenge.get() ) );
    EXPECT_EQ( "A stale=true, a=\"\", b=\"[::1]\"", utf8( telsx___ChallengeEncode( challenge.get() ) ) );
    telsxChallengeSetToken68( challenge.address(), str( "b=" ).get() );
    EXPECT_EQ( "A b=", utf8( telsx___ChallengeEncode( challenge.get() ) ) );
}

TEST( Fields, OfPriorityHaveNamedValues )
{
#define EXPECT_NAMED( WORD, NAME )                                           \
    created = adopt( telsxHeaderPriorityCreate##NAME() ), changed = other;   \
    telsxHeaderPrioritySet##NAME( changed.address() );                       \
    EXPECT_EQ( WORD, utf8( telsxHeaderPriorityToString( created.get() ) ) ); \
    EXPECT_EQ( created, changed );                                           \
    EXPECT_TRUE( telsxHeaderPriorityIs##NAME( created.get() ) );             \
    EXPECT_EQ( 1, telsxHeaderPriorityIsEmergency( created.get() )            \
                      + telsxHeaderPriorityIsUrgent( created.get() )         \
                      + telsxHeaderPriorityIsNormal( created.get() )         \
                      + telsxHeaderPriorityIsNonUrgent( created.get() ) );   \
    EXPECT_FALSE( telsxHeaderPriorityIs##NAME( other.get() ) )
    Ref<TELSX_HEADER_PRIORITY> other = adopt( telsxHeaderPriorityCreate( str( "Other" ).get() ) ), created,
                               changed;
    EXPECT_NAMED( "emergency", Emergency );
    EXPECT_NAMED( "urgent", Urgent );
    EXPECT_NAMED( "normal", Normal );
    EXPECT_NAMED( "non-urgent", NonUrgent );
#undef EXPECT_NAMED
    EXPECT_ABORT( telsxHeaderPriorityIsUrgent( nullptr ), "hdr" );
    EXPECT_ABORT( telsxHeaderPrioritySetUrgent( nullptr ), "hdr" );
}

// In one form at a time, and not part of comparison
TEST( Fields, RportOfVia )
{
    const auto without = adopt( applied( telsx___ViaTryDecode, "SIP/2.0/UDP h" ) );
    auto changed = adopt( applied( telsx___ViaTryDecode, "SIP/2.0/UDP h;rport=5;rport" ) );
    auto expectRport = [&]( bool isEmpty, int64_t number, const char *text )
    {
        EXPECT_EQ( isEmpty || number != -1, bool( telsxViaHasRport( changed.get() ) ) );
        EXPECT_EQ( isEmpty, bool( telsxViaHasRportEmpty( changed.get() ) ) );
        EXPECT_EQ( number != -1, bool( telsxViaHasRportNumeric( changed.get() ) ) );
        EXPECT_EQ( number, telsxViaRportNumeric( changed.get() ) );
        EXPECT_EQ( std::string( "SIP/2.0/UDP h" ) + text, utf8( telsxViaToString( changed.get() ) ) );
        EXPECT_EQ( without, changed );
    };
    expectRport( true, -1, ";rport" );
    telsxViaSetRportNumeric( changed.address(), 0 );
    expectRport( false, 0, ";rport=0" );
    auto held = changed;
    telsxViaSetRportEmpty( changed.address() );
    expectRport( true, -1, ";rport" );
    telsxViaDelRport( changed.address() );
    expectRport( false, -1, "" );
    EXPECT_EQ( 0, telsxViaRportNumeric( held.get() ) );
    telsxViaSetReceived( changed.address(), adopt( applied( netAddressTryCreateFromChars, "::1" ) ).get() );
    EXPECT_TRUE( telsxViaHasReceived( changed.get() ) );
    telsxViaDelReceived( changed.address() );
    EXPECT_EQ( nullptr, telsxViaReceived( changed.get() ) );

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
    // A code of fewer than three digits is written as it is, and nothing reads it.
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

TEST( Fields, GivenToNewValues )
{
    Ref<RT_STRING> iri = str( "sip:a" ), token = str( "A" );
#define EXPECT_NEW( TEXT, NAME, ... ) \
    EXPECT_EQ( TEXT, utf8( telsx##NAME##ToString( adopt( telsx##NAME##Create( __VA_ARGS__ ) ).get() ) ) )
    EXPECT_NEW( "<sip:a>", AlertInfo, iri.get() );
    EXPECT_NEW( "<sip:a>", AssociatedUri, iri.get() );
    EXPECT_NEW( "<sip:a>", CallInfo, iri.get() );
    EXPECT_NEW( "<sip:a>", ErrorInfo, iri.get() );
    EXPECT_NEW( "<sip:a>", HeaderReferTo, iri.get() );
    EXPECT_NEW( "A", InfoPackage, token.get() );
    EXPECT_NEW( "<sip:a>", LocationValue, iri.get() );
    EXPECT_NEW( "A;info=<sip:a>", Passport, token.get(), iri.get() );
    EXPECT_NEW( "A", UuiValue, token.get() );
#undef EXPECT_NEW
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

// Decoders keep, besides a field, the parameters of its name that are not valid for it.
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
    // The index always hides one, since it is never absent.
    auto hi = adopt( telsxHistoryInfoCreate( str( "sip:a" ).get(), str( "1" ).get() ) );
    telsxHistoryInfoSetGenericParams( hi.address(), params( ";index=2;rc" ).get() );
    EXPECT_EQ( "<sip:a>;index=1;rc", utf8( telsx___HistoryInfoEncode( hi.get() ) ) );
}
