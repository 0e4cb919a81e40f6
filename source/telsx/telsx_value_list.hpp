// The headers that are a list of values: the whole of such a unit except the name and the value. The values are kept as
// text and read one by one when a caller asks. A header is written with one line for each value.
#pragma once

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_items.hpp"
#include "telsx/telsx_skip.h"

namespace telsx
{

// The list of a kind that has nothing else. A kind that has more than values declares the same functions.
struct ValueList
{
    RT_OBJECT object;
    Ref<RT_VECTOR> values; // texts, never null

    static constexpr auto fields( auto &self ) { return std::tie( self.values ); }

    // Drops what is no longer true when the list changes.
    void beforeChange() {}
};
static_assert( rt::listsAllFields<ValueList>() );

// A new header with an empty list.
template <class T>
T *createList( RT_SORT sort )
{
    T *hdr = rt::create<T>( sort );
    hdr->values = adopt( rtVectorCreate() );
    return hdr;
}

// What a raw header without lines is.
enum class WithoutLines
{
    isNull,
    isEmpty
};

// Fills a new list with the texts that the skipper cuts from the raw header; false for bad text.
template <class SKIP>
bool decodeValues( Ref<RT_VECTOR> &values, HeaderLines &lines, SKIP skipValue, WithoutLines withoutLines )
{
    if ( lines.empty() )
        return withoutLines == WithoutLines::isEmpty;
    static constexpr int64_t usual = 3;
    values = adopt( rtVectorCreateWithCapacity( usual ) );
    ItemReader items( lines, skipValue, telsx___SkipComma );
    while ( items.next() )
        rt___VectorInsertTaken( values.address(), -1, rt::asObj( items.takeItem().take() ) );
    return !items.failed();
}

// The list, for operations that change it.
template <class T>
RT_VECTOR *valuesToChange( T *hdr )
{
    hdr->beforeChange();
    return hdr->values.address();
}

// Inserts a value at the index, or with -1 after all others.
template <class T>
void insertValue( T *hdr, int64_t index, Ref<RT_STRING> text )
{
    rt___VectorInsertTaken( valuesToChange( hdr ), index, rt::asObj( text.take() ) );
}

// The value at the index, read by its own decoder, or by a shorter way that the header knows.
template <class T, class VALUE>
VALUE tryDecodeValueAt( const T &hdr, int64_t index, VALUE ( *tryDecode )( const RT_CHAR *, int64_t ) )
{
    Text text = textOf( rtStringFrom( rt___VectorObjBorrowed( hdr.values.get(), index ) ) );
    if constexpr ( requires { hdr.tryDecodeValue( index, text ); } )
        return hdr.tryDecodeValue( index, text );
    else
        return text.as( tryDecode );
}

} // namespace telsx

// The eight operations of the header NAME on its list of VALUEs, which are called WORD in the functions' names.
#define TELSX_DEFINE_VALUE_LIST( NAME, WORD, VALUE, ENCODE, CLEAR )                                          \
    void telsx##NAME##CLEAR( TELSX_HANDLE( NAME ) * hdr )                                                    \
    {                                                                                                        \
        TELSX_ASSERT_HANDLE( hdr );                                                                          \
        rtVectorClear( telsx::valuesToChange( TELSX_OWN( hdr ) ) );                                          \
    }                                                                                                        \
    int64_t telsx##NAME##WORD##sLength( TELSX_HANDLE( NAME ) hdr )                                           \
    {                                                                                                        \
        TELSX_ASSERT( hdr );                                                                                 \
        return rtVectorLength( hdr->values.get() );                                                          \
    }                                                                                                        \
    TELSX_HANDLE( VALUE ) telsx##NAME##TryDecode##WORD##At( TELSX_HANDLE( NAME ) hdr, int64_t index )        \
    {                                                                                                        \
        TELSX_ASSERT( hdr );                                                                                 \
        return telsx::tryDecodeValueAt( *hdr, index, telsx___##VALUE##TryDecode );                           \
    }                                                                                                        \
    void telsx##NAME##Set##WORD##At( TELSX_HANDLE( NAME ) * hdr, int64_t index,                              \
                                     TELSX_HANDLE( VALUE ) value )                                           \
    {                                                                                                        \
        TELSX_ASSERT_HANDLE( hdr );                                                                          \
        auto text = telsx::adopt( ENCODE( value ) );                                                         \
        rtVectorSetStringAt( telsx::valuesToChange( TELSX_OWN( hdr ) ), index, text.get() );                 \
    }                                                                                                        \
    void telsx##NAME##Del##WORD##At( TELSX_HANDLE( NAME ) * hdr, int64_t index )                             \
    {                                                                                                        \
        TELSX_ASSERT_HANDLE( hdr );                                                                          \
        rtVectorDelAt( telsx::valuesToChange( TELSX_OWN( hdr ) ), index );                                   \
    }                                                                                                        \
    void telsx##NAME##Prepend##WORD( TELSX_HANDLE( NAME ) * hdr, TELSX_HANDLE( VALUE ) value )               \
    {                                                                                                        \
        TELSX_ASSERT_HANDLE( hdr );                                                                          \
        auto text = telsx::adopt( ENCODE( value ) );                                                         \
        telsx::insertValue( TELSX_OWN( hdr ), 0, std::move( text ) );                                        \
    }                                                                                                        \
    void telsx##NAME##Append##WORD( TELSX_HANDLE( NAME ) * hdr, TELSX_HANDLE( VALUE ) value )                \
    {                                                                                                        \
        TELSX_ASSERT_HANDLE( hdr );                                                                          \
        auto text = telsx::adopt( ENCODE( value ) );                                                         \
        telsx::insertValue( TELSX_OWN( hdr ), -1, std::move( text ) );                                       \
    }                                                                                                        \
    void telsx##NAME##Insert##WORD( TELSX_HANDLE( NAME ) * hdr, int64_t index, TELSX_HANDLE( VALUE ) value ) \
    {                                                                                                        \
        TELSX_ASSERT_HANDLE( hdr );                                                                          \
        auto text = telsx::adopt( ENCODE( value ) );                                                         \
        rtVectorInsertString( telsx::valuesToChange( TELSX_OWN( hdr ) ), index, text.get() );                \
    }

// The whole unit of a header that is a list of VALUEs and nothing else, after its frame line.
#define TELSX_DEFINE_HEADER_OF_VALUES( NAME, SIP_NAME, WORD, VALUE )                                       \
    TELSX_DEFINE_VALUE_LIST( NAME, WORD, VALUE, telsx___##VALUE##Encode, Clear##WORD##s )                  \
    TELSX_HANDLE( NAME ) telsx##NAME##Create( void )                                                       \
    {                                                                                                      \
        return telsx::createList<std::remove_pointer_t<TELSX_HANDLE( NAME )>>( telsx##NAME##Sort() );      \
    }                                                                                                      \
    TELSX_MESSAGE_HEADER telsx##NAME##Encode( TELSX_HANDLE( NAME ) hdr )                                   \
    {                                                                                                      \
        TELSX_ASSERT( hdr );                                                                               \
        return telsx::createHeader( telsx::literal<SIP_NAME>(), hdr->values );                             \
    }                                                                                                      \
    static TELSX_HANDLE( NAME ) decode( telsx::HeaderLines &lines )                                        \
    {                                                                                                      \
        auto hdr = telsx::adopt( telsx##NAME##Create() );                                                  \
        return telsx::decodeValues( hdr->values, lines, telsx___Skip##VALUE, telsx::WithoutLines::isNull ) \
                   ? hdr.take()                                                                            \
                   : nullptr;                                                                              \
    }
