// The frame of all object types of all libraries: what a type has besides its fields and its own code.
//
// An object is a plain structure: the runtime's header first, then the fields, then the list of them.
//
//     struct TELSX_REASON_
//     {
//         RT_OBJECT object;
//         rt::Ref<RT_STRING> protocol;
//         rt::Ref<RT_STRING> cause;
//
//         static constexpr auto fields( auto &self ) { return std::tie( self.protocol, self.cause ); }
//     };
//
// A field is a Ref, an int64_t or an RT_BOOL. Copying, comparing and freeing go through the list, in its order. A type
// that compares in another order states that order in a second list, called order. The RT_DEFINE lines at the end name
// the exported functions of a unit, whose work is done by the functions above them.
#pragma once

#include <algorithm>
#include <atomic>
#include <compare>
#include <concepts>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "rt/rt_blocks.hpp"
#include "rt/rt_object.h"

// Ends the process unless a condition that the caller must meet holds. The text must be taken by # in the macro that
// the unit writes: an argument that is passed on to another macro is expanded on the way.
#define RT_CHECK( CONDITION, MESSAGE, EXPRESSION ) \
    ( ( CONDITION ) ? void() : rt::fail<__FILE__>( MESSAGE, __LINE__, EXPRESSION ) )
#define RT_ASSERT( ... ) RT_CHECK( ( __VA_ARGS__ ), nullptr, #__VA_ARGS__ )

namespace rt
{

// The name of the unit, such as "source/telsx/telsx_reason", taken from the compiler's name for its file. As a template
// parameter it exists as long as the library is loaded.
struct Unit
{
    char name[64] = "";

    template <std::size_t SIZE>
    consteval Unit( const char ( &file )[SIZE] )
    {
        std::string_view path( file, SIZE - 1 );
        std::size_t source = path.rfind( "source/" );
        path.remove_prefix( source != path.npos ? source : path.rfind( '/' ) + 1 );
        path = path.substr( 0, path.find( '.' ) );
        path.copy( name, sizeof name - 1 );
    }
};

template <Unit UNIT>
[[noreturn, gnu::cold, gnu::noinline]] void fail( const char *message, int line, const char *expression )
{
    rt___Abort( message, UNIT.name, line, expression );
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

// Gives up one reference and tells whether it was the last. The only holder needs no atomic subtraction, since nobody
// else can add or subtract.
inline bool giveUp( RT_OBJ obj )
{
    std::atomic_ref count( obj->count );
    int64_t before = count.load( std::memory_order_acquire );
    return before == 1 || ( before < RT_COUNT_IMMORTAL && count.fetch_sub( 1 ) == 1 );
}

// Out of line, since there are hundreds of places that release something.
[[gnu::noinline]] inline void release( RT_OBJ obj )
{
    if ( giveUp( obj ) )
        rt___ObjFree( obj );
}

inline bool shared( RT_OBJ obj ) { return std::atomic_ref( obj->count ).load() > 1; }

// Owns one reference, or is null: a field, or a variable in a function that may return early.
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
    constexpr Ref( Ref &&other ) noexcept : handle( other.take() ) {}
    // A constant refers to constants, which nobody counts.
    constexpr ~Ref()
    {
        if ( !std::is_constant_evaluated() && handle )
            release( asObj( handle ) );
    }

    // The old reference is released last, together with the parameter.
    Ref &operator=( Ref other ) noexcept
    {
        std::swap( handle, other.handle );
        return *this;
    }

    static constexpr Ref adopt( HANDLE given )
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
    constexpr HANDLE take() { return std::exchange( handle, nullptr ); }
    HANDLE *address() { return &handle; }

private:
    HANDLE handle = nullptr;
};

// A Ref that takes over the caller's reference, and one that takes a reference of its own.
template <class HANDLE>
constexpr Ref<HANDLE> adopt( HANDLE handle )
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

// Whether a setter is given something; any number counts.
template <class HANDLE>
bool given( HANDLE handle )
{
    return handle != nullptr;
}
template <Number F>
bool given( F )
{
    return true;
}

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

// The number of members and bases of a plain structure: how many values of any type can initialise it.
struct AnyValue
{
    template <class U>
    operator U() const;
};
template <class T, class... VALUE>
consteval std::size_t countMembers()
{
    if constexpr ( requires { T{ VALUE()..., AnyValue() }; } )
        return countMembers<T, VALUE..., AnyValue>();
    else
        return sizeof...( VALUE );
}

// Whether a type's list names all of its fields, in the order in which they are declared. A structure that adds nothing
// to its base has the base's list; check the base instead.
template <class T>
consteval bool listsAllFields()
{
    T object = {};
    constexpr bool addsNothing = countMembers<T>() == 1;
    return std::apply(
        []( const auto &...field )
        {
            // Clang knows no order of pointers to void at compile time, so there neighbours are only told apart.
            auto isWrong = []( const void *a, const void *b )
            {
#ifdef __clang__
                return a == b;
#else
                return a >= b;
#endif
            };
            const void *places[] = { &field... };
            return std::adjacent_find( places, std::end( places ), isWrong ) == std::end( places )
                   && ( addsNothing || countMembers<T>() == 1 + sizeof...( field ) );
        },
        T::fields( object ) );
}

// Which of the words after the header are references, the lowest bit for the first, by the list of fields. With it one
// function copies and another frees the objects of all types: functions for each type were 5 % of the code, and those
// that one message runs through took 20 lines of the instruction cache.
template <class F>
constexpr bool isRef = false;
template <class HANDLE>
constexpr bool isRef<Ref<HANDLE>> = true;

template <class... FIELD>
consteval uint64_t refsAmong( std::type_identity<std::tuple<FIELD &...>> )
{
    uint64_t refs = 0;
    std::size_t at = 0, word = sizeof( RT_OBJ );
    auto add = [&]<class F>( std::type_identity<F> )
    {
        static_assert( isRef<F> || std::is_trivially_destructible_v<F> );
        at = ( at + alignof( F ) - 1 ) / alignof( F ) * alignof( F );
        refs |= uint64_t( isRef<F> ) << at / word;
        at += sizeof( F );
    };
    ( add( std::type_identity<FIELD>() ), ... );
    return refs;
}
template <class T>
constexpr uint64_t refsOf = refsAmong( std::type_identity<decltype( T::fields( std::declval<T &>() ) )>() );

// A new object with all fields absent. The runtime has filled in the header, so only the fields are constructed.
template <class T>
T *create( RT_SORT sort )
{
    T *object = reinterpret_cast<T *>( createObject( sizeof( T ), sort ) );
    std::apply( []( auto &...field ) { ( ( std::construct_at( &field ), clear( field ) ), ... ); },
                T::fields( *object ) );
    return object;
}

template <class T>
T *createFrom( T *source )
{
    return reinterpret_cast<T *>( rt___ObjCopy( asObj( source ), sizeof( T ), refsOf<T> ) );
}

template <class T>
void clearFields( T *object )
{
    rt___ObjClearFields( asObj( object ), refsOf<T> );
}

// The first field that differs decides.
template <class T>
int64_t compareFields( T *a, T *b )
{
    auto order = [&]
    {
        if constexpr ( requires { T::order( *a ); } )
            return T::order( *a ) <=> T::order( *b );
        else
            return T::fields( *a ) <=> T::fields( *b );
    }();
    return order < 0 ? -1 : order > 0;
}

// Copy on write: the object of the handle, made private to it if others hold it too.
template <class T>
T *own( T **handle )
{
    if ( shared( asObj( *handle ) ) )
        *handle = reinterpret_cast<T *>( rt___ObjOwn( asObj( *handle ), sizeof( T ), refsOf<T> ) );
    return *handle;
}

} // namespace rt

// The sort record of the type and the eight functions that every type has. MODULE is the module's prefix, such as
// telsx, and MODULE_OBJECT the address of its module object, or null.
#define RT_DEFINE_STDFUNCS( MODULE, MODULE_OBJECT, NAME, HANDLE, FREE, COMPARE, TO_STRING )          \
    static constexpr RT_SORT_ MODULE##___sort_##HANDLE = {                                           \
        RT_STATIC_OBJECT( &rt___sort_RT_SORT ), MODULE_OBJECT, #HANDLE, FREE, COMPARE, TO_STRING, {} \
    };                                                                                               \
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
