// The kinds of typed headers in one list, and the properties that hold for all lines of text. The fuzz target and the
// tests go through it.
#pragma once

#include <string_view>

#include "values.hpp"

namespace headers
{

using rt::adopt;
using rt::Ref;

struct Kind
{
    std::string_view name; // as it is written
    RT_OBJ ( *copy )( RT_OBJ hdr );
    TELSX_MESSAGE_HEADER ( *encode )( RT_OBJ hdr );
    RT_OBJ ( *tryDecode )( TELSX_MESSAGE_HEADER header );
    RT_STORE ( *store )( RT_OBJ hdr );
    RT_OBJ ( *tryRestore )( RT_STORE store );
    RT_BOOL ( *presentInMessage )( TELSX_MESSAGE msg );
    void ( *encodeToMessage )( RT_OBJ hdr, TELSX_MESSAGE *msg );
    RT_OBJ ( *tryDecodeFromMessage )( TELSX_MESSAGE msg );
    void ( *removeFromMessage )( TELSX_MESSAGE *msg );

    // For a list or set: the name of its value or element, and its functions.
    std::string_view item = {};
    RT_OBJ ( *create )() = nullptr;
    int64_t ( *length )( RT_OBJ hdr ) = nullptr;
    RT_OBJ ( *at )( RT_OBJ hdr, int64_t index ) = nullptr;
    void ( *clear )( RT_OBJ *hdr ) = nullptr;
    // A list
    void ( *set )( RT_OBJ *hdr, int64_t index, RT_OBJ item ) = nullptr;
    void ( *del )( RT_OBJ *hdr, int64_t index ) = nullptr;
    void ( *prepend )( RT_OBJ *hdr, RT_OBJ item ) = nullptr;
    void ( *append )( RT_OBJ *hdr, RT_OBJ item ) = nullptr;
    void ( *insert )( RT_OBJ *hdr, int64_t index, RT_OBJ item ) = nullptr;
    // A set
    RT_BOOL ( *has )( RT_OBJ hdr, RT_OBJ item ) = nullptr;
    void ( *add )( RT_OBJ *hdr, RT_OBJ item ) = nullptr;
    void ( *remove )( RT_OBJ *hdr, RT_OBJ item ) = nullptr;
    // A set or a list of texts
    RT_VECTOR ( *vector )( RT_OBJ hdr ) = nullptr;
    void ( *setVector )( RT_OBJ *hdr, RT_VECTOR vector ) = nullptr;

    Ref<RT_STRING> nameString() const { return adopt( rtStringCreateFromCstr( name.data(), -1 ) ); }
};

// Two kinds have another name for this.
#define telsxHeaderContactClearContacts telsxHeaderContactClear
#define telsxHeaderWarningClearWarnings telsxHeaderWarningWarningsClear

// clang-format off
#define KIND( NAME, SIP_NAME ) \
    SIP_NAME, ERASED( telsx##NAME##CreateFrom ), ERASED( telsx##NAME##Encode ), ERASED( telsx##NAME##TryDecode ), \
    ERASED( telsx##NAME##Store ), ERASED( telsx##NAME##TryRestore ), telsx##NAME##PresentInMessage, \
    ERASED( telsx##NAME##EncodeToMessage ), ERASED( telsx##NAME##TryDecodeFromMessage ), telsx##NAME##RemoveFromMessage
#define ITEMS( NAME, WORD, ITEM, AT ) \
    #ITEM, ERASED( telsx##NAME##Create ), ERASED( telsx##NAME##WORD##sLength ), ERASED( telsx##NAME##AT ), \
    ERASED( telsx##NAME##Clear##WORD##s )
#define CHANGES( NAME, WORD ) \
    ERASED( telsx##NAME##Set##WORD##At ), ERASED( telsx##NAME##Del##WORD##At ), ERASED( telsx##NAME##Prepend##WORD ), \
    ERASED( telsx##NAME##Append##WORD ), ERASED( telsx##NAME##Insert##WORD )
#define VECTOR( NAME, WORD ) ERASED( telsx##NAME##WORD##sVector ), ERASED( telsx##NAME##Set##WORD##sVector )
#define TELSX_KIND( NAME, SORT, SIP_NAME ) { KIND( NAME, SIP_NAME ) },
#define TELSX_KIND_OF_VALUES( NAME, SORT, SIP_NAME, WORD, VALUE ) \
    { KIND( NAME, SIP_NAME ), ITEMS( NAME, WORD, VALUE, TryDecode##WORD##At ), CHANGES( NAME, WORD ) },
#define TELSX_KIND_OF_LIST( NAME, SORT, SIP_NAME, WORD ) \
    { KIND( NAME, SIP_NAME ), ITEMS( NAME, WORD, WORD, WORD##At ), CHANGES( NAME, WORD ), {}, {}, {}, VECTOR( NAME, WORD ) },
#define TELSX_KIND_OF_SET( NAME, SORT, SIP_NAME, WORD ) \
    { KIND( NAME, SIP_NAME ), ITEMS( NAME, WORD, WORD, WORD##At ), {}, {}, {}, {}, {}, \
      ERASED( telsx##NAME##Has##WORD ), ERASED( telsx##NAME##Set##WORD ), ERASED( telsx##NAME##Del##WORD ), \
      VECTOR( NAME, WORD ) },
inline const Kind all[] = {
#include "telsx/telsx_headers.def"
};
// clang-format on
#undef KIND
#undef ITEMS
#undef CHANGES
#undef VECTOR
#undef TELSX_KIND

using Raw = Ref<TELSX_MESSAGE_HEADER>;
using Message = Ref<TELSX_MESSAGE>;

inline int64_t linesOf( const Raw &raw ) { return telsxMessageHeaderLinesLength( raw.get() ); }

inline int64_t count( const Raw &raw, RT_CHAR ch )
{
    int64_t sum = 0;
    for ( int64_t i = 0; i < linesOf( raw ); ++i )
        sum += values::count( rt::textOf( adopt( telsxMessageHeaderLineAt( raw.get(), i ) ) ), ch );
    return sum;
}

// Whether both are null, or both have the same value and text.
inline bool areSame( const Kind &kind, const Ref<RT_OBJ> &a, const Ref<RT_OBJ> &b )
{
    return a && b ? a == b && adopt( kind.encode( a.get() ) ) == adopt( kind.encode( b.get() ) ) : !a && !b;
}

// A request with this raw header.
inline Message messageWith( const Raw &raw )
{
    Ref<TELSX_VERSION> version = adopt( telsxVersionCreateSip20() );
    Message message = adopt( telsxMessageCreateRequestCstr(
        version.get(), "OPTIONS", -1, adopt( rtStringCreateFromCstr( "sip:a", -1 ) ).get() ) );
    telsxMessageSetHeader( message.address(), raw.get() );
    return message;
}

// Each of these returns the first property that does not hold, or null. The header is what the raw one decodes to.

inline const char *brokenReading( const Kind &kind, const Raw &raw, const Ref<RT_OBJ> &hdr )
{
    Message message = messageWith( raw );
    if ( !kind.presentInMessage( message.get() ) )
        return "a header is present in a message, however bad it is";
    if ( !areSame( kind, adopt( kind.tryDecodeFromMessage( message.get() ) ),
                   linesOf( raw ) ? hdr : Ref<RT_OBJ>() ) )
        return "a header in a message decodes as it does alone, but for one without lines";
    Ref<RT_STORE> store = adopt( telsxMessageHeaderStoreLines( raw.get() ) );
    if ( !areSame( kind, adopt( kind.tryRestore( store.get() ) ), hdr ) )
        return "a store of lines is restored as the lines decode";
    return nullptr;
}

inline const char *brokenWriting( const Kind &kind, const Raw &encoded, const Ref<RT_OBJ> &hdr )
{
    Raw other = adopt( telsxMessageHeaderCreate( kind.nameString().get() ) );
    for ( const char *line : { "?", "", "?" } )
        telsxMessageHeaderAppendLineCstr( other.address(), line, -1 );
    Message before = messageWith( other ), message = before;
    kind.encodeToMessage( hdr.get(), message.address() );
    Raw written = adopt( telsxMessageHeader( message.get(), kind.nameString().get() ) );
    if ( written != encoded )
        return "what is written to a message is the raw header, in the place of all lines of its name";
    kind.removeFromMessage( message.address() );
    if ( kind.presentInMessage( message.get() ) || kind.tryDecodeFromMessage( message.get() ) )
        return "what is removed from a message is gone";
    if ( adopt( telsxMessageHeader( before.get(), kind.nameString().get() ) ) != other )
        return "other holders of a message see none of it";
    return nullptr;
}

inline Ref<RT_STRING> textOf( const Raw &raw )
{
    Ref<RT_STRING> text = adopt( rtStringCreate() );
    for ( int64_t i = 0; i < linesOf( raw ); ++i )
        rtStringAppendFormatCstr( text.address(), i ? ", %~s" : "%~s", -1,
                                  telsxMessageHeaderLineAt( raw.get(), i ) );
    return text;
}

// Whether the lines are contacts, the first with a display name that begins with a star. That is a contact in any line
// except the first, where the star means all contacts.
inline bool isStarInFront( const Kind &kind, const Raw &raw )
{
    if ( kind.name != "Contact" || !linesOf( raw ) )
        return false;
    Ref<RT_STRING> first = adopt( telsxMessageHeaderLineAt( raw.get(), 0 ) );
    return rtStringLength( first.get() ) > 1 && rtStringBeginsWithChar( first.get(), '*' );
}

inline const char *broken( const Kind &kind, const Raw &raw )
{
    Ref<RT_OBJ> hdr = adopt( kind.tryDecode( raw.get() ) );
    const char *property = brokenReading( kind, raw, hdr );
    if ( property || !hdr )
        return property;
    Raw encoded = adopt( kind.encode( hdr.get() ) );
    if ( isStarInFront( kind, encoded ) )
        return nullptr;
    if ( adopt( telsxMessageHeaderName( encoded.get() ) ) != kind.nameString() )
        return "a kind writes its own name";
    Ref<RT_OBJ> again = adopt( kind.tryDecode( encoded.get() ) );
    if ( !again && linesOf( encoded ) )
        return "what is encoded decodes, but for an empty list";
    bool mayHide = count( raw, '\\' ), allStand = count( encoded, ';' ) == count( raw, ';' );
    if ( again && adopt( kind.encode( again.get() ) ) != encoded )
        return mayHide ? broken( kind, encoded ) : "what is encoded doesn't change any more";
    if ( again && allStand && !mayHide && hdr != again )
        return "what is encoded decodes to the same, unless a parameter fell away beside another of its name";
    if ( !areSame( kind, adopt( kind.tryRestore( adopt( kind.store( hdr.get() ) ).get() ) ), again ) )
        return "what is stored is restored";
    if ( !areSame( kind, adopt( kind.copy( hdr.get() ) ), hdr ) )
        return "a copy is the same";
    if ( adopt( rtObjToString( hdr.get() ) ) != textOf( encoded ) )
        return "the text is that of the lines";
    return brokenWriting( kind, encoded, hdr );
}

} // namespace headers
