# What the module record says about the build. The time is SOURCE_DATE_EPOCH if that is set, else the time of the last
# commit, so that two builds of one tree are identical byte for byte; without either it is the current time.

set( TELSX_VENDOR "the telsx project" CACHE STRING "The vendor's name in the module record" )
set( TELSX_LEGAL_NOTICE "Copyright the telsx project" CACHE STRING "The legal notice in the module record" )

set( epoch "$ENV{SOURCE_DATE_EPOCH}" )
if( epoch STREQUAL "" )
    execute_process( COMMAND git log -1 --format=%ct WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
        OUTPUT_VARIABLE epoch OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET )
endif()
if( NOT epoch STREQUAL "" )
    set( ENV{SOURCE_DATE_EPOCH} "${epoch}" )
endif()
string( TIMESTAMP TELSX_BUILD_TIME "UTC %Y-%m-%d %H:%M:%S (%A)" UTC )

set_source_files_properties( telsx/telsx_module_record.cpp PROPERTIES COMPILE_DEFINITIONS
    "TELSX_RELEASE_1=${PROJECT_VERSION_MAJOR};TELSX_RELEASE_2=${PROJECT_VERSION_MINOR};TELSX_RELEASE_3=${PROJECT_VERSION_PATCH};TELSX_BUILD_TIME=\"${TELSX_BUILD_TIME}\";TELSX_VENDOR=\"${TELSX_VENDOR}\";TELSX_LEGAL_NOTICE=\"${TELSX_LEGAL_NOTICE}\"" )
