# Where `cmake --install` puts the plug-ins and the factory presets. On Linux the presets go where
# the plug-in looks for what all users share; elsewhere the installer of the system decides.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    set(artefacts "${CMAKE_BINARY_DIR}/Vorlo_artefacts/$<CONFIG>")
    install(FILES "${artefacts}/VST/libVorlo.so" DESTINATION lib/vst OPTIONAL)
    install(DIRECTORY "${artefacts}/VST3/Vorlo.vst3" DESTINATION lib/vst3 OPTIONAL
        USE_SOURCE_PERMISSIONS)
    install(DIRECTORY "${artefacts}/LV2/Vorlo.lv2" DESTINATION lib/lv2 OPTIONAL
        USE_SOURCE_PERMISSIONS)
    install(PROGRAMS "${artefacts}/Standalone/Vorlo" DESTINATION bin OPTIONAL)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/product/resources/presets/"
        DESTINATION /opt/Ombrel/Vorlo/presets)
endif()
