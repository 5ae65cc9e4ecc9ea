// The per-user settings file that all instances of a product share.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/ParamSet.h"
#include "framework/core/SettingsFile.h"

namespace zembra
{

/** Reads and writes the settings file: language, default frozen marks, recent and default presets,
    update check. The file is written a moment after a change, and when this object goes; what other
    instances and processes wrote meanwhile stays. [any thread but audio]
*/
class Settings final
{
public:
    /** @param file     the settings file; it and its folders are made when something is written
        @param options  of these, `millisecondsBeforeSaving` counts; the location is `file` alone
    */
    Settings (const juce::File& file, const juce::PropertiesFile::Options& options,
              ParamSet& params);

    juce::String getValue (const juce::String& key, const juce::String& defaultValue = {}) const;
    void setValue (const juce::String& key, const juce::String& value);

    /** The language code that the user chose, as "en"; empty if none. */
    juce::String getLanguage() const { return getValue ("language"); }
    void setLanguage (const juce::String& language) { setValue ("language", language); }

    /** The user's default frozen marks: "1" or "0" by id, empty if none are stored. */
    juce::StringPairArray getFrozenStates() const;

    /** Stores the present frozen marks as the default ones. */
    void saveFrozenStates();

    /** The recent presets of a preset family, one path a line. The key is the tag of the family's
        state manager.
    */
    juce::String getRecentFiles (const juce::String& key) const;
    void setRecentFiles (const juce::String& key, const juce::String& text);

    /** The full path of the preset that new instances load; empty if none. */
    juce::String getDefaultPreset (const juce::String& key) const;
    void setDefaultPreset (const juce::String& key, const juce::String& path);

    /** Writes what is pending; false if the file can't be written. */
    bool flush() { return settingsFile.flush(); }

private:
    juce::String getChildText (const juce::String& key, const char* tag,
                               const char* attribute) const;
    void setChildText (const juce::String& key, const char* tag, const char* attribute,
                       const juce::String& text);

    SettingsFile settingsFile;
    ParamSet& paramSet;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Settings)
};

} // namespace zembra
