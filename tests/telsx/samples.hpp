// A sample object of each type, for tests that go through all types. Two samples of a type have equal fields.
#pragma once

#include "telsx_support.hpp"

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

// The text of a value, by its name in functions.
inline const char *sampleValue( std::string_view name )
{
    static constexpr std::pair<std::string_view, const char *> texts[] = {
        { "Accept", "text/plain;q=0.5;x=1" },
        { "AcceptEncoding", "gzip;q=1" },
        { "AlertInfo", "<http://a/b>;x=1" },
        { "CallInfo", "<http://a/b>;purpose=icon;x" },
        { "Contact", "A <sip:b>;q=0.5;expires=60;x" },
        { "Diversion", "<sip:a>;reason=busy;counter=2" },
        { "ErrorInfo", "<sip:a>;x=1" },
        { "HistoryInfo", "<sip:a>;index=1.1;rc=1" },
        { "IdentityValue", "A <sip:b>" },
        { "Reason", "Q.850;cause=16;text=\"t\"" },
        { "Route", "<sip:a;lr>;x=1" },
        { "Via", "SIP/2.0/UDP a:5060;branch=z9hG4bK1;rport=1;received=192.0.2.1;x" },
        { "WarningValue", "399 a \"t\"" },
    };
    for ( auto [key, text] : texts )
        if ( key == name )
            return text;
    return "";
}

// The line of a header, by its name on the wire.
inline const char *sampleLine( std::string_view name )
{
    static constexpr std::pair<std::string_view, const char *> lines[] = {
        { "Accept", "text/plain, */*" },
        { "Accept-Encoding", "gzip, *" },
        { "Alert-Info", "<http://a/b>;x=1" },
        { "Allow", "INVITE, ACK" },
        { "Allow-Events", "presence.winfo, dialog" },
        { "Call-Id", "a@b" },
        { "Call-Info", "<http://a/b>;purpose=icon" },
        { "Contact", "<sip:a>;q=1, <sip:b>" },
        { "Content-Disposition", "session;handling=optional" },
        { "Content-Encoding", "gzip, compress" },
        { "Cseq", "1 INVITE" },
        { "Date", "Sat, 13 Nov 2010 23:29:00 GMT" },
        { "Diversion", "<sip:a>;reason=busy" },
        { "Error-Info", "<sip:a>" },
        { "Event", "presence;id=1" },
        { "Expires", "60" },
        { "From", "A <sip:a>;tag=1;x" },
        { "History-Info", "<sip:a>;index=1" },
        { "In-Reply-To", "a@b, c" },
        { "Max-Forwards", "70" },
        { "Min-Expires", "60" },
        { "Min-Se", "90;x=1" },
        { "Organization", "Two words" },
        { "P-Asserted-Identity", "<sip:a>, <tel:1>" },
        { "P-Called-Party-Id", "<sip:a>;x=1" },
        { "P-Preferred-Identity", "A <sip:a>" },
        { "Priority", "urgent" },
        { "Privacy", "id;user" },
        { "Proxy-Require", "foo" },
        { "Rack", "1 2 INVITE" },
        { "Reason", "SIP;cause=200" },
        { "Record-Route", "<sip:a;lr>, <sip:b;lr>" },
        { "Refer-To", "<sip:a?Replaces=x>" },
        { "Referred-By", "<sip:a>;cid=\"1@b\"" },
        { "Remote-Party-Id", "A <sip:a>;party=calling" },
        { "Replaces", "a@b;from-tag=1;to-tag=2;early-only" },
        { "Reply-To", "A <sip:a>" },
        { "Require", "100rel" },
        { "Retry-After", "120;duration=60" },
        { "Route", "<sip:a;lr>" },
        { "Rseq", "1" },
        { "Server", "a/1.0 (b)" },
        { "Service-Route", "<sip:a;lr>" },
        { "Session-Expires", "1800;refresher=uac" },
        { "Subject", "Two words" },
        { "Subscription-State", "active;expires=60" },
        { "Supported", "100rel, timer" },
        { "Timestamp", "54.2 0.5" },
        { "To", "<sip:a>;tag=2" },
        { "Unsupported", "foo" },
        { "User-Agent", "a/1.0 b" },
        { "Via", "SIP/2.0/UDP a;branch=z9hG4bK1, SIP/2.0/TCP b" },
        { "Warning", "399 a \"t\"" },
    };
    for ( auto [key, line] : lines )
        if ( key == name )
            return line;
    return "";
}

#define TELSX_VALUE( NAME, SORT )                                                                  \
    template <>                                                                                    \
    inline Ref<TELSX_##SORT> sample<TELSX_##SORT>()                                                \
    {                                                                                              \
        return adopt( rt::textOf( str( sampleValue( #NAME ) ) ).as( telsx___##NAME##TryDecode ) ); \
    }
#include "telsx/telsx_values.def"
#undef TELSX_VALUE

#define TELSX_KIND( NAME, SORT, SIP_NAME )                                                              \
    template <>                                                                                         \
    inline Ref<TELSX_##SORT> sample<TELSX_##SORT>()                                                     \
    {                                                                                                   \
        return adopt( telsx##NAME##TryDecode( header( SIP_NAME, { sampleLine( SIP_NAME ) } ).get() ) ); \
    }
#include "telsx/telsx_headers.def"
#undef TELSX_KIND

} // namespace support
