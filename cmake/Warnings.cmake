# A strict set of warnings, as errors, for the project's own code; and exact floating point.
add_library(vorlo_warnings INTERFACE)
if(MSVC)
    target_compile_options(vorlo_warnings INTERFACE /W4 /WX)
else()
    target_compile_options(vorlo_warnings INTERFACE
        -Wall -Wextra -Wpedantic
        -Wcast-align -Wconversion -Wdouble-promotion -Wfloat-conversion -Wnon-virtual-dtor
        -Wold-style-cast -Woverloaded-virtual -Wshadow -Wsign-conversion -Wunused)
    # The fuzz build's clang warns of other things than the compilers that the project is kept clean for.
    if(NOT VORLO_FUZZ)
        target_compile_options(vorlo_warnings INTERFACE -Werror)
    endif()
endif()

# The sound is specified to the last bit: a fused multiply-add would round once where two roundings
# are meant. Both sides of a comparison between builds rely on this.
if(MSVC)
    add_compile_options(/fp:precise)
else()
    add_compile_options(-ffp-contract=off)
endif()
