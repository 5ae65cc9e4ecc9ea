// What the audio thread leaves for the message thread.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

#include <atomic>
#include <bit>
#include <cstdint>
#include <vector>

namespace zembra
{

/** A few atomics that the audio thread sets and the message thread looks at on a timer.

    Nothing wakes the message thread: every means to do so is a system call, and JUCE's takes a lock
    besides. What comes twice before it is fetched counts once.
*/
class RealtimeMail final
{
public:
    RealtimeMail() = default;

    /** Sets the number of parameters, before other threads know the object. */
    void setNumParams (int numParams)
    {
        changedParams =
            std::vector<std::atomic<Word>> (static_cast<size_t> (numParams / bitsPerWord + 1));
    }

    /** Notes that a parameter has changed; its index is inside the range. [audio thread] */
    void postParam (int index) noexcept
    {
        changedParams[static_cast<size_t> (index / bitsPerWord)].fetch_or (
            Word{ 1 } << (index % bitsPerWord), std::memory_order_release);
    }

    /** Notes a program; the last one wins. [audio thread] */
    void postProgram (int newProgram) noexcept
    {
        program.store (newProgram, std::memory_order_release);
    }

    /** Calls `function (int index)` for each changed parameter, in index order, and forgets them.
        The values that stood when they were posted, or later ones, can be seen. [message thread]
    */
    template <typename Function>
    void takeParams (Function&& function)
    {
        for (size_t i = 0; i < changedParams.size(); ++i)
            for (auto word = changedParams[i].exchange (0, std::memory_order_acquire); word != 0;
                 word &= word - 1)
                function (static_cast<int> (i) * bitsPerWord + std::countr_zero (word));
    }

    /** The noted program, -1 if there is none, and forgets it. [message thread] */
    int takeProgram() noexcept { return program.exchange (noProgram, std::memory_order_acquire); }

private:
    using Word = std::uint64_t;
    static constexpr int bitsPerWord = 64;
    static constexpr int noProgram = -1;

    std::vector<std::atomic<Word>> changedParams;
    std::atomic<int> program{ noProgram };

    JUCE_DECLARE_NON_COPYABLE (RealtimeMail)
};

} // namespace zembra
