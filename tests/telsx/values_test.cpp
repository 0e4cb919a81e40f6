// The structured values: what they read and write, and how they sort.
#include "telsx/object_tables.hpp"

using namespace support;

TEST( Values, AreReadAndWritten ) { expectTexts( values::all, valueTexts, "rows_values.def" ); }

TEST( Values, AbortForNullText )
{
    for ( const values::Type &type : values::all )
    {
        RT_CHAR ch = 'a';
        EXPECT_EQ( type.name == "GenericParams", bool( adopt( type.tryDecode( nullptr, 0 ) ) ) );
        EXPECT_ABORT( type.tryDecode( &ch, -1 ), "length >= 0" );
        EXPECT_ABORT( type.tryDecode( nullptr, 1 ), "chs || length == 0" );
        EXPECT_DEATH( type.encode( nullptr ), "" ) << type.name;
    }
}

// Neighbours differ in one field, and in the opposite direction in the fields after it.
TEST( Values, SortByTheirFields )
{
    struct
    {
        const char *type;
        std::vector<const char *> texts;
    } cases[] = {
        { "Via",
          { "SIP/1.0/Z z:9", "SIP/2.0/A z:9", "SIP/2.0/B b:9", "SIP/2.0/B c;ttl=9", "SIP/2.0/B c:9;ttl=9",
            "SIP/2.0/B c:10;maddr=z", "SIP/2.0/B c:10;ttl=9;maddr=z", "SIP/2.0/B c:10;ttl=10;received=::1",
            "SIP/2.0/B c:10;ttl=10;maddr=a;branch=z", "SIP/2.0/B c:10;ttl=10;maddr=a;received=1.1.1.1;x",
            "SIP/2.0/B c:10;ttl=10;maddr=a;received=1.1.1.1;branch=A",
            "SIP/2.0/B c:10;ttl=10;maddr=a;received=1.1.1.1;branch=a",
            "SIP/2.0/B c:10;ttl=10;maddr=a;received=1.1.1.1;branch=a;a" } },
        { "Contact",
          { "Z <sip:a>", "<sip:b>;q=1", "\"\" <sip:b>;q=1", "B <sip:b>;expires=9", "B <sip:b>;q=0;rc=9",
            "B <sip:b>;q=0;expires=9;mp=9", "B <sip:b>;q=0;expires=10;mp=9",
            "B <sip:b>;q=0;expires=10;rc=1;np=9", "B <sip:b>;q=0;expires=10;rc=1;mp=1;+sip.instance=\"<z>\"",
            "B <sip:b>;q=0;expires=10;rc=1;mp=1;np=1;z",
            "B <sip:b>;q=0;expires=10;rc=1;mp=1;np=1;+sip.instance=\"<a>\"",
            "B <sip:b>;q=0;expires=10;rc=1;mp=1;np=1;+sip.instance=\"<a>\";a" } },
        { "Route", { "Z <sip:a>;z", "<sip:b>;z", "B <sip:b>", "B <sip:b>;a" } },
        { "IdentityValue", { "Z <sip:a>", "<sip:b>", "\"\" <sip:b>", "B <sip:b>" } },
        { "Version", { "A/9", "B/1", "b/2" } },
        { "GenericParam",
          { "a=b", "b", "b=a", "b=B.", "b=[::1]", "b=[::A]", "b=[::a]", "b=\"\"", "b=\"a\"" } },
        { "HistoryInfo",
          { "Z <sip:a>;index=9", "<sip:b>;index=9", "B <sip:b>;index=1;np=9", "B <sip:b>;index=2",
            "B <sip:b>;index=2;rc=1", "B <sip:b>;index=2;rc=1;np=1", "B <sip:b>;index=2;rc=1;mp=1",
            "B <sip:b>;index=2;rc=1;mp=1;np=1", "B <sip:b>;index=2;rc=1;mp=1;np=1;a" } },
        { "Accept", { "*/*;q=1", "a/*;q=1", "a/a;z", "a/a;q=0.9;z", "a/a;q=1", "a/a;q=1;a" } },
        { "AcceptEncoding", { "a;z", "a;q=0.9;z", "a;q=1", "a;q=1;a", "b" } },
        { "AlertInfo", { "<sip:a>;z", "<sip:b>", "<sip:b>;a" } },
        { "ErrorInfo", { "<sip:a>;z", "<sip:b>", "<sip:b>;a" } },
        { "CallInfo",
          { "<sip:a>;z", "<sip:b>;z", "<sip:b>;purpose=a", "<sip:b>;purpose=a;a", "<sip:b>;purpose=b" } },
        { "SipIri",
          { "sip:z@z:9", "sips:z:9", "sips:a@z:9", "sips:a:b@a:9", "sips:a:b@b;transport=z",
            "sips:a:b@b:10;user=z", "sips:a:b@b:10;transport=a;method=z",
            "sips:a:b@b:10;transport=a;user=a;ttl=9", "sips:a:b@b:10;transport=a;user=a;method=a;maddr=z",
            "sips:a:b@b:10;transport=a;user=a;method=a;ttl=9;lr",
            "sips:a:b@b:10;transport=a;user=a;method=a;ttl=9;maddr=a;z",
            "sips:a:b@b:10;transport=a;user=a;method=a;ttl=9;maddr=a;lr?z",
            "sips:a:b@b:10;transport=a;user=a;method=a;ttl=9;maddr=a;lr;a?a",
            "sips:a:b@b:10;transport=a;user=a;method=a;ttl=9;maddr=a;lr;a?b" } },
        { "TelIri",
          { "tel:+1;ext=9", "tel:1;isub=z", "tel:1;ext=1;phone-context=z", "tel:1;ext=1;isub=a;z",
            "tel:1;ext=1;isub=a;phone-context=a", "tel:1;ext=1;isub=a;phone-context=a;a" } },
        { "WarningValue", { "099 z \"z\"", "100 a \"z\"", "100 b \"a\"", "100 b \"b\"" } },
    };
    for ( auto &[type, inOrder] : cases )
        expectAscending( named( values::all, type ), inOrder );
}
