// A sample object of each type, for tests that go through all types. Two samples of a type have equal fields.
#pragma once

#include "telsx/object_tables.hpp"

namespace support
{

// A type without a sample doesn't compile.
template <class HANDLE>
Ref<HANDLE> sample() = delete;

template <>
inline Ref<TELSX_MESSAGE> sample<TELSX_MESSAGE>()
{
    return message( "INVITE sip:bob@example.com SIP/2.0\r\nVia: a\r\nVia: b\r\n\r\nbody" );
}

template <>
inline Ref<TELSX_MESSAGE_FRAGMENT> sample<TELSX_MESSAGE_FRAGMENT>()
{
    return fragment( "SIP/2.0 200 OK\r\nVia: a\r\nVia: b\r\n\r\nbody" );
}

template <>
inline Ref<TELSX_MESSAGE_HEADER> sample<TELSX_MESSAGE_HEADER>()
{
    return header( "Via", { "a", "b" } );
}

template <>
inline Ref<TELSX_FINDING> sample<TELSX_FINDING>()
{
    auto findings = adopt( telsxMessageFindings( buffer( "INVITE" ).get() ) );
    return adopt( telsxFindingFrom( rtVectorObjAt( findings.get(), 0 ) ) );
}

template <>
inline Ref<TELSX_FINDER> sample<TELSX_FINDER>()
{
    return adopt( telsxFinderCreate() );
}

template <>
inline Ref<TELSX_MESSAGE_STREAM_DECODER> sample<TELSX_MESSAGE_STREAM_DECODER>()
{
    auto decoder = adopt( telsxMessageStreamDecoderCreate() );
    telsxMessageStreamDecoderWrite( decoder.get(), buffer( "INVITE sip:b SIP/2.0\r\nl: 9\r\n\r\nbo" ).get() );
    EXPECT_FALSE( adopt( telsxMessageStreamDecoderRead( decoder.get() ) ) );
    return decoder;
}

template <>
inline Ref<TELSX_VERSION> sample<TELSX_VERSION>()
{
    return adopt( telsxVersionCreate( str( "SIP" ).get(), str( "2.0" ).get() ) );
}

template <>
inline Ref<TELSX_GENERIC_PARAM> sample<TELSX_GENERIC_PARAM>()
{
    return adopt( rt::textOf( str( "a=B" ) ).as( telsx___GenericParamTryDecode ) );
}

template <>
inline Ref<TELSX_GENERIC_PARAMS> sample<TELSX_GENERIC_PARAMS>()
{
    return adopt( rt::textOf( str( ";a=B;c" ) ).as( telsx___GenericParamsTryDecode ) );
}

// The longest text for the type that is written as it is read.
inline std::string sampleText( const std::vector<Texts> &tables, const std::string &name )
{
    std::string longest;
    for ( const Texts &texts : tables )
        for ( const char *text : texts.kept )
            if ( std::string whole = std::string( texts.front ) + text;
                 texts.areFor( name ) && whole.size() > longest.size() )
                longest = whole;
    EXPECT_NE( "", longest ) << "rows_values.def or rows_headers.def needs a text that is kept for " << name;
    return longest;
}
// The text of a value, by its name in functions, and the line of a header, by its name on the wire.
inline std::string sampleValue( std::string_view name )
{
    return sampleText( valueTexts, std::string( name ) );
}
inline std::string sampleLine( std::string_view name )
{
    return sampleText( headerTexts, std::string( name ) );
}

#define TELSX_VALUE( NAME, SORT, FIELDS )                                                          \
    template <>                                                                                    \
    inline Ref<TELSX_##SORT> sample<TELSX_##SORT>()                                                \
    {                                                                                              \
        return adopt( rt::textOf( str( sampleValue( #NAME ) ) ).as( telsx___##NAME##TryDecode ) ); \
    }
#define TELSX_ADDRESS TELSX_VALUE
#include "telsx/telsx_addresses.def"
#include "telsx/telsx_values.def"
#undef TELSX_ADDRESS
#undef TELSX_VALUE

#define TELSX_KIND( NAME, SORT, SIP_NAME )                                                            \
    template <>                                                                                       \
    inline Ref<TELSX_##SORT> sample<TELSX_##SORT>()                                                   \
    {                                                                                                 \
        return adopt(                                                                                 \
            telsx##NAME##TryDecode( header( SIP_NAME, { sampleLine( SIP_NAME ).c_str() } ).get() ) ); \
    }
#include "telsx/telsx_headers.def"
#undef TELSX_KIND

} // namespace support
