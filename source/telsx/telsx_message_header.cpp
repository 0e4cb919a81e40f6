// Raw header: its name in canonical form, its lines, its store.
#include "telsx/telsx_message_header.h"

#include "telsx/telsx_message_header.hpp"
#include "telsx/telsx_text.hpp"
#include "telsx/telsx_token.h"

using namespace telsx;

TELSX_DEFINE_OBJECT( MessageHeader, MESSAGE_HEADER, telsx___MessageHeaderFreeFunc,
                     telsx___MessageHeaderCompFunc, nullptr )
TELSX_DEFINE_FREE_FUNC( MessageHeader, header )

int64_t telsx___MessageHeaderCompFunc( RT_OBJ objA, RT_OBJ objB )
{
    auto thisObj = telsxMessageHeaderFrom( objA ), thatObj = telsxMessageHeaderFrom( objB );
    TELSX_ASSERT( thisObj );
    TELSX_ASSERT( thatObj );
    return rt::compareFields( thisObj, thatObj );
}

// Names

// From the compact forms in lower case to the long names.
static constinit RT_DICT shortToLongDict = nullptr;

void telsx___MessageHeaderStartup( void )
{
    static constexpr const char *names[][2] = {
#define TELSX_COMPACT_NAME( COMPACT, SIP_NAME ) { COMPACT, SIP_NAME },
#include "telsx/telsx_header_names.def"
    };
    shortToLongDict = rtDictCreate();
    for ( auto [shortName, longName] : names )
        rtDictSetStringKey( &shortToLongDict, text( shortName, -1 ).get(),
                            rtStringObj( text( longName, -1 ).get() ) );
}

void telsx___MessageHeaderShutdown( void ) { rtDictRelease( std::exchange( shortToLongDict, nullptr ) ); }

int64_t telsx___SkipMessageHeaderName( const RT_CHAR *chs, int64_t length )
{
    return telsx___SkipToken( chs, length );
}

RT_BOOL telsxMessageHeaderNameOk( RT_STRING name ) { return covers( telsx___SkipMessageHeaderName, name ); }

RT_STRING telsxMessageHeaderNameNormalize( RT_STRING name )
{
    TELSX_ASSERT( telsxMessageHeaderNameOk( name ) );
    Ref<RT_STRING> lower = adopt( lowerCase( name ) );
    if ( auto longName = adopt( rtDictStringKey( shortToLongDict, lower.get() ) ) )
        return rtStringFrom( longName.take() );
    return canonicalName( rtStringBacking( lower.get() ), rtStringLength( lower.get() ) ).take();
}

TELSX_MESSAGE_HEADER telsx::createHeader( RT_STRING name )
{
    return createHeader( name, adopt( rtVectorCreate() ) );
}

TELSX_MESSAGE_HEADER telsx::createHeader( RT_STRING name, Ref<RT_STRING> line )
{
    Ref<RT_VECTOR> lines = adopt( rtVectorCreateWithCapacity( 1 ) );
    rt___VectorInsertTaken( lines.address(), -1, rt::asObj( line.take() ) );
    return createHeader( name, std::move( lines ) );
}

TELSX_MESSAGE_HEADER telsx::createHeader( RT_STRING name, Ref<RT_VECTOR> lines )
{
    TELSX_MESSAGE_HEADER header = rt::create<TELSX_MESSAGE_HEADER_>( telsxMessageHeaderSort() );
    header->name = share( name );
    header->lines = std::move( lines );
    return header;
}

TELSX_DEFINE_GETTER( MessageHeader, header, Name, name )

TELSX_MESSAGE_HEADER telsxMessageHeaderCreate( RT_STRING name )
{
    TELSX_ASSERT( telsxMessageHeaderNameOk( name ) );
    return createHeader( adopt( telsxMessageHeaderNameNormalize( name ) ).get() );
}

RT_BOOL telsxMessageHeaderNameEquals( TELSX_MESSAGE_HEADER header, RT_STRING name )
{
    return rtStringEquals( header->name.get(), adopt( telsxMessageHeaderNameNormalize( name ) ).get() );
}

void telsxMessageHeaderSetName( TELSX_MESSAGE_HEADER *header, RT_STRING name )
{
    TELSX_ASSERT_HANDLE( header );
    TELSX_ASSERT( telsxMessageHeaderNameOk( name ) );
    auto normal = adopt( telsxMessageHeaderNameNormalize( name ) );
    TELSX_OWN( header )->name = std::move( normal );
}

// Lines

RT_BOOL telsxMessageHeaderLineOk( RT_STRING line )
{
    static constexpr RT_CHAR lineEnd[] = { RT_CHAR_CARRIAGE_RETURN, RT_CHAR_LINE_FEED };
    return rtStringFindChars( line, 0, lineEnd, 2 ) == -1;
}

RT_VECTOR telsxMessageHeaderLinesVector( TELSX_MESSAGE_HEADER header )
{
    TELSX_ASSERT( header );
    return header->lines.retained();
}

void telsxMessageHeaderSetLinesVector( TELSX_MESSAGE_HEADER *header, RT_VECTOR lines )
{
    TELSX_ASSERT_HANDLE( header );
    TELSX_ASSERT( rtVectorContainsOnly( lines, rtStringSort() ) );
    for ( int64_t i = 0; i < rtVectorLength( lines ); ++i )
    {
        Ref<RT_OBJ> line = adopt( rtVectorObjAt( lines, i ) );
        TELSX_ASSERT( telsxMessageHeaderLineOk( rtStringFrom( line.get() ) ) );
    }
    rt::put( TELSX_OWN( header )->lines, lines );
}

RT_STRING telsxMessageHeaderLastLine( TELSX_MESSAGE_HEADER header )
{
    int64_t length = telsxMessageHeaderLinesLength( header );
    return length ? telsxMessageHeaderLineAt( header, length - 1 ) : nullptr;
}

int64_t telsxMessageHeaderLinesLength( TELSX_MESSAGE_HEADER header )
{
    TELSX_ASSERT( header );
    return rtVectorLength( header->lines.get() );
}

RT_STRING telsxMessageHeaderLineAt( TELSX_MESSAGE_HEADER header, int64_t index )
{
    TELSX_ASSERT( header );
    return rtStringFrom( rtVectorObjAt( header->lines.get(), index ) );
}

void telsxMessageHeaderSetLineAt( TELSX_MESSAGE_HEADER *header, int64_t index, RT_STRING value )
{
    TELSX_ASSERT_HANDLE( header );
    TELSX_ASSERT( telsxMessageHeaderLineOk( value ) );
    rtVectorSetStringAt( TELSX_OWN( header )->lines.address(), index, value );
}

void telsxMessageHeaderDelLineAt( TELSX_MESSAGE_HEADER *header, int64_t index )
{
    TELSX_ASSERT_HANDLE( header );
    rtVectorDelAt( TELSX_OWN( header )->lines.address(), index );
}

void telsxMessageHeaderAppendLine( TELSX_MESSAGE_HEADER *header, RT_STRING value )
{
    TELSX_ASSERT_HANDLE( header );
    TELSX_ASSERT( telsxMessageHeaderLineOk( value ) );
    rtVectorAppendString( TELSX_OWN( header )->lines.address(), value );
}

// The line that a format and the arguments behind LAST give.
#define LINE_FROM_FORMAT( LINE, LAST, CREATE, ... )             \
    va_list args;                                               \
    va_start( args, LAST );                                     \
    Ref<RT_STRING> LINE = adopt( CREATE( __VA_ARGS__, args ) ); \
    va_end( args )

void telsxMessageHeaderSetLineAtFormat( TELSX_MESSAGE_HEADER *header, int64_t index, RT_STRING format, ... )
{
    LINE_FROM_FORMAT( line, format, rtStringCreateFromFormatArgList, format );
    telsxMessageHeaderSetLineAt( header, index, line.get() );
}

void telsxMessageHeaderAppendLineFormat( TELSX_MESSAGE_HEADER *header, RT_STRING format, ... )
{
    LINE_FROM_FORMAT( line, format, rtStringCreateFromFormatArgList, format );
    telsxMessageHeaderAppendLine( header, line.get() );
}

// Stores

RT_STORE telsxMessageHeaderStore( TELSX_MESSAGE_HEADER header )
{
    TELSX_ASSERT( header );
    Ref<RT_STORE> store = adopt( rtStoreCreate() );
    rtStoreSetValueCstr( store.address(), "name", -1, header->name.get() );
    rtStoreSetStoreCstr( store.address(), "lines", -1,
                         adopt( telsxMessageHeaderStoreLines( header ) ).get() );
    return store.take();
}

RT_STORE telsxMessageHeaderStoreLines( TELSX_MESSAGE_HEADER header )
{
    Ref<RT_STORE> store = adopt( rtStoreCreate() );
    int64_t length = telsxMessageHeaderLinesLength( header );
    for ( int64_t i = 0; i < length; ++i )
    {
        Ref<RT_STRING> line = adopt( telsxMessageHeaderLineAt( header, i ) );
        rtStoreSetValueFormatCstr( store.address(), "%.*A", -1, line.get(), length - 1, i );
    }
    return store.take();
}

bool telsx::holdsLines( RT_STORE store )
{
    for ( int64_t i = 0; i < rtStoreLength( store ); ++i )
        if ( auto line = adopt( rtStoreValueAt( store, i ) );
             line && !telsxMessageHeaderLineOk( line.get() ) )
            return false;
    return true;
}

TELSX_MESSAGE_HEADER telsxMessageHeaderTryRestore( RT_STORE store )
{
    TELSX_ASSERT( store );
    Ref<RT_STRING> name = adopt( rtStoreValueCstr( store, "name", -1 ) );
    Ref<RT_STORE> lines = adopt( rtStoreStoreCstr( store, "lines", -1 ) );
    if ( !name || !telsxMessageHeaderNameOk( name.get() ) || !lines || !holdsLines( lines.get() ) )
        return nullptr;
    return telsxMessageHeaderRestoreLines( name.get(), lines.get() );
}

TELSX_MESSAGE_HEADER telsxMessageHeaderRestoreLines( RT_STRING name, RT_STORE store )
{
    TELSX_ASSERT( telsxMessageHeaderNameOk( name ) );
    TELSX_ASSERT( store );
    Ref<TELSX_MESSAGE_HEADER> header = adopt( telsxMessageHeaderCreate( name ) );
    for ( int64_t i = 0; i < rtStoreLength( store ); ++i )
        if ( auto line = adopt( rtStoreValueAt( store, i ) ) )
            telsxMessageHeaderAppendLine( header.address(), line.get() );
    return header.take();
}

// What takes a text, with the text as 8-bit and as wide characters
#define TEXT_VARIANTS( SUFFIX, CHAR )                                                                        \
    TELSX_MESSAGE_HEADER telsxMessageHeaderCreate##SUFFIX( const CHAR *name, int64_t length )                \
    {                                                                                                        \
        return telsxMessageHeaderCreate( text( name, length ).get() );                                       \
    }                                                                                                        \
    RT_BOOL telsxMessageHeaderNameEquals##SUFFIX( TELSX_MESSAGE_HEADER header, const CHAR *name,             \
                                                  int64_t length )                                           \
    {                                                                                                        \
        return telsxMessageHeaderNameEquals( header, text( name, length ).get() );                           \
    }                                                                                                        \
    void telsxMessageHeaderSetName##SUFFIX( TELSX_MESSAGE_HEADER *header, const CHAR *name, int64_t length ) \
    {                                                                                                        \
        telsxMessageHeaderSetName( header, text( name, length ).get() );                                     \
    }                                                                                                        \
    void telsxMessageHeaderSetLineAt##SUFFIX( TELSX_MESSAGE_HEADER *header, int64_t index,                   \
                                              const CHAR *value, int64_t length )                            \
    {                                                                                                        \
        telsxMessageHeaderSetLineAt( header, index, text( value, length ).get() );                           \
    }                                                                                                        \
    void telsxMessageHeaderAppendLine##SUFFIX( TELSX_MESSAGE_HEADER *header, const CHAR *value,              \
                                               int64_t length )                                              \
    {                                                                                                        \
        telsxMessageHeaderAppendLine( header, text( value, length ).get() );                                 \
    }                                                                                                        \
    void telsxMessageHeaderSetLineAtFormat##SUFFIX( TELSX_MESSAGE_HEADER *header, int64_t index,             \
                                                    const CHAR *format, int64_t length, ... )                \
    {                                                                                                        \
        LINE_FROM_FORMAT( line, length, rtStringCreateFromFormat##SUFFIX##ArgList, format, length );         \
        telsxMessageHeaderSetLineAt( header, index, line.get() );                                            \
    }                                                                                                        \
    void telsxMessageHeaderAppendLineFormat##SUFFIX( TELSX_MESSAGE_HEADER *header, const CHAR *format,       \
                                                     int64_t length, ... )                                   \
    {                                                                                                        \
        LINE_FROM_FORMAT( line, length, rtStringCreateFromFormat##SUFFIX##ArgList, format, length );         \
        telsxMessageHeaderAppendLine( header, line.get() );                                                  \
    }                                                                                                        \
    TELSX_MESSAGE_HEADER telsxMessageHeaderRestoreLines##SUFFIX( const CHAR *name, int64_t length,           \
                                                                 RT_STORE store )                            \
    {                                                                                                        \
        return telsxMessageHeaderRestoreLines( text( name, length ).get(), store );                          \
    }
TEXT_VARIANTS( Cstr, char )
TEXT_VARIANTS( Wcstr, wchar_t )
