include(GenerateExportHeader)
include(${CMAKE_CURRENT_LIST_DIR}/install.cmake)

# tiv_platform_library(<name> <sources>): the shared library tiv_<name> with the public headers of inc/
# and the export macro TIV_<NAME>_EXPORT in <tiv/<name>/export.h>.
function(tiv_platform_library name)
    add_library(tiv_${name} SHARED ${ARGN})
    target_link_libraries(tiv_${name} PRIVATE tiv_internal)
    tiv_describe_abi(${ARGN})
    generate_export_header(tiv_${name} EXPORT_FILE_NAME inc/tiv/${name}/export.h)
    tiv_install_library(tiv_${name} ${name} inc ${CMAKE_CURRENT_BINARY_DIR}/inc)
endfunction()
