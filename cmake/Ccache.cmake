# Compiles through ccache where it is installed.
find_program(LINEWRIGHT_CCACHE ccache)
mark_as_advanced(LINEWRIGHT_CCACHE)
if(LINEWRIGHT_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${LINEWRIGHT_CCACHE})
endif()
