# JUCE from the system's packages, the libraries it is linked with, and how its modules are set up.
find_package(JUCE 7.0.5 CONFIG REQUIRED)
find_package(PNG REQUIRED)
find_package(JPEG REQUIRED)
find_package(ZLIB REQUIRED)
find_package(EXPAT REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(FLAC REQUIRED IMPORTED_TARGET flac)
pkg_check_modules(VORBIS REQUIRED IMPORTED_TARGET vorbis vorbisenc vorbisfile ogg)

juce_set_vst2_sdk_path("${CMAKE_CURRENT_LIST_DIR}/Vst2Headers")
if(VORLO_AAX_SDK AND NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    juce_set_aax_sdk_path("${VORLO_AAX_SDK}")
endif()

set(ZEMBRA_JUCE_DEFINITIONS
    JUCE_DISPLAY_SPLASH_SCREEN=0
    JUCE_LOAD_CURL_SYMBOLS_LAZILY=1
    JUCE_MODAL_LOOPS_PERMITTED=0
    JUCE_REPORT_APP_USAGE=0
    JUCE_STRICT_REFCOUNTEDPOINTER=1
    JUCE_USE_CURL=1
    JUCE_VST3_CAN_REPLACE_VST2=0
    JUCE_WEB_BROWSER=0)

# A copy of the free VST 2 header for targets that host plug-ins: JUCE's host passes a speaker
# arrangement of eight entries, which the free header declares with none, and a plug-in that fills
# it in would write beyond the end.
function(vorlo_make_vst2_host_headers destination)
    find_file(FST_HEADER pluginterfaces/fst/fst.h REQUIRED)
    file(READ "${FST_HEADER}" text)
    string(REPLACE "t_fstSpeakerProperties speakers[];" "t_fstSpeakerProperties speakers[8];"
        patched "${text}")
    if(text STREQUAL patched)
        message(FATAL_ERROR "fst.h does not declare speakers[] where it was expected")
    endif()
    file(WRITE "${destination}/pluginterfaces/fst/fst.h.new" "${patched}")
    file(COPY_FILE "${destination}/pluginterfaces/fst/fst.h.new"
        "${destination}/pluginterfaces/fst/fst.h" ONLY_IF_DIFFERENT)

    # They read the fst.h that lies beside them, so they must lie beside the copy.
    get_filename_component(folder "${FST_HEADER}" DIRECTORY)
    foreach(header aeffect.h aeffectx.h)
        file(COPY_FILE "${folder}/${header}" "${destination}/pluginterfaces/fst/${header}"
            ONLY_IF_DIFFERENT)
    endforeach()
endfunction()
