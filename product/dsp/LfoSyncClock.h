// The rate of the LFO: free, or a note length at the host's tempo.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/Relaxed.h"
#include "product/dsp/LfoDivisions.h"

/** Holds the one rate that the whole LFO follows. The parameter callback and the audio thread both
    write it; each field is handed over on its own. [any thread]
*/
class LfoSyncClock final
{
public:
    /** Switches the sync. On: takes the note length nearest to the present period. Off: the rate
        stays what the note length gave.
    */
    void setSynced (bool shouldBeSynced) noexcept;

    /** Takes another note length; ignored unless synced. */
    void setDivision (LfoDivision division) noexcept;

    /** Sets the rate in Hz; ignored while synced. */
    void setFreeRate (float rate) noexcept;

    /** Reads the host's tempo and time signature. They take effect while synced, or with adopt(). */
    void setTransport (double bpm, int signatureNumerator, int signatureDenominator) noexcept;

    /** Takes what was read last, synced or not. */
    void adopt() noexcept;

    bool isSynced() const noexcept { return synced; }
    float getRate() const noexcept { return lfoRate; }

    /** The value of `lfoSyncedPeriod` that shows the present note length. */
    int getDivisionIndex() const noexcept { return getLfoDivisionIndex (numerator, denominator); }

    /** The length of the note in the time signature's lower unit: quarters in 4/4. */
    float getPeriodInBeats() const noexcept;

private:
    float getBeats (int num, int den) const noexcept;
    void takeNearestDivision (float period) noexcept;
    void update() noexcept;

    zembra::Relaxed<bool> synced{ false };
    zembra::Relaxed<int> numerator{ 1 }, denominator{ 1 };
    zembra::Relaxed<double> hostTempo{ 120.0 };
    zembra::Relaxed<int> hostNumerator{ 4 }, hostDenominator{ 4 };
    zembra::Relaxed<double> tempo{ 120.0 };
    zembra::Relaxed<int> timeSigNumerator{ 4 }, timeSigDenominator{ 4 };
    zembra::Relaxed<float> lfoRate{ 0.0f };
};
