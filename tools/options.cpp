#include "options.hpp"

#include <charconv>
#include <cstdio>
#include <cstring>

#include <getopt.h>

#include "common/message.hpp"

namespace tools
{

namespace
{

const char usage[] = R"(Usage: telsx check [OPTION]... FILE...
       telsx decode [OPTION]... FILE...

Reads SIP messages in files: one message or several, one after another, or a
capture (pcap or pcapng). "-" is standard input.

check shows what is wrong with each message, and where; decode shows what each
message says.

  --json           print one JSON object on each line
  --port PORT      in captures, treat all bytes from and to this port as SIP;
                   may be given more than once (default: 5060). On other ports
                   only what begins with a start line is.
  --silence CODE   check: leave out findings with this code, such as via-host;
                   may be given more than once
  --summary        check: count messages and findings instead of showing them
  --help           show this text
  --version        show the version

Exit status: 0 if no errors and no warnings were found, 1 if some were, 2 for
wrong arguments and for a file that cannot be read or holds no message.
)";

bool readPort( const char *text, uint16_t &port )
{
    const char *end = text + std::strlen( text );
    auto [last, error] = std::from_chars( text, end, port );
    return error == std::errc() && last == end && port != 0;
}

int complain( const std::string &what )
{
    std::fprintf( stderr, "telsx: %s\nTry \"telsx --help\".\n", printable( what ).c_str() );
    return exitTrouble;
}

} // namespace

std::optional<Options> readOptions( int argc, char **argv, int &status )
{
    enum
    {
        Help = 1,
        Version,
        Json,
        Port,
        Silence,
        Summary
    };
    static const option known[] = {
        { "help", no_argument, nullptr, Help },
        { "version", no_argument, nullptr, Version },
        { "json", no_argument, nullptr, Json },
        { "port", required_argument, nullptr, Port },
        { "silence", required_argument, nullptr, Silence },
        { "summary", no_argument, nullptr, Summary },
        { nullptr, 0, nullptr, 0 },
    };
    Options options;
    opterr = 0; // what getopt_long would print may steer a terminal
    for ( int found; ( found = getopt_long( argc, argv, ":", known, nullptr ) ) != -1; )
    {
        uint16_t port = 0;
        switch ( found )
        {
            case Help:
                std::fputs( usage, stdout );
                status = exitGood;
                return std::nullopt;
            case Version:
                std::puts( "telsx " TELSX_PROGRAM_VERSION );
                status = exitGood;
                return std::nullopt;
            case Json: options.json = true; break;
            case Port:
                if ( !readPort( optarg, port ) )
                {
                    status = complain( std::string( "not a port: " ) + optarg );
                    return std::nullopt;
                }
                options.ports.insert( port );
                break;
            case Silence: options.silenced.insert( optarg ); break;
            case Summary: options.summary = true; break;
            case ':':
                status = complain( std::string( "a value must follow " ) + argv[optind - 1] );
                return std::nullopt;
            default:
                // A letter may be one of several in an argument.
                status = complain( "no such option: "
                                   + ( optopt > Summary ? std::string( "-" ) + static_cast<char>( optopt )
                                                        : argv[optind - 1] ) );
                return std::nullopt;
        }
    }

    std::string_view command = optind < argc ? argv[optind] : "";
    if ( command == "decode" )
        options.command = Options::Command::Decode;
    else if ( command != "check" )
    {
        status = complain( command.empty() ? "what to do is missing: check or decode"
                                           : "no such command: " + std::string( command ) );
        return std::nullopt;
    }
    options.files.assign( argv + optind + 1, argv + argc );
    bool decodes = options.command == Options::Command::Decode;
    if ( options.files.empty() || ( decodes && ( options.summary || !options.silenced.empty() ) ) )
    {
        status = complain( options.files.empty() ? "no file" : "--summary and --silence are for check" );
        return std::nullopt;
    }
    if ( options.ports.empty() )
        options.ports.insert( 5060 );
    return options;
}

} // namespace tools
