// Loading of the hosted engine.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/HostedEngine.h"

#include "tools/render/Failure.h"
#include "tools/render/Nowhere.h"

#include <cstdlib>

namespace render
{

namespace
{

void hideHome()
{
#ifndef _WIN32
    setenv ("HOME", nowhere, 1);
#endif
}

} // namespace

HostedEngine::HostedEngine (const std::string& path, double sampleRate, int blockSize)
{
    const auto binary = juce::File::getCurrentWorkingDirectory().getChildFile (path);
    juce::String error;
    hideHome();
    plugin = hosting::HostedPlugin::load (binary, sampleRate, blockSize, error);

    if (plugin == nullptr)
        throw Failure (error.toStdString());
}

} // namespace render
