# Run by CPack over the files of all packages: each gets its copyright and changelog, and what Debian wants
# compressed is compressed.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(compressed)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} COMPONENT)
    set(share ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share)
    set(documents ${share}/doc/${CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME})
    configure_file(${CMAKE_CURRENT_LIST_DIR}/copyright ${documents}/copyright COPYONLY)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog ${documents}/changelog @ONLY)
    file(GLOB manual ${share}/man/man1/*.1)
    list(APPEND compressed ${documents}/changelog ${manual})
endforeach()
execute_process(COMMAND gzip -9n ${compressed} COMMAND_ERROR_IS_FATAL ANY)
