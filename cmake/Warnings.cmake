# What is watched for, at compile time and at run time.
#   linewright::warnings   for our own targets: the warnings
#   LINEWRIGHT_SANITIZE    the sanitizers and the library's assertions, for all targets alike
add_library(linewright_warnings INTERFACE)
add_library(linewright::warnings ALIAS linewright_warnings)
set(warnings -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
set(compiler ${CMAKE_CXX_COMPILER_ID}-${CMAKE_CXX_COMPILER_VERSION})
if("${LINEWRIGHT_WARNINGS_AS_ERRORS}-${compiler}" MATCHES "^(ON-|AUTO-GNU-12[.]|AUTO-Clang-14[.])")
    list(APPEND warnings -Werror)
endif()
linewright_compiler_knows(warnings ${warnings})
target_compile_options(linewright_warnings INTERFACE ${warnings})

set(LINEWRIGHT_SANITIZE OFF CACHE STRING "Build with sanitizers: ON (address and undefined behaviour), thread or OFF")
if(LINEWRIGHT_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
    if(LINEWRIGHT_SANITIZE STREQUAL "thread")
        set(sanitizers -fsanitize=thread)
    endif()
    add_compile_options(${sanitizers} -fno-omit-frame-pointer)
    add_link_options(${sanitizers})
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
