/* Loads a library into a program that was not linked with it, as plugins and other languages do. */
#include <dlfcn.h>
#include <stdio.h>

int main( int count, char **arguments )
{
    if ( count == 2 && dlopen( arguments[1], RTLD_NOW | RTLD_LOCAL ) )
        return 0;
    fprintf( stderr, "%s\n", count == 2 ? dlerror() : "usage: load FILE" );
    return 1;
}
