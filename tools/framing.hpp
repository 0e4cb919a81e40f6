// Where messages begin and end in bytes: the little that must be known of them before they are decoded.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tools
{

// Whether bytes begin with a start line as far as one can tell by looking for "SIP/" at its beginning or in its last
// word. Unknown means that the line has not ended.
enum class Start
{
    No,
    Yes,
    Unknown
};
Start startOf( std::string_view bytes );

// Whether there is nothing but what keeps a binding alive: line ends, blanks, zeros, STUN (RFC 5626, 3.5).
bool isKeepAlive( std::string_view bytes );

// What stands after the colon of the first header of this name, in any case or compact, with its folds; nothing if
// there is no such header before the blank line. The names are in lower case.
std::optional<std::string_view> headerValue( std::string_view message, std::string_view name,
                                             std::string_view compact );

// A message in a stream or a file of them.
struct Cut
{
    std::string_view bytes;   // until the next call
    bool lacksLength = false; // it came over a stream and has no Content-Length
};

// Cuts a stream of bytes into messages. It never gives up: after bytes that are no message it goes on at the next piece
// that begins with a start line.
class Cutter
{
public:
    enum class Kind
    {
        File, // a message without Content-Length takes all that follows, and so does one with bytes after its body
        Stream // a message without Content-Length ends with its head
    };
    static constexpr std::size_t maxMessage = 1 << 20; // bytes; a longer message is not cut out

    // One that is lost waits for a start line at the beginning of a piece.
    explicit Cutter( Kind cutterKind, bool isLost = false ) : kind( cutterKind ), lost( isLost ) {}

    // Adds the next piece of the stream.
    void add( std::string_view piece );

    // The next message, or nothing until more bytes come. At the end of the stream the rest is a message too.
    std::optional<Cut> next( bool atEnd = false );

    // The stream has a hole here: forgets what is held and is lost.
    void lose();

    // Where the last message began: bytes from the start of the stream, line and column from 1.
    int64_t offset() const { return messageOffset; }
    int64_t line() const { return messageLine; }
    int64_t column() const { return messageColumn; }

    // How many bytes are held, how much memory is taken for them, and how many messages were too long.
    std::size_t held() const { return bytes.size() - begin; }
    std::size_t memory() const { return bytes.capacity(); }
    int64_t tooLong() const { return longOnes; }

private:
    std::string_view rest() const { return std::string_view( bytes ).substr( begin ); }
    void skip( std::size_t count );
    bool measure( bool atEnd );
    void loseTooLong();
    Cut cut( std::size_t count );

    static constexpr std::size_t keptMemory = 4096; // bytes, of a stream that holds none
    static constexpr std::size_t unknown = 0, toTheEnd = static_cast<std::size_t>( -1 );

    Kind kind;
    bool lost;
    bool lacksLength = false;
    std::string bytes;
    std::size_t begin = 0;        // of what has not been given out
    std::size_t searched = 0;     // so far from there no blank line ends
    std::size_t length = unknown; // of the message from there
    int64_t offsetNow = 0, lineNow = 1, columnNow = 1;
    int64_t messageOffset = 0, messageLine = 1, messageColumn = 1;
    int64_t longOnes = 0;
};

} // namespace tools
