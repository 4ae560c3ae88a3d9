# Every target of the project links tiv_internal: compiler warnings, and includes from the root folder.
add_library(tiv_internal INTERFACE)
target_include_directories(tiv_internal INTERFACE ${PROJECT_SOURCE_DIR})
if(MSVC)
    target_compile_options(tiv_internal INTERFACE
        /W4 /permissive- /utf-8 /Zc:__cplusplus $<$<BOOL:${TIV_WARNINGS_AS_ERRORS}>:/WX>)
    target_compile_definitions(tiv_internal INTERFACE _CRT_SECURE_NO_WARNINGS)  # std::getenv is no error
else()
    target_compile_options(tiv_internal INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast
        $<$<BOOL:${TIV_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
if(TIV_QT EQUAL 6)
    # The sources use the forms that Qt 5.15 has, too; Qt 6 deprecates some of them.
    target_compile_definitions(tiv_internal INTERFACE QT_NO_DEPRECATED_WARNINGS)
endif()
