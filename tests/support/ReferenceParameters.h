// The parameters of the reference engine: ranges, clamp, quarter-step gate, normalised value.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace reference
{

/** One parameter; the value is plain and always inside the range. */
struct Parameter
{
    std::string id;
    double value, minValue, maxValue, step, centre;

    /** The plain value on a scale of 0 to 1, where the centre (if not 0) lies at one half. */
    double normalised() const;
};

/** Where a change came from, as far as the engine cares. */
enum class Source
{
    host = 0,
    state = 4,
    linked = 5
};

/** All parameters in host order, at their defaults after construction. */
class ReferenceParameters
{
public:
    using Callback = std::function<void (const Parameter&, Source)>;

    ReferenceParameters();

    /** Names the one listener and at once tells it every parameter. */
    void listen (Callback newCallback);

    /** Clamps, drops changes within a quarter step (and NaN), stores and tells the listener.
        An unknown id throws std::out_of_range. */
    void set (const std::string& id, double plainValue, Source source);
    double get (const std::string& id) const;

private:
    size_t indexOf (const std::string& id) const;

    std::vector<Parameter> parameters;
    Callback callback;
};

} // namespace reference
