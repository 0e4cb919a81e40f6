// Content-Encoding header (RFC 3261, 20.12).
#include "telsx/telsx_header_content_encoding.h"

#include "telsx/telsx_content_coding.h"
#include "telsx/telsx_items.hpp"

using namespace telsx;

struct TELSX_HEADER_CONTENT_ENCODING_
{
    RT_OBJECT object;
    Ref<RT_VECTOR> contentCodings; // lower case, never null

    static auto fields( auto &self ) { return std::tie( self.contentCodings ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderContentEncoding, HEADER_CONTENT_ENCODING, hdr, "Content-Encoding" )
TELSX_DEFINE_GETTER( HeaderContentEncoding, hdr, ContentCodingsVector, contentCodings )

TELSX_HEADER_CONTENT_ENCODING telsxHeaderContentEncodingCreate( void )
{
    TELSX_HEADER_CONTENT_ENCODING hdr =
        rt::create<TELSX_HEADER_CONTENT_ENCODING_>( telsxHeaderContentEncodingSort() );
    hdr->contentCodings = adopt( rtVectorCreate() );
    return hdr;
}

void telsxHeaderContentEncodingClearContentCodings( TELSX_HEADER_CONTENT_ENCODING *hdr )
{
    TELSX_ASSERT_HANDLE( hdr );
    rtVectorClear( TELSX_OWN( hdr )->contentCodings.address() );
}

int64_t telsxHeaderContentEncodingContentCodingsLength( TELSX_HEADER_CONTENT_ENCODING hdr )
{
    TELSX_ASSERT( hdr );
    return rtVectorLength( hdr->contentCodings.get() );
}

RT_STRING telsxHeaderContentEncodingContentCodingAt( TELSX_HEADER_CONTENT_ENCODING hdr, int64_t index )
{
    TELSX_ASSERT( hdr );
    return rtStringFrom( rtVectorObjAt( hdr->contentCodings.get(), index ) );
}

void telsxHeaderContentEncodingSetContentCodingAt( TELSX_HEADER_CONTENT_ENCODING *hdr, int64_t index,
                                                   RT_STRING contentCoding )
{
    TELSX_ASSERT_HANDLE( hdr );
    TELSX_ASSERT( contentCoding );
    Ref<RT_STRING> normal = adopt( telsxContentCodingNormalize( contentCoding ) );
    rtVectorSetStringAt( TELSX_OWN( hdr )->contentCodings.address(), index, normal.get() );
}

void telsxHeaderContentEncodingDelContentCodingAt( TELSX_HEADER_CONTENT_ENCODING *hdr, int64_t index )
{
    TELSX_ASSERT_HANDLE( hdr );
    rtVectorDelAt( TELSX_OWN( hdr )->contentCodings.address(), index );
}

void telsxHeaderContentEncodingPrependContentCoding( TELSX_HEADER_CONTENT_ENCODING *hdr,
                                                     RT_STRING contentCoding )
{
    TELSX_ASSERT_HANDLE( hdr );
    TELSX_ASSERT( contentCoding );
    Ref<RT_STRING> normal = adopt( telsxContentCodingNormalize( contentCoding ) );
    rtVectorPrependString( TELSX_OWN( hdr )->contentCodings.address(), normal.get() );
}

void telsxHeaderContentEncodingAppendContentCoding( TELSX_HEADER_CONTENT_ENCODING *hdr,
                                                    RT_STRING contentCoding )
{
    TELSX_ASSERT_HANDLE( hdr );
    TELSX_ASSERT( contentCoding );
    Ref<RT_STRING> normal = adopt( telsxContentCodingNormalize( contentCoding ) );
    rtVectorAppendString( TELSX_OWN( hdr )->contentCodings.address(), normal.get() );
}

void telsxHeaderContentEncodingInsertContentCoding( TELSX_HEADER_CONTENT_ENCODING *hdr, int64_t index,
                                                    RT_STRING contentCoding )
{
    TELSX_ASSERT_HANDLE( hdr );
    TELSX_ASSERT( contentCoding );
    Ref<RT_STRING> normal = adopt( telsxContentCodingNormalize( contentCoding ) );
    rtVectorInsertString( TELSX_OWN( hdr )->contentCodings.address(), index, normal.get() );
}

void telsxHeaderContentEncodingSetContentCodingsVector( TELSX_HEADER_CONTENT_ENCODING *hdr, RT_VECTOR vec )
{
    TELSX_ASSERT( vec );
    TELSX_ASSERT( rtVectorContainsOnly( vec, rtStringSort() ) );
    Ref<RT_VECTOR> elements = share( vec );
    telsxHeaderContentEncodingClearContentCodings( hdr );
    for ( int64_t i = 0; i < rtVectorLength( elements.get() ); ++i )
        telsxHeaderContentEncodingAppendContentCoding(
            hdr, rtStringFrom( rt___VectorObjBorrowed( elements.get(), i ) ) );
}

TELSX_MESSAGE_HEADER telsxHeaderContentEncodingEncode( TELSX_HEADER_CONTENT_ENCODING hdr )
{
    TELSX_ASSERT( hdr );
    return createHeaderOfItems( literal<"Content-Encoding">(), hdr->contentCodings, ',' );
}

static TELSX_HEADER_CONTENT_ENCODING decode( HeaderLines &lines )
{
    if ( lines.empty() )
        return nullptr;
    Ref<TELSX_HEADER_CONTENT_ENCODING> hdr = adopt( telsxHeaderContentEncodingCreate() );
    ItemReader codings( lines, telsx___SkipContentCoding, telsx___SkipComma );
    while ( codings.next() )
        telsxHeaderContentEncodingAppendContentCoding( hdr.address(), codings.takeItem().get() );
    return codings.failed() ? nullptr : hdr.take();
}
