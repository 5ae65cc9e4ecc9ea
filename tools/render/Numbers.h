// Reading numbers from the command line, whatever the locale.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>
#include <system_error>

namespace render
{

/** The number that a whole text stands for; nothing if there is more or less, or if it isn't finite.
    A leading plus sign is allowed.
*/
template <typename Number>
std::optional<Number> parseNumber (std::string_view text)
{
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        text.remove_prefix (1);

    Number number{};
    const auto* const end = text.data() + text.size();
    const auto result = std::from_chars (text.data(), end, number);

    if (result.ec != std::errc() || result.ptr != end || text.empty()
        || ! std::isfinite (static_cast<double> (number)))
        return {};

    return number;
}

} // namespace render
