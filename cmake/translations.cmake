# tiv_add_catalogues(<variable> <name> <prefix> <folder>): compiles every .ts file of the folder, so that a language
# is added by its file alone. The variable receives the .qm files, <variable>_resources the sources that embed
# them under the resource prefix; <name> is the name for Q_INIT_RESOURCE.
function(tiv_add_catalogues variable name prefix folder)
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.ts)
    tiv_add_translation(catalogues ${sources})
    set(files)
    foreach(catalogue IN LISTS catalogues)
        cmake_path(GET catalogue FILENAME file)
        string(APPEND files "<file>${file}</file>")
    endforeach()
    set(collection ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc)
    file(CONFIGURE OUTPUT ${collection} CONTENT "<RCC><qresource prefix=\"${prefix}\">${files}</qresource></RCC>\n")
    tiv_add_resources(resources ${collection})
    set(${variable} ${catalogues} PARENT_SCOPE)
    set(${variable}_resources ${resources} PARENT_SCOPE)
endfunction()
