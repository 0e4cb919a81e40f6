// The kinds of typed headers in one list, and the properties that hold for all lines of text. The fuzz target
// and the tests go through it.
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
    RT_STRING ( *nameString )();
    RT_OBJ ( *copy )( RT_OBJ hdr );
    TELSX_MESSAGE_HEADER ( *encode )( RT_OBJ hdr );
    RT_OBJ ( *tryDecode )( TELSX_MESSAGE_HEADER header );
    RT_STORE ( *store )( RT_OBJ hdr );
    RT_OBJ ( *tryRestore )( RT_STORE store );
    RT_BOOL ( *presentInMessage )( TELSX_MESSAGE msg );
    void ( *encodeToMessage )( RT_OBJ hdr, TELSX_MESSAGE *msg );
    RT_OBJ ( *tryDecodeFromMessage )( TELSX_MESSAGE msg );
    void ( *removeFromMessage )( TELSX_MESSAGE *msg );
};

#define TELSX_KIND( NAME, SORT, SIP_NAME )                                                                  \
    { SIP_NAME,                                                                                             \
      [] { return rtStringCreateFromCstr( SIP_NAME, -1 ); },                                                \
      []( RT_OBJ hdr ) { return telsx##NAME##Obj( telsx##NAME##CreateFrom( telsx##NAME##From( hdr ) ) ); }, \
      []( RT_OBJ hdr ) { return telsx##NAME##Encode( telsx##NAME##From( hdr ) ); },                         \
      []( TELSX_MESSAGE_HEADER header ) { return telsx##NAME##Obj( telsx##NAME##TryDecode( header ) ); },   \
      []( RT_OBJ hdr ) { return telsx##NAME##Store( telsx##NAME##From( hdr ) ); },                          \
      []( RT_STORE store ) { return telsx##NAME##Obj( telsx##NAME##TryRestore( store ) ); },                \
      telsx##NAME##PresentInMessage,                                                                        \
      []( RT_OBJ hdr, TELSX_MESSAGE *msg )                                                                  \
      { telsx##NAME##EncodeToMessage( telsx##NAME##From( hdr ), msg ); },                                   \
      []( TELSX_MESSAGE msg ) { return telsx##NAME##Obj( telsx##NAME##TryDecodeFromMessage( msg ) ); },     \
      telsx##NAME##RemoveFromMessage },
inline const Kind all[] = {
#include "telsx/telsx_headers.def"
};
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

// Whether both are null, or both are the same in value and text.
inline bool areSame( const Kind &kind, const Ref<RT_OBJ> &a, const Ref<RT_OBJ> &b )
{
    return a && b ? a == b && adopt( kind.encode( a.get() ) ) == adopt( kind.encode( b.get() ) ) : !a && !b;
}

// A request with that raw header.
inline Message messageWith( const Raw &raw )
{
    Ref<TELSX_VERSION> version = adopt( telsxVersionCreateSip20() );
    Message message = adopt( telsxMessageCreateRequestCstr(
        version.get(), "OPTIONS", -1, adopt( rtStringCreateFromCstr( "sip:a", -1 ) ).get() ) );
    telsxMessageSetHeader( message.address(), raw.get() );
    return message;
}

// Each of these gives the first property that doesn't hold, or null. The header is what the raw one decodes
// to.

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
    Raw other = adopt( telsxMessageHeaderCreate( adopt( kind.nameString() ).get() ) );
    for ( const char *line : { "?", "", "?" } )
        telsxMessageHeaderAppendLineCstr( other.address(), line, -1 );
    Message before = messageWith( other ), message = before;
    kind.encodeToMessage( hdr.get(), message.address() );
    Raw written = adopt( telsxMessageHeader( message.get(), adopt( kind.nameString() ).get() ) );
    if ( written != encoded )
        return "what is written to a message is the raw header, in the place of all lines of its name";
    kind.removeFromMessage( message.address() );
    if ( kind.presentInMessage( message.get() ) || kind.tryDecodeFromMessage( message.get() ) )
        return "what is removed from a message is gone";
    if ( adopt( telsxMessageHeader( before.get(), adopt( kind.nameString() ).get() ) ) != other )
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

// Whether the lines are contacts of which the first has a display name that begins with a star. That is a
// contact in any line but the first, where the star means all contacts.
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
    if ( adopt( telsxMessageHeaderName( encoded.get() ) ) != adopt( kind.nameString() ) )
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
