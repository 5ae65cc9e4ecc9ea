// What happens in a session.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/Soak.h"

#include "tools/soak/MemoryUse.h"
#include "tools/soak/RandomMidi.h"

#include <iterator>

namespace soak
{

namespace
{

constexpr int longestOfAll = 4096;

} // namespace

Soak::Soak (const juce::File& folder, juce::int64 seed)
    : random (seed),
      processor (zembra::FolderRoots::inside (folder)),
      transport (random.nextInt64(), RandomTransport::Manners::sane),
      signal (random.nextInt64(), 1.5f),
      automation (processor, random.nextInt64(), true)
{
    processor.getLfo().getRandom().setSeed (random.nextInt64());
    processor.setPlayHead (&transport);
    states.fill (makeStateWithMidi (processor));
    loadState();

    // Buffers and undo history grow to limits of their own, which must not look like a leak.
    constexpr int moreThanItHolds = 20000;
    processor.prepareToPlay (192000.0, longestOfAll);
    buffer.setSize (2, longestOfAll);

    for (int i = 0; i < moreThanItHolds; ++i)
        edit();
}

Soak::~Soak() { processor.setPlayHead (nullptr); }

void Soak::runSession()
{
    prepare();

    for (const auto end = seconds + sessionSeconds; seconds < end;)
    {
        disturb();
        processBlock();
    }

    heapSizes.push_back (getHeapInUse());
}

void Soak::prepare()
{
    constexpr double rates[] = { 44100.0, 48000.0, 88200.0, 96000.0, 192000.0, 22050.0, 8000.0 };
    constexpr int blocks[] = { 16, 64, 100, 256, 441, 512, 1024, longestOfAll };
    sampleRate = rates[random.nextInt (std::size (rates))];
    longestBlock = blocks[random.nextInt (std::size (blocks))];
    buffer.setSize (2, longestBlock, false, false, true);
    processor.prepareToPlay (sampleRate, longestBlock);
}

void Soak::processBlock()
{
    const auto numSamples =
        random.nextInt (3) == 0 ? random.nextInt (longestBlock + 1) : longestBlock;
    juce::AudioBuffer<float> block (buffer.getArrayOfWritePointers(), 2, numSamples);
    signal.fill (block, numSamples);
    transport.advance (numSamples, sampleRate);

    if (random.nextInt (20) == 0)
        fillWithMidi (midi, random, numSamples);
    else
        midi.clear();

    processor.processBlock (block, midi);
    output.look (block);
    seconds += numSamples / sampleRate;
    ++numBlocks;
}

/** Each thing comes a few times in a second or a few times in a session, whatever the block size. */
void Soak::disturb()
{
    const auto blockSeconds = longestBlock / sampleRate;
    const auto comes = [&] (double timesASecond)
    { return random.nextDouble() < timesASecond * blockSeconds; };

    if (comes (20.0))
        automation.moveOne();
    if (comes (0.3))
        automation.moveAll();
    if (comes (2.0))
        edit();
    if (comes (0.2))
        saveState();
    if (comes (0.2))
        loadState();
    if (comes (0.2))
        processor.setCurrentProgram (0);
}

void Soak::edit()
{
    auto& undo = processor.getUndoManager();
    auto* param = processor.getParamSet().getParam (random.nextInt (processor.getNumParameters()));

    switch (random.nextInt (6))
    {
    case 0:
        undo.undo();
        break;
    case 1:
        undo.redo();
        break;
    default:
        undo.beginNewTransaction();
        param->setValue (param->denormalise (random.nextDouble()), zembra::sourceEditor, &undo);
    }
}

juce::MemoryBlock& Soak::pickState()
{
    return states[static_cast<size_t> (random.nextInt (static_cast<int> (states.size())))];
}

void Soak::saveState()
{
    processor.getStateInformation (pickState());
    ++numStateCalls;
}

void Soak::loadState()
{
    const auto& state = pickState();
    processor.setStateInformation (state.getData(), static_cast<int> (state.getSize()));
    ++numStateCalls;
}

juce::String Soak::describeSettings() const
{
    juce::StringArray words;

    for (const auto* param : processor.getParamSet())
        words.add (param->getId() + "=" + juce::String (param->getValue()));

    return words.joinIntoString (" ");
}

} // namespace soak
