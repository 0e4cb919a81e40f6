// Content-Type header (RFC 3261, 20.15).
#include "telsx/telsx_header_content_type.h"

#include "telsx/telsx_boundary.h"
#include "telsx/telsx_header.hpp"
#include "telsx/telsx_media_subtype.h"
#include "telsx/telsx_media_type.h"
#include "telsx/telsx_quoted.hpp"
#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_HEADER_CONTENT_TYPE_
{
    RT_OBJECT object;
    Ref<RT_STRING> mediaType;    // lower case, never null
    Ref<RT_STRING> mediaSubtype; // lower case, never null
    Ref<RT_STRING> charset;      // lower case
    Ref<RT_STRING> boundary;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.mediaType, self.mediaSubtype, self.charset, self.boundary, self.genericParams );
    }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderContentType, HEADER_CONTENT_TYPE, hdr, "Content-Type" )
TELSX_DEFINE_NORMAL_FIELD( HeaderContentType, hdr, MediaType, mediaType, telsxMediaTypeOk( mediaType ),
                           telsxMediaTypeNormalize )
TELSX_DEFINE_NORMAL_FIELD( HeaderContentType, hdr, MediaSubtype, mediaSubtype,
                           telsxMediaSubtypeOk( mediaSubtype ), telsxMediaSubtypeNormalize )
TELSX_DEFINE_OPTIONAL_NORMAL_FIELD( HeaderContentType, hdr, Charset, charset, telsxTokenOk( charset ),
                                    telsxTokenNormalize )
TELSX_DEFINE_OPTIONAL_FIELD( HeaderContentType, hdr, Boundary, boundary, telsxBoundaryOk( boundary ) )
TELSX_DEFINE_FIELD( HeaderContentType, hdr, GenericParams, genericParams, genericParams )

TELSX_HEADER_CONTENT_TYPE telsxHeaderContentTypeCreate( RT_STRING mediaType, RT_STRING mediaSubtype )
{
    TELSX_ASSERT_OK( telsxMediaTypeOk, mediaType );
    TELSX_ASSERT_OK( telsxMediaSubtypeOk, mediaSubtype );
    TELSX_HEADER_CONTENT_TYPE hdr = rt::create<TELSX_HEADER_CONTENT_TYPE_>( telsxHeaderContentTypeSort() );
    hdr->mediaType = adopt( telsxMediaTypeNormalize( mediaType ) );
    hdr->mediaSubtype = adopt( telsxMediaSubtypeNormalize( mediaSubtype ) );
    hdr->genericParams = noGenericParams();
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderContentTypeEncode( TELSX_HEADER_CONTENT_TYPE hdr )
{
    TELSX_ASSERT( hdr );
    Ref<RT_STRING> line = joined( hdr->mediaType, '/', hdr->mediaSubtype );
    ParamWriter params( line );
    params.write<"charset">( hdr->charset );
    params.write<"boundary">( hdr->boundary, encodeTokenOrQuoted );
    params.writeGeneric( hdr->genericParams );
    return createHeader( literal<"Content-Type">(), line );
}

// Whether the text consists of parameters, each with a value.
static bool areParameters( Text rest )
{
    while ( rest.take( telsx___SkipSemi ) )
        if ( !rest.take( telsx___SkipToken ) || !rest.take( telsx___SkipEqual )
             || !rest.take( skipTokenOrQuoted ) )
            return false;
    return !rest;
}

// The plain text of a parameter's value if it is such an element.
static Ref<RT_STRING> tryDecodeValue( Text value, RT_BOOL ( *ok )( RT_STRING ) )
{
    Ref<RT_STRING> plain = adopt( tryDecodeTokenOrQuoted( value ) );
    return plain && ok( plain.get() ) ? plain : Ref<RT_STRING>();
}

static TELSX_HEADER_CONTENT_TYPE decode( HeaderLines &lines )
{
    Text rest = lines.lastText();
    Text type = rest.take( telsx___SkipMediaType );
    if ( !type || !rest.take( telsx___SkipSlash ) )
        return nullptr;
    Text subtype = rest.take( telsx___SkipMediaSubtype );
    if ( !subtype || !areParameters( rest ) )
        return nullptr;
    auto hdr = adopt( telsxHeaderContentTypeCreate( type.copy().get(), subtype.copy().get() ) );

    ParamReader param( rest );
    while ( param.next() )
    {
        if ( param.is<"charset">( skipTokenOrQuoted ) )
            param.storeNormal( hdr->charset, tryDecodeValue( param.value, telsxTokenOk ).take(),
                               telsxTokenNormalize );
        if ( param.is<"boundary">( skipTokenOrQuoted ) )
            param.store( hdr->boundary, tryDecodeValue( param.value, telsxBoundaryOk ) );
        param.storeGeneric( hdr->genericParams );
    }
    return param.failed() ? nullptr : hdr.take();
}
