// One JSON object on one line (RFC 8259).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tools
{

// The text is put together in the order of the calls. Characters that could steer a terminal are escaped, and bytes that
// are no UTF-8 come out as U+FFFD.
class Json
{
public:
    // Begins and ends an object with {}, an array with [].
    Json &begin( char bracket );
    Json &end( char bracket );
    // The name of the next value.
    Json &name( std::string_view name );
    // A value: a text, a number; anything that is already written as JSON.
    Json &text( std::string_view utf8 );
    Json &number( int64_t number );
    Json &literal( std::string_view json );

    // All of it, and nothing is left.
    std::string take();

private:
    void separate();

    std::string out;
    bool first = true;
};

} // namespace tools
