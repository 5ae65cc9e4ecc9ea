# Sanitizers and coverage for the whole build, JUCE included.
if(VORLO_SANITIZE)
    add_compile_options(-fsanitize=${VORLO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${VORLO_SANITIZE})
endif()
if(VORLO_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
