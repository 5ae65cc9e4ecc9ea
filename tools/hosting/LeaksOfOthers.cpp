// What the leak sanitizer is not to report where plug-ins are hosted.
// SPDX-License-Identifier: GPL-3.0-or-later

#if defined(__SANITIZE_ADDRESS__)

// The LV2 library inside JUCE forgets a little of each world it makes: names of options, and the
// classes of plug-ins that it finds twice. The sanitizer calls these by name, from its own library.
// NOLINTBEGIN
extern "C"
{
    [[gnu::visibility ("default")]] const char* __lsan_default_suppressions();
    [[gnu::visibility ("default")]] const char* __lsan_default_options();

    const char* __lsan_default_suppressions()
    {
        return "leak:lilv_world_set_option\n"
               "leak:lilv_world_load_plugin_classes\n";
    }

    const char* __lsan_default_options() { return "print_suppressions=0"; }
}
// NOLINTEND

#endif
