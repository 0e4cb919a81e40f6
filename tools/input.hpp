// The messages in a file.
#pragma once

#include <cstdio>
#include <functional>

#include "framing.hpp"
#include "options.hpp"
#include "place.hpp"

namespace tools
{

// Is told each message and where it was found.
using Receive = std::function<void( const Cut &, const Place & )>;

// Is called now and then while a file is read.
using Tick = std::function<void( std::FILE * )>;

// Reads the file, or standard input for "-". False if it can't be read to its end or holds no message; what is wrong, or
// left out, is told on standard error.
bool readFile( const char *name, const Options &options, const Receive &receive, const Tick &tick );

// For readFile: whether a file begins as a capture does; reads a capture, and a file of text. They give the number of
// messages, or -1 for a file that can't be read to its end. A capture is closed.
bool isCapture( std::FILE *file );
int64_t readCapture( const char *name, std::FILE *file, const Options &options, const Receive &receive,
                     const Tick &tick );
int64_t readText( const char *name, std::FILE *file, const Receive &receive, const Tick &tick );

// Closes a file that is not standard input, which may be named again.
void closeFile( std::FILE *file );

// Tells what is wrong with the file.
void complain( const char *name, const std::string &what );

} // namespace tools
