# For scripts/mutate, which builds again and again: smaller programs, and large headers read once.
# SPDX-License-Identifier: GPL-3.0-or-later

# A program of those of the tests' files that match a pattern.
function(add_part_of_tests name pattern)
    get_target_property(sources vorlo_tests SOURCES)
    list(FILTER sources INCLUDE REGEX "^(${pattern}|support/Test)")
    list(TRANSFORM sources PREPEND tests/)
    add_executable(${name} EXCLUDE_FROM_ALL ${sources})
    target_link_libraries(${name} PRIVATE ${ARGN} GTest::gtest vorlo_warnings)
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
    precompile_headers(${name} <gtest/gtest.h>)
    set_source_files_properties(tests/support/TestWindow.cpp PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
endfunction()

function(precompile_headers target)
    target_precompile_headers(${target} PRIVATE
        <juce_audio_utils/juce_audio_utils.h> <juce_gui_extra/juce_gui_extra.h> ${ARGN})
    # So that ccache sees what is in there.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE -fpch-preprocess)
    endif()
endfunction()

function(quicken_build)
    find_package(GTest REQUIRED)
    set(sound "framework/dsp|product/(dsp/[SZ]|Finite|Processor|Sound)")
    add_part_of_tests(vorlo_sound_tests "${sound}|support/(Reference|RealtimeGuard.cpp)"
        vorlo_random_host vorlo_product)
    add_part_of_tests(vorlo_listener_tests "framework/core/ListenerArray" zembra_juce)
    precompile_headers(vorlo_product)
    precompile_headers(vorlo_tests <gtest/gtest.h>)
    set_source_files_properties("${PROJECT_SOURCE_DIR}/tests/support/TestWindow.cpp" DIRECTORY tests
        PROPERTIES SKIP_PRECOMPILE_HEADERS ON)

    # The chain's loop is compiled for dozens of sorts of chunk: that takes a minute with all
    # optimisations, and gives the same sound without.
    set_source_files_properties("${PROJECT_SOURCE_DIR}/tests/product/dsp/ChainLoopTest.cpp"
        DIRECTORY tests PROPERTIES COMPILE_OPTIONS -O1)
    set_source_files_properties("${PROJECT_SOURCE_DIR}/product/VorloProcessorAudio.cpp"
        DIRECTORY product PROPERTIES COMPILE_OPTIONS -O1)
endfunction()

cmake_language(DEFER CALL quicken_build)
