// A message in words, for people: a field on a line.
#pragma once

#include <iomanip>
#include <ostream>

#include "listing.hpp"

class TextListing : public Listing
{
public:
    explicit TextListing( std::ostream &to ) : out( to ) {}

    void request( const String &method, const String &target, const String &version ) override
    {
        out << "request\n"
            << "  method   " << printable( method ) << '\n'
            << "  target   " << printable( target ) << '\n'
            << "  version  " << printable( version ) << "\nheaders\n";
    }
    void response( int64_t status, const String &phrase, const String &version ) override
    {
        out << "response\n"
            << "  status   " << status << '\n'
            << "  phrase   " << printable( phrase ) << '\n'
            << "  version  " << printable( version ) << "\nheaders\n";
    }
    void header( TELSX_MESSAGE_HEADER header ) override
    {
        out << "  " << printable( Owned( telsxMessageHeaderName( header ) ) ) << '\n';
        for ( int64_t i = 0; i < telsxMessageHeaderLinesLength( header ); ++i )
            out << "    " << printable( Owned( telsxMessageHeaderLineAt( header, i ) ) ) << '\n';
    }
    void body( int64_t length ) override { out << "body\n  " << length << " bytes\n"; }

    void beginTyped() override { out << "typed\n"; }
    void endTyped() override {}
    void unreadable( const char *header ) override { out << "  " << header << " does not decode\n"; }
    void beginHeader( const char *header, int64_t values ) override
    {
        name = header;
        count = values;
        index = 0;
        inTexts = false;
        if ( values == 0 )
            out << "  " << name << " is empty\n";
    }
    void endHeader() override {}
    void unreadableValue() override
    {
        title();
        out << " does not decode\n";
    }
    void text( const String &text ) override
    {
        if ( !inTexts )
            out << "  " << name << '\n';
        inTexts = true;
        out << "    " << printable( text ) << '\n';
    }
    void beginValue() override
    {
        title();
        out << '\n';
    }
    void endValue() override {}
    void field( const char *field, const String &text ) override { line( field, printable( text ) ); }
    void field( const char *field, int64_t number ) override { line( field, std::to_string( number ) ); }
    void weight( const char *field, int64_t thousandths ) override
    {
        line( field, std::to_string( thousandths / 1000 ) + '.'
                         + std::to_string( 1000 + thousandths % 1000 ).substr( 1 ) );
    }
    void mark( const char *field ) override { line( field, "yes" ); }
    void beginParts( const char * ) override { blanks += 2; }
    void endParts() override { blanks -= 2; }
    void beginPairs( const char *label ) override { pairs = label; }
    void pair( const String &first, const String &value ) override
    {
        line( pairs.c_str(), printable( first ) + ( value ? "=" + printable( value ) : "" ) );
    }
    void endPairs() override {}

private:
    void title()
    {
        out << "  " << name;
        if ( count > 1 )
            out << ' ' << ++index << " of " << count;
    }
    void line( const char *field, const std::string &text )
    {
        out << std::setw( blanks ) << "" << std::left << std::setw( 22 - blanks ) << field << text << '\n';
    }

    std::ostream &out;
    const char *name = "";
    int64_t count = 0, index = 0;
    bool inTexts = false;
    int blanks = 4;    // before a field
    std::string pairs; // the name of those that are listed
};
