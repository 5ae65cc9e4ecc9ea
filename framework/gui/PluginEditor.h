// The frame of every product's editor: strips, windows, widgets, size and polling.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/PluginProcessor.h"
#include "framework/gui/PluginEditorListener.h"
#include "framework/gui/PluginMoveDetector.h"
#include "framework/gui/PluginStrip.h"
#include "framework/gui/dialogs/PluginDialogs.h"
#include "framework/gui/lookandfeel/AboutAndPrefsLookAndFeel.h"
#include "framework/gui/lookandfeel/PluginHeaderLookAndFeel.h"
#include "framework/gui/lookandfeel/PluginWindowsLookAndFeel.h"
#include "framework/gui/lookandfeel/ZembraLookAndFeel.h"
#include "framework/gui/widgets/PluginWidget.h"

namespace zembra
{

/** Owns the widgets of all panels and polls them 25 times a second: the only way by which a change
    of a parameter, from any thread, reaches a control.

    The product's subclass makes its panels in its constructor; initialise() then does what needs the
    subclass's virtual functions. [message thread]
*/
class PluginEditor : public juce::AudioProcessorEditor,
                     private juce::Timer,
                     public juce::FileDragAndDropTarget,
                     private PluginMoveDetector::Listener
{
public:
    /** In pixels. */
    struct SizeLimits
    {
        int minimumWidth, minimumHeight, maximumWidth, maximumHeight;
    };

    explicit PluginEditor (PluginProcessor& processor);
    ~PluginEditor() override;

    virtual juce::String getChangeLogUrl() const = 0;
    virtual juce::String getProductPageUrl() const = 0;
    virtual SizeLimits getSizeLimits() const = 0;

    /** Width over height; 0 leaves it free. */
    virtual double getAspectRatio() const = 0;

    /** In learn mode the controls rest, and those that can be learned open the learn panel. */
    virtual void setMidiLearnMode (bool shouldBeOn);

    /** The editor has come to a display of high resolution, or left it. */
    virtual void setHiResDisplay (bool) {}

    /** Common set-up, once, after construction. */
    void initialise();

    /** Takes a widget, makes it visible in `parent`, and polls it from now on. */
    template <typename Widget>
    Widget* addWidget (std::unique_ptr<Widget> widget, juce::Component* parent)
    {
        auto* const added = widget.get();
        takeWidget (std::move (widget), *parent);
        return added;
    }

    const juce::OwnedArray<PluginWidget>& getWidgets() const noexcept { return widgets; }
    PluginDialogs& getDialogs() const noexcept { return *dialogsHolder; }
    PluginProcessor& getPluginProcessor() const noexcept { return pluginProcessor; }

    /** The setting that lets an editor look for a new version when it opens. */
    bool getCheckVersionOnStartup() const noexcept { return checkVersionOnStartup; }
    void setCheckVersionOnStartup (bool shouldCheck);

    /** Closes menus, learn panels and bubbles. */
    void dismissTransients();

    void focusLost (FocusChangeType) override;
    bool keyPressed (const juce::KeyPress&) override;

    // A preset file that is dropped on the editor is loaded, undoably. Only the first one counts.
    bool isInterestedInFileDrag (const juce::StringArray& files) override;
    void fileDragEnter (const juce::StringArray&, int, int) override { fileDragInProgress = true; }
    void fileDragMove (const juce::StringArray&, int, int) override {}
    void fileDragExit (const juce::StringArray&) override { fileDragInProgress = false; }
    void filesDropped (const juce::StringArray& files, int, int) override;

protected:
    /** Sets the colour in which the header's menus and both strips show what is active. */
    void setStripAccent (juce::Colour accent);

    /** The end begins: listeners off, timer stopped, menus and call-outs away. A subclass calls this
        first in its destructor, then deletes its panels, then calls deleteWidgets(), and lets its
        look and feel go last.
    */
    void stop();
    void deleteWidgets();

    PluginStrip& getHeader() const noexcept { return *header; }
    PluginStrip& getFooter() const noexcept { return *footer; }

private:
    friend class PluginEditorListener;
    class SharedLookAndFeel;

    std::unique_ptr<PluginStrip> makeStrip (PluginStrip::Edge edge);
    void takeWidget (std::unique_ptr<PluginWidget> widget, juce::Component& parent);
    void sizeAccepted();
    void applyHiRes (bool isOnHiResDisplay);
    void dismissWidgetTransients();
    void timerCallback() override;
    void pluginMoved (PluginMoveDetector*) override;
    void pluginBackgroundChanged (PluginMoveDetector*, bool isInBackground) override;
    void pluginHiResChanged (PluginMoveDetector*, bool isOnHiResDisplay) override;

    std::shared_ptr<SharedLookAndFeel> sharedLookAndFeel;
    std::unique_ptr<PluginEditorListener> editorListener;
    PluginHeaderLookAndFeel headerLookAndFeel;
    std::unique_ptr<PluginStrip> header, footer;
    PluginProcessor& pluginProcessor;
    PluginWindowsLookAndFeel windowsLookAndFeel;
    AboutAndPrefsLookAndFeel aboutAndPrefsLookAndFeel;
    std::unique_ptr<PluginDialogs> dialogsHolder;
    std::unique_ptr<PluginMoveDetector> moveDetector;
    juce::ComponentBoundsConstrainer constrainer;
    juce::OwnedArray<PluginWidget> widgets;
    bool fileDragInProgress = false;
    bool checkVersionOnStartup = true;
    bool allowHiResUI = true;
    juce::TextButton dialogWorkaroundTb;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PluginEditor)
};

} // namespace zembra
