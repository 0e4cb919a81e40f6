// A message as members of a JSON object.
#pragma once

#include <algorithm>

#include "common/listing.hpp"
#include "json.hpp"

namespace tools
{

class JsonListing : public Listing
{
public:
    explicit JsonListing( Json &to ) : json( to ) {}

    void request( const String &method, const String &target, const String &version ) override
    {
        json.name( "request" ).begin( '{' );
        field( "method", method );
        field( "target", target );
        field( "version", version );
        json.end( '}' ).name( "headers" ).begin( '[' );
    }
    void response( int64_t status, const String &phrase, const String &version ) override
    {
        json.name( "response" ).begin( '{' );
        field( "status", status );
        field( "phrase", phrase );
        field( "version", version );
        json.end( '}' ).name( "headers" ).begin( '[' );
    }
    void header( TELSX_MESSAGE_HEADER header ) override
    {
        json.begin( '{' );
        field( "name", String( telsxMessageHeaderName( header ) ) );
        json.name( "lines" ).begin( '[' );
        for ( int64_t i = 0; i < telsxMessageHeaderLinesLength( header ); ++i )
            text( String( telsxMessageHeaderLineAt( header, i ) ) );
        json.end( ']' ).end( '}' );
    }
    void body( int64_t length ) override
    {
        json.end( ']' ).name( "body" ).begin( '{' );
        field( "length", length );
        json.end( '}' );
    }

    void beginTyped() override { json.name( "typed" ).begin( '[' ); }
    void endTyped() override { json.end( ']' ); }
    void unreadable( const char *name ) override
    {
        json.begin( '{' ).name( "name" ).text( name ).name( "values" ).literal( "null" ).end( '}' );
    }
    void beginHeader( const char *name, int64_t ) override
    {
        json.begin( '{' ).name( "name" ).text( name ).name( "values" ).begin( '[' );
    }
    void endHeader() override { json.end( ']' ).end( '}' ); }
    void unreadableValue() override { json.literal( "null" ); }
    void text( const String &text ) override { json.text( toUtf8( text ) ); }
    void beginValue() override { json.begin( '{' ); }
    void endValue() override { json.end( '}' ); }
    void field( const char *name, const String &text ) override { named( name ).text( toUtf8( text ) ); }
    void field( const char *name, int64_t number ) override { named( name ).number( number ); }
    void weight( const char *name, int64_t thousandths ) override
    {
        named( name ).literal( std::to_string( thousandths / 1000 ) + '.'
                               + std::to_string( 1000 + thousandths % 1000 ).substr( 1 ) );
    }
    void mark( const char *name ) override { named( name ).literal( "true" ); }
    void beginParts( const char *name ) override { named( std::string( name ) + "_parts" ).begin( '{' ); }
    void endParts() override { json.end( '}' ); }
    void beginPairs( const char *name ) override { named( std::string( name ) + 's' ).begin( '[' ); }
    void pair( const String &name, const String &value ) override
    {
        json.begin( '{' );
        field( "name", name );
        if ( value )
            field( "value", value );
        json.end( '}' );
    }
    void endPairs() override { json.end( ']' ); }

private:
    // The name of a member, without blanks.
    Json &named( std::string name )
    {
        std::replace( name.begin(), name.end(), ' ', '_' );
        return json.name( name );
    }

    Json &json;
};

} // namespace tools
