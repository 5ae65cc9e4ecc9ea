// The frame that every product's processor is built in: host bridge, state, MIDI, process call.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/FolderRoots.h"
#include "framework/core/FrozenPresetStateManager.h"
#include "framework/core/ParamSet.h"
#include "framework/core/PreferencesStateManager.h"

#include <juce_audio_processors/juce_audio_processors.h>

namespace zembra
{

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
class PluginProcessor : public juce::AudioProcessor,
                        public Param::Listener,
                        private juce::AsyncUpdater
{
public:
    PluginProcessor (const ProductInfo& info, const FolderRoots& roots,
                     const BusesProperties& buses);
    ~PluginProcessor() override;

    /** The product's audio routine. [audio thread] */
    virtual void processAudio (juce::AudioBuffer<float>& buffer, juce::MidiBuffer& midi) = 0;

    /** Walks the MIDI of a block. [audio thread] */
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

    /** Tells the host of a change, unless the host made it. A product overrides this to take the
        value over, and calls it first. [any thread]
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
    const ProductInfo& getProductInfo() const noexcept { return info; }
    const FolderRoots& getFolderRoots() const noexcept { return folderRoots; }
    const juce::String& getCompanyName() const noexcept { return info.companyName; }
    const juce::String& getVersionString() const noexcept { return info.version; }

    /** The editor's size in pixels, kept while no editor is open; below 1 while it is unset.
        [any thread]
    */
    int getPluginEditorWidth() const noexcept { return pluginEditorWidth; }
    int getPluginEditorHeight() const noexcept { return pluginEditorHeight; }
    void setPluginEditorSize (int width, int height) noexcept
    {
        pluginEditorWidth = width;
        pluginEditorHeight = height;
    }

    bool isMidiEnabled() const noexcept { return midiEnabled.load (std::memory_order_relaxed); }

protected:
    /** Runs the framework's start-up. The product calls it when all its parameters exist. */
    void setUpComplete();

private:
    void handleAsyncUpdate() override;

    const ProductInfo info;
    const FolderRoots folderRoots;
    ParamSet paramSet{ "PARAMS" };
    juce::UndoManager undoManager;
    FrozenPresetStateManager frozenStates{ paramSet };
    PreferencesStateManager preferences;
    std::unique_ptr<Settings> settings;
    std::atomic<int> hostSetGuard{ 0 };
    std::atomic<int> pluginEditorWidth{ -1 };
    std::atomic<int> pluginEditorHeight{ -1 };
    std::atomic<bool> midiEnabled{ false };

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PluginProcessor)
};

} // namespace zembra
