// What is printed of the messages.
#pragma once

#include <memory>

#include "finding.hpp"
#include "options.hpp"
#include "place.hpp"

namespace tools
{

class Json;

class Report
{
public:
    virtual ~Report() = default;

    // The next message. Returns whether errors or warnings are known to be in it.
    virtual bool add( const Cut &message, const Place &place ) = 0;

    // There are no more messages. Returns whether errors or warnings were found that add did not yet know of.
    virtual bool finish() { return false; }
};

std::unique_ptr<Report> makeCheckText( const Options &options );
std::unique_ptr<Report> makeCheckJson( const Options &options );
std::unique_ptr<Report> makeSummary( const Options &options );
std::unique_ptr<Report> makeDecodeText( const Options &options );
std::unique_ptr<Report> makeDecodeJson( const Options &options );

// Writes to standard output.
void print( const std::string &text );

// Prints the findings as compilers do, with the lines and a caret under the places.
void printFindings( const std::vector<Finding> &findings, const Cut &message, const Place &place );

// Puts a place, and a finding there, into an object.
void addPlace( Json &json, const Place &place );
void addFinding( Json &json, const Finding &finding, const Place &place );

} // namespace tools
