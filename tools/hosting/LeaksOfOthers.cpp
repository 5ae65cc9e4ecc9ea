// What the leak sanitizer is not to report where plug-ins are hosted.
// SPDX-License-Identifier: GPL-3.0-or-later

#if defined(__SANITIZE_ADDRESS__)

// The LV2 library inside JUCE forgets a little of each world it makes: names of options, and the
// classes of plug-ins that it finds twice.
extern "C" [[gnu::visibility ("default")]] const char* __lsan_default_suppressions(); // NOLINT
extern "C" const char* __lsan_default_suppressions()                                  // NOLINT
{
    return "leak:lilv_world_set_option\n"
           "leak:lilv_world_load_plugin_classes\n";
}

#endif
