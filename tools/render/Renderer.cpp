// The steps of a render.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/Renderer.h"

#include "tools/render/AudioFileSink.h"
#include "tools/render/AudioFileSource.h"
#include "tools/render/Failure.h"
#include "tools/render/HostedEngine.h"
#include "tools/render/Interrupt.h"
#include "tools/render/LinkedEngine.h"
#include "tools/render/MidiTimeline.h"
#include "tools/render/Patch.h"
#include "tools/render/Progress.h"
#include "tools/render/Transport.h"

namespace render
{

namespace
{

void checkChannels (const AudioFileSource& source)
{
    if (const auto numChannels = source.getNumChannels(); numChannels > 2)
        throw Failure (inQuotes (source.getPath()) + " has " + std::to_string (numChannels)
                       + " channels: only mono and stereo can be rendered");
}

std::unique_ptr<Engine> makeEngine (const RenderOptions& options, double sampleRate,
                                    zembra::PluginProcessor& reference)
{
    if (! options.plugin.empty())
        return std::make_unique<HostedEngine> (options.plugin, sampleRate, options.blockSize);

    auto engine = std::make_unique<LinkedEngine> (options.seed);

    if (! options.midi.empty())
        engine->enableMidi (reference);

    return engine;
}

/** Whole blocks, together long enough for reading and writing in larger pieces. */
int getChunkSize (int blockSize)
{
    constexpr int atLeast = 8192;
    return blockSize * std::max (1, atLeast / blockSize);
}

void processChunk (juce::AudioBuffer<float>& chunk, int numFrames, int blockSize, Engine& engine,
                   Transport& transport, MidiTimeline& timeline)
{
    for (int start = 0; start < numFrames; start += blockSize)
    {
        const auto length = std::min (blockSize, numFrames - start);
        juce::AudioBuffer<float> block (chunk.getArrayOfWritePointers(), chunk.getNumChannels(),
                                        start, length);
        auto midi = timeline.takeNext (length);
        engine.process (block, midi);
        transport.advance (length);
    }
}

void streamThrough (AudioFileSource& source, AudioFileSink& sink, Engine& engine,
                    Transport& transport, MidiTimeline& timeline, int blockSize)
{
    juce::AudioBuffer<float> chunk (source.getNumChannels(), getChunkSize (blockSize));
    Progress progress (source.getNumFrames());
    std::int64_t done = 0;

    for (auto numFrames = chunk.getNumSamples(); numFrames == chunk.getNumSamples();)
    {
        numFrames = source.read (chunk);
        processChunk (chunk, numFrames, blockSize, engine, transport, timeline);
        sink.write (chunk, numFrames);
        progress.show (done += numFrames);
        checkForInterrupt();
    }
}

} // namespace

void renderFile (const RenderOptions& options, zembra::PluginProcessor& reference)
{
    if (options.output.empty())
    {
        applyPatch (reference, options);
        return savePreset (reference, options.presetToSave);
    }

    const auto type = getAudioFileType (options.output);
    const auto settings = applyPatch (reference, options);
    AudioFileSource source (options.input);
    checkChannels (source);

    const auto sampleFormat =
        chooseSampleFormat (type, options.sampleFormat, source.getSampleFormat());
    const auto sampleRate = source.getSampleRate();
    auto timeline = options.midi.empty() ? MidiTimeline() : MidiTimeline (options.midi, sampleRate);
    const auto engine = makeEngine (options, sampleRate, reference);
    Transport transport (options.bpm, sampleRate);
    engine->prepare (sampleRate, options.blockSize, source.getNumChannels(), transport);

    for (const auto& [param, plain] : settings)
        engine->setParameter (param->getName(), static_cast<float> (param->normalise (plain)));

    AudioFileSink sink (options.output, type,
                        { source.getNumChannels(), static_cast<int> (sampleRate),
                          source.getNumFrames(), sampleFormat });
    streamThrough (source, sink, *engine, transport, timeline, options.blockSize);

    if (! options.presetToSave.empty())
        savePreset (reference, options.presetToSave);

    sink.finish();
}

} // namespace render
