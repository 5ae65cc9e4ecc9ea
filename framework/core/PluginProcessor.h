// The frame that every product's processor is built in: host bridge, state, MIDI, process call.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/FolderRoots.h"
#include "framework/core/FrozenPresetStateManager.h"
#include "framework/core/ParamSet.h"
#include "framework/core/PreferencesStateManager.h"
#include "framework/core/RealtimeMail.h"
#include "framework/core/RealtimeMarks.h"
#include "framework/core/Relaxed.h"

#include <juce_audio_processors/juce_audio_processors.h>

namespace zembra
{

class MidiProgramsTable;
class ParamsMidiMapper;
class PresetFileManager;
class Settings;

/** What the maker and the product call themselves. */
struct ProductInfo
{
    juce::String companyName; ///< as in folder names
    juce::String name;        ///< as in folder names, chunks and preset files
    juce::String version;     ///< as "1.1.0"
    juce::String buildDate;   ///< as the about box shows it
};

/** Owns what all products have in common and turns the host's calls into calls on it.

    A product derives from it, makes its parameters in its constructor, calls setUpComplete() last,
    and implements processAudio() and paramChanged().
*/
class PluginProcessor : public juce::AudioProcessor, public Param::Listener, private juce::Timer
{
public:
    /** Is told of the MIDI switches, on the thread of the change, never the audio thread. */
    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void midiEnabledChanged (PluginProcessor*, bool /*enabled*/) {}
        virtual void midiProgramChangeEnabledChanged (PluginProcessor*, bool /*enabled*/) {}
        virtual void midiChannelChanged (PluginProcessor*, int /*channel*/) {}
        virtual void midiLearnChanged (PluginProcessor*) {}
    };

    PluginProcessor (const ProductInfo& info, const FolderRoots& roots,
                     const BusesProperties& buses);
    ~PluginProcessor() override;

    /** The product's audio routine. [audio thread] */
    virtual void processAudio (juce::AudioBuffer<float>& buffer, juce::MidiBuffer& midi) = 0;

    /** Walks the MIDI of a block: controllers move their parameters at once, of the program changes
        the last one is noted for the message thread. Never waits. [audio thread]
    */
    virtual void processMidi (juce::MidiBuffer& midi);

    /** The year that the about box shows. */
    virtual int getAboutYear() const = 0;

    /** The about box's text: name, format, version and build date. */
    virtual juce::String getAboutText() const;

    /** Makes the product's editor. [message thread] */
    virtual juce::AudioProcessorEditor* createProductEditor() = 0;

    /** Common set-up of a new editor, which needs the editor's finished object. [message thread] */
    virtual void initialiseEditor (juce::AudioProcessorEditor&) {}

    /** An empty preset: the root of a preset file. */
    virtual std::unique_ptr<juce::XmlElement> createPresetRoot() const;

    /** How the settings file is written, and where. */
    virtual juce::PropertiesFile::Options getSettingsFileOptions() const;

    /** Tells the host of a change, unless the host made it; a change by MIDI is noted and reported by
        deliverRealtimeChanges(). A product overrides this to take the value over, and calls it
        first. [any thread]
    */
    void paramChanged (Param* param, double plainValue, double normalisedValue,
                       int source) override;

    // The host's view of the parameters, by index. An index out of range gives an empty answer.
    int getNumParameters() override;
    juce::String getParameterID (int index) override;
    const juce::String getParameterName (int index) override;
    juce::String getParameterName (int index, int maximumStringLength) override;
    juce::String getParameterLabel (int index) const override;
    float getParameter (int index) override;
    float getParameterDefaultValue (int index) override;
    const juce::String getParameterText (int index) override;
    juce::String getParameterText (int index, int maximumStringLength) override;
    int getParameterNumSteps (int index) override;
    bool isParameterDiscrete (int index) const override;
    bool isParameterAutomatable (int index) const override;
    bool isMetaParameter (int index) const override;

    /** A normalised value from the host. Ignored for a parameter that isn't automatable. */
    void setParameter (int index, float newValue) override;

    const juce::String getName() const override { return info.name; }
    bool acceptsMidi() const override { return true; }
    bool producesMidi() const override { return false; }
    double getTailLengthSeconds() const override { return 0.0; }
    bool hasEditor() const override { return true; }
    juce::AudioProcessorEditor* createEditor() override;
    void releaseResources() override {}
    int getNumPrograms() override { return 1; }
    int getCurrentProgram() override { return 0; }
    void setCurrentProgram (int) override {}
    const juce::String getProgramName (int) override { return "Default"; }
    void changeProgramName (int, const juce::String&) override {}

    /** Sets the floating-point unit to flush denormals to zero and leaves it so, then walks the MIDI
        if it is enabled, then processes the audio. [audio thread]
    */
    void processBlock (juce::AudioBuffer<float>& buffer, juce::MidiBuffer& midi) override;
    using juce::AudioProcessor::processBlock;

    void getStateInformation (juce::MemoryBlock& destData) override;
    void setStateInformation (const void* data, int sizeInBytes) override;

    ParamSet& getParamSet() noexcept { return paramSet; }
    const ParamSet& getParamSet() const noexcept { return paramSet; }

    /** The id of the parameter at an index, empty if there is none. [any thread] */
    juce::String getParamId (int index) const;

    juce::UndoManager& getUndoManager() noexcept { return undoManager; }
    FrozenPresetStateManager& getFrozenPresetStateManager() noexcept { return frozenStates; }
    PreferencesStateManager& getPreferencesStateManager() noexcept { return preferences; }
    Settings& getSettings() noexcept { return *settings; }

    /** The presets of the parameters, and those of the MIDI map. */
    PresetFileManager& getPresetFileManager() noexcept { return *presetFileManager; }
    PresetFileManager& getMidiPresetFileManager() noexcept { return *midiPresetFileManager; }

    /** The editor's size in pixels, -1 until an editor or a project has set it. [any thread] */
    int getPluginEditorWidth() const noexcept { return pluginEditorWidth; }
    int getPluginEditorHeight() const noexcept { return pluginEditorHeight; }
    void setPluginEditorWidth (int width) noexcept { pluginEditorWidth = width; }
    void setPluginEditorHeight (int height) noexcept { pluginEditorHeight = height; }
    const ProductInfo& getProductInfo() const noexcept { return info; }
    const FolderRoots& getFolderRoots() const noexcept { return folderRoots; }
    const juce::String& getCompanyName() const noexcept { return info.companyName; }
    const juce::String& getVersionString() const noexcept { return info.version; }
    ParamsMidiMapper& getParamsMidiMapper() noexcept { return *paramsMidiMapper; }

    /** Whether processBlock() looks at MIDI at all. [any thread] */
    bool isMidiEnabled() const noexcept { return midiEnabled.load (std::memory_order_relaxed); }

    /** Whether program changes load presets. [any thread] */
    bool isMidiProgramChangeEnabled() const noexcept
    {
        return midiProgramChangeEnabled.load (std::memory_order_relaxed);
    }

    /** The channel whose controllers count, 1 to 16, or 0 for all. [any thread] */
    int getMidiChannel() const noexcept { return midiChannel; }

    /** These tell the listeners if the value changes; the channel tells them in any case.
        [any thread but audio]
    */
    void setMidiEnabled (bool shouldBeEnabled);
    void setMidiProgramChangeEnabled (bool shouldBeEnabled);
    void setMidiChannel (int channel);

    /** Enables MIDI and gives the next controllers that move to this parameter, the last one for
        good. Another call changes the parameter. [message thread]
    */
    void startLearning (const juce::String& paramId);

    /** Ends learning when it was called as often as learning was started. MIDI stays enabled.
        [message thread]
    */
    void stopLearning();

    /** The parameter that is being learned, or null. [any thread] */
    Param* getMidiLearnParam() const noexcept { return midiLearnParam; }

    using juce::AudioProcessor::addListener;
    using juce::AudioProcessor::removeListener;

    /** Adds a listener, and tells it at once whether MIDI is enabled. [any thread but audio] */
    void addListener (Listener* listener);
    void removeListener (Listener* listener) { midiListeners.remove (listener); }

    /** True on a thread that is inside this processor's MIDI handling or inside the host's
        setParameter(): nothing called from there may wait. Never waits itself. [any thread]
    */
    bool isInRealtimeCall() const noexcept
    {
        return midiCalls.isMarked() || automationCalls.isMarked();
    }

    /** Does what realtime threads have left undone: tells the host of parameters that MIDI moved,
        tells of presets that became dirty, loads the preset of a program change. Runs on a timer;
        who has no message loop calls it by hand. [message thread]
    */
    void deliverRealtimeChanges();

protected:
    /** Runs the framework's start-up. The product calls it when all its parameters exist. */
    void setUpComplete();

    /** What a product adds to the start-up; runs inside setUpComplete(). */
    virtual void setUpProduct() {}

    /** Sees to it that no timer or message reaches the processor any more, on any thread. The first
        thing that a product's destructor does.
    */
    void endMessages();

private:
    void setUpPresets();
    void takeDefaultsFromDefaultPreset();
    void unfreezeAll();
    void timerCallback() override { deliverRealtimeChanges(); }
    void setUpMidi();
    void handleController (int channel, int cc, int value);
    void loadPendingProgram();
    void tellHost (int index, double normalised, int source);

    std::unique_ptr<juce::MessageManagerLock> heldMessages; // first, to be let go of last
    const ProductInfo info;
    const FolderRoots folderRoots;
    ParamSet paramSet{ "PARAMS" };
    juce::UndoManager undoManager;
    FrozenPresetStateManager frozenStates{ paramSet };
    PreferencesStateManager preferences;
    std::unique_ptr<Settings> settings;
    std::atomic<int> hostSetGuard{ 0 };

    Relaxed<int> pluginEditorWidth{ -1 }, pluginEditorHeight{ -1 };

    std::unique_ptr<ParamsMidiMapper> paramsMidiMapper;
    std::unique_ptr<PresetFileManager> presetFileManager, midiPresetFileManager;
    std::unique_ptr<juce::SharedResourcePointer<MidiProgramsTable>> midiPrograms;
    std::atomic<bool> midiEnabled{ false };
    std::atomic<bool> midiProgramChangeEnabled{ false };
    Relaxed<int> midiChannel{ 0 };
    Relaxed<Param*> midiLearnParam{ nullptr };
    int midiLearnCount = 0;
    ListenerArray<Listener> midiListeners;
    RealtimeMail realtimeMail;
    RealtimeMarks midiCalls, automationCalls;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PluginProcessor)
};

} // namespace zembra
