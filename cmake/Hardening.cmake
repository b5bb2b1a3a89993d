# What a built file brings against its own mistakes; tests/HardeningTest.py reads it back from the
# files. For what is optimised and runs without the sanitizers, which bring more.
if(LINEWRIGHT_SANITIZE OR NOT CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
    return()
endif()

include(CheckPIESupported)
check_pie_supported()
linewright_compiler_knows(compilerFlags -fstack-protector-strong -fcf-protection=full)
add_compile_options(${compilerFlags})
add_compile_definitions(_FORTIFY_SOURCE=2)
if(WIN32)
    linewright_compiler_knows(compilerFlags -ffunction-sections -fdata-sections)
    add_compile_options(${compilerFlags})
    # The stack protector of this compiler is a library of its own.
    linewright_linker_knows(
        linkerFlags -fstack-protector-strong -Wl,--high-entropy-va -Wl,--dynamicbase -Wl,--nxcompat
        -Wl,--gc-sections -s
    )
else()
    linewright_linker_knows(linkerFlags -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endif()
add_link_options(${linkerFlags})
