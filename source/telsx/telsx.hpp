// Safe use from C++17: handles that release themselves, and conversion of text to strings and back.
//
//     telsx::Owned via( telsxHeaderViaTryDecodeViaAt( vias.get(), 0 ) );
//     if ( via )
//         telsxViaSetPort( via.address(), 5060 );
//
// The functions remain those of the C headers, and so do their contracts.
#ifndef TELSX_TELSX_HPP
#define TELSX_TELSX_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "telsx/telsx.h"

// What C++ programs have in addition to the C functions.
namespace telsx
{

// Owns one reference to an object of any type, or is null. Copies share the object.
template <class HANDLE>
class Owned
{
    static_assert( std::is_pointer_v<HANDLE> && !std::is_const_v<std::remove_pointer_t<HANDLE>>,
                   "Owned is for the handles of objects" );

public:
    // Null.
    Owned() = default;

    // Takes over a reference that the caller owns: what any function except Sort, Obj and From returns.
    explicit Owned( HANDLE given ) : handle( given ) {}

    // Takes another reference to the object.
    Owned( const Owned &other ) : handle( other.handle )
    {
        if ( handle )
            rtObjRetain( obj() );
    }

    // Takes over the other's reference; the other is then null.
    Owned( Owned &&other ) noexcept : handle( std::exchange( other.handle, nullptr ) ) {}

    // Releases the reference.
    ~Owned()
    {
        if ( handle )
            rtObjRelease( obj() );
    }

    // The same, for assignment: the reference held before is released.
    Owned &operator=( Owned other ) noexcept
    {
        std::swap( handle, other.handle );
        return *this;
    }

    // Whether there is an object.
    explicit operator bool() const { return handle != nullptr; }

    // The handle, borrowed, for arguments.
    HANDLE get() const { return handle; }

    // The address of the handle, for functions that change the object and may put another one there.
    HANDLE *address() { return &handle; }

private:
    // Every object begins with an RT_OBJECT.
    RT_OBJ obj() const { return reinterpret_cast<RT_OBJ>( handle ); }

    HANDLE handle = nullptr;
};

// A new reference to an object that is only borrowed, or null.
template <class HANDLE>
Owned<HANDLE> retained( HANDLE borrowed )
{
    if ( borrowed )
        rtObjRetain( reinterpret_cast<RT_OBJ>( borrowed ) );
    return Owned<HANDLE>( borrowed );
}

// The string of these code points.
inline Owned<RT_STRING> toString( std::u32string_view codePoints )
{
    static_assert( sizeof( char32_t ) == sizeof( RT_CHAR ) );
    return Owned( rtStringCreateFromCharsCopy( reinterpret_cast<const RT_CHAR *>( codePoints.data() ),
                                               static_cast<int64_t>( codePoints.size() ) ) );
}

// The string of this text, or null if it is not strictly UTF-8.
inline Owned<RT_STRING> toString( std::string_view utf8 )
{
    return Owned( rtStringTryCreateFromUtf8( utf8.data(), static_cast<int64_t>( utf8.size() ) ) );
}

// The code points, valid while the string is held and unchanged. Null aborts, here and below.
inline std::u32string_view toView( const Owned<RT_STRING> &string )
{
    return { reinterpret_cast<const char32_t *>( rtStringBacking( string.get() ) ),
             static_cast<std::size_t>( rtStringLength( string.get() ) ) };
}

// The view would outlive the string.
std::u32string_view toView( const Owned<RT_STRING> && ) = delete;

// The text in UTF-8; a code point that is not a character, such as a surrogate, becomes U+FFFD.
inline std::string toUtf8( const Owned<RT_STRING> &string )
{
    Owned bytes( rtCharsetStringToBuffer( RT_CHARSET_UTF8, string.get() ) );
    return { static_cast<const char *>( rtBufferBacking( bytes.get() ) ),
             static_cast<std::size_t>( rtBufferLength( bytes.get() ) ) };
}

} // namespace telsx

#endif
