// The walk through a tree of folders, without recursion.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/presets/PresetFolderWalk.h"

#include "framework/core/FileStamp.h"

#include <algorithm>

namespace zembra
{

namespace
{

namespace fs = std::filesystem;

std::string toUtf8 (const fs::path& path)
{
    const auto text = path.u8string();
    return { text.begin(), text.end() };
}

bool isValidUtf8 (const std::string& text)
{
    return juce::CharPointer_UTF8::isValidString (text.data(), static_cast<int> (text.size()));
}

/** True if `inner` is `outer` or lies below it. Both are absolute and without links. */
bool contains (const fs::path& outer, const fs::path& inner)
{
    return std::mismatch (outer.begin(), outer.end(), inner.begin(), inner.end()).first
           == outer.end();
}

} // namespace

PresetFolderWalk::PresetFolderWalk (const juce::File& folder, const juce::String& extensionToFind,
                                    Hidden hiddenToUse)
    : extension (extensionToFind.toStdString()),
      hidden (hiddenToUse)
{
    if (folder == juce::File())
        return;

    std::error_code error;
    realRoot = fs::canonical (FileStamp::toPath (folder), error);

    if (! error)
        enter (FileStamp::toPath (folder));
}

void PresetFolderWalk::enter (const fs::path& folder)
{
    std::error_code error;
    Entries entries (folder, fs::directory_options::skip_permission_denied, error);

    if (! error)
        openFolders.push_back (std::move (entries));
}

bool PresetFolderWalk::isOutside (const fs::path& realFolder) const
{
    return ! contains (realRoot, realFolder) && ! contains (realFolder, realRoot);
}

void PresetFolderWalk::enterIfAllowed (const fs::directory_entry& entry)
{
    std::error_code error;

    if (entry.is_symlink (error))
    {
        const auto real = fs::canonical (entry.path(), error);
        const auto overlaps = [&real] (const fs::path& entered)
        { return contains (entered, real) || contains (real, entered); };

        if (error || ! isOutside (real) || std::ranges::any_of (enteredLinks, overlaps))
            return;

        enteredLinks.insert (real);
    }

    enter (entry.path());
}

bool PresetFolderWalk::isWanted (const std::string& name) const
{
    if (name.size() < extension.size())
        return false;

    const auto end = name.substr (name.size() - extension.size());

    if (juce::File::areFileNamesCaseSensitive())
        return end == extension;

    return juce::String (juce::CharPointer_UTF8 (end.c_str()))
        .equalsIgnoreCase (juce::String (juce::CharPointer_UTF8 (extension.c_str())));
}

bool PresetFolderWalk::next()
{
    while (! openFolders.empty())
    {
        auto& entries = openFolders.back();

        if (entries == Entries())
        {
            openFolders.pop_back();
            continue;
        }

        std::error_code error;
        const auto entry = *entries;
        entries.increment (error);

        if (error)
            entries = Entries();

        const auto name = toUtf8 (entry.path().filename());

        if (hidden == Hidden::skipped && name.starts_with ('.'))
            continue;

        if (entry.is_directory (error))
            enterIfAllowed (entry);
        else if (isWanted (name) && isValidUtf8 (name))
        {
            found = toUtf8 (entry.path());
            return true;
        }
    }

    return false;
}

juce::File PresetFolderWalk::getFile() const
{
    return juce::File::createFileWithoutCheckingPath (juce::CharPointer_UTF8 (found.c_str()));
}

} // namespace zembra
