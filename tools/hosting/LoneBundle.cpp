// Making and removing of the folder with one bundle.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/hosting/LoneBundle.h"

namespace hosting
{

namespace
{

juce::File makeFolderName()
{
    return juce::File::getSpecialLocation (juce::File::tempDirectory)
        .getChildFile ("bundle-" + juce::Uuid().toString());
}

} // namespace

LoneBundle::LoneBundle (const juce::File& bundle)
    : folder (makeFolderName()),
      link (folder.getChildFile (bundle.getFileName()))
{
    folder.createDirectory();
    bundle.createSymbolicLink (link, false);
}

LoneBundle::~LoneBundle()
{
    // One by one: the bundle behind the link must stay.
    link.deleteFile();
    folder.deleteFile();
}

juce::FileSearchPath LoneBundle::getSearchPath() const
{
    return juce::FileSearchPath (folder.getFullPathName());
}

} // namespace hosting
