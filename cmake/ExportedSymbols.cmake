# Keeps everything but the entry points out of a plug-in's dynamic symbol table: several plug-ins
# built on JUCE live in one host process, and shared symbols would make them clash.
function(vorlo_export_entry_points_only)
    if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
        return()
    endif()
    set(script "${PROJECT_SOURCE_DIR}/cmake/EntryPoints.map")
    foreach(target IN LISTS ARGN)
        target_link_options(${target} PRIVATE
            "-Wl,--exclude-libs,ALL" "-Wl,--version-script=${script}")
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${script}")
    endforeach()
endfunction()

if(NOT MSVC AND NOT VORLO_SANITIZE)
    add_compile_options(-ffunction-sections -fdata-sections)
    if(NOT APPLE)
        add_link_options("-Wl,--gc-sections" "-Wl,--as-needed")
    endif()
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fno-gnu-unique>)
endif()
