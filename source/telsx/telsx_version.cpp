// Protocol version (RFC 3261, 25.1).
#include "telsx/telsx_version.h"

#include "telsx/telsx_protocol_name.h"
#include "telsx/telsx_protocol_version.h"
#include "telsx/telsx_skip.h"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_version.hpp"

using namespace telsx;

struct TELSX_VERSION_
{
    RT_OBJECT object;
    Ref<RT_STRING> protocolName;    // upper case, never null
    Ref<RT_STRING> protocolVersion; // lower case, never null

    static constexpr auto fields( auto &self ) { return std::tie( self.protocolName, self.protocolVersion ); }
};

TELSX_DEFINE_OBJECT( Version, VERSION, telsx___VersionFreeFunc, telsx___VersionCompareFunc,
                     telsx___VersionToStringFunc )
TELSX_DEFINE_FREE_FUNC( Version, version )
TELSX_DEFINE_COMPARE_FUNC( Version, ver )
TELSX_DEFINE_TO_STRING_FUNC( Version, version )
TELSX_DEFINE_NORMAL_FIELD( Version, version, ProtocolName, protocolName, telsxProtocolNameOk( protocolName ),
                           telsxProtocolNameNormalize )
TELSX_DEFINE_NORMAL_FIELD( Version, version, ProtocolVersion, protocolVersion,
                           telsxProtocolVersionOk( protocolVersion ), telsxProtocolVersionNormalize )

// The one SIP/2.0, set at start-up to a constant.
static constexpr TELSX_VERSION_ sip20 = { RT_STATIC_OBJECT( &telsx___sort_TELSX_VERSION ),
                                          adopt( literal<"SIP">() ), adopt( literal<"2.0">() ) };
static constinit TELSX_VERSION telsx___VersionSip20 = nullptr;

static TELSX_VERSION create( Ref<RT_STRING> protocolName, Ref<RT_STRING> protocolVersion )
{
    TELSX_VERSION version = rt::create<TELSX_VERSION_>( telsxVersionSort() );
    version->protocolName = std::move( protocolName );
    version->protocolVersion = std::move( protocolVersion );
    return version;
}

TELSX_VERSION telsxVersionCreate( RT_STRING protocolName, RT_STRING protocolVersion )
{
    TELSX_ASSERT_OK( telsxProtocolNameOk, protocolName );
    TELSX_ASSERT_OK( telsxProtocolVersionOk, protocolVersion );
    return create( adopt( telsxProtocolNameNormalize( protocolName ) ),
                   adopt( telsxProtocolVersionNormalize( protocolVersion ) ) );
}

TELSX_VERSION telsxVersionCreateSip20( void ) { return share( telsx___VersionSip20 ).take(); }

RT_BOOL telsxVersionIsSip( TELSX_VERSION version )
{
    TELSX_ASSERT( version );
    return rtStringEquals( version->protocolName.get(), literal<"SIP">() );
}

RT_BOOL telsxVersionIsSip20( TELSX_VERSION version )
{
    return telsxVersionIsSip( version ) && rtStringEquals( version->protocolVersion.get(), literal<"2.0">() );
}

static TELSX_VERSION tryDecode( Text rest )
{
    Text protocolName = rest.take( telsx___SkipProtocolName );
    if ( !protocolName || !rest.take( telsx___SkipSlash ) )
        return nullptr;
    Text protocolVersion = rest.take( telsx___SkipProtocolVersion );
    if ( !protocolVersion || rest )
        return nullptr;
    return telsxVersionCreate( protocolName.copy().get(), protocolVersion.copy().get() );
}

TELSX_VERSION telsx___VersionTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return tryDecode( { chs, length } );
}

Ref<TELSX_VERSION> telsx::tryDecodeVersion( Text text )
{
    return adopt( telsx___VersionSip20 && equals<"SIP/2.0">( text ) ? telsx___VersionSip20
                                                                    : tryDecode( text ) );
}

bool telsx::isSharedVersion( TELSX_VERSION version ) { return version == telsx___VersionSip20; }

RT_STRING telsx___VersionEncode( TELSX_VERSION version )
{
    TELSX_ASSERT( version );
    if ( isSharedVersion( version ) )
        return literal<"SIP/2.0">();
    return joined( version->protocolName, '/', version->protocolVersion ).take();
}

void telsx___VersionStartup( void ) { telsx___VersionSip20 = const_cast<TELSX_VERSION>( &sip20 ); }

void telsx___VersionShutdown( void ) { telsx___VersionSip20 = nullptr; }
