// Audio, automation, listeners and state calls on threads of their own, all at once.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TestProcessor.h"
#include "tools/soak/RandomAutomation.h"
#include "tools/soak/RandomSignal.h"
#include "tools/soak/RandomTransport.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <thread>

namespace
{

/** Does what widgets and meters do: listens, and remembers what it heard. */
struct EditorListener final : zembra::Param::Listener, zembra::PresetStateManager::Listener
{
    void paramChanged (zembra::Param* param, double plain, double, int) override
    {
        if (plain < param->getMinValue() || plain > param->getMaxValue())
            outOfRange = true;

        ++numCalls;
    }

    void stateChanged() override { ++numCalls; }

    std::atomic<bool> outOfRange{ false };
    std::atomic<int> numCalls{ 0 };
};

struct HostListener final : juce::AudioProcessorListener
{
    void audioProcessorParameterChanged (juce::AudioProcessor*, int, float) override { ++numCalls; }
    void audioProcessorChanged (juce::AudioProcessor*, const ChangeDetails&) override {}

    std::atomic<int> numCalls{ 0 };
};

class ThreadsTest : public testing::Test
{
protected:
    /** Runs each task again and again on a thread of its own. */
    void runTogether (std::vector<std::function<void()>> tasks)
    {
        std::atomic<bool> isDone{ false };
        std::vector<std::thread> threads;

        for (auto& task : tasks)
            threads.emplace_back (
                [&isDone, task = std::move (task)]
                {
                    while (! isDone)
                        task();
                });

        std::this_thread::sleep_for (std::chrono::milliseconds (1500));
        isDone = true;

        for (auto& thread : threads)
            thread.join();
    }

    void processBlock()
    {
        const auto numSamples = audioChoice.nextInt (513);
        juce::AudioBuffer<float> block (buffer.getArrayOfWritePointers(), 2, numSamples);
        signal.fill (block, numSamples);
        transport.advance (numSamples, 48000.0);
        processor.processBlock (block, midi);

        for (int channel = 0; channel < 2; ++channel)
            for (int i = 0; i < numSamples; ++i)
                numFaults += std::isfinite (block.getSample (channel, i)) ? 0 : 1;

        ++numBlocks;
    }

    void edit()
    {
        auto listener = std::make_unique<EditorListener>();
        auto* param = processor.getParamSet().getParam (editChoice.nextInt (23));
        param->addListener (listener.get());
        processor.getParamSet().addListener (listener.get());
        const auto plain = param->denormalise (editChoice.nextDouble());
        param->setValue (plain, zembra::sourceEditor, &processor.getUndoManager());
        const auto text = param->getText (static_cast<float> (param->getValue()), 10);
        numFaults += text.isEmpty() || listener->outOfRange ? 1 : 0;

        if (editChoice.nextInt (20) == 0)
            processor.getUndoManager().undo();

        processor.getParamSet().removeListener (listener.get());
        param->removeListener (listener.get());
    }

    void callState()
    {
        juce::MemoryBlock chunk;
        processor.getStateInformation (chunk);
        processor.setStateInformation (chunk.getData(), static_cast<int> (chunk.getSize()));
    }

    void SetUp() override
    {
        processor.addListener (&host);
        processor.setPlayHead (&transport);
        processor.prepareToPlay (48000.0, 512);
    }

    void TearDown() override
    {
        processor.setPlayHead (nullptr);
        processor.removeListener (&host);
        EXPECT_EQ (numFaults, 0);
        EXPECT_GT (numBlocks, 10);

        for (const auto* param : processor.getParamSet())
        {
            EXPECT_GE (param->getValue(), param->getMinValue());
            EXPECT_LE (param->getValue(), param->getMaxValue());
        }
    }

    TestProcessor tested;
    VorloProcessor& processor = tested.processor;
    HostListener host;
    juce::Random audioChoice{ 41 }, editChoice{ 42 };
    soak::RandomTransport transport{ 43, soak::RandomTransport::Manners::sane };
    soak::RandomSignal signal{ 44, 1.0f };
    soak::RandomAutomation automation{ processor, 45, true };
    juce::AudioBuffer<float> buffer{ 2, 512 };
    juce::MidiBuffer midi;
    std::atomic<int> numFaults{ 0 }, numBlocks{ 0 };
};

TEST_F (ThreadsTest, RunTogetherWithoutHarm)
{
    runTogether ({ [this] { processBlock(); }, [this] { automation.moveOne(); }, [this] { edit(); },
                   [this] { callState(); } });
}

TEST_F (ThreadsTest, ProcessTogetherWithASecondInstance)
{
    TestProcessor second;
    second.processor.prepareToPlay (48000.0, 512);
    juce::AudioBuffer<float> other (2, 512);
    other.clear();
    runTogether ({ [this] { processBlock(); }, [this] { automation.moveOne(); },
                   [&] { second.process (other); }, [] { const TestProcessor shortLived; } });
}

} // namespace
