// What preset folders, preset files and chunks cost.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/presets/PresetFileCache.h"
#include "framework/presets/PresetFileManager.h"
#include "framework/presets/PresetFolders.h"
#include "product/VorloProcessor.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

namespace
{

/** A user's folder with presets in banks of fifty, as the product writes them. */
class PresetLibrary
{
public:
    explicit PresetLibrary (int numPresets)
    {
        for (int i = 0; i < numPresets; ++i)
            files.add (folders.user.getChildFile ("Bank " + juce::String (i / 50))
                           .getChildFile ("Preset " + juce::String (i) + ".ompreset"));

        if (numPresets > 0)
            write();
    }

    std::unique_ptr<VorloProcessor> makeInstance() const
    {
        return std::make_unique<VorloProcessor> (roots);
    }

    juce::Array<juce::File> files;

private:
    void write() const
    {
        files[0].getParentDirectory().createDirectory();
        makeInstance()->getPresetFileManager().savePresetToFile (files[0]);
        const auto text = files[0].loadFileAsString();

        for (const auto& file : files)
        {
            file.create();
            file.replaceWithText (text);
        }

        // Old enough to be remembered.
        juce::Thread::sleep (2500);
    }

    TemporaryFolder folder;
    zembra::FolderRoots roots = zembra::FolderRoots::inside (folder.get());
    zembra::PresetFolders folders{ roots, "Ombrel", "Vorlo" };
};

void makeAndDelete (benchmark::State& state, const PresetLibrary& library)
{
    auto instance = library.makeInstance();
    benchmark::DoNotOptimize (instance.get());
    state.PauseTiming();
    instance.reset();
    state.ResumeTiming();
}

/** The first instance of a process, which reads every one of `range` presets. */
void createFirstInstance (benchmark::State& state)
{
    const PresetLibrary library (static_cast<int> (state.range (0)));

    for (auto _ : state)
    {
        zembra::PresetFileCache::get().clear();
        makeAndDelete (state, library);
    }
}

/** A further instance, which knows the presets. */
void createSecondInstance (benchmark::State& state)
{
    const PresetLibrary library (static_cast<int> (state.range (0)));
    const auto first = library.makeInstance();

    for (auto _ : state)
        makeAndDelete (state, library);
}

void loadPreset (benchmark::State& state)
{
    const PresetLibrary library (2);
    const auto instance = library.makeInstance();
    auto& manager = instance->getPresetFileManager();

    for (int i = 0; auto _ : state)
        manager.loadPreset (library.files[++i % 2], nullptr);
}

void writeChunk (benchmark::State& state)
{
    const PresetLibrary library (0);
    const auto instance = library.makeInstance();
    juce::MemoryBlock chunk;

    for (auto _ : state)
        instance->getStateInformation (chunk);

    state.counters["bytes"] = static_cast<double> (chunk.getSize());
}

void readChunk (benchmark::State& state)
{
    const PresetLibrary library (0);
    const auto instance = library.makeInstance();
    juce::MemoryBlock chunk;
    instance->getStateInformation (chunk);

    for (auto _ : state)
        instance->setStateInformation (chunk.getData(), static_cast<int> (chunk.getSize()));
}

BENCHMARK (createFirstInstance)->Arg (0)->Arg (100)->Arg (2000)->Unit (benchmark::kMillisecond);
BENCHMARK (createSecondInstance)->Arg (0)->Arg (100)->Arg (2000)->Unit (benchmark::kMillisecond);
BENCHMARK (loadPreset)->Unit (benchmark::kMicrosecond);
BENCHMARK (writeChunk)->Unit (benchmark::kMicrosecond);
BENCHMARK (readChunk)->Unit (benchmark::kMicrosecond);

} // namespace
