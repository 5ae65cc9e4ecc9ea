// A control value that glides to its target in a fixed number of equal steps.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zembra
{

/** Linear smoothing over 128 samples, whatever the distance. [audio thread] */
class LinearSmoother final
{
public:
    /** @param toleranceToUse  in units of the value; kept with the smoother for its users */
    explicit LinearSmoother (float toleranceToUse) noexcept : tolerance (toleranceToUse) {}

    /** Begins a glide from the present value; nothing if that is the target already. */
    void setTarget (float newTarget) noexcept;

    /** Writes the next `numSamples` values. */
    void fill (float* out, int numSamples) noexcept;

    float getTolerance() const noexcept { return tolerance; }
    float getCurrent() const noexcept { return current; }
    float getTarget() const noexcept { return target; }

    /** True when no glide is going on: every value to come is the target. */
    bool isDone() const noexcept { return done; }

private:
    static constexpr int steps = 128;

    float tolerance;
    float current = 0.0f;
    float target = 0.0f;
    float increment = 0.0f;
    bool done = true;
};

} // namespace zembra
