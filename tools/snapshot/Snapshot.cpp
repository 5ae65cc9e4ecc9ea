// Opens an editor, brings it into the wanted state, and paints it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/snapshot/Snapshot.h"

#include "framework/gui/PluginEditor.h"

namespace
{
constexpr auto midiLearn = "midi-learn";
constexpr auto tips = "tips";
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
    if (options.dialog.isNotEmpty() && options.dialog != midiLearn && options.dialog != tips)
        return "there is no dialog \"" + options.dialog + "\"; known: " + midiLearn + ", " + tips;

    if (auto fault = applySettings(); fault.isNotEmpty())
        return fault;

    editor.reset (processor.createEditor());
    editor->setSize (options.width, options.height);
    return {};
}

juce::Image Snapshot::paint()
{
    auto& frame = dynamic_cast<zembra::PluginEditor&> (*editor);
    juce::Component* shown = editor.get();

    if (options.dialog == midiLearn)
        frame.setMidiLearnMode (true);

    if (options.dialog == tips)
    {
        auto& tabs = frame.getDialogs().getAboutPrefsTabs();
        tabs.setCurrentTabIndex (tabs.getTabNames().indexOf (TRANS ("Tips")));
        shown = &frame.getDialogs().getAboutPrefsWindow();
    }

    return shown->createComponentSnapshot (shown->getLocalBounds(), true, options.scale);
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
