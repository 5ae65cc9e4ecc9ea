# JUCE's VST3 wrapper appends a few bytes of its own to each state, and trusts them when a state is set:
# one wrong byte in a damaged project sends it far beyond the end. This compiles a copy of the wrapper
# that reads nothing but what it has written.
function(vorlo_replace_once variable old new)
    string(FIND "${${variable}}" "${old}" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "JUCE's VST3 wrapper doesn't have this where it was expected: ${old}")
    endif()
    string(REPLACE "${old}" "${new}" text "${${variable}}")
    set(${variable} "${text}" PARENT_SCOPE)
endfunction()

function(vorlo_use_guarded_vst3_wrapper target)
    set(module "${JUCE_MODULES_DIR}/juce_audio_plugin_client")
    set(client "${module}/juce_audio_plugin_client_VST3.cpp")
    set(copy "${CMAKE_CURRENT_BINARY_DIR}/vst3_wrapper")
    file(READ "${module}/VST3/juce_VST3_Wrapper.cpp" text)

    vorlo_replace_once(text
[[size -= privateDataSize + jucePrivDataIdentifierSize + sizeof (uint64);]]
[[const auto smallestSize = jucePrivDataIdentifierSize + 2 * sizeof (uint64);

                if (size < smallestSize || privateDataSize > size - smallestSize)
                    return;

                size -= privateDataSize + jucePrivDataIdentifierSize + sizeof (uint64);]])

    # A ValueTree reads whatever sizes it is told, too.
    vorlo_replace_once(text
[[auto privateData = ValueTree::readFromData (data, static_cast<size_t> (sizeInBytes));
                setBypassed (static_cast<bool> (privateData.getProperty ("Bypass", var (false))));]]
[[for (const auto shouldBeBypassed : { false, true })
                {
                    ValueTree privateData (kJucePrivateDataIdentifier);
                    privateData.setProperty ("Bypass", var (shouldBeBypassed), nullptr);
                    MemoryOutputStream written;
                    privateData.writeToStream (written);

                    if (written.getMemoryBlock().matches (data, static_cast<size_t> (sizeInBytes)))
                        setBypassed (shouldBeBypassed);
                }]])

    file(WRITE "${copy}/VST3/juce_VST3_Wrapper.cpp.new" "${text}")
    file(COPY_FILE "${copy}/VST3/juce_VST3_Wrapper.cpp.new" "${copy}/VST3/juce_VST3_Wrapper.cpp"
        ONLY_IF_DIFFERENT)
    file(COPY_FILE "${client}" "${copy}/juce_audio_plugin_client_VST3.cpp" ONLY_IF_DIFFERENT)

    # The copy of the client takes the place of the original, which is a source of every format.
    set_source_files_properties("${client}" PROPERTIES HEADER_FILE_ONLY ON)
    target_sources(${target} PRIVATE "${copy}/juce_audio_plugin_client_VST3.cpp")
    target_include_directories(${target} SYSTEM PRIVATE "${module}/VST3")
endfunction()
