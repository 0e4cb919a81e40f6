// The typed headers: what they read from raw headers, messages and stores, and what they write to them.
#include "telsx/object_tables.hpp"
#include "telsx/samples.hpp"

using namespace support;

TEST( Headers, AreReadAndWritten ) { expectTexts( headers::all, headerTexts, "rows_headers.def" ); }

TEST( Headers, AbortForNullAndForOtherNames )
{
    for ( const headers::Kind &kind : headers::all )
    {
        SCOPED_TRACE( kind.name );
        EXPECT_ABORT( kind.tryDecode( rawHeader( "Other", OptionalText( "1" ) ).get() ),
                      "telsxMessageHeaderNameEqualsCstr( header, \"" + std::string( kind.name )
                          + "\", -1 )" );
        EXPECT_ABORT( kind.encode( nullptr ), "hdr" );
        EXPECT_ABORT( kind.store( nullptr ), "hdr" );
        EXPECT_ABORT( kind.tryRestore( nullptr ), "store" );
        EXPECT_ABORT( kind.presentInMessage( nullptr ), "msg" );
        EXPECT_ABORT( kind.tryDecodeFromMessage( nullptr ), "msg" );
        TELSX_MESSAGE none = nullptr;
        EXPECT_ABORT( kind.removeFromMessage( nullptr ), "msg" );
        EXPECT_ABORT( kind.removeFromMessage( &none ), "*msg" );
        Ref<RT_OBJ> hdr = read( kind, sampleLine( kind.name ) );
        EXPECT_ABORT( kind.encodeToMessage( nullptr, &none ), "hdr" );
        EXPECT_ABORT( kind.encodeToMessage( hdr.get(), nullptr ), "msg" );
        EXPECT_ABORT( kind.encodeToMessage( hdr.get(), &none ), "*msg" );
    }
}

// Entries other than lines do no harm; an invalid line does.
TEST( Headers, AreRestoredFromDamagedStores )
{
    for ( const headers::Kind &kind : headers::all )
    {
        Ref<RT_OBJ> hdr = read( kind, sampleLine( kind.name ) );
        ASSERT_TRUE( hdr );
        Ref<RT_STORE> store = adopt( kind.store( hdr.get() ) );
        rtStoreSetStoreCstr( store.address(), "x", -1, adopt( rtStoreCreate() ).get() );
        EXPECT_TRUE( headers::areSame( kind, hdr, adopt( kind.tryRestore( store.get() ) ) ) ) << kind.name;
        rtStoreSetValueCstr( store.address(), "y", -1, str( "a\r\nb" ).get() );
        EXPECT_FALSE( adopt( kind.tryRestore( store.get() ) ) ) << kind.name;
    }
}

TEST( Headers, SortByTheirFields )
{
    struct
    {
        const char *name;
        std::vector<const char *> texts;
    } cases[] = {
        { "Call-Id", { "A@a", "A@b", "a@a" } },
        { "Cseq", { "1 ACK", "1 INVITE", "1 invite", "2 ACK", "10 ACK" } },
        { "From",
          { "Z <sip:a>;tag=z", "<sip:b>;tag=z", "\"\" <sip:b>", "B <sip:b>;epid=z", "B <sip:b>;tag=A",
            "B <sip:b>;tag=a;x", "B <sip:b>;tag=a;epid=A", "B <sip:b>;tag=a;epid=A;x" } },
        { "Allow", { "", "A", "A,B", "B", "a" } },
        { "Content-Encoding", { "", "a", "a,b", "b,a" } },
        { "Expires", { "0", "9", "10" } },
        { "Max-Forwards", { "0", "9", "10" } },
        { "Rack", { "1 9 Z", "2 1 Z", "2 10 A", "2 10 B", "10 0 A" } },
        { "Date",
          { "Sat, 01 Jan 0000 00:00:00 GMT", "Wed, 31 Dec 2025 23:59:60 GMT", "Thu, 01 Jan 2026 00:00:00 GMT",
            "Mon, 02 Feb 2026 00:00:00 GMT" } },
        { "Session-Expires", { "9;z", "10", "10;x", "10;refresher=uac;x", "10;refresher=uas" } },
        { "Min-Se", { "9;z", "10", "10;x" } },
        { "Retry-After", { "9;duration=9", "10;z", "10;duration=0", "10;duration=0;x", "10;duration=1" } },
        { "Event", { "A;id=z", "a;z", "a;id=A", "a;id=A;x", "a;id=a" } },
        { "Subscription-State",
          { "a;retry-after=9", "a;expires=9", "a;expires=9;x", "a;expires=9;retry-after=0", "a;expires=10;z",
            "a;reason=r", "b" } },
        { "Content-Disposition", { "a;z", "a;handling=x", "a;handling=x;y", "b" } },
        { "Refer-To", { "Z <sip:a>;z", "<sip:b>", "<sip:b>;x", "\"\" <sip:b>", "B <sip:b>" } },
        { "Referred-By", { "<sip:a>;z", "<sip:a>;cid=\"a@b\"", "<sip:a>;cid=\"a@b\";x", "A <sip:a>" } },
        { "Replaces",
          { "a;z", "a;early-only", "a;to-tag=1", "a;to-tag=1;early-only", "a;from-tag=1",
            "a;from-tag=1;to-tag=0", "b" } },
        { "Subject", { "", "A b", "a  a", "a b" } },
    };
    for ( auto &[name, inOrder] : cases )
        expectAscending( named( headers::all, name ), inOrder );

    EXPECT_ABORT( telsx___HeaderCallIdCompareFunc( nullptr, nullptr ), "idA" );
    EXPECT_ABORT( telsx___HeaderCseqCompareFunc( nullptr, nullptr ), "csA" );
    EXPECT_ABORT( telsx___HeaderFromCompareFunc( nullptr, nullptr ), "hdrA" );
    EXPECT_ABORT( telsx___HeaderExpiresCompareFunc( nullptr, nullptr ), "mfA" );
    EXPECT_ABORT( telsx___HeaderMinExpiresCompareFunc( nullptr, nullptr ), "mfA" );
    EXPECT_ABORT( telsx___HeaderMaxForwardsCompareFunc( nullptr, nullptr ), "mfA" );
    auto to = sample<TELSX_HEADER_TO>();
    EXPECT_ABORT( telsx___HeaderToCompareFunc( telsxHeaderToObj( to.get() ), nullptr ), "hdrB" );
}
