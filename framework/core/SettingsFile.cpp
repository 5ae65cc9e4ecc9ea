// Reading, merging and writing of the settings file.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/SettingsFile.h"

#include "framework/core/FileLock.h"
#include "framework/core/XmlReader.h"
#include "framework/core/XmlWriter.h"

namespace zembra
{

namespace
{

constexpr auto rootTag = "PROPERTIES", entryTag = "VALUE", keyName = "name", valueName = "val";

juce::String toOneLine (juce::XmlElement& tree)
{
    return XmlWriter::toText (tree, juce::XmlElement::TextFormat().singleLine().withoutHeader());
}

/** Makes a folder with all above it. Another instance may make the same ones at the same moment,
    which looks like a failure once.
*/
bool makeFolder (const juce::File& folder)
{
    for (int attempt = 0; attempt < 10; ++attempt)
        if (folder.createDirectory() || folder.isDirectory())
            return true;

    return false;
}

/** The values in a file; nothing if there is no file or what it holds are no settings. */
std::optional<juce::StringPairArray> readValues (const juce::File& file)
{
    const auto root = XmlReader::parse (file);

    if (root == nullptr || ! root->hasTagName (rootTag))
        return {};

    juce::StringPairArray values (false);

    for (auto* entry : root->getChildWithTagNameIterator (entryTag))
    {
        auto* tree = entry->getFirstChildElement();

        if (const auto& key = entry->getStringAttribute (keyName); key.isNotEmpty())
            values.set (key, tree != nullptr ? toOneLine (*tree)
                                             : entry->getStringAttribute (valueName));
    }

    return values;
}

bool writeValues (const juce::StringPairArray& values, const juce::File& file)
{
    juce::XmlElement root (rootTag);

    for (const auto& key : values.getAllKeys())
    {
        auto* entry = root.createNewChildElement (entryTag);
        entry->setAttribute (keyName, key);

        if (auto tree = XmlReader::parse (values[key]))
            entry->addChildElement (tree.release());
        else
            entry->setAttribute (valueName, values[key]);
    }

    return XmlWriter::write (root, file);
}

} // namespace

void SettingsFile::Edit::applyTo (juce::StringPairArray& target) const
{
    if (child == nullptr)
    {
        target.set (key, text);
        return;
    }

    auto tree = XmlReader::parse (target[key]);

    if (tree == nullptr)
        tree = std::make_unique<juce::XmlElement> (text);

    tree->deleteAllChildElementsWithTagName (child->getTagName());
    tree->addChildElement (std::make_unique<juce::XmlElement> (*child).release());
    target.set (key, toOneLine (*tree));
}

bool SettingsFile::Edit::isReplacedBy (const Edit& later) const
{
    return key == later.key
           && (later.child == nullptr
               || (child != nullptr && child->hasTagName (later.child->getTagName())));
}

SettingsFile::SettingsFile (const juce::File& fileToUse, int delayMilliseconds)
    : file (fileToUse),
      delay (delayMilliseconds),
      stampOfValues (FileStamp::of (fileToUse))
{
    if (auto stored = readValues (file))
        values = *stored;
}

SettingsFile::~SettingsFile() { flush (30000); }

juce::String SettingsFile::getValue (const juce::String& key,
                                     const juce::String& defaultValue) const
{
    const std::scoped_lock lock (mutex);
    return values.getValue (key, defaultValue);
}

std::unique_ptr<juce::XmlElement> SettingsFile::getTree (const juce::String& key) const
{
    return XmlReader::parse (getValue (key, {}));
}

void SettingsFile::setValue (const juce::String& key, const juce::String& text)
{
    add ({ key, text, nullptr });
}

void SettingsFile::setChild (const juce::String& key, const juce::String& newRootTag,
                             const juce::XmlElement& child)
{
    add ({ key, newRootTag, std::make_shared<juce::XmlElement> (child) });
}

void SettingsFile::add (Edit edit)
{
    {
        const std::scoped_lock lock (mutex);
        const auto hadKey = values.containsKey (edit.key);
        const auto before = values[edit.key];
        edit.applyTo (values);

        // Set to what it is already, and nobody else has written since: nothing to do.
        if (hadKey && values[edit.key] == before && stampOfValues == FileStamp::of (file))
            return;

        std::erase_if (pending, [&] (const Edit& earlier) { return earlier.isReplacedBy (edit); });
        pending.push_back (std::move (edit));
    }

    if (juce::MessageManager::getInstanceWithoutCreating() != nullptr)
        startTimer (delay);
}

void SettingsFile::timerCallback()
{
    constexpr int shortWait = 200, pauseBeforeRetry = 10000;

    if (! flush (shortWait))
        startTimer (pauseBeforeRetry);
}

bool SettingsFile::flush (int longestWaitMilliseconds)
{
    stopTimer();
    const std::scoped_lock lock (mutex);
    return pending.empty() || writeEdits (longestWaitMilliseconds);
}

bool SettingsFile::writeEdits (int longestWaitMilliseconds)
{
    if (! makeFolder (file.getParentDirectory()))
        return false;

    const FileLock fileLock (file, longestWaitMilliseconds);

    // A file that is there and can't be read holds what others wrote: it isn't ours to replace.
    if (! fileLock.isHeld() || (file.existsAsFile() && ! file.hasReadAccess()))
        return false;

    const auto stored = readValues (file);
    auto merged = stored.value_or (values);

    for (const auto& edit : pending)
        edit.applyTo (merged);

    if (merged != stored && ! writeValues (merged, file))
        return false;

    values = merged;
    stampOfValues = FileStamp::of (file);
    pending.clear();
    return true;
}

} // namespace zembra
