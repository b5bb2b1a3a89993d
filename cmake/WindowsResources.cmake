# linewright_resources(TARGET DESCRIPTION) puts version, description, icon and manifest into a program or
# a library for Windows.
function(linewright_resources target description)
    if(NOT WIN32)
        return()
    endif()
    set(numbers "${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},${PROJECT_VERSION_PATCH},0")
    # The places where Windows looks for a program's manifest and a library's.
    set(fileType VFT_DLL)
    set(manifestPlace 2)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL EXECUTABLE)
        set(fileType VFT_APP)
        set(manifestPlace 1)
    endif()
    set(manifest ${PROJECT_BINARY_DIR}/program.manifest)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest.in ${manifest} @ONLY)
    set(resources ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/resources.rc.in ${resources}.in @ONLY)
    file(GENERATE OUTPUT ${resources} INPUT ${resources}.in TARGET ${target})
    set_source_files_properties(
        ${resources} PROPERTIES OBJECT_DEPENDS "${manifest};${PROJECT_SOURCE_DIR}/icons/linewright.ico"
    )
    target_sources(${target} PRIVATE ${resources})
endfunction()
