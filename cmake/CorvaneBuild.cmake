# How everything in the project is compiled, and the function that makes and installs one of its libraries.

include( GNUInstallDirs )

set( CMAKE_CXX_STANDARD 20 )
set( CMAKE_CXX_STANDARD_REQUIRED ON )
set( CMAKE_CXX_EXTENSIONS OFF )
set( CMAKE_C_STANDARD 11 )
set( CMAKE_C_STANDARD_REQUIRED ON )
set( CMAKE_C_EXTENSIONS OFF )
set( CMAKE_EXPORT_COMPILE_COMMANDS ON )
set( CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib" )
set( CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib" )
set( CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin" )

add_library( corvane-flags INTERFACE )
target_compile_options( corvane-flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
    $<$<COMPILE_LANGUAGE:CXX>:-Wmissing-declarations> $<$<COMPILE_LANGUAGE:C>:-Wmissing-prototypes>
    "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=." "-ffile-prefix-map=${PROJECT_BINARY_DIR}=build" )
set( CMAKE_BUILD_RPATH_USE_ORIGIN ON )

# A target with this property is compiled without optimisation in every build.
set( unoptimised "$<BOOL:$<TARGET_PROPERTY:CORVANE_UNOPTIMISED>>" )
target_compile_options( corvane-flags INTERFACE "$<${unoptimised}:-O0>" )

# Hardening of optimised builds. Since all functions of other libraries are looked up on load, calls need not go through
# a table of stubs, which makes up for most of the cost. The sanitizers bring their own versions of what is checked.
set( optimised "$<AND:$<CONFIG:Release,RelWithDebInfo,MinSizeRel>,$<NOT:${unoptimised}>>" )
if( NOT CORVANE_SANITIZE )
    target_compile_options( corvane-flags INTERFACE
        "$<${optimised}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-fstack-protector-strong;-fno-plt>" )
    target_link_options( corvane-flags INTERFACE "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-Wl,-z,relro;-Wl,-z,now;-Wl,-z,noexecstack>" )
endif()

set( CMAKE_INSTALL_RPATH "$ORIGIN" )
if( CORVANE_SANITIZE )
    target_compile_options( corvane-flags INTERFACE
        "-fsanitize=${CORVANE_SANITIZE}" -fno-sanitize-recover=all -fno-omit-frame-pointer )
    # C callers and the library see the same handle types under different names.
    if( CMAKE_CXX_COMPILER_ID STREQUAL "Clang" )
        target_compile_options( corvane-flags INTERFACE -fno-sanitize=function )
    endif()
    target_link_options( corvane-flags INTERFACE "-fsanitize=${CORVANE_SANITIZE}" )
endif()

# Headers are below our own folder, because <net/...> is also the system's.
set( CORVANE_INCLUDE "${CMAKE_INSTALL_INCLUDEDIR}/corvane" )

# corvane_objects( telsx-small LIKE telsx unit ... ) makes object files as the library telsx would.
function( corvane_objects NAME )
    cmake_parse_arguments( ARG "" "LIKE" "" ${ARGN} )
    add_library( ${NAME} OBJECT ${ARG_UNPARSED_ARGUMENTS} )
    set_target_properties( ${NAME} PROPERTIES POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON )
    foreach( property IN ITEMS COMPILE_DEFINITIONS COMPILE_OPTIONS INCLUDE_DIRECTORIES )
        set_target_properties( ${NAME} PROPERTIES ${property} "$<TARGET_PROPERTY:${ARG_LIKE},${property}>" )
    endforeach()
endfunction()

# corvane_library( rt OUTPUT name SUMMARY text NEEDS ... PRIVATE_NEEDS ... FAST ... ) makes the shared library of
# source/rt, which exports only what begins with the folder's name. NEEDS are libraries that its public headers include.
# FAST names the units that nearly every message goes through, without their prefix; by default these are all. The others
# are compiled for size. The fast ones come first in the library, so that they are on few pages together and inline
# functions that both kinds have are the fast ones.
function( corvane_library NAME )
    cmake_parse_arguments( ARG "" "OUTPUT;SUMMARY" "NEEDS;PRIVATE_NEEDS;FAST" ${ARGN} )
    file( GLOB units CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${NAME}/*.cpp" )
    set( fast ${units} )
    if( ARG_FAST )
        list( TRANSFORM ARG_FAST REPLACE "(.+)" "${CMAKE_CURRENT_SOURCE_DIR}/${NAME}/${NAME}_\\1.cpp" OUTPUT_VARIABLE fast )
    endif()
    list( REMOVE_ITEM units ${fast} )
    add_library( ${NAME} SHARED ${fast} )
    if( units )
        set_source_files_properties( ${units} PROPERTIES
            COMPILE_OPTIONS "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-Os>" )
        if( CORVANE_TRAINING ) # which links them into its program, too
            corvane_objects( ${NAME}-small LIKE ${NAME} ${units} )
            set( units $<TARGET_OBJECTS:${NAME}-small> )
        endif()
        target_sources( ${NAME} PRIVATE ${units} )
    endif()
    set_target_properties( ${NAME} PROPERTIES CORVANE_FAST "${fast}" )
    add_library( corvane::${NAME} ALIAS ${NAME} )
    target_include_directories( ${NAME} PUBLIC "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>" )
    target_link_libraries( ${NAME} PUBLIC ${ARG_NEEDS}
        PRIVATE "$<BUILD_INTERFACE:corvane-flags>" ${ARG_PRIVATE_NEEDS} )
    # Nobody replaces functions of the libraries, so they may be bound and inlined inside. The one exception is
    # rt___Abort; a program's own may throw, which needs the unwind tables.
    target_compile_options( ${NAME} PRIVATE -fno-exceptions -fno-rtti -fno-semantic-interposition
        -fasynchronous-unwind-tables )
    target_link_options( ${NAME} PRIVATE -Wl,-Bsymbolic-functions )
    set( map "${CMAKE_CURRENT_BINARY_DIR}/${NAME}.map" )
    file( CONFIGURE OUTPUT "${map}" CONTENT "{ global: ${NAME}*; local: *; };\n" )
    target_link_options( ${NAME} PRIVATE "-Wl,--version-script=${map}" )
    if( NOT CORVANE_SANITIZE )
        target_link_options( ${NAME} PRIVATE -Wl,--no-undefined )
    endif()
    set_target_properties( ${NAME} PROPERTIES
        OUTPUT_NAME "${ARG_OUTPUT}"
        VERSION "${PROJECT_VERSION}" SOVERSION "${PROJECT_VERSION_MAJOR}"
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
        LINK_DEPENDS "${map}" )

    install( TARGETS ${NAME} EXPORT telsx
        LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
        INCLUDES DESTINATION "${CORVANE_INCLUDE}" )
    install( DIRECTORY ${NAME} DESTINATION "${CORVANE_INCLUDE}" COMPONENT development
        FILES_MATCHING PATTERN *.h PATTERN *.def PATTERN telsx.hpp )
    set( pc "${CMAKE_INSTALL_LIBDIR}/pkgconfig" )
    file( RELATIVE_PATH PC_INCLUDE "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_FULL_INCLUDEDIR}/corvane" )
    list( TRANSFORM ARG_NEEDS PREPEND corvane- OUTPUT_VARIABLE PC_NEEDS )
    list( TRANSFORM PC_NEEDS APPEND " = ${PROJECT_VERSION}" )
    list( JOIN PC_NEEDS ", " PC_NEEDS )
    configure_file( "${PROJECT_SOURCE_DIR}/cmake/library.pc.in" "${CMAKE_CURRENT_BINARY_DIR}/${ARG_OUTPUT}.pc" @ONLY )
    install( FILES "${CMAKE_CURRENT_BINARY_DIR}/${ARG_OUTPUT}.pc" DESTINATION "${pc}" COMPONENT development )
endfunction()
