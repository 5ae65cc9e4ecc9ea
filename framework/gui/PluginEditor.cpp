// Construction, polling and transients of the editor's frame.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/PluginEditor.h"

#include "framework/core/Settings.h"
#include "framework/gui/HostWindow.h"
#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/presets/PresetFileManager.h"

namespace zembra
{

namespace
{

constexpr int pollPeriodMs = 40;
constexpr int unlimited = 0x3fffffff;

bool isOne (const Settings& settings, const juce::String& key)
{
    return settings.getValue (key, "1") == "1";
}

/** An empty list gives an empty file. A host may hand over anything but a path. */
juce::File getFirstFile (const juce::StringArray& files)
{
    return juce::File::isAbsolutePath (files[0]) ? juce::File (files[0]) : juce::File();
}

} // namespace

/** The look and feel of the whole desktop, as long as any editor of the process lives. */
class PluginEditor::SharedLookAndFeel
{
public:
    SharedLookAndFeel() { juce::LookAndFeel::setDefaultLookAndFeel (&look); }
    ~SharedLookAndFeel() { juce::LookAndFeel::setDefaultLookAndFeel (nullptr); }

    static std::shared_ptr<SharedLookAndFeel> acquire()
    {
        static juce::SpinLock lock;
        static std::weak_ptr<SharedLookAndFeel> shared;
        const juce::SpinLock::ScopedLockType guard (lock);
        auto present = shared.lock();

        if (present == nullptr)
            shared = present = std::make_shared<SharedLookAndFeel>();

        return present;
    }

private:
    ZembraLookAndFeel look;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (SharedLookAndFeel)
};

PluginEditor::PluginEditor (PluginProcessor& processorToUse)
    : AudioProcessorEditor (processorToUse),
      sharedLookAndFeel (SharedLookAndFeel::acquire()),
      pluginProcessor (processorToUse)
{
    setTitle (processorToUse.getName());
    setWantsKeyboardFocus (true);
    setFocusContainerType (FocusContainerType::keyboardFocusContainer);
    constrainer.setSizeLimits (0, 0, unlimited, unlimited);
    dialogWorkaroundTb.setName (NonModalTopWindow::childThatStaysEnabled);
    dialogWorkaroundTb.setWantsKeyboardFocus (false);

    moveDetector = std::make_unique<PluginMoveDetector> (*this);
    applyHiRes (moveDetector->isOnHiRes());
    moveDetector->addListener (this);

    const auto& settings = pluginProcessor.getSettings();
    checkVersionOnStartup = isOne (settings, "checkVersionOnStartup");
    allowHiResUI = isOne (settings, "allowHiResUI");

    dialogsHolder = std::make_unique<PluginDialogs> (*this, pluginProcessor);
    dialogsHolder->setLooks (windowsLookAndFeel, aboutAndPrefsLookAndFeel);
    header = makeStrip (PluginStrip::Edge::top);
    footer = makeStrip (PluginStrip::Edge::bottom);

    setConstrainer (&constrainer);
    setResizable (true, true);
    addAndMakeVisible (dialogWorkaroundTb);
    startTimer (pollPeriodMs);
    editorListener = std::make_unique<PluginEditorListener> (*this);
    addComponentListener (editorListener.get());
}

PluginEditor::~PluginEditor()
{
    stop();
    deleteWidgets();
    moveDetector.reset();
    dialogsHolder.reset();
    header->setLookAndFeel (nullptr);
    footer->setLookAndFeel (nullptr);
}

void PluginEditor::stop()
{
    moveDetector->removeListener (this);
    removeComponentListener (editorListener.get());
    stopTimer();
    dismissWidgetTransients();
    juce::PopupMenu::dismissAllActiveMenus();
}

void PluginEditor::deleteWidgets()
{
    while (! widgets.isEmpty())
        widgets.removeLast();
}

std::unique_ptr<PluginStrip> PluginEditor::makeStrip (PluginStrip::Edge edge)
{
    auto strip = std::make_unique<PluginStrip> (edge);
    addAndMakeVisible (*strip);
    strip->setLookAndFeel (&headerLookAndFeel);
    return strip;
}

void PluginEditor::initialise()
{
    const auto limits = getSizeLimits();
    const auto minimumWidth = juce::jmax (0, limits.minimumWidth);
    const auto minimumHeight = juce::jmax (0, limits.minimumHeight);
    constrainer.setSizeLimits (minimumWidth, minimumHeight,
                               juce::jmax (minimumWidth, limits.maximumWidth),
                               juce::jmax (minimumHeight, limits.maximumHeight));
    constrainer.setFixedAspectRatio (juce::jmax (0.0, getAspectRatio()));
}

void PluginEditor::takeWidget (std::unique_ptr<PluginWidget> widget, juce::Component& parent)
{
    auto* const added = widgets.add (std::move (widget));
    added->setVisible (true);
    parent.addAndMakeVisible (added);
}

void PluginEditor::timerCallback()
{
    for (auto* widget : widgets)
        widget->pollParam();
}

void PluginEditor::setMidiLearnMode (bool shouldBeOn)
{
    for (auto* widget : widgets)
    {
        widget->setEnabled (! shouldBeOn);

        if (widget->isMidiLearnable())
            widget->setMidiLearnMode (shouldBeOn);
    }
}

void PluginEditor::setCheckVersionOnStartup (bool shouldCheck)
{
    checkVersionOnStartup = shouldCheck;
    pluginProcessor.getSettings().setValue ("checkVersionOnStartup", shouldCheck ? "1" : "0");
}

void PluginEditor::setStripAccent (juce::Colour accent)
{
    headerLookAndFeel.setAccentColour (accent);
    header->setColour (accentColourId, accent);
    footer->setColour (accentColourId, accent);
}

void PluginEditor::dismissTransients()
{
    juce::PopupMenu::dismissAllActiveMenus();
    dismissWidgetTransients();
}

void PluginEditor::dismissWidgetTransients()
{
    for (auto* widget : widgets)
    {
        widget->dismissLearnCallOut();
        widget->dismissBubble();
    }
}

void PluginEditor::focusLost (FocusChangeType) { dismissTransients(); }

bool PluginEditor::keyPressed (const juce::KeyPress& key)
{
    // The tab key walks the controls; everything else that no control took is the host's.
    return ! key.isKeyCode (juce::KeyPress::tabKey) && passKeyToHost (*this, key);
}

bool PluginEditor::isInterestedInFileDrag (const juce::StringArray& files)
{
    const auto& extension = pluginProcessor.getPresetFileManager().getExtension();
    return getFirstFile (files).hasFileExtension (extension);
}

void PluginEditor::filesDropped (const juce::StringArray& files, int, int)
{
    fileDragInProgress = false;
    pluginProcessor.getPresetFileManager().loadPreset (getFirstFile (files),
                                                       &pluginProcessor.getUndoManager());
}

void PluginEditor::sizeAccepted()
{
    juce::PopupMenu::dismissAllActiveMenus();
    pluginProcessor.setPluginEditorWidth (getWidth());
    pluginProcessor.setPluginEditorHeight (getHeight());
    dialogsHolder->refreshBounds();
    windowsLookAndFeel.setReferenceHeight (getHeight());
    aboutAndPrefsLookAndFeel.setReferenceHeight (getHeight());

    if (auto* const look = dynamic_cast<ZembraLookAndFeel*> (&header->getLookAndFeel()))
    {
        constexpr float wideFontRatio = 1.0f / 30.0f;
        constexpr float narrowFontRatio = 0.02f;
        look->setReferenceHeight (getHeight());
        look->setHeaderFontRatio (getWidth() > getHeight() ? wideFontRatio : narrowFontRatio);
    }
}

void PluginEditor::pluginMoved (PluginMoveDetector*) { dismissTransients(); }

void PluginEditor::pluginBackgroundChanged (PluginMoveDetector*, bool isInBackground)
{
    if (isInBackground)
        dismissTransients();
}

void PluginEditor::pluginHiResChanged (PluginMoveDetector*, bool isOnHiResDisplay)
{
    applyHiRes (isOnHiResDisplay);
    setHiResDisplay (isOnHiResDisplay && allowHiResUI);
}

void PluginEditor::applyHiRes (bool isOnHiResDisplay)
{
    const auto hiRes = isOnHiResDisplay && allowHiResUI;
    windowsLookAndFeel.setHiRes (hiRes);
    aboutAndPrefsLookAndFeel.setHiRes (hiRes);

    // Before there is a header this is the desktop's look.
    auto& look =
        header != nullptr ? header->getLookAndFeel() : juce::LookAndFeel::getDefaultLookAndFeel();

    if (auto* const zembraLook = dynamic_cast<ZembraLookAndFeel*> (&look))
        zembraLook->setHiRes (hiRes);
}

} // namespace zembra
