# The plug-in alone, against the headers of another host than the stand-in.
set(sdkFolders)
foreach(folder IN LISTS LINEWRIGHT_HOST_SDK)
    cmake_path(ABSOLUTE_PATH folder BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
    if(NOT IS_DIRECTORY ${folder})
        message(FATAL_ERROR "LINEWRIGHT_HOST_SDK: there is no folder ${folder}")
    endif()
    list(APPEND sdkFolders ${folder})
endforeach()

add_library(linewright_sdk INTERFACE)
add_library(linewright::sdk ALIAS linewright_sdk)
target_include_directories(linewright_sdk INTERFACE ${PROJECT_SOURCE_DIR})
# What these headers are warned of is their makers' business.
target_include_directories(linewright_sdk SYSTEM INTERFACE ${sdkFolders})

add_library(linewright_host INTERFACE)
add_library(linewright::host ALIAS linewright_host)
target_link_libraries(linewright_host INTERFACE linewright::sdk ${LINEWRIGHT_HOST_LIBRARIES})

foreach(room types text core retail classic current imb plugin)
    add_subdirectory(${room})
endforeach()
