// A folder that is gone when the test is over.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

/** Makes an empty folder with a name of its own and deletes it with all it holds. */
class TemporaryFolder final
{
public:
    TemporaryFolder()
        : folder (juce::File::getSpecialLocation (juce::File::tempDirectory)
                      .getChildFile ("vorlo-test-" + juce::Uuid().toString()))
    {
        folder.createDirectory();
    }

    ~TemporaryFolder() { folder.deleteRecursively(); }

    const juce::File& get() const noexcept { return folder; }
    juce::File getChild (const juce::String& path) const { return folder.getChildFile (path); }

private:
    const juce::File folder;

    JUCE_DECLARE_NON_COPYABLE (TemporaryFolder)
};
