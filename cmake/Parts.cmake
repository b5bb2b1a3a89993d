# Parts that can be left out. Each has an option: AUTO builds it where what it needs is found, ON
# makes it an error that something is missing, OFF leaves it out.

# linewright_part(NAME TEXT) makes the option LINEWRIGHT_NAME.
function(linewright_part name text)
    set(option LINEWRIGHT_${name})
    set(${option} AUTO CACHE STRING "${text}: AUTO, ON or OFF")
    set_property(CACHE ${option} PROPERTY STRINGS AUTO ON OFF)
    if(NOT ${option} MATCHES "^(AUTO|ON|OFF)$")
        message(FATAL_ERROR "${option} is \"${${option}}\"; it can be AUTO, ON or OFF")
    endif()
endfunction()

# linewright_seek(NAME) begins the CMakeLists.txt of a part: returns where it is not wanted, and
# sets `need` to what its calls of find_package are to say.
macro(linewright_seek name)
    if(LINEWRIGHT_${name} STREQUAL "OFF")
        return()
    endif()
    set(need QUIET)
    if(LINEWRIGHT_${name} STREQUAL "ON")
        set(need REQUIRED)
    endif()
endmacro()

# linewright_require(NAME TEXT WHAT…) ends the search: returns where one of the targets or variables is not
# there, and says so.
macro(linewright_require name text)
    foreach(what ${ARGN})
        if(TARGET ${what} OR ${what})
            continue()
        endif()
        if(LINEWRIGHT_${name} STREQUAL "ON")
            message(FATAL_ERROR "LINEWRIGHT_${name} is ON, and ${what} is missing")
        endif()
        message(STATUS "${what} is missing: ${text} is left out")
        return()
    endforeach()
endmacro()

linewright_part(DRAWING "Build what draws barcodes (Cairo, FreeType, fontconfig, QPDF, libpng, libtiff)")
linewright_part(SCANNERS "Build what reads drawings back (ZXing-C++, ZBar); the command draws with it only")
linewright_part(WORKBENCH "Build the desktop window (Qt 6)")
linewright_part(PYTHON_MODULE "Build the module for Python (pybind11)")
linewright_part(SQLITE_EXTENSION "Build the extension for SQLite")
linewright_part(TESTS "Build the tests (GoogleTest); AUTO: where this is no part of another project")
linewright_part(WARNINGS_AS_ERRORS "Take warnings as errors; AUTO: with the compilers that they are checked with")
