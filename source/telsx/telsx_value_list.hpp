// What the headers that are a list of values share. The values are kept as text, in a field called values,
// and read one by one when somebody asks; a header may know where the parts of the first one stand, in a field called
// firstPlaces. A header is written with one line for each value.
#pragma once

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_items.hpp"

namespace telsx
{

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

// Fills a new list with the texts that the skipper cuts out of the raw header; false for bad text.
template <class SKIP>
bool decodeValues( Ref<RT_VECTOR> &values, HeaderLines &lines, SKIP skipValue, WithoutLines withoutLines )
{
    if ( lines.empty() )
        return withoutLines == WithoutLines::isEmpty;
    static constexpr int64_t usual = 2;
    values = adopt( rtVectorCreateWithCapacity( usual ) );
    ItemReader items( lines, skipValue, telsx___SkipComma );
    while ( items.next() )
        rt___VectorInsertTaken( values.address(), -1, rt::asObj( items.takeItem().take() ) );
    return !items.failed();
}

// The list, for operations that change it. The first value may be another one then.
template <class T>
RT_VECTOR *valuesToChange( T *hdr )
{
    if constexpr ( requires { hdr->firstPlaces; } )
        hdr->firstPlaces = {};
    return hdr->values.address();
}

// The same for operations that end the star form of a header that has one.
template <class T>
RT_VECTOR *valuesWithoutStar( T *hdr )
{
    if constexpr ( requires { hdr->starForm; } )
        hdr->starForm = 0;
    return valuesToChange( hdr );
}

// Puts a value in at the index, or with -1 behind all others.
template <class T>
void insertValue( T *hdr, int64_t index, Ref<RT_STRING> text )
{
    rt___VectorInsertTaken( valuesWithoutStar( hdr ), index, rt::asObj( text.take() ) );
}

// The value at the index, read by its own decoder.
template <class T, class VALUE>
VALUE tryDecodeValueAt( const T &hdr, int64_t index, VALUE ( *tryDecode )( const RT_CHAR *, int64_t ) )
{
    Text text = textOf( rtStringFrom( rt___VectorObjBorrowed( hdr.values.get(), index ) ) );
    if constexpr ( requires { hdr.firstPlaces; } )
        if ( index == 0 )
            return tryDecodeVia( text, hdr.firstPlaces );
    return text.as( tryDecode );
}

} // namespace telsx

// The eight operations of the header NAME on its list of VALUEs, called WORD in the functions' names.
#define TELSX_DEFINE_VALUE_LIST( NAME, WORD, VALUE, ENCODE, CLEAR )                                          \
    void telsx##NAME##CLEAR( TELSX_HANDLE( NAME ) * hdr )                                                    \
    {                                                                                                        \
        TELSX_ASSERT_HANDLE( hdr );                                                                          \
        rtVectorClear( telsx::valuesWithoutStar( TELSX_OWN( hdr ) ) );                                       \
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
        rtVectorSetStringAt( telsx::valuesWithoutStar( TELSX_OWN( hdr ) ), index, text.get() );              \
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
        rtVectorInsertString( telsx::valuesWithoutStar( TELSX_OWN( hdr ) ), index, text.get() );             \
    }
