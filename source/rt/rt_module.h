/* Modules: how the runtime starts and stops a library that is built on it. */
#ifndef RT_RT_MODULE_H
#define RT_RT_MODULE_H

#include "rt/rt_object.h"

RT_BEGIN

/* What a module says about its build. */
typedef struct RT_MODULE_RECORD_
{
    int64_t form;              /* 2 */
    const char *family;        /* of libraries */
    const char *product;       /* a name */
    int64_t release[3];        /* major, minor, patch */
    const char *buildTime;     /* "UTC YYYY-MM-DD hh:mm:ss (Weekday)" */
    const char *vendor;        /* a name */
    const char *legalNotice;   /* who holds the rights */
    const char *name;          /* of the module */
    const char *description;   /* in a few words */
    const char *version;       /* as text */
    const char *modulesNeeded; /* names, separated by one blank */
    const char *last;          /* "" */
} RT_MODULE_RECORD;

/* The module object. */
typedef struct RT_MODULE_
{
    RT_OBJECT object;               /* its header, static: RT_STATIC_OBJECT( &rt___sort_RT_MODULE ) */
    const RT_MODULE_RECORD *record; /* static */
    RT_BOOL ( *startup )( void );   /* at the first start; whether it succeeded */
    void *reserved;                 /* null */
    void ( *shutdown )( void );     /* at the last stop */
    void *reservedToo[5];           /* null */
} RT_MODULE;

/* The sort of modules. The text of a module is its name. */
extern RT_API const struct RT_SORT_ rt___sort_RT_MODULE;

/* Starts a module, which is what its ...Module() function returns. No other function of the module may be called before
 * that. Returns the module's own answer, true if it has started. May be called again, from any thread: only the first
 * call starts the module, and each call needs its own stop. A module's startup and shutdown functions must not start or
 * stop modules. Aborts for null. */
RT_API RT_BOOL rtModuleStart( RT_OBJ module );

/* The counterpart: the last call stops the module. Aborts unless the module is started, and for null. */
RT_API void rtModuleStop( RT_OBJ module );

/* The module's record, static. Aborts for null. */
RT_API const RT_MODULE_RECORD *rtModuleRecord( RT_OBJ module );

RT_END

#endif
