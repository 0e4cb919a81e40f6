// The frame of all object types of all libraries: what a type has beside its fields and its own work.
//
// An object is a plain structure: the runtime's header first, then the fields, then the list of them.
//
//     struct TELSX_REASON_
//     {
//         RT_OBJECT object;
//         rt::Ref<RT_STRING> protocol;
//         rt::Ref<RT_STRING> cause;
//
//         static auto fields( auto &self ) { return std::tie( self.protocol, self.cause ); }
//     };
//
// A field is a Ref, an int64_t, an RT_BOOL, or something else without a destructor that is no part of the order. From
// the list comes a table of the words that hold references and numbers, by which the runtime copies, compares and frees
// the objects of all types, in the order of the fields: one function for all of them stays in the processor's cache, and
// functions for each type took a tenth of the code. A type whose order of comparison is another one states that order in
// a second list, called order.
// The RT_DEFINE lines at the end name the exported functions of a unit; what they do is written in the
// functions above them.
#pragma once

#include <array>
#include <atomic>
#include <compare>
#include <concepts>
#include <cstddef>
#include <cstring>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>

#include "rt/rt_blocks.hpp"
#include "rt/rt_object.h"

// Ends the process if a condition that the caller owes doesn't hold. The text must be taken by # in the macro
// that the unit writes: an argument handed on to another macro is expanded on the way.
#define RT_CHECK( CONDITION, MESSAGE, EXPRESSION ) \
    ( ( CONDITION ) ? void() : rt::fail( MESSAGE, __FILE__, __LINE__, EXPRESSION ) )
#define RT_ASSERT( ... ) RT_CHECK( ( __VA_ARGS__ ), nullptr, #__VA_ARGS__ )

namespace rt
{

// The runtime is told the unit, "source/telsx/telsx_reason", and not the compiler's name for the file.
[[noreturn, gnu::cold, gnu::noinline]] inline void fail( const char *message, const char *file, int line,
                                                         const char *expression )
{
    for ( const char *at = file; ( at = std::strstr( at, "source/" ) ) != nullptr; ++at )
        file = at;
    char unit[128] = "";
    std::size_t length = std::strcspn( file, "." );
    std::memcpy( unit, file, length < sizeof unit ? length : sizeof unit - 1 );
    rt___Abort( message, unit, line, expression );
}

// Every handle points to a structure that begins with the runtime's header.
template <class T>
RT_OBJ asObj( T *object )
{
    return reinterpret_cast<RT_OBJ>( object );
}

inline void retain( RT_OBJ obj )
{
    std::atomic_ref count( obj->count );
    if ( count.load( std::memory_order_relaxed ) < RT_COUNT_IMMORTAL )
        count.fetch_add( 1 );
}

// Gives one reference up; whether it was the last. The only holder needs no atomic subtraction: nobody else is there to
// add or subtract.
inline bool giveUp( RT_OBJ obj )
{
    std::atomic_ref count( obj->count );
    int64_t before = count.load( std::memory_order_acquire );
    return before == 1 || ( before < RT_COUNT_IMMORTAL && count.fetch_sub( 1 ) == 1 );
}

// Out of line, since there are thousands of such places.
inline void release( RT_OBJ obj ) { rt___ObjDrop( obj ); }

inline bool shared( RT_OBJ obj ) { return std::atomic_ref( obj->count ).load() > 1; }

// Owns one reference, or is null: a field, or a variable of a function that may return early.
template <class HANDLE>
class Ref
{
public:
    Ref() = default;
    Ref( const Ref &other ) : handle( other.handle )
    {
        if ( handle )
            retain( asObj( handle ) );
    }
    Ref( Ref &&other ) noexcept : handle( other.take() ) {}
    ~Ref()
    {
        if ( handle )
            rt___ObjDrop( asObj( handle ) );
    }

    // The old reference is released last, with the parameter.
    Ref &operator=( Ref other ) noexcept
    {
        std::swap( handle, other.handle );
        return *this;
    }

    static Ref adopt( HANDLE given )
    {
        Ref ref;
        ref.handle = given;
        return ref;
    }

    // An absent object comes before a present one.
    friend std::strong_ordering operator<=>( const Ref &a, const Ref &b )
    {
        if ( !a || !b )
            return bool( a ) <=> bool( b );
        return rtObjCompare( asObj( a.handle ), asObj( b.handle ) ) <=> 0;
    }
    friend bool operator==( const Ref &a, const Ref &b ) { return ( a <=> b ) == 0; }

    explicit operator bool() const { return handle != nullptr; }
    HANDLE get() const { return handle; }
    HANDLE operator->() const { return handle; }
    HANDLE retained() const { return Ref( *this ).take(); }
    HANDLE take() { return std::exchange( handle, nullptr ); }
    HANDLE *address() { return &handle; }

private:
    HANDLE handle = nullptr;
};

// A Ref that takes over the caller's reference, and one that takes a reference of its own.
template <class HANDLE>
Ref<HANDLE> adopt( HANDLE handle )
{
    return Ref<HANDLE>::adopt( handle );
}

template <class HANDLE>
Ref<HANDLE> share( HANDLE handle )
{
    if ( handle )
        retain( asObj( handle ) );
    return adopt( handle );
}

template <class F>
concept Number = std::same_as<F, int64_t> || std::same_as<F, RT_BOOL>;

// The absent form of each kind of field.
template <class HANDLE>
void clear( Ref<HANDLE> &field )
{
    field = {};
}
inline void clear( int64_t &field ) { field = -1; }
inline void clear( RT_BOOL &field ) { field = 0; }

template <class HANDLE>
bool present( const Ref<HANDLE> &field )
{
    return bool( field );
}
inline bool present( const int64_t &field ) { return field != -1; }

// What a getter returns, and what a setter stores.
template <class HANDLE>
HANDLE value( const Ref<HANDLE> &field )
{
    return field.retained();
}
template <Number F>
F value( const F &field )
{
    return field;
}

template <class HANDLE>
void put( Ref<HANDLE> &field, HANDLE given )
{
    field = share( given );
}
template <Number F>
void put( F &field, F given )
{
    field = given;
}

// The layout of a type from the list of its fields, and the size of an object with them.
struct Layout : RT_LAYOUT_
{
    std::size_t size;
};
template <class... FIELD>
consteval Layout layoutWith( std::type_identity<std::tuple<FIELD &...>> )
{
    constexpr std::size_t header = sizeof( RT_OBJECT ), word = sizeof( int64_t );
    Layout layout = { {}, header };
    auto add = [&layout]<class F>( std::type_identity<F> )
    {
        std::size_t at = ( layout.size + alignof( F ) - 1 ) / alignof( F ) * alignof( F );
        uint32_t bit = 1u << ( at - header ) / word;
        layout.size = at + sizeof( F );
        if ( std::same_as<F, int64_t> )
            layout.numbers |= bit;
        else if ( !std::is_trivially_copyable_v<F> )
            layout.refs |= bit;
    };
    ( add( std::type_identity<FIELD>() ), ... );
    layout.size = ( layout.size + word - 1 ) / word * word;
    layout.words = static_cast<uint32_t>( ( layout.size - header ) / word );
    return layout;
}
template <class T>
inline constexpr Layout
    layoutOf = layoutWith( std::type_identity<decltype( T::fields( std::declval<T &>() ) )>() );

// Whether a type's list names all its fields.
template <class T>
consteval bool listsAllFields()
{
    return layoutOf<T>.size == sizeof( T ) && layoutOf<T>.words > 0;
}

// A new object with all fields absent.
template <class T>
T *create( RT_SORT sort )
{
    T *object = reinterpret_cast<T *>( rt___ObjCreate( sizeof( T ), sort ) );
    auto *words = reinterpret_cast<char *>( object ) + sizeof( RT_OBJECT );
    static constexpr auto absent = []
    {
        std::array<int64_t, layoutOf<T>.words> all = {};
        for ( std::size_t i = 0; i < all.size(); ++i )
            all[i] = layoutOf<T>.numbers >> i & 1 ? -1 : 0;
        return all;
    }();
    std::memcpy( words, absent.data(), sizeof absent );
    return object;
}

template <class T>
T *createFrom( T *source )
{
    return reinterpret_cast<T *>( rt___ObjCopy( asObj( source ), &layoutOf<T> ) );
}

template <class T>
void releaseFields( T *object )
{
    rt___ObjReleaseFields( asObj( object ), &layoutOf<T> );
}

// The first field that differs decides.
template <class T>
int64_t compareFields( T *a, T *b )
{
    if constexpr ( requires { T::order( *a ); } )
    {
        auto order = T::order( *a ) <=> T::order( *b );
        return order < 0 ? -1 : order > 0;
    }
    else
        return rt___ObjCompareFields( asObj( a ), asObj( b ), &layoutOf<T> );
}

// Copy on write: the object behind the handle, made private to it if anyone else holds it.
template <class T>
T *own( T **handle )
{
    *handle = reinterpret_cast<T *>( rt___ObjOwn( asObj( *handle ), &layoutOf<T> ) );
    return *handle;
}

} // namespace rt

// The sort record of the type, and the eight functions that every type has. MODULE is the module's prefix,
// telsx, and MODULE_OBJECT the address of its module object or null.
#define RT_DEFINE_STDFUNCS( MODULE, MODULE_OBJECT, NAME, HANDLE, FREE, COMPARE, TO_STRING )                \
    static constexpr RT_SORT_ MODULE##___sort_##HANDLE = { RT_STATIC_OBJECT, MODULE_OBJECT, #HANDLE, FREE, \
                                                           COMPARE,          TO_STRING,     {} };          \
    RT_DEFINE_OPERATIONS( MODULE, NAME, HANDLE )
#define RT_DEFINE_OPERATIONS( MODULE, NAME, HANDLE )                              \
    RT_SORT MODULE##NAME##Sort( void ) { return &MODULE##___sort_##HANDLE; }      \
    void MODULE##NAME##Retain( HANDLE obj )                                       \
    {                                                                             \
        RT_CHECK( obj, "stdfunc retain", "obj" );                                 \
        rt::retain( rt::asObj( obj ) );                                           \
    }                                                                             \
    void MODULE##NAME##Release( HANDLE obj )                                      \
    {                                                                             \
        RT_CHECK( obj, "stdfunc release", "obj" );                                \
        rt::release( rt::asObj( obj ) );                                          \
    }                                                                             \
    RT_OBJ MODULE##NAME##Obj( HANDLE obj ) { return rt::asObj( obj ); }           \
    HANDLE MODULE##NAME##From( RT_OBJ obj )                                       \
    {                                                                             \
        RT_CHECK( !obj || obj->sort == &MODULE##___sort_##HANDLE, "stdfunc from", \
                  "!obj || rtObjSort(obj)==&" #MODULE "___sort_" #HANDLE );       \
        return reinterpret_cast<HANDLE>( obj );                                   \
    }                                                                             \
    RT_STRING MODULE##NAME##ToString( HANDLE obj )                                \
    {                                                                             \
        RT_CHECK( obj, "stdfunc tostring", "obj" );                               \
        return rtObjToString( rt::asObj( obj ) );                                 \
    }                                                                             \
    int64_t MODULE##NAME##Compare( HANDLE objA, HANDLE objB )                     \
    {                                                                             \
        RT_CHECK( objA, "stdfunc compare a", "objA" );                            \
        RT_CHECK( objB, "stdfunc compare b", "objB" );                            \
        return rtObjCompare( rt::asObj( objA ), rt::asObj( objB ) );              \
    }                                                                             \
    RT_BOOL MODULE##NAME##Equals( HANDLE objA, HANDLE objB )                      \
    {                                                                             \
        return rtObjCompare( rt::asObj( objA ), rt::asObj( objB ) ) == 0;         \
    }
