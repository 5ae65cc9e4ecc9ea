// Finds the files of an extension below a folder.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace zembra
{

/** Walks a folder and its subfolders, in the order in which the file system lists them, a subfolder's
    files where the subfolder stands.

    Ends on every tree: a link to a folder is entered only if it leads to a place outside the tree,
    and then once. Folders that can't be read, or vanish meanwhile, are passed over, and so are names
    that aren't UTF-8. [any thread but audio]
*/
class PresetFolderWalk final
{
public:
    enum class Hidden
    {
        included,
        skipped
    };

    /** @param extension  with its leading point; compared as the system compares file names
        @param hidden     whether files and folders with a leading point in their name count
    */
    PresetFolderWalk (const juce::File& folder, const juce::String& extension, Hidden hidden);

    /** Goes to the next file; false at the end. */
    bool next();

    /** The file that next() went to. It may be anything that isn't a folder. */
    juce::File getFile() const;

private:
    using Entries = std::filesystem::directory_iterator;

    void enter (const std::filesystem::path& folder);
    void enterIfAllowed (const std::filesystem::directory_entry& entry);
    bool isOutside (const std::filesystem::path& realFolder) const;
    bool isWanted (const std::string& name) const;

    const std::string extension;
    const Hidden hidden;
    std::filesystem::path realRoot;
    std::set<std::filesystem::path> enteredLinks;
    std::vector<Entries> openFolders;
    std::string found;
};

} // namespace zembra
