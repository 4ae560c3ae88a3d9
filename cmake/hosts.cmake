# The CMake packages and the files for pkg-config, by which hosts find the installed libraries.
include(${CMAKE_CURRENT_LIST_DIR}/install.cmake)

math(EXPR other "11 - ${TIV_QT}")  # the other version of Qt
set(other_package tiv_echotable)
if(TIV_QT EQUAL 5)
    set(other_package tiv_echotable_qt6)
endif()
tiv_cmake_package(${TIV_PACKAGE} ${CMAKE_CURRENT_LIST_DIR}/config.cmake.in development)
tiv_cmake_package(tiv_platform ${CMAKE_CURRENT_LIST_DIR}/platform-config.cmake.in common)

tiv_pkgconfig(${TIV_LIBRARY} development "echo tables of structural analysis programs, for Qt ${TIV_QT}"
    REQUIRES "Qt${TIV_QT}Widgets >= ${TIV_QT_VERSION}" FLAGS -DTIV_ECHOTABLE_QT=${TIV_QT})
tiv_pkgconfig(tiv_dbo common "project database of the echo tables")
tiv_pkgconfig(tiv_smartassert common "assertion reports of the echo tables")
