# The package that find_package( telsx ) reads, and the Debian packages that cpack makes.

include( CMakePackageConfigHelpers )

set( package "${CMAKE_INSTALL_LIBDIR}/cmake/telsx" )
install( EXPORT telsx NAMESPACE corvane:: FILE telsxConfig.cmake DESTINATION "${package}" COMPONENT development )
# Like the sonames: releases of one major version are compatible.
write_basic_package_version_file( "${PROJECT_BINARY_DIR}/telsxConfigVersion.cmake" COMPATIBILITY SameMajorVersion )
install( FILES "${PROJECT_BINARY_DIR}/telsxConfigVersion.cmake" DESTINATION "${package}" COMPONENT development )

if( NOT CORVANE_PACKAGES )
    return()
endif()

# cpack itself complains only after the build, or omits the dependencies.
foreach( program IN ITEMS dpkg-shlibdeps file gzip )
    find_program( path "${program}" NO_CACHE )
    if( NOT path )
        message( FATAL_ERROR "There is no ${program}: to make packages, install dpkg-dev and file." )
    endif()
    unset( path )
endforeach()

set( runtime "libtelsx${PROJECT_VERSION_MAJOR}" )
set( TELSX_MAINTAINER "${TELSX_VENDOR} <telsx@telsx.invalid>" CACHE STRING "The maintainer in the Debian packages" )

# The documents that each Debian package must have.
set( documents "${PROJECT_BINARY_DIR}/documents" )
string( TIMESTAMP year "%Y" UTC )
string( TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC )
file( CONFIGURE OUTPUT "${documents}/copyright" CONTENT [[
Copyright @year@ @TELSX_VENDOR@

No licence has been chosen yet: that is up to the owner of the project.
]] @ONLY )
file( CONFIGURE OUTPUT "${documents}/changelog" CONTENT [[
telsx (@PROJECT_VERSION@) unstable; urgency=medium

  * Version @PROJECT_VERSION@. CHANGELOG.md tells what is new.

 -- @TELSX_MAINTAINER@  @date@
]] @ONLY )
configure_file( "${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${documents}/CHANGELOG.md" COPYONLY )
execute_process( COMMAND gzip -9nf changelog CHANGELOG.md WORKING_DIRECTORY "${documents}" COMMAND_ERROR_IS_FATAL ANY )
foreach( component IN ITEMS runtime:${runtime} development:libtelsx-dev tools:telsx-tools )
    string( REPLACE ":" ";" component "${component}" )
    list( POP_FRONT component name )
    install( FILES "${documents}/copyright" "${documents}/changelog.gz" "${documents}/CHANGELOG.md.gz"
        DESTINATION "share/doc/${component}" COMPONENT "${name}" )
endforeach()

set( CPACK_VERBATIM_VARIABLES ON )
set( CPACK_GENERATOR DEB )
set( CPACK_PACKAGE_CONTACT "${TELSX_MAINTAINER}" )
set( CPACK_STRIP_FILES ON )
set( CPACK_COMPONENTS_ALL runtime development tools )
# It would be put before the descriptions, whose first lines are summaries already.
set( CPACK_PACKAGE_DESCRIPTION_SUMMARY "" )
set( about "Shared libraries with a C interface for programs that speak SIP: they read
messages, their headers and values, check them, and write them." )
set( CPACK_COMPONENT_RUNTIME_DESCRIPTION "SIP messages: decoding, checking, encoding (libraries)
${about}

Programs need this package to run." )
set( CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "SIP messages: decoding, checking, encoding (development)
${about}

Programs are built with this package: it has the headers, and what CMake and
pkg-config need." )
set( CPACK_COMPONENT_TOOLS_DESCRIPTION "SIP messages: what they say and what is wrong with them (program)
The program telsx reads SIP messages in files and captures. It shows what is
wrong with each of them and where, and counts faults in large captures. It also
shows what messages say, and prints JSON for other programs." )
set( CPACK_DEB_COMPONENT_INSTALL ON )
set( CPACK_DEBIAN_FILE_NAME DEB-DEFAULT )
set( CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON )
# Programs that were built with an older version of the same soname keep working.
set( CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=" )
set( CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${runtime}" )
set( CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs )
set( CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON )
set( CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtelsx-dev )
set( CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel )
set( CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime} (= ${PROJECT_VERSION})" )
set( CPACK_DEBIAN_TOOLS_PACKAGE_NAME telsx-tools )
set( CPACK_DEBIAN_TOOLS_PACKAGE_SECTION net )
set( CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON )
set( CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${runtime} (>= ${PROJECT_VERSION})" )
# The program's own libraries are in another package, whose name is given above.
set( CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/lib" )
# A trigger renews the loader's cache, so the scripts that cpack writes for it are removed again.
file( WRITE "${documents}/triggers" "activate-noawait ldconfig\n" )
set( CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${documents}/triggers" )
set( CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_STRICT_PERMISSION ON )
set( CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/CorvanePackageScripts.cmake" )
include( CPack )
