# What is watched for, at compile time and at run time.
#   linewright::warnings   for our own targets: the warnings, as errors
#   LINEWRIGHT_SANITIZE    the sanitizers and the library's assertions, for all targets alike
add_library(linewright_warnings INTERFACE)
add_library(linewright::warnings ALIAS linewright_warnings)
target_compile_options(
    linewright_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
)

option(LINEWRIGHT_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
if(LINEWRIGHT_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
    add_compile_options(${sanitizers} -fno-omit-frame-pointer)
    add_link_options(${sanitizers})
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
