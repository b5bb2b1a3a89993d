# The header-only libraries, as linewright::cli11, linewright::fmt, linewright::json,
# linewright::rapidjson and linewright::toml. They lie among the system's headers, which a cross
# compiler must never see, so the build has a folder of its own that holds a link to each of them
# and nothing else.
set(LINEWRIGHT_HEADER_LINKS ${PROJECT_BINARY_DIR}/header-links)
file(MAKE_DIRECTORY ${LINEWRIGHT_HEADER_LINKS})

# linewright_header_library(NAME FOLDER HEADER) makes linewright::NAME from FOLDER/HEADER.
function(linewright_header_library name folder header)
    find_path(
        LINEWRIGHT_${name}_INCLUDE_DIR ${folder}/${header}
        PATHS /usr/include /usr/local/include
        NO_CMAKE_FIND_ROOT_PATH REQUIRED
    )
    mark_as_advanced(LINEWRIGHT_${name}_INCLUDE_DIR)
    file(
        CREATE_LINK ${LINEWRIGHT_${name}_INCLUDE_DIR}/${folder}
        ${LINEWRIGHT_HEADER_LINKS}/${folder} SYMBOLIC
    )
    add_library(linewright_${name} INTERFACE)
    add_library(linewright::${name} ALIAS linewright_${name})
    target_include_directories(linewright_${name} SYSTEM INTERFACE ${LINEWRIGHT_HEADER_LINKS})
endfunction()

linewright_header_library(cli11 CLI CLI.hpp)
linewright_header_library(fmt fmt format.h)
linewright_header_library(json nlohmann json.hpp)
linewright_header_library(rapidjson rapidjson reader.h)
linewright_header_library(toml toml++ toml.h)

target_compile_definitions(linewright_fmt INTERFACE FMT_HEADER_ONLY)
