// A folder that holds one plug-in bundle and nothing else.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

namespace hosting
{

/** LV2 hosts search folders, and read every bundle they find there. This is a temporary folder with
    a link to the one bundle that is wanted; it goes with the object.
*/
class LoneBundle final
{
public:
    explicit LoneBundle (const juce::File& bundle);
    ~LoneBundle();

    /** Where to search. If it could not be made, nothing is found there. */
    juce::FileSearchPath getSearchPath() const;

private:
    const juce::File folder, link;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (LoneBundle)
};

} // namespace hosting
