// The dynamic linker's list of libraries.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/hosting/LoadedLibraries.h"

#if JUCE_LINUX
#include <filesystem>
#include <link.h>
#endif

namespace hosting
{

#if JUCE_LINUX

namespace
{

std::filesystem::path getRealPath (const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::weakly_canonical (path, ignored);
}

/** Called for each library; the answer 1 ends the walk. */
int isInFolder (dl_phdr_info* info, size_t, void* folder)
{
    const auto library = getRealPath (info->dlpi_name);
    const auto& wanted = *static_cast<const std::filesystem::path*> (folder);
    return std::mismatch (wanted.begin(), wanted.end(), library.begin(), library.end()).first
                   == wanted.end()
               ? 1
               : 0;
}

} // namespace

bool isLibraryLoadedFrom (const juce::File& folder)
{
    auto path = getRealPath (folder.getFullPathName().toStdString());
    return dl_iterate_phdr (isInFolder, &path) != 0;
}

#else

bool isLibraryLoadedFrom (const juce::File&) { return true; }

#endif

} // namespace hosting
