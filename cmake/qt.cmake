# Everything that depends on the major version of Qt, TIV_QT. Targets of Qt are named Qt${TIV_QT}::<module>.
if(TIV_QT EQUAL 5)
    set(TIV_QT_VERSION 5.15)
    set(TIV_LIBRARY tiv_echotable)  # names the library, its catalogues and its file for pkg-config
    set(TIV_PACKAGE tiv_echotable)  # names the CMake package
elseif(TIV_QT EQUAL 6)
    set(TIV_QT_VERSION 6.4)
    set(TIV_LIBRARY tiv_echotable-qt6)
    set(TIV_PACKAGE tiv_echotable_qt6)
else()
    message(FATAL_ERROR "TIV_QT is \"${TIV_QT}\", expected 5 or 6.")
endif()

macro(tiv_find_qt)
    find_package(Qt${TIV_QT} ${TIV_QT_VERSION} REQUIRED COMPONENTS ${ARGN})
endmacro()

# tiv_add_translation(<variable> <ts file>...): compiles catalogues; the variable receives the .qm files.
macro(tiv_add_translation variable)
    cmake_language(CALL qt${TIV_QT}_add_translation ${variable} ${ARGN})
endmacro()

# tiv_add_resources(<variable> <qrc file>...): the variable receives the sources made from them.
macro(tiv_add_resources variable)
    cmake_language(CALL qt${TIV_QT}_add_resources ${variable} ${ARGN})
endmacro()
