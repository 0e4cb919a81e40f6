# Runs PROGRAM and replaces the counts that are not as before. Its objects know their place, before which the profiling
# library puts GCOV_PREFIX.
set( new "${CMAKE_CURRENT_BINARY_DIR}/new" )
file( REMOVE_RECURSE "${new}" )
set( ENV{GCOV_PREFIX} "${new}" )
execute_process( COMMAND "${PROGRAM}" COMMAND_ERROR_IS_FATAL ANY )
file( READ counts counts )
foreach( file IN LISTS counts )
    configure_file( "${new}${file}" "${file}" COPYONLY )
endforeach()
