include(GenerateExportHeader)
include(${CMAKE_CURRENT_LIST_DIR}/install.cmake)

# tiv_platform_library(<name> SOURCES <files> [LIBRARIES <targets>]): the shared library tiv_<name> with the public
# headers of inc/ and the export macro TIV_<NAME>_EXPORT in <tiv/<name>/export.h>. The target
# tiv_<name>_objects is the same code for programs that contain it.
function(tiv_platform_library name)
    cmake_parse_arguments(LIBRARY "" "" "SOURCES;LIBRARIES" ${ARGN})
    set(includes ${CMAKE_CURRENT_SOURCE_DIR}/inc ${CMAKE_CURRENT_BINARY_DIR}/inc)
    add_library(tiv_${name}_objects OBJECT ${LIBRARY_SOURCES})
    target_compile_definitions(tiv_${name}_objects PRIVATE tiv_${name}_EXPORTS)
    target_include_directories(tiv_${name}_objects PUBLIC ${includes})
    target_link_libraries(tiv_${name}_objects PRIVATE tiv_internal PUBLIC ${LIBRARY_LIBRARIES})
    tiv_describe_abi(${LIBRARY_SOURCES})

    add_library(tiv_${name} SHARED)
    target_link_libraries(tiv_${name} PRIVATE tiv_${name}_objects)
    generate_export_header(tiv_${name} EXPORT_FILE_NAME inc/tiv/${name}/export.h)
    tiv_library(tiv_${name} ${name}
        PACKAGE tiv_platform COMPONENT ${name} DEVELOPMENT common INCLUDES ${includes})
endfunction()
