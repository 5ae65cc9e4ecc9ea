// Making of the built-in engine.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/LinkedEngine.h"

#include "tools/render/Nowhere.h"

namespace render
{

zembra::FolderRoots getNowhere() { return zembra::FolderRoots::inside (juce::File (nowhere)); }

LinkedEngine::LinkedEngine (std::optional<std::int64_t> seed)
{
    if (seed)
        processor.getLfo().getRandom().setSeed (*seed);
}

} // namespace render
