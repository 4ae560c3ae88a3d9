# Install rules. Two CMake packages are installed: tiv_platform (targets tiv::dbo and tiv::smartassert, the
# same for every version of Qt), and tiv_echotable or tiv_echotable_qt6 (tiv::echotable), which includes it.
# The components are smartassert, dbo, library, common (headers and the rest of tiv_platform), development, and
# one named after each program. As part of another project nothing is installed.
include_guard(GLOBAL)
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

# tiv_describe_abi(<source>...): the files that define what a library exports. They carry debug information in
# every build: from it the test of the binary interface reads the layout of the types.
function(tiv_describe_abi)
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS $<$<PLATFORM_ID:Linux>:-g>)
endfunction()

# tiv_library(<target> <name> PACKAGE <CMake package> COMPONENT <of the library> DEVELOPMENT <of its headers>
#     INCLUDES <dir>...): a shared library that hosts link as tiv::<name>, in the build tree as well as
# installed. They include below the given directories.
function(tiv_library target name)
    cmake_parse_arguments(LIBRARY "" "PACKAGE;COMPONENT;DEVELOPMENT" INCLUDES ${ARGN})
    add_library(tiv::${name} ALIAS ${target})
    target_compile_features(${target} INTERFACE cxx_std_17)
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
    foreach(dir IN LISTS LIBRARY_INCLUDES)
        cmake_path(ABSOLUTE_PATH dir NORMALIZE)
        target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${dir}>)
        if(PROJECT_IS_TOP_LEVEL)
            install(DIRECTORY ${dir}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT common
                FILES_MATCHING PATTERN *.h)
        endif()
    endforeach()
    if(PROJECT_IS_TOP_LEVEL)
        install(TARGETS ${target}
            EXPORT ${LIBRARY_PACKAGE}-targets
            ARCHIVE COMPONENT ${LIBRARY_DEVELOPMENT}
            LIBRARY COMPONENT ${LIBRARY_COMPONENT} NAMELINK_COMPONENT ${LIBRARY_DEVELOPMENT}
            RUNTIME COMPONENT ${LIBRARY_COMPONENT}
            INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    endif()
endfunction()

# tiv_cmake_package(<name> <template> <component>): installs the files that find_package(<name>) reads.
function(tiv_cmake_package name template component)
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${name})
    set(config ${PROJECT_BINARY_DIR}/${name}-config)
    configure_package_config_file(${template} ${config}.cmake INSTALL_DESTINATION ${folder})
    write_basic_package_version_file(${config}-version.cmake COMPATIBILITY SameMajorVersion)
    install(FILES ${config}.cmake ${config}-version.cmake DESTINATION ${folder} COMPONENT ${component})
    install(EXPORT ${name}-targets NAMESPACE tiv:: DESTINATION ${folder} COMPONENT ${component})
endfunction()

# tiv_pkgconfig(<name> <component> <description> [REQUIRES <packages>] [FLAGS <flags>])
function(tiv_pkgconfig name component description)
    cmake_parse_arguments(PACKAGE "" "REQUIRES;FLAGS" "" ${ARGN})
    set(requires ${PACKAGE_REQUIRES})
    set(flags ${PACKAGE_FLAGS})
    file(RELATIVE_PATH prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/pkgconfig.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT ${component})
endfunction()

# tiv_program(<target> <name>): an installed program and its manual page. Where a folder in LD_LIBRARY_PATH can
# replace a library, the program contains project database and assertion reports itself: a host's own
# libraries of these names lack functions that it needs.
function(tiv_program target name)
    file(RELATIVE_PATH libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(${target} PROPERTIES OUTPUT_NAME ${name} INSTALL_RPATH $ORIGIN/${libraries})
    install(TARGETS ${target} RUNTIME COMPONENT ${name})
    if(NOT WIN32 AND NOT APPLE)
        target_link_libraries(${target} PRIVATE tiv_dbo_objects tiv_smartassert_objects)
        target_link_options(${target} PRIVATE LINKER:--as-needed)
    endif()
    if(UNIX)
        configure_file(${PROJECT_SOURCE_DIR}/docs/${name}.1 ${name}.1 @ONLY)
        install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.1
            DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${name})
    endif()
endfunction()
