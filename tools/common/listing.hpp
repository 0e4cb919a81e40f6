// What a message says, told piece by piece to something that prints it.
#pragma once

#include "message.hpp"

// Is told all of a message in this order: the start line; each header with its lines; the size of the body; each header
// of a kind that the library has a type for, with its values and their fields.
class Listing
{
public:
    virtual ~Listing() = default;

    virtual void request( const String &method, const String &target, const String &version ) = 0;
    virtual void response( int64_t status, const String &phrase, const String &version ) = 0;
    virtual void header( TELSX_MESSAGE_HEADER header ) = 0;
    virtual void body( int64_t length ) = 0;

    virtual void beginTyped() = 0;
    virtual void endTyped() = 0;
    // A header that does not decode; one that has a type, with so many values or texts; its end.
    virtual void unreadable( const char *name ) = 0;
    virtual void beginHeader( const char *name, int64_t values ) = 0;
    virtual void endHeader() = 0;
    // The next value of the header: one that does not decode; a text; one with fields, which follow, and its end.
    virtual void unreadableValue() = 0;
    virtual void text( const String &text ) = 0;
    virtual void beginValue() = 0;
    virtual void endValue() = 0;
    // A field: a text, a number, a weight in thousandths, a mark that is there.
    virtual void field( const char *name, const String &text ) = 0;
    virtual void field( const char *name, int64_t number ) = 0;
    virtual void weight( const char *name, int64_t thousandths ) = 0;
    virtual void mark( const char *name ) = 0;
    // The parts of the address that the field of the name holds: their fields follow, and their end.
    virtual void beginParts( const char *name ) = 0;
    virtual void endParts() = 0;
    // Pairs of a name and a value, such as the parameters that have no field of their own, with what one of them is called.
    // At least one pair follows, whose value may be null, and then their end.
    virtual void beginPairs( const char *name ) = 0;
    virtual void pair( const String &name, const String &value ) = 0;
    virtual void endPairs() = 0;
};

// Tells the message as it came: start line, headers and body, without a look at what the headers say.
inline void listRaw( const Message &message, Listing &to )
{
    TELSX_MESSAGE msg = message.get();
    Owned versionObject( telsxMessageVersion( msg ) );
    String version( telsxVersionToString( versionObject.get() ) );
    if ( telsxMessageIsRequest( msg ) )
        to.request( String( telsxMessageRequestMethod( msg ) ), String( telsxMessageRequestIri( msg ) ),
                    version );
    else
        to.response( telsxMessageResponseStatusCode( msg ), String( telsxMessageResponseReasonPhrase( msg ) ),
                     version );
    Owned headers( telsxMessageHeadersVector( msg ) );
    for ( int64_t i = 0; i < rtVectorLength( headers.get() ); ++i )
    {
        Owned object( rtVectorObjAt( headers.get(), i ) );
        to.header( telsxMessageHeaderFrom( object.get() ) ); // borrowed from the object
    }
    Owned body( telsxMessageBody( msg ) );
    to.body( body ? rtBufferLength( body.get() ) : 0 );
}
