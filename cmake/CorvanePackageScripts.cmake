# Takes the maintainer scripts out of the Debian packages that cpack has made.
foreach( package IN LISTS CPACK_PACKAGE_FILES )
    set( folder "${CPACK_TEMPORARY_DIRECTORY}/repacked" )
    file( REMOVE_RECURSE "${folder}" )
    execute_process( COMMAND dpkg-deb --raw-extract "${package}" "${folder}" COMMAND_ERROR_IS_FATAL ANY )
    file( REMOVE "${folder}/DEBIAN/postinst" "${folder}/DEBIAN/postrm" )
    execute_process( COMMAND dpkg-deb --root-owner-group --build "${folder}" "${package}"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY )
endforeach()
