// Opens an editor, brings it into the wanted state, and paints it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/snapshot/Snapshot.h"

#include "framework/gui/PluginEditor.h"

namespace
{
constexpr auto midiLearn = "midi-learn";
} // namespace

Snapshot::Snapshot (SnapshotOptions optionsToUse)
    : options (std::move (optionsToUse)),
      processor (zembra::FolderRoots::inside (home.getFile()))
{
}

Snapshot::~Snapshot() = default;

juce::String Snapshot::applySettings()
{
    for (const auto& [paramId, value] : options.settings)
    {
        auto* const param = processor.getParamSet().getParam (paramId);

        if (param == nullptr)
            return "there is no parameter \"" + paramId + "\"";

        const auto plain = param->getValueForText (value);

        if (! plain.has_value())
            return "\"" + value + "\" is no value of \"" + paramId + "\"";

        if (*plain < param->getMinValue() || *plain > param->getMaxValue())
            return "\"" + value + "\" is outside the range of \"" + paramId + "\", "
                   + juce::String (param->getMinValue()) + " to "
                   + juce::String (param->getMaxValue());

        param->setValue (*plain, zembra::sourceState);
    }

    return {};
}

juce::String Snapshot::open()
{
    if (options.dialog.isNotEmpty() && options.dialog != midiLearn)
        return "there is no dialog \"" + options.dialog + "\"; known: " + midiLearn;

    if (auto fault = applySettings(); fault.isNotEmpty())
        return fault;

    editor.reset (processor.createEditor());
    editor->setSize (options.width, options.height);
    return {};
}

juce::Image Snapshot::paint()
{
    if (options.dialog == midiLearn)
        dynamic_cast<zembra::PluginEditor&> (*editor).setMidiLearnMode (true);

    return editor->createComponentSnapshot (editor->getLocalBounds(), true, options.scale);
}

juce::String Snapshot::writePng (const juce::Image& picture, const juce::File& file)
{
    const juce::TemporaryFile temporary (file);

    {
        juce::FileOutputStream stream (temporary.getFile());

        if (stream.failedToOpen() || ! juce::PNGImageFormat().writeImageToStream (picture, stream))
            return "can't write " + file.getFullPathName();

        stream.flush();

        if (stream.getStatus().failed())
            return "can't write " + file.getFullPathName();
    }

    return temporary.overwriteTargetFileWithTemporary() ? juce::String()
                                                        : "can't write " + file.getFullPathName();
}
