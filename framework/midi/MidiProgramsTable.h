// The presets that MIDI program changes load, one table for all instances of a process.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

#include <functional>
#include <memory>
#include <vector>

namespace zembra
{

/** The parsed preset files of the folder "MIDI Programs". A program's number is the place of its
    file in the order of the scan.

    Shared through juce::SharedResourcePointer: the first instance makes the table and fills it, the
    last one deletes it. Once filled it never changes, so that reading it needs no lock.
*/
class MidiProgramsTable final
{
public:
    MidiProgramsTable() = default;

    /** Reads a file: null if it is no valid preset, which then has no number. */
    using Loader = std::function<std::unique_ptr<juce::XmlElement> (const juce::File&)>;

    /** Fills the table with the files of an extension in a folder and its subfolders, up to the 128
        that MIDI can name, and makes the folder if it is missing; does nothing if another instance
        of the process was here before. [any thread but audio]
    */
    void scan (const juce::File& folder, const juce::String& extension, const Loader& load);

    /** The number of programs. [any thread, after scan()] */
    int size() const noexcept { return static_cast<int> (programs.size()); }

    /** The preset file of a program; no file if the number is out of range. [message thread] */
    juce::File getFile (int program) const;

    /** The parsed file of a program, null if the number is out of range. [any thread] */
    const juce::XmlElement* getDocument (int program) const noexcept;

private:
    struct Program
    {
        juce::File file;
        std::unique_ptr<juce::XmlElement> document;
    };

    const Program* get (int program) const noexcept;

    juce::CriticalSection lock;
    bool scanned = false;
    std::vector<Program> programs;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (MidiProgramsTable)
};

} // namespace zembra
