// What the command line asks for.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/render/SampleFormat.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace render
{

/** The command line, taken apart. Parameter ids and values, paths and the formats of files are
    looked at later, by those who know them.
*/
struct RenderOptions
{
    enum class Mode
    {
        render,
        list,
        presets,
        measure,
        help,
        version
    };

    static constexpr int largestBlock = 65536;

    Mode mode = Mode::render;
    std::string input;                    ///< the file to read; the one to measure
    std::string output;                   ///< the file to write; empty to save a preset only
    std::string plugin;                   ///< the binary to host; empty for the built-in engine
    std::string state;                    ///< a saved chunk
    std::string preset;                   ///< a preset's name or file
    std::string presetToSave;             ///< the preset file to write
    std::string midi;                     ///< a standard MIDI file
    std::vector<std::string> assignments; ///< "id=value", in the order given
    double bpm = 120.0;                   ///< the play head's tempo, above 0
    int blockSize = 512;                  ///< frames, 1 to largestBlock
    std::optional<SampleFormat> sampleFormat;
    std::optional<std::int64_t> seed; ///< of the random LFO wave

    /** Reads the arguments, without the program's name.
        @throws Failure  with Failure::usage if they make no sense
    */
    static RenderOptions parse (std::span<char* const> arguments);
};

/** The text of `--help`. */
const char* getHelpText();

} // namespace render
