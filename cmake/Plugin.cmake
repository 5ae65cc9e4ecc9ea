# The plug-in in all formats of this system. Included at the top level, since JUCE puts the binaries
# below the folder of the calling list file.
set(vorlo_formats VST VST3 Standalone)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    list(APPEND vorlo_formats LV2)
elseif(VORLO_AAX_SDK)
    list(APPEND vorlo_formats AAX)
endif()
if(APPLE)
    list(APPEND vorlo_formats AU)
endif()

juce_add_plugin(Vorlo
    PRODUCT_NAME "Vorlo"
    COMPANY_NAME "Ombrel"
    COMPANY_WEBSITE "https://ombrel.example/"
    BUNDLE_ID "example.ombrel.vorlo"
    DESCRIPTION "Drive, crush, downsample and filter, pulled by one LFO"
    VERSION "${PROJECT_VERSION}"
    PLUGIN_MANUFACTURER_CODE Ombr
    PLUGIN_CODE Vorl
    FORMATS ${vorlo_formats}
    NEEDS_MIDI_INPUT TRUE
    NEEDS_MIDI_OUTPUT FALSE
    IS_SYNTH FALSE
    IS_MIDI_EFFECT FALSE
    EDITOR_WANTS_KEYBOARD_FOCUS FALSE
    COPY_PLUGIN_AFTER_BUILD FALSE
    VST3_CATEGORIES Fx Distortion Filter
    VST2_CATEGORY kPlugCategEffect
    AU_MAIN_TYPE kAudioUnitType_MusicEffect
    AAX_CATEGORY AAX_ePlugInCategory_Harmonic
    LV2URI "https://ombrel.example/plugins/vorlo")
target_sources(Vorlo PRIVATE product/VorloEntry.cpp)
# Debian's JUCE takes the product's name for the URI unless the definition says otherwise.
target_compile_definitions(Vorlo PUBLIC
    "JucePlugin_LV2URI=\"https://ombrel.example/plugins/vorlo\"")
target_link_libraries(Vorlo PRIVATE vorlo_product)

get_target_property(vorlo_plugin_targets Vorlo JUCE_ACTIVE_PLUGIN_TARGETS)
foreach(target IN LISTS vorlo_plugin_targets)
    if(NOT target STREQUAL "Vorlo_Standalone")
        vorlo_export_entry_points_only(${target})
    endif()
endforeach()

vorlo_use_guarded_vst3_wrapper(Vorlo_VST3)
