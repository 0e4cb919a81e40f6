// The head of a message, split as the decoders split it, but with the places in the bytes kept.
#pragma once

#include "rt/rt_memory.hpp"
#include "telsx/telsx_header_table.hpp"

namespace telsx
{

// Owns items that have no destructor.
template <class T>
class List
{
public:
    List() : array() {}
    List( const List & ) = delete;
    List &operator=( const List & ) = delete;
    List( List &&other ) noexcept : array( std::exchange( other.array, {} ) ) {}
    List &operator=( List &&other ) noexcept
    {
        std::swap( array, other.array );
        return *this;
    }
    ~List() { array.clear(); }

    T *begin() { return array.begin(); }
    T *end() { return array.end(); }
    const T *begin() const { return array.items; }
    const T *end() const { return array.items + array.length; }
    T &operator[]( int64_t index ) { return array.items[index]; }
    const T &operator[]( int64_t index ) const { return array.items[index]; }
    int64_t length() const { return array.length; }
    bool empty() const { return array.length == 0; }
    void append( const T &item ) { array.append( item ); }
    // Appends items that are still to be set, and returns the first.
    T *extend( int64_t count )
    {
        if ( array.capacity - array.length < count )
            array.reserve( rt::grown( array.capacity, array.length + count ) );
        return array.items + std::exchange( array.length, array.length + count );
    }
    void clear() { array.length = 0; }

private:
    rt::Array<T> array;
};

// Removes the first character and returns it; a byte that begins none is U+FFFD.
RT_CHAR takeChar( Bytes &bytes );

// A text as the decoders see it, with the place in the bytes of each of its characters and of its end.
class PlacedText
{
public:
    // Appends a piece, after a blank unless it is the first.
    void append( Bytes piece, int64_t place );

    Text text() const { return { chs.begin(), chs.length() }; }
    int64_t placeOf( Text part ) const
    {
        int64_t at = part.chs - chs.begin();
        return at < places.length() ? places[at] : end;
    }

private:
    List<RT_CHAR> chs;
    List<int64_t> places;
    int64_t end = 0;
};

// A header line of the message with its folds undone, without the white space around it.
PlacedText placedText( Bytes line, Bytes message );

// The header line with all of its folds that holds the byte at that place, which is after its first character.
Bytes lineAround( Bytes message, int64_t place );

// A line with its folds, without the line end after it.
struct HeadLine
{
    int64_t begin, end;
    int64_t number; // of the header's name among the known ones, or -1
};

// The head without the blank line after it, its first line and its header lines; and the body.
class Head
{
public:
    explicit Head( Bytes message );

    Bytes all, bytes, body;
    HeadLine first;
    List<HeadLine> lines; // after the first
    bool isAscii;

    Bytes bytesOf( const HeadLine &line ) const;

    // The first line as it is.
    PlacedText startLine() const;
    PlacedText textOf( const HeadLine &line ) const { return placedText( bytesOf( line ), all ); }
};

// The part after the first colon, without leading white space. The text has a colon.
Text valueOf( const PlacedText &line );

} // namespace telsx
