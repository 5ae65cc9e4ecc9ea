// Keys and values in a file that several instances and processes write.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/FileStamp.h"

#include <juce_data_structures/juce_data_structures.h>

#include <memory>
#include <mutex>
#include <vector>

namespace zembra
{

/** Values by key in the XML format of juce::PropertiesFile: a root PROPERTIES with an entry VALUE for
    each key, whose value is a text (`val`) or a tree (a child element).

    The file is read at construction. Changes are kept as single edits; when they are written, the
    file is locked and read anew, the edits are applied to what stands there now, and the result
    replaces the file in one step. So nobody's keys get lost, whoever writes at the same time, and
    two instances may even change different children of one tree. [any thread but audio]
*/
class SettingsFile final : private juce::Timer
{
public:
    /** @param delayMilliseconds  how long after a change the file is written; the time needs a
                                  running message thread, without one flush() and the destructor
                                  write
    */
    SettingsFile (const juce::File& file, int delayMilliseconds);

    /** Writes what is pending. */
    ~SettingsFile() override;

    /** The text of a key; a tree is given as XML on one line. */
    juce::String getValue (const juce::String& key, const juce::String& defaultValue) const;

    /** The tree of a key, null if there is none. */
    std::unique_ptr<juce::XmlElement> getTree (const juce::String& key) const;

    /** Sets the whole value of a key. */
    void setValue (const juce::String& key, const juce::String& text);

    /** Puts `child` into the tree of a key, in the place of all children with its tag. A key without
        a tree gets a new one, with the tag `rootTag`.
    */
    void setChild (const juce::String& key, const juce::String& rootTag,
                   const juce::XmlElement& child);

    /** Writes what is pending; false if that can't be done, and then it stays pending. Waits a few
        seconds for other processes, the destructor half a minute, and the delayed writing, which must
        not hold up the message thread, tries again later.
    */
    bool flush() { return flush (5000); }

private:
    struct Edit
    {
        juce::String key;
        juce::String text; ///< the whole value, or the tag of a new root for a child
        std::shared_ptr<const juce::XmlElement> child; ///< null if the whole value is meant

        void applyTo (juce::StringPairArray& values) const;
        bool isReplacedBy (const Edit& later) const;
    };

    void add (Edit edit);
    bool flush (int longestWaitMilliseconds);
    bool writeEdits (int longestWaitMilliseconds);
    void timerCallback() override;

    const juce::File file;
    const int delay;
    mutable std::mutex mutex;
    juce::StringPairArray values{ false };
    std::optional<FileStamp> stampOfValues; ///< of the file when `values` were those on disk
    std::vector<Edit> pending;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (SettingsFile)
};

} // namespace zembra
