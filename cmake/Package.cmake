# What other projects build against: headers, a CMake package and files for pkg-config.
include(CMakePackageConfigHelpers)

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/linewright-service)
add_library(linewright_service INTERFACE)
add_library(Linewright::service ALIAS linewright_service)
set_target_properties(linewright_service PROPERTIES EXPORT_NAME service)
target_link_libraries(linewright_service INTERFACE linewright_host)

install(FILES include/linewright.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES core/IORTALinewright.h core/LinewrightRequest.h core/PluginID.h core/PString.h
        DESTINATION ${headers}/core
)
install(FILES host/runtime/FrontEnd.h host/runtime/Host.h DESTINATION ${headers}/host/runtime)
install(DIRECTORY host/sdk DESTINATION ${headers}/host)

install(TARGETS linewright_library EXPORT c RUNTIME LIBRARY ARCHIVE)
install(TARGETS linewright_service linewright_host EXPORT service RUNTIME LIBRARY ARCHIVE)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/Linewright)
foreach(component c service)
    install(EXPORT ${component} NAMESPACE Linewright:: DESTINATION ${package} FILE Linewright-${component}.cmake)
endforeach()
configure_package_config_file(
    cmake/LinewrightConfig.cmake.in ${PROJECT_BINARY_DIR}/LinewrightConfig.cmake
    INSTALL_DESTINATION ${package} NO_SET_AND_CHECK_MACRO
)
write_basic_package_version_file(
    ${PROJECT_BINARY_DIR}/LinewrightConfigVersion.cmake COMPATIBILITY SameMajorVersion
)
install(FILES ${PROJECT_BINARY_DIR}/LinewrightConfig.cmake
              ${PROJECT_BINARY_DIR}/LinewrightConfigVersion.cmake
        DESTINATION ${package}
)

file(RELATIVE_PATH LINEWRIGHT_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
foreach(name linewright linewright-service)
    configure_file(cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
