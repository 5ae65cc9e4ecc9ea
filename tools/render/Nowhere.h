// A place where no folder can ever be.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace render
{

#ifdef _WIN32
inline constexpr auto nowhere = "NUL:\\nowhere";
#else
inline constexpr auto nowhere = "/dev/null/nowhere";
#endif

} // namespace render
