/* The library as a module of the runtime: rtModuleStart( telsxModule() ) comes before every other call of the library,
 * and rtModuleStop( telsxModule() ) after the last one. */
#ifndef TELSX_TELSX_MODULE_H
#define TELSX_TELSX_MODULE_H

#include "rt/rt.h"

RT_BEGIN

/* The module, for rtModuleStart and rtModuleStop; borrowed. */
RT_API RT_OBJ telsxModule( void );

/* The module and what it says about the build. */
extern RT_API const RT_MODULE telsx___module;
extern RT_API const RT_MODULE_RECORD telsx___module_record;

/* For the runtime. Startup returns true. */
RT_API RT_BOOL telsx___ModuleStartup( void );
RT_API void telsx___ModuleShutdown( void );

RT_END

#endif
