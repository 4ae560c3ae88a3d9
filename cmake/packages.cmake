# The Debian packages: one of each component of install.cmake. `./dev package` builds and tries them.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian/documents.cmake)
set(CPACK_PACKAGE_CONTACT "tiv_echotable maintainers <maintainers@tiv.example>")
set(CPACK_DEBIAN_PACKAGE_SOURCE tiv-echotable)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/debian/triggers)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

# tiv_package(<component> <name> SECTION <section> SUMMARY <line> DESCRIPTION <line>... [DEPENDS <packages>]):
# the packages of the libraries that it is linked against are found by themselves.
function(tiv_package component name)
    cmake_parse_arguments(PACKAGE "" "SECTION;SUMMARY;DEPENDS" DESCRIPTION ${ARGN})
    string(TOUPPER ${component} COMPONENT)
    list(JOIN PACKAGE_DESCRIPTION "\n" description)
    set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${COMPONENT}_DESCRIPTION "${PACKAGE_SUMMARY}\n${description}" PARENT_SCOPE)
    foreach(entry SECTION DEPENDS)
        set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_${entry} "${PACKAGE_${entry}}" PARENT_SCOPE)
    endforeach()
    if(NOT component STREQUAL library)
        set(CPACK_COMPONENT_${COMPONENT}_DEPENDS library PARENT_SCOPE)
    endif()
endfunction()

tiv_package(library libtiv-echotable${PROJECT_VERSION_MAJOR} SECTION libs
    SUMMARY "echo tables of structural analysis programs"
    DESCRIPTION
        "Lets the structural engineer choose how much of each group of results an"
        "analysis program prints, keeps the choice as a settings string, and writes"
        "the ECHO lines of the program's input. With the libraries that a host may"
        "replace: project database and assertion reports.")
tiv_package(development libtiv-echotable-dev SECTION libdevel
    DEPENDS qtbase5-dev
    SUMMARY "echo tables of structural analysis programs (development files)"
    DESCRIPTION
        "Headers of the library tiv_echotable, and its package for CMake.")
tiv_package(echotable echotable SECTION science
    SUMMARY "echo tables of structural analysis programs on the command line"
    DESCRIPTION
        "Shows and changes what analysis programs print into their reports, keeps it"
        "in project files, and writes the ECHO lines of the programs' input.")
tiv_package(echohost echohost SECTION science
    SUMMARY "editor for the echo tables of a project's analysis tasks"
    DESCRIPTION
        "A window with the analysis tasks of a project, the options of each, and the"
        "ECHO lines that follow from them. The sample host of the library"
        "tiv_echotable.")
set(CPACK_COMPONENTS_ALL library development echotable echohost)

include(CPack)
