# The package that find_package( telsx ) reads, and the two Debian packages that cpack makes.

include( CMakePackageConfigHelpers )

set( package "${CMAKE_INSTALL_LIBDIR}/cmake/telsx" )
install( EXPORT telsx NAMESPACE corvane:: FILE telsxConfig.cmake DESTINATION "${package}" COMPONENT development )
# As the sonames have it, releases of one major version fit each other.
write_basic_package_version_file( "${PROJECT_BINARY_DIR}/telsxConfigVersion.cmake" COMPATIBILITY SameMajorVersion )
install( FILES "${PROJECT_BINARY_DIR}/telsxConfigVersion.cmake" DESTINATION "${package}" COMPONENT development )

set( runtime "libtelsx${PROJECT_VERSION_MAJOR}" )
set( CPACK_GENERATOR DEB )
set( CPACK_PACKAGE_CONTACT "${TELSX_VENDOR}" )
set( CPACK_STRIP_FILES ON )
set( CPACK_COMPONENTS_ALL runtime development )
set( CPACK_COMPONENT_RUNTIME_DESCRIPTION "Shared libraries that decode, check and encode SIP messages." )
set( CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "What programs with ${runtime} are built with: headers, CMake package, pkg-config." )
set( CPACK_DEB_COMPONENT_INSTALL ON )
set( CPACK_DEBIAN_FILE_NAME DEB-DEFAULT )
set( CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON )
# Programs that were built with an older version of the same soname go on working.
set( CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=" )
set( CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${runtime}" )
set( CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs )
set( CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON )
set( CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtelsx-dev )
set( CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel )
set( CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime} (= ${PROJECT_VERSION})" )
if( PROJECT_IS_TOP_LEVEL )
    include( CPack )
endif()
