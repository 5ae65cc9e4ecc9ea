// What is tried with bytes from anybody, and what must hold after it.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/** Each target takes any bytes and answers with what is wrong afterwards, empty if nothing is. The
    fuzzer runs one of them as long as it is given; the test suite runs all of them on the corpus.
*/
namespace fuzz
{
using Target = std::string (*) (const std::uint8_t* data, std::size_t size);

std::string loadChunk (const std::uint8_t* data, std::size_t size);
std::string loadPreset (const std::uint8_t* data, std::size_t size);
std::string readSettings (const std::uint8_t* data, std::size_t size);
std::string pasteClipboard (const std::uint8_t* data, std::size_t size);

/** Plays the bytes as MIDI: first the number of the parameter that learns and the channel, then
    events, each after a byte whose lowest two bits are its length less one.
*/
std::string playMidi (const std::uint8_t* data, std::size_t size);

struct NamedTarget
{
    const char* name; ///< of the corpus folder too
    Target run;
};

/** All of them. */
const std::vector<NamedTarget>& getTargets();
} // namespace fuzz
