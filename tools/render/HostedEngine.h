// The engine that is a plug-in binary.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/hosting/HostedPlugin.h"
#include "tools/render/Engine.h"

#include <string>

namespace render
{

/** A built plug-in, loaded from a file. The process's home folder is moved out of its sight first,
    so that what a user has stored doesn't change a render.
*/
class HostedEngine final : public Engine
{
public:
    /** @throws Failure  if the binary can't be loaded */
    HostedEngine (const std::string& path, double sampleRate, int blockSize);

protected:
    juce::AudioProcessor& getProcessor() override { return plugin->getInstance(); }

private:
    std::unique_ptr<hosting::HostedPlugin> plugin;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HostedEngine)
};

} // namespace render
