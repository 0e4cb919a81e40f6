// The module: what the library sets up before its first call, and takes down after its last.
#include "telsx/telsx_module.h"

#include "telsx/telsx_message_header.h"
#include "telsx/telsx_version.h"

const RT_MODULE telsx___module = { RT_STATIC_OBJECT( &rt___sort_RT_MODULE ),
                                   &telsx___module_record,
                                   telsx___ModuleStartup,
                                   nullptr,
                                   telsx___ModuleShutdown,
                                   {} };

RT_OBJ telsxModule( void ) { return reinterpret_cast<RT_OBJ>( const_cast<RT_MODULE *>( &telsx___module ) ); }

RT_BOOL telsx___ModuleStartup( void )
{
    telsx___MessageHeaderStartup();
    telsx___VersionStartup();
    return 1;
}

void telsx___ModuleShutdown( void )
{
    telsx___VersionShutdown();
    telsx___MessageHeaderShutdown();
}
