// What all object types have in common, the module, and the smallest type, the version.
#include <set>

#include "samples.hpp"
#include "support/object_suite.hpp"

using namespace support;

#define TELSX_TYPE( NAME, SORT ) \
    { OBJECT_TYPE( telsx##NAME, TELSX_##SORT, sample<TELSX_##SORT>() ), ERASED( telsx##NAME##CreateFrom ) },
static const ObjectType types[] = {
#include "telsx/telsx_objects.def"
    { OBJECT_TYPE( telsxFinder, TELSX_FINDER, sample<TELSX_FINDER>() ) },
    { OBJECT_TYPE( telsxMessageStreamDecoder, TELSX_MESSAGE_STREAM_DECODER,
                   sample<TELSX_MESSAGE_STREAM_DECODER>() ) },
};
INSTANTIATE_TEST_SUITE_P( Telsx, EveryObject, testing::ValuesIn( types ),
                          []( auto &test ) { return test.param.sortName; } );

TEST( Sorts, HaveTheFunctionsThatTheirTypesNeed )
{
    static const std::set<std::string> withoutFree = { "TELSX_HEADER_EXPIRES", "TELSX_HEADER_FLOW_TIMER",
                                                       "TELSX_HEADER_MAX_BREADTH",
                                                       "TELSX_HEADER_MAX_FORWARDS",
                                                       "TELSX_HEADER_MIN_EXPIRES" },
                                       withoutCompare = { "TELSX_DIVERSION",
                                                          "TELSX_FINDER",
                                                          "TELSX_MESSAGE",
                                                          "TELSX_MESSAGE_FRAGMENT",
                                                          "TELSX_MESSAGE_STREAM_DECODER",
                                                          "TELSX_REASON" },
                                       withoutText = { "TELSX_HISTORY_INFO", "TELSX_IDENTITY_VALUE",
                                                       "TELSX_MESSAGE_HEADER", "TELSX_ROUTE",
                                                       "TELSX_WARNING_VALUE" };
    for ( const ObjectType &type : types )
    {
        RT_SORT sort = type.sort();
        EXPECT_EQ( &telsx___module, sort->module );
        EXPECT_EQ( withoutFree.contains( sort->name ), !sort->freeFunc ) << sort->name;
        EXPECT_EQ( withoutCompare.contains( sort->name ), !sort->compareFunc ) << sort->name;
        EXPECT_EQ( withoutCompare.contains( sort->name ) || withoutText.contains( sort->name ),
                   !sort->toStringFunc )
            << sort->name;
    }
}

TEST( Module, DescribesItself )
{
    const RT_MODULE_RECORD *record = rtModuleRecord( telsxModule() );
    EXPECT_STREQ( "RT_MODULE", rtObjSort( telsxModule() )->name );
    EXPECT_EQ( "telsx", utf8( rtObjToString( telsxModule() ) ) );
    EXPECT_EQ( &telsx___module_record, record );
    EXPECT_EQ( 2, record->form );
    EXPECT_STREQ( "telsx", record->name );
    EXPECT_STREQ( "net rsc rt", record->modulesNeeded );
    EXPECT_THAT( record->buildTime, testing::MatchesRegex( "UTC ....-..-.. ..:..:.. \\([A-Z][a-z]+day\\)" ) );
}

TEST( Module, LeavesItsVersionToThoseWhoHoldIt )
{
    Ref<TELSX_VERSION> version = adopt( telsxVersionCreateSip20() );
    rtModuleStop( telsxModule() );
    EXPECT_EQ( nullptr, telsxVersionCreateSip20() );
    EXPECT_TRUE( telsxVersionIsSip20( version.get() ) );
    EXPECT_TRUE( rtModuleStart( telsxModule() ) );
    EXPECT_EQ( version, adopt( telsxVersionCreateSip20() ) );
}

TEST( Version, KnowsSip )
{
    for ( auto [text, isSip, isSip20] : { std::tuple( "sip / 2.0", true, true ),
                                          { "sIp/2.0A", true, false },
                                          { "SIP/3.0", true, false },
                                          { "SIPS/2.0", false, false } } )
    {
        Ref<TELSX_VERSION> version = adopt( applied( telsx___VersionTryDecode, text ) );
        EXPECT_EQ( 1, telsxVersionObj( version.get() )->count ) << "a new object, also for SIP/2.0";
        EXPECT_EQ( isSip, telsxVersionIsSip( version.get() ) ) << text;
        EXPECT_EQ( isSip20, telsxVersionIsSip20( version.get() ) ) << text;
    }
    EXPECT_EQ( adopt( applied( telsx___VersionTryDecode, "sip/2.0" ) ), adopt( telsxVersionCreateSip20() ) );
}
