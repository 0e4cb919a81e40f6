/* Modules: how the runtime starts and stops a library that stands on it. */
#ifndef RT_RT_MODULE_H
#define RT_RT_MODULE_H

#include "rt/rt_object.h"

RT_BEGIN

/* What a module says of its build. */
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
    const char *modulesNeeded; /* names with one blank between them */
    const char *last;          /* "" */
} RT_MODULE_RECORD;

/* The module object. */
typedef struct RT_MODULE_
{
    RT_OBJECT object;               /* its beginning, static: RT_STATIC_OBJECT( &rt___sort_RT_MODULE ) */
    const RT_MODULE_RECORD *record; /* static */
    RT_BOOL ( *startup )( void );   /* at the first start; whether it came off */
    void *reserved;                 /* null */
    void ( *shutdown )( void );     /* at the last stop */
    void *reservedToo[5];           /* null */
} RT_MODULE;

/* The sort of modules. The text of a module is its name. */
extern RT_API const struct RT_SORT_ rt___sort_RT_MODULE;

/* Starts a module, which is what its ...Module() function returns: before anything else of it is called.
 * Returns the module's own answer, true for started. May be called again, from any thread: only the first
 * call starts the module, and as many stops are needed. Start and stop functions of modules do not start or
 * stop modules. Null aborts. */
RT_API RT_BOOL rtModuleStart( RT_OBJ module );

/* The counterpart: the last one stops the module. A module that is not started aborts, and so does null. */
RT_API void rtModuleStop( RT_OBJ module );

/* The module's record, static. Null aborts. */
RT_API const RT_MODULE_RECORD *rtModuleRecord( RT_OBJ module );

RT_END

#endif
