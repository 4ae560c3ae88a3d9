# What `cmake --install` puts where, and the package that find_package(tiv_echotable CONFIG) finds:
# the targets tiv::echotable, tiv::dbo and tiv::smartassert. The components are library, development, and one of
# the name of each program.
include_guard(GLOBAL)
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(TIV_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/tiv_echotable)

# tiv_describe_abi(<source>...): the files that define what a library exports. They carry debug information in
# every build: from it the test of the binary interface reads the layout of the types.
function(tiv_describe_abi)
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS $<$<PLATFORM_ID:Linux>:-g>)
endfunction()

# tiv_install_library(<target> <name> <include dir>...): a shared library of the package. Consumers link
# tiv::<name>, here as well as installed, and include below the public include directories.
function(tiv_install_library target name)
    add_library(tiv::${name} ALIAS ${target})
    foreach(dir IN LISTS ARGN)
        cmake_path(ABSOLUTE_PATH dir)
        target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${dir}>)
        install(DIRECTORY ${dir}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
            FILES_MATCHING PATTERN *.h)
    endforeach()
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${name}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        INSTALL_RPATH $ORIGIN)
    if(WIN32)
        set_target_properties(${target} PROPERTIES PREFIX "")  # one name for all compilers
    elseif(NOT APPLE)
        set(exported ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/exported.map)
        target_link_options(${target} PRIVATE LINKER:--version-script=${exported})
        set_target_properties(${target} PROPERTIES LINK_DEPENDS ${exported})
    endif()
    install(TARGETS ${target}
        EXPORT tiv_echotable-targets
        ARCHIVE COMPONENT development
        LIBRARY COMPONENT library NAMELINK_COMPONENT development
        RUNTIME COMPONENT library
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
endfunction()

# tiv_install_program(<target>): a program that finds the libraries beside it, and its manual page.
function(tiv_install_program target)
    file(RELATIVE_PATH libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH $ORIGIN/${libraries})
    install(TARGETS ${target} RUNTIME COMPONENT ${target})
    if(UNIX)
        configure_file(${PROJECT_SOURCE_DIR}/docs/${target}.1 ${target}.1 @ONLY)
        install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}.1
            DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${target})
    endif()
endfunction()

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/tiv_echotable-config.cmake.in
    ${PROJECT_BINARY_DIR}/tiv_echotable-config.cmake
    INSTALL_DESTINATION ${TIV_PACKAGE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tiv_echotable-config-version.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/tiv_echotable-config.cmake
    ${PROJECT_BINARY_DIR}/tiv_echotable-config-version.cmake
    DESTINATION ${TIV_PACKAGE_DIR} COMPONENT development)
install(EXPORT tiv_echotable-targets NAMESPACE tiv:: DESTINATION ${TIV_PACKAGE_DIR} COMPONENT development)

# The exceptions that a host catches; complete in their header.
install(FILES ${PROJECT_SOURCE_DIR}/bond/exceptions.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/bond COMPONENT development)

if(WIN32)
    include(${CMAKE_CURRENT_LIST_DIR}/windows/runtime.cmake)
endif()
