// The typed headers beside what they read and write: operations of sets and lists, setters, named values,
// dates, and all kinds in one message.
#include "telsx/object_tables.hpp"
#include "telsx/samples.hpp"

using namespace support;

template <auto ENCODE>
static constexpr auto written = []( auto hdr ) { return linesOf( adopt( ENCODE( hdr ) ) ); };

static Ref<TELSX_GENERIC_PARAMS> params( std::string_view text )
{
    return adopt( applied( telsx___GenericParamsTryDecode, text ) );
}

static Ref<RT_VECTOR> strings( std::initializer_list<const char *> texts )
{
    Ref<RT_VECTOR> vector = adopt( rtVectorCreate() );
    for ( const char *text : texts )
        rtVectorAppendString( vector.address(), str( text ).get() );
    return vector;
}

// Sets and the list

namespace
{

template <class HANDLE>
struct Set
{
    const char *condition; // of its elements
    HANDLE ( *create )( void );
    int64_t ( *length )( HANDLE hdr );
    RT_STRING ( *at )( HANDLE hdr, int64_t index );
    RT_VECTOR ( *vector )( HANDLE hdr );
    RT_BOOL ( *has )( HANDLE hdr, RT_STRING element );
    void ( *set )( HANDLE *hdr, RT_STRING element );
    void ( *del )( HANDLE *hdr, RT_STRING element );
    void ( *clear )( HANDLE *hdr );
    void ( *setVector )( HANDLE *hdr, RT_VECTOR vec );
};

} // namespace

#define SET( NAME, WORD )                                                                \
    Set<decltype( telsx##NAME##Create() )>                                               \
    {                                                                                    \
        "telsx" #WORD "Ok( element )", telsx##NAME##Create, telsx##NAME##WORD##sLength,  \
            telsx##NAME##WORD##At, telsx##NAME##WORD##sVector, telsx##NAME##Has##WORD,   \
            telsx##NAME##Set##WORD, telsx##NAME##Del##WORD, telsx##NAME##Clear##WORD##s, \
            telsx##NAME##Set##WORD##sVector                                              \
    }

// The elements with a comma behind each.
template <class HANDLE>
static std::string elements( const Set<HANDLE> &set, const Ref<HANDLE> &hdr )
{
    std::string text;
    for ( int64_t i = 0; i < set.length( hdr.get() ); ++i )
        text += utf8( set.at( hdr.get(), i ) ) + ",";
    EXPECT_EQ( set.length( hdr.get() ), rtVectorLength( adopt( set.vector( hdr.get() ) ).get() ) );
    return text;
}

template <class HANDLE>
static void expectSet( const Set<HANDLE> &set, bool isCaseKept )
{
    SCOPED_TRACE( set.condition );
    Ref<HANDLE> original = adopt( set.create() ), hdr = original;
    for ( const char *element : { "B", "a", "b", "B" } )
        set.set( hdr.address(), str( element ).get() );
    EXPECT_EQ( isCaseKept ? "B,a,b," : "b,a,", elements( set, hdr ) );
    EXPECT_EQ( "", elements( set, original ) );
    EXPECT_TRUE( set.has( hdr.get(), str( "a" ).get() ) );
    EXPECT_EQ( !isCaseKept, bool( set.has( hdr.get(), str( "A" ).get() ) ) );
    EXPECT_FALSE( set.has( original.get(), str( "a" ).get() ) );

    Ref<HANDLE> fuller = hdr;
    set.del( hdr.address(), str( "absent" ).get() );
    set.del( hdr.address(), str( "B" ).get() );
    EXPECT_EQ( isCaseKept ? "a,b," : "a,", elements( set, hdr ) );
    EXPECT_EQ( isCaseKept ? "B,a,b," : "b,a,", elements( set, fuller ) );

    // Whatever has a text can stand in the vector.
    Ref<RT_VECTOR> vector = strings( { "X", "x" } ), badVector = vector;
    rtVectorAppend( vector.address(), rt::asObj( sample<TELSX_HEADER_MAX_FORWARDS>().get() ) );
    rtVectorAppend( badVector.address(), rt::asObj( sample<TELSX_HEADER_CSEQ>().get() ) );
    EXPECT_ABORT( set.setVector( hdr.address(), badVector.get() ), set.condition );
    set.setVector( hdr.address(), vector.get() );
    EXPECT_EQ( isCaseKept ? "X,x,70," : "x,70,", elements( set, hdr ) );
    set.setVector( hdr.address(), adopt( rtVectorCreate() ).get() );
    EXPECT_EQ( "", elements( set, hdr ) );
    set.clear( fuller.address() );
    EXPECT_EQ( hdr, fuller );

    HANDLE none = nullptr;
    Ref<RT_STRING> good = str( "a" ), bad = str( "a b" );
    EXPECT_ABORT( set.has( none, good.get() ), "hdr" );
    EXPECT_ABORT( set.has( hdr.get(), bad.get() ), set.condition );
    EXPECT_ABORT( set.set( nullptr, good.get() ), "hdr" );
    EXPECT_ABORT( set.set( hdr.address(), bad.get() ), set.condition );
    EXPECT_ABORT( set.del( &none, good.get() ), "*hdr" );
    EXPECT_ABORT( set.del( hdr.address(), bad.get() ), set.condition );
    EXPECT_ABORT( set.clear( &none ), "*hdr" );
    EXPECT_ABORT( set.setVector( &none, nullptr ), "vec" );
    EXPECT_ABORT( set.setVector( &none, vector.get() ), "*hdr" );
    EXPECT_ABORT( set.length( none ), "hdr" );
}

TEST( Kinds, Sets )
{
    expectSet( SET( HeaderAllow, Method ), true );
    expectSet( SET( HeaderAllowEvents, EventType ), true );
    expectSet( SET( HeaderInReplyTo, CallId ), true );
    expectSet( SET( HeaderPrivacy, PrivValue ), false );
    expectSet( SET( HeaderProxyRequire, OptionTag ), false );
    expectSet( SET( HeaderRequire, OptionTag ), false );
    expectSet( SET( HeaderSupported, OptionTag ), false );
    expectSet( SET( HeaderUnsupported, OptionTag ), false );
    EXPECT_EQ( read( named( headers::all, "Allow" ), "a,b" ),
               read( named( headers::all, "Allow" ), "b\na" ) );
}

#define EXPECT_CHARS_OF_SET( NAME, WORD )                                                                \
    do                                                                                                   \
    {                                                                                                    \
        SCOPED_TRACE( #NAME );                                                                           \
        auto hdr = adopt( telsx##NAME##Create() );                                                       \
        telsx##NAME##Set##WORD##Cstr( hdr.address(), "ab", 1 );                                          \
        telsx##NAME##Set##WORD##Wcstr( hdr.address(), L"b", -1 );                                        \
        EXPECT_EQ( 2, telsx##NAME##WORD##sLength( hdr.get() ) );                                         \
        EXPECT_TRUE( telsx##NAME##Has##WORD##Cstr( hdr.get(), "b", -1 ) );                               \
        EXPECT_TRUE( telsx##NAME##Has##WORD##Wcstr( hdr.get(), L"ab", 1 ) );                             \
        EXPECT_FALSE( telsx##NAME##Has##WORD##Wcstr( hdr.get(), L"ab", -1 ) );                           \
        telsx##NAME##Del##WORD##Cstr( hdr.address(), "a", -1 );                                          \
        telsx##NAME##Del##WORD##Wcstr( hdr.address(), L"b", -1 );                                        \
        EXPECT_EQ( 0, telsx##NAME##WORD##sLength( hdr.get() ) );                                         \
        EXPECT_ABORT( telsx##NAME##Has##WORD##Cstr( hdr.get(), "", 0 ), "telsx" #WORD "Ok( element )" ); \
    } while ( false )

TEST( Kinds, SetsOfCharacters )
{
    EXPECT_CHARS_OF_SET( HeaderAllow, Method );
    EXPECT_CHARS_OF_SET( HeaderPrivacy, PrivValue );
    EXPECT_CHARS_OF_SET( HeaderRequire, OptionTag );
    EXPECT_CHARS_OF_SET( HeaderSupported, OptionTag );
}

TEST( Kinds, ContentEncodingIsAList )
{
    auto text = []( const auto &hdr ) { return utf8( telsxHeaderContentEncodingToString( hdr.get() ) ); };
    Ref<TELSX_HEADER_CONTENT_ENCODING> original = adopt( telsxHeaderContentEncodingCreate() ), hdr = original;
    telsxHeaderContentEncodingAppendContentCoding( hdr.address(), str( "GZIP" ).get() );
    telsxHeaderContentEncodingPrependContentCoding( hdr.address(), str( "A" ).get() );
    telsxHeaderContentEncodingInsertContentCoding( hdr.address(), 1, str( "B" ).get() );
    telsxHeaderContentEncodingInsertContentCoding( hdr.address(), 3, str( "gzip" ).get() );
    EXPECT_EQ( "a,b,gzip,gzip", text( hdr ) );
    EXPECT_EQ( "", text( original ) );
    EXPECT_EQ( 4, telsxHeaderContentEncodingContentCodingsLength( hdr.get() ) );
    EXPECT_EQ( "b", utf8( telsxHeaderContentEncodingContentCodingAt( hdr.get(), 1 ) ) );

    // The header's own vector, given back to it
    Ref<RT_VECTOR> own = adopt( telsxHeaderContentEncodingContentCodingsVector( hdr.get() ) );
    telsxHeaderContentEncodingSetContentCodingAt( hdr.address(), 0, str( "C" ).get() );
    telsxHeaderContentEncodingDelContentCodingAt( hdr.address(), 2 );
    EXPECT_EQ( "c,b,gzip", text( hdr ) );
    telsxHeaderContentEncodingSetContentCodingsVector( hdr.address(), own.get() );
    EXPECT_EQ( "a,b,gzip,gzip", text( hdr ) );
    RT_VECTOR borrowed = adopt( telsxHeaderContentEncodingContentCodingsVector( hdr.get() ) ).get();
    telsxHeaderContentEncodingSetContentCodingsVector( hdr.address(), borrowed );
    EXPECT_EQ( "a,b,gzip,gzip", text( hdr ) );
    telsxHeaderContentEncodingSetContentCodingsVector( hdr.address(), strings( { "X", "x" } ).get() );
    EXPECT_EQ( "x,x", text( hdr ) );

    Ref<RT_STRING> bad = str( "a b" );
    TELSX_HEADER_CONTENT_ENCODING none = nullptr;
    const char *condition = "telsxContentCodingOk( contentCoding )";
    EXPECT_ABORT( telsxHeaderContentEncodingAppendContentCoding( hdr.address(), bad.get() ), condition );
    EXPECT_ABORT( telsxHeaderContentEncodingSetContentCodingAt( hdr.address(), 0, bad.get() ), condition );
    EXPECT_ABORT( telsxHeaderContentEncodingDelContentCodingAt( &none, 0 ), "*hdr" );
    EXPECT_ABORT( telsxHeaderContentEncodingSetContentCodingsVector( hdr.address(), nullptr ), "vec" );
    rtVectorAppend( own.address(), rt::asObj( own.get() ) );
    EXPECT_ABORT( telsxHeaderContentEncodingSetContentCodingsVector( hdr.address(), own.get() ),
                  "rtVectorContainsOnly( vec, rtStringSort() )" );
    telsxHeaderContentEncodingClearContentCodings( hdr.address() );
    EXPECT_EQ( original, hdr );
}

// Setters

#define NUMBER_FIELD( NAME, WORD, WRITTEN, BAD, CONDITION ) \
    FIELD( NAME, WORD, 7, "7", WRITTEN, BAD, CONDITION )
#define TEXT_FIELD( NAME, WORD, GOOD, GOT, WRITTEN, BAD, CONDITION ) \
    FIELD( NAME, WORD, str( GOOD ).get(), GOT, WRITTEN, str( BAD ).get(), CONDITION )
#define NUMBER_OPTION( NAME, WORD, WRITTEN, CONDITION ) OPTION( NAME, WORD, 0, "0", WRITTEN, -1, CONDITION )
#define TEXT_OPTION( NAME, WORD, GOOD, GOT, WRITTEN, BAD, CONDITION ) \
    OPTION( NAME, WORD, str( GOOD ).get(), GOT, WRITTEN, str( BAD ).get(), CONDITION )
#define PARAMS_FIELD( NAME, WRITTEN, CONDITION ) \
    FIELD( NAME, GenericParams, params( ";X=Y" ).get(), ";x=Y", WRITTEN, nullptr, CONDITION )
#define EXPECT_FIELDS( NAME, SELF, CREATED, ... ) \
    expectFields( adopt( CREATED ), written<telsx##NAME##Encode>, SELF, { __VA_ARGS__ } )

static constexpr char deltaSecondsOk[] = "telsxDeltaSecondsOk( deltaSeconds )";

// A header that is one number or one text
#define EXPECT_NUMBER( NAME, SELF, WORD, BAD, CONDITION )                                                   \
    EXPECT_FIELDS( NAME, SELF, telsx##NAME##Create( 1 ), NUMBER_FIELD( NAME, WORD, "7", BAD, CONDITION ) ); \
    EXPECT_ABORT( telsx##NAME##Create( BAD ), CONDITION )
#define EXPECT_TEXT( NAME, WORD, GOOD, GOT, BAD, CONDITION )                           \
    EXPECT_FIELDS( NAME, "hdr", telsx##NAME##Create( str( "1" ).get() ),               \
                   FIELD( NAME, WORD, str( GOOD ).get(), GOT, GOT, BAD, CONDITION ) ); \
    EXPECT_ABORT( telsx##NAME##Create( BAD ), CONDITION )

TEST( Kinds, SettersOfNumbers )
{
    EXPECT_NUMBER( HeaderExpires, "hdr", DeltaSeconds, -1, deltaSecondsOk );
    EXPECT_NUMBER( HeaderMinExpires, "hdr", DeltaSeconds, -1, deltaSecondsOk );
    EXPECT_NUMBER( HeaderMaxForwards, "mf", MaxForwards, 256, "telsxMaxForwardsOk( maxForwards )" );
    EXPECT_NUMBER( HeaderRseq, "hdr", ResponseNum, 0, "telsxResponseNumOk( responseNum )" );
    EXPECT_FIELDS(
        HeaderRack, "hdr", telsxHeaderRackCreate( 1, 2, str( "A" ).get() ),
        NUMBER_FIELD( HeaderRack, ResponseNum, "7 2 A", 4294967296, "telsxResponseNumOk( responseNum )" ),
        NUMBER_FIELD( HeaderRack, Cseq, "1 7 A", 2147483648, "telsxCseqOk( cseq )" ),
        TEXT_FIELD( HeaderRack, Method, "b", "b", "1 2 b", "b ", "telsxMethodOk( method )" ) );

    EXPECT_ABORT( telsxHeaderRackCreate( 0, -1, nullptr ), "telsxResponseNumOk( responseNum )" );
    EXPECT_ABORT( telsxHeaderRackCreate( 1, -1, nullptr ), "telsxCseqOk( cseq )" );
    EXPECT_ABORT( telsxHeaderRackCreate( 1, 0, str( "" ).get() ), "telsxMethodOk( method )" );
    EXPECT_ABORT( telsx___HeaderExpiresCompareFunc( nullptr, nullptr ), "mfA" );
    EXPECT_ABORT( telsx___HeaderMinExpiresCompareFunc( nullptr, nullptr ), "mfA" );
    auto maxForwards = sample<TELSX_HEADER_MAX_FORWARDS>();
    EXPECT_ABORT( telsx___HeaderMaxForwardsCompareFunc( rt::asObj( maxForwards.get() ), nullptr ), "mfB" );
}

TEST( Kinds, SettersOfValuesWithParameters )
{
    EXPECT_FIELDS( HeaderSessionExpires, "hdr", telsxHeaderSessionExpiresCreate( 1 ),
                   NUMBER_FIELD( HeaderSessionExpires, DeltaSeconds, "7", -1, deltaSecondsOk ),
                   TEXT_OPTION( HeaderSessionExpires, Refresher, "UAS", "uas", "1;refresher=uas", "uax",
                                "telsxRefresherOk( refresher )" ),
                   PARAMS_FIELD( HeaderSessionExpires, "1;x=Y", "genericParams" ) );
    EXPECT_FIELDS( HeaderMinSe, "hdr", telsxHeaderMinSeCreate( 1 ),
                   NUMBER_FIELD( HeaderMinSe, DeltaSeconds, "7", -1, deltaSecondsOk ),
                   PARAMS_FIELD( HeaderMinSe, "1;x=Y", "genericParams" ) );
    EXPECT_FIELDS(
        HeaderRetryAfter, "hdr", telsxHeaderRetryAfterCreate( 1 ),
        NUMBER_FIELD( HeaderRetryAfter, DeltaSeconds, "7", -1, deltaSecondsOk ),
        NUMBER_OPTION( HeaderRetryAfter, Duration, "1;duration=0", "telsxDeltaSecondsOk( duration )" ),
        PARAMS_FIELD( HeaderRetryAfter, "1;x=Y", "params" ) );
    EXPECT_FIELDS(
        HeaderEvent, "hdr", telsxHeaderEventCreate( str( "a" ).get() ),
        TEXT_FIELD( HeaderEvent, EventType, "B.c", "B.c", "B.c", ".", "telsxEventTypeOk( eventType )" ),
        TEXT_OPTION( HeaderEvent, Id, "I", "I", "a;id=I", "", "telsxTokenOk( token )" ),
        PARAMS_FIELD( HeaderEvent, "a;x=Y", "genericParams" ) );
    EXPECT_FIELDS( HeaderSubscriptionState, "hdr", telsxHeaderSubscriptionStateCreate( str( "A" ).get() ),
                   TEXT_FIELD( HeaderSubscriptionState, SubstateValue, "B", "b", "b", "b;",
                               "telsxSubstateValueOk( substateValue )" ),
                   TEXT_OPTION( HeaderSubscriptionState, Reason, "R", "r", "a;reason=r", "\"\"",
                                "telsxEventReasonValueOk( reason )" ),
                   NUMBER_OPTION( HeaderSubscriptionState, Expires, "a;expires=0", deltaSecondsOk ),
                   NUMBER_OPTION( HeaderSubscriptionState, RetryAfter, "a;retry-after=0", deltaSecondsOk ),
                   PARAMS_FIELD( HeaderSubscriptionState, "a;x=Y", "genericParams" ) );
    EXPECT_FIELDS( HeaderContentDisposition, "hdr", telsxHeaderContentDispositionCreate( str( "A" ).get() ),
                   TEXT_FIELD( HeaderContentDisposition, DispositionType, "B", "b", "b", "",
                               "telsxDispositionTypeOk( dispositionType )" ),
                   TEXT_OPTION( HeaderContentDisposition, Handling, "H", "h", "a;handling=h", "h h",
                                "telsxHandlingOk( handling )" ),
                   PARAMS_FIELD( HeaderContentDisposition, "a;x=Y", "genericParams" ) );
    EXPECT_FIELDS( HeaderReplaces, "hdr", telsxHeaderReplacesCreate( str( "a" ).get() ),
                   TEXT_FIELD( HeaderReplaces, CallId, "B@c", "B@c", "B@c", "B@", "telsxCallIdOk( callId )" ),
                   TEXT_OPTION( HeaderReplaces, FromTag, "F", "F", "a;from-tag=F", "", "telsxTagOk( tag )" ),
                   TEXT_OPTION( HeaderReplaces, ToTag, "T", "T", "a;to-tag=T", "=", "telsxTagOk( tag )" ),
                   PARAMS_FIELD( HeaderReplaces, "a;x=Y", "genericParams" ) );

    EXPECT_ABORT( telsxHeaderSessionExpiresCreate( -1 ), deltaSecondsOk );
    Ref<RT_STRING> bad = str( "" );
    EXPECT_ABORT( telsxHeaderEventCreate( bad.get() ), "telsxEventTypeOk( eventType )" );
    EXPECT_ABORT( telsxHeaderSubscriptionStateCreate( bad.get() ), "telsxSubstateValueOk( substateValue )" );
    EXPECT_ABORT( telsxHeaderContentDispositionCreate( bad.get() ),
                  "telsxDispositionTypeOk( dispositionType )" );
    EXPECT_ABORT( telsxHeaderReplacesCreate( bad.get() ), "telsxCallIdOk( callId )" );
}

TEST( Kinds, OddSetters )
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

#define PARTY_FIELDS( NAME )                                                                                 \
    TEXT_FIELD( NAME, Iri, "sip:ü@b;x", "sip:ü@b;x", "<sip:%C3%BC@b;x>", "", "telsxIriOk( iri )" ),          \
        TEXT_OPTION( NAME, DisplayName, "", "", "\"\" <sip:a>", "\n", "telsxDisplayNameOk( displayName )" ), \
        PARAMS_FIELD( NAME, "<sip:a>;x=Y", "genericParams" )
#define EXPECT_PARTY( NAME, ... )                                                                     \
    EXPECT_FIELDS( NAME, "hdr", telsx##NAME##Create( iri.get() ), PARTY_FIELDS( NAME ) __VA_ARGS__ ); \
    EXPECT_ABORT( telsx##NAME##Create( bad.get() ), "telsxIriOk( iri )" )

TEST( Kinds, SettersOfAddresses )
{
    Ref<RT_STRING> iri = str( "sip:a" ), bad = str( "<sip:a>" );
    EXPECT_PARTY( HeaderReferTo );
    EXPECT_PARTY( HeaderReplyTo );
    EXPECT_PARTY( HeaderPCalledPartyId );
    EXPECT_PARTY( HeaderRemotePartyId );
    EXPECT_PARTY( HeaderReferredBy, ,
                  TEXT_OPTION( HeaderReferredBy, Cid, "1@B", "1@B", "<sip:a>;cid=\"1@B\"", "\"1@B\"",
                               "telsxSipCleanMsgIdOk( cid )" ) );
}

TEST( Kinds, SettersOfTexts )
{
    Ref<RT_STRING> empty = str( "" ), bad = str( "a\x7F" );
    EXPECT_TEXT( HeaderUserAgent, UserAgent, "A / 1", "A / 1", empty.get(), "telsxUserAgentOk( userAgent )" );
    EXPECT_TEXT( HeaderServer, Server, "A  b", "A  b", empty.get(), "telsxServerOk( server )" );
    EXPECT_TEXT( HeaderTimestamp, TimestampValue, "02. .1", "02. .1", empty.get(),
                 "telsxTimestampValueOk( timestampValue )" );
    EXPECT_TEXT( HeaderPriority, PriorityValue, "Other", "other", empty.get(),
                 "telsxPriorityValueOk( priorityValue )" );
    EXPECT_TEXT( HeaderSubject, Subject, "\tA  b ", "A b", nullptr, "subject" );
    EXPECT_TEXT( HeaderSubject, Subject, "a", "a", bad.get(), "subject invalid: telsxSubjectOk( subject )" );
    EXPECT_TEXT( HeaderOrganization, Organization, " ", "", nullptr, "organization" );
    EXPECT_TEXT( HeaderOrganization, Organization, "a", "a", bad.get(),
                 "organization invalid: telsxOrganizationOk( organization )" );
}

TEST( Kinds, NamedPriorities )
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
}

// A field hides the parameters of its name when it is written; they are there again without it.
TEST( Kinds, FieldsHideParametersOfTheirNames )
{
    auto state = adopt( telsxHeaderSubscriptionStateTryDecode(
        header( "Subscription-State",
                { "a;REASON;reason=r;expires=x;expires=1;retry-after;retry-after=2;y" } )
            .get() ) );
    auto hidden = adopt( telsxHeaderSubscriptionStateGenericParams( state.get() ) );
    EXPECT_EQ( ";reason;expires=x;retry-after;y", utf8( telsxGenericParamsToString( hidden.get() ) ) );
    auto text = [&] { return utf8( telsxHeaderSubscriptionStateToString( state.get() ) ); };
    EXPECT_EQ( "a;reason=r;expires=1;retry-after=2;y", text() );
    telsxHeaderSubscriptionStateDelExpires( state.address() );
    EXPECT_EQ( "a;reason=r;retry-after=2;expires=x;y", text() );
    telsxHeaderSubscriptionStateDelReason( state.address() );
    telsxHeaderSubscriptionStateDelRetryAfter( state.address() );
    EXPECT_EQ( "a;reason;expires=x;retry-after;y", text() );
    EXPECT_EQ( hidden.get(), adopt( telsxHeaderSubscriptionStateGenericParams( state.get() ) ).get() );
}

TEST( Kinds, SortByTheirFields )
{
    struct
    {
        const char *name;
        std::vector<const char *> texts;
    } cases[] = {
        { "Allow", { "", "A", "A,B", "B", "a" } },
        { "Content-Encoding", { "", "a", "a,b", "b,a" } },
        { "Expires", { "0", "9", "10" } },
        { "Max-Forwards", { "0", "9", "10" } },
        { "Rack", { "1 9 Z", "2 1 Z", "2 10 A", "2 10 B", "10 0 A" } },
        { "Date",
          { "Sat, 01 Jan 0000 00:00:00 GMT", "Wed, 31 Dec 2025 23:59:60 GMT", "Thu, 01 Jan 2026 00:00:00 GMT",
            "Mon, 02 Feb 2026 00:00:00 GMT" } },
        { "Session-Expires", { "9;z", "10", "10;x", "10;refresher=uac;x", "10;refresher=uas" } },
        { "Min-Se", { "9;z", "10", "10;x" } },
        { "Retry-After", { "9;duration=9", "10;z", "10;duration=0", "10;duration=0;x", "10;duration=1" } },
        { "Event", { "A;id=z", "a;z", "a;id=A", "a;id=A;x", "a;id=a" } },
        { "Subscription-State",
          { "a;retry-after=9", "a;expires=9", "a;expires=9;x", "a;expires=9;retry-after=0", "a;expires=10;z",
            "a;reason=r", "b" } },
        { "Content-Disposition", { "a;z", "a;handling=x", "a;handling=x;y", "b" } },
        { "Refer-To", { "Z <sip:a>;z", "<sip:b>", "<sip:b>;x", "\"\" <sip:b>", "B <sip:b>" } },
        { "Referred-By", { "<sip:a>;z", "<sip:a>;cid=\"a@b\"", "<sip:a>;cid=\"a@b\";x", "A <sip:a>" } },
        { "Replaces",
          { "a;z", "a;early-only", "a;to-tag=1", "a;to-tag=1;early-only", "a;from-tag=1",
            "a;from-tag=1;to-tag=0", "b" } },
        { "Subject", { "", "A b", "a  a", "a b" } },
    };
    for ( auto &[name, inOrder] : cases )
        expectAscending( named( headers::all, name ), inOrder );
}

// Dates

static Ref<RT_OBJ> date( const std::string &line ) { return read( named( headers::all, "Date" ), line ); }

static std::string lineOf( int64_t weekday, int64_t day, int month, int64_t year )
{
    static constexpr const char *weekdays[] = { "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun" };
    return utf8( rtStringCreateFromFormatCstr(
        "%~s, %02i %~s %04i 00:00:00 GMT", -1, rtStringCreateFromCstr( weekdays[weekday], -1 ), day,
        rtStringCreateFromCstr( month == 2 ? "Feb" : "Mar", -1 ), year ) );
}

// The days around the end of February in all years that can be written
TEST( Kinds, DatesOfLeapYears )
{
    int64_t weekday = 0; // of 28 Feb 0000, a Monday
    for ( int64_t year = 0; year <= 9999; ++year )
    {
        bool isLeap = year % 4 == 0 && ( year % 100 != 0 || year % 400 == 0 );
        ASSERT_TRUE( date( lineOf( weekday, 28, 2, year ) ) ) << year;
        ASSERT_EQ( isLeap, bool( date( lineOf( ( weekday + 1 ) % 7, 29, 2, year ) ) ) ) << year;
        ASSERT_TRUE( date( lineOf( ( weekday + 1 + isLeap ) % 7, 1, 3, year ) ) ) << year;
        ASSERT_FALSE( date( lineOf( ( weekday + 2 - isLeap ) % 7, 1, 3, year ) ) ) << year;
        weekday = ( weekday + 365 + isLeap ) % 7;
    }
}

TEST( Kinds, DatesStandCharacterByCharacter )
{
    const std::string line = "Sat, 13 Nov 2010 23:29:00 GMT";
    ASSERT_TRUE( date( line ) );
    for ( std::size_t i = 0; i < line.size(); ++i )
    {
        EXPECT_FALSE( date( line.substr( 0, i ) ) ) << i;
        for ( char other : { 'x', '\t', '-' } )
        {
            std::string changed = line;
            changed[i] = other;
            EXPECT_FALSE( date( changed ) ) << changed;
        }
    }
}

TEST( Kinds, DatesHoldTimes )
{
    Ref<RT_TIME> before = adopt( rtTimeNow() );
    auto hdr = adopt( telsxHeaderDateCreateFromCurrentTime() );
    Ref<RT_TIME> now = adopt( telsxHeaderDateTime( hdr.get() ) ), after = adopt( rtTimeNow() );
    EXPECT_LE( before, now );
    EXPECT_LE( now, after );
    EXPECT_TRUE( date( utf8( telsxHeaderDateToString( hdr.get() ) ) ) );

    // A time that is none is written as it stands, unless it has no month.
    Ref<RT_TIME> time = adopt( rtTimeCreate() );
    rtTimeSetHour( time.address(), 99 );
    EXPECT_FIELDS( HeaderDate, "hdr", telsxHeaderDateCreate( now.get() ),
                   FIELD( HeaderDate, Time, time.get(), "0000-01-01 99:00:00",
                          "Sat, 01 Jan 0000 99:00:00 GMT", nullptr, "tm" ) );
    telsxHeaderDateSetTime( hdr.address(), time.get() );
    for ( int64_t month : { 0, 13, -2'000'000'000 } )
    {
        rtTimeSetMonth( time.address(), month );
        auto none = adopt( telsxHeaderDateCreate( time.get() ) );
        EXPECT_ABORT( telsxHeaderDateEncode( none.get() ), "within( time->month, 1, 12 )" );
    }
    EXPECT_EQ( "Sat, 01 Jan 0000 99:00:00 GMT", utf8( telsxHeaderDateToString( hdr.get() ) ) );
    EXPECT_ABORT( telsxHeaderDateCreate( nullptr ), "tm" );
}

// One large message with a header of each kind: all are read, written to a copy, which is sent, and removed.
TEST( Kinds, AllInOneMessage )
{
    std::string wire = "INVITE sip:b SIP/2.0\r\n";
    for ( const headers::Kind &kind : headers::all )
        wire += std::string( kind.name ) + ": " + sampleLine( kind.name ) + "\r\n";
    const Ref<TELSX_MESSAGE> received = message( wire + "\r\nbody" );
    ASSERT_TRUE( received );
    std::vector<Ref<RT_OBJ>> read;
    Ref<TELSX_MESSAGE> copy = message( "INVITE sip:b SIP/2.0\r\n\r\nbody" ), rest = received;
    for ( const headers::Kind &kind : headers::all )
    {
        SCOPED_TRACE( kind.name );
        EXPECT_TRUE( kind.presentInMessage( received.get() ) );
        EXPECT_FALSE( kind.presentInMessage( copy.get() ) );
        read.push_back( adopt( kind.tryDecodeFromMessage( received.get() ) ) );
        ASSERT_TRUE( read.back() );
        kind.encodeToMessage( read.back().get(), copy.address() );
        EXPECT_TRUE( kind.presentInMessage( copy.get() ) );
        EXPECT_TRUE( kind.presentInMessage( rest.get() ) );
        kind.removeFromMessage( rest.address() );
        EXPECT_FALSE( kind.presentInMessage( rest.get() ) );
    }
    EXPECT_EQ( 53U, read.size() );
    EXPECT_EQ( "INVITE sip:b SIP/2.0 | body <body>", dump( rest.get() ) );

    const Ref<TELSX_MESSAGE> sent = message( bytes( adopt( telsxMessageEncode( copy.get() ) ) ) );
    ASSERT_TRUE( sent );
    for ( std::size_t i = 0; i < read.size(); ++i )
        for ( const Ref<TELSX_MESSAGE> &msg : { received, copy, sent } )
            EXPECT_EQ( read[i], adopt( headers::all[i].tryDecodeFromMessage( msg.get() ) ) )
                << headers::all[i].name;
}
