# The Debian packages, one for each component.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME linewright)
set(CPACK_PACKAGE_VENDOR Linewright)
set(CPACK_PACKAGE_CONTACT Linewright)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER Linewright)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_COMPONENTS_ALL)
set(control ${CMAKE_CURRENT_SOURCE_DIR}/debian)

# linewright_package(NAME SECTION SUMMARY TEXT …) is the package of the component NAME. ALL says that it is
# for all machines; behind DEPENDS, RECOMMENDS and SUGGESTS stand other packages (@ is this version),
# behind CONTROL what runs or counts when it is installed.
function(linewright_package name section summary text)
    cmake_parse_arguments(PARSE_ARGV 4 package "ALL" "" "DEPENDS;RECOMMENDS;SUGGESTS;CONTROL")
    string(TOUPPER ${name} component)
    set(prefix CPACK_DEBIAN_${component})
    set(made ${CMAKE_CURRENT_BINARY_DIR}/debian)
    set(${prefix}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(${prefix}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(${prefix}_DESCRIPTION "${summary}\n${text}" PARENT_SCOPE)
    set(CPACK_COMPONENT_${component}_DESCRIPTION "${summary}\n${text}" PARENT_SCOPE)
    if(package_ALL)
        set(${prefix}_PACKAGE_ARCHITECTURE all PARENT_SCOPE)
        set(${prefix}_PACKAGE_SHLIBDEPS OFF PARENT_SCOPE)
    endif()
    foreach(relation DEPENDS RECOMMENDS SUGGESTS)
        list(JOIN package_${relation} ", " names)
        string(REPLACE "@" "(= ${PROJECT_VERSION})" names "${names}")
        set(${prefix}_PACKAGE_${relation} "${names}" PARENT_SCOPE)
    endforeach()
    set(${prefix}_PACKAGE_CONTROL_EXTRA "${package_CONTROL}" PARENT_SCOPE)
    install(FILES ${made}/copyright ${made}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
            COMPONENT ${name} EXCLUDE_FROM_ALL
    )
    install(FILES ${control}/overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME ${name}
            COMPONENT ${name} EXCLUDE_FROM_ALL
    )
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${name} PARENT_SCOPE)
endfunction()

file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/debian/shlibs "liblinewright 0 liblinewright0 (>= ${PROJECT_VERSION})\n")

linewright_package(linewright graphics "barcodes as text for barcode fonts"
"Turns digits and text into the characters that, set in the matching font,
print as a valid barcode, and refuses bad data. This package has the command,
the plug-in for a page-layout application and the host that runs it here."
    RECOMMENDS "fonts-linewright @"
    SUGGESTS "linewright-drawing @" "linewright-workbench @"
    CONTROL ${control}/triggers
)
linewright_package(linewright-drawing graphics "drawings of barcodes, read back by scanners"
"Lets the command linewright draw barcodes as PDF, EPS, SVG, PNG and TIFF
files, set and proof whole tables of them, say what two scanners read, and
check finished documents."
    DEPENDS "linewright @" "fonts-linewright @" fonts-dejavu-core
    RECOMMENDS poppler-utils
)
linewright_package(linewright-workbench graphics "window that turns data into barcodes"
"Draws a barcode while its data is typed, says whether scanners read it,
exports it, and has the dialogs of the plug-in, in four languages."
    DEPENDS "linewright @" "fonts-linewright @" fonts-dejavu-core
)
linewright_package(fonts-linewright fonts "barcode fonts that match the texts of linewright"
"Ten fonts for EAN, UPC, Code 128, Code 39, Codabar, Interleaved 2 of 5, MSI,
Postnet and Intelligent Mail, static and variable."
    ALL
)
linewright_package(liblinewright0 libs "library that turns data into barcodes"
"Encodes, draws and verifies barcodes within a program, in C; with an
extension for SQLite, linewright_sqlite."
    DEPENDS "linewright @"
    RECOMMENDS "fonts-linewright @" fonts-dejavu-core
    CONTROL ${control}/triggers ${CMAKE_CURRENT_BINARY_DIR}/debian/shlibs
)
linewright_package(liblinewright-dev libdevel "library that turns data into barcodes, for developers"
"The headers of the library and of the plug-in's service interface, with
files for CMake and pkg-config."
    DEPENDS "liblinewright0 @" "linewright @"
)
linewright_package(python3-linewright python "module that turns data into barcodes"
"Encodes, draws and verifies barcodes in Python, one by one or a column at a
time."
    DEPENDS "liblinewright0 @" ${LINEWRIGHT_PYTHON_NEEDED}
    CONTROL ${control}/postinst ${control}/prerm
)
include(CPack)
