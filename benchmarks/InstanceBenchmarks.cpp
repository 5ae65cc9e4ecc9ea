// What instances and parameter changes cost.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TestProcessor.h"

#include <benchmark/benchmark.h>

namespace
{

/** Creating one more instance in a process that holds `range` of them already. */
void createInstance (benchmark::State& state)
{
    const TemporaryFolder folder;
    const auto roots = zembra::FolderRoots::inside (folder.get());
    std::vector<std::unique_ptr<VorloProcessor>> others;

    while (others.size() < static_cast<size_t> (state.range (0)))
        others.push_back (std::make_unique<VorloProcessor> (roots));

    for (auto _ : state)
    {
        auto instance = std::make_unique<VorloProcessor> (roots);
        benchmark::DoNotOptimize (instance.get());
        state.PauseTiming();
        instance.reset();
        state.ResumeTiming();
    }
}

BENCHMARK (createInstance)->Arg (0)->Arg (1)->Arg (99)->Unit (benchmark::kMicrosecond);

struct Idle final : zembra::Param::Listener
{
    void paramChanged (zembra::Param*, double, double, int) override { ++numCalls; }
    int numCalls = 0;
};

/** A change from the host with `range` listeners beside the engine's and the set's own. */
void setValueWithListeners (benchmark::State& state)
{
    TestProcessor tested;
    std::vector<Idle> listeners (static_cast<size_t> (state.range (0)));

    for (auto& listener : listeners)
        tested.param ("drive").addListener (&listener);

    auto value = 20.0;

    for (auto _ : state)
        tested.set ("drive", value = 100.0 - value);

    for (auto& listener : listeners)
        tested.param ("drive").removeListener (&listener);
}

BENCHMARK (setValueWithListeners)->Arg (0)->Arg (4)->Arg (16);

/** A change too small to be one, which automation sends all the time. */
void setValueWithinTheThreshold (benchmark::State& state)
{
    TestProcessor tested;
    tested.set ("drive", 50.0);

    for (auto _ : state)
        tested.set ("drive", 50.01);
}

BENCHMARK (setValueWithinTheThreshold);

} // namespace
