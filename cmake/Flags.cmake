# Flags for the compilers and linkers that know them.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

# linewright_compiler_knows(RESULT FLAG…) gives those of the flags that the compiler knows.
function(linewright_compiler_knows result)
    set(known)
    foreach(flag IN LISTS ARGN)
        string(MAKE_C_IDENTIFIER "LINEWRIGHT_KNOWS${flag}" variable)
        check_cxx_compiler_flag(${flag} ${variable})
        if(${variable})
            list(APPEND known ${flag})
        endif()
    endforeach()
    set(${result} ${known} PARENT_SCOPE)
endfunction()

# linewright_linker_knows(RESULT FLAG…) gives those of the flags that the linker knows.
function(linewright_linker_knows result)
    set(known)
    foreach(flag IN LISTS ARGN)
        string(MAKE_C_IDENTIFIER "LINEWRIGHT_LINKS${flag}" variable)
        check_linker_flag(CXX ${flag} ${variable})
        if(${variable})
            list(APPEND known ${flag})
        endif()
    endforeach()
    set(${result} ${known} PARENT_SCOPE)
endfunction()
