# Every target of the project links tiv_warnings: one place for language strictness and the include root.
add_library(tiv_warnings INTERFACE)
target_include_directories(tiv_warnings INTERFACE ${PROJECT_SOURCE_DIR})
if(MSVC)
    target_compile_options(tiv_warnings INTERFACE
        /W4 /permissive- /utf-8 /Zc:__cplusplus $<$<BOOL:${TIV_WARNINGS_AS_ERRORS}>:/WX>)
    target_compile_definitions(tiv_warnings INTERFACE _CRT_SECURE_NO_WARNINGS)  # std::getenv is no error
else()
    target_compile_options(tiv_warnings INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast
        $<$<BOOL:${TIV_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
