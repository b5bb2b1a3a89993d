# What a built file brings against its own mistakes; tests/HardeningTest.py reads it back from the
# files. For what is optimised and runs without the sanitizers, which bring more.
if(LINEWRIGHT_SANITIZE OR NOT CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
    return()
endif()

include(CheckPIESupported)
check_pie_supported()
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection=full LINEWRIGHT_HAS_CET)

add_compile_options(-fstack-protector-strong)
add_compile_definitions(_FORTIFY_SOURCE=2)
if(LINEWRIGHT_HAS_CET)
    add_compile_options(-fcf-protection=full)
endif()
if(WIN32)
    add_compile_options(-ffunction-sections -fdata-sections)
    # The stack protector of this compiler is a library of its own.
    add_link_options(-fstack-protector-strong)
    add_link_options(
        -Wl,--high-entropy-va -Wl,--dynamicbase -Wl,--nxcompat -Wl,--gc-sections -s
    )
else()
    add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endif()
