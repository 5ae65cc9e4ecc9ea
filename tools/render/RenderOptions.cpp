// Reading the command line.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/RenderOptions.h"

#include "product/VorloParameters.h"
#include "tools/render/Failure.h"
#include "tools/render/Numbers.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace render
{

namespace
{

using Mode = RenderOptions::Mode;

[[noreturn]] void refuse (const std::string& message)
{
    throw Failure (message + " (--help tells more)", Failure::usage);
}

void setBpm (RenderOptions& options, const std::string& text)
{
    const auto bpm = parseNumber<double> (text);

    if (! bpm || *bpm <= 0.0)
        refuse ("--bpm takes a number above 0, not " + inQuotes (text));

    options.bpm = *bpm;
}

void setBlockSize (RenderOptions& options, const std::string& text)
{
    const auto size = parseNumber<int> (text);

    if (! size || *size < 1 || *size > RenderOptions::largestBlock)
        refuse ("--block takes a whole number from 1 to "
                + std::to_string (RenderOptions::largestBlock) + ", not " + inQuotes (text));

    options.blockSize = *size;
}

void setBits (RenderOptions& options, const std::string& text)
{
    if (text == "16")
        options.sampleFormat = SampleFormat::pcm16;
    else if (text == "24")
        options.sampleFormat = SampleFormat::pcm24;
    else if (text == "32f")
        options.sampleFormat = SampleFormat::float32;
    else
        refuse ("--bits takes 16, 24 or 32f, not " + inQuotes (text));
}

void setSeed (RenderOptions& options, const std::string& text)
{
    options.seed = parseNumber<std::int64_t> (text);

    if (! options.seed)
        refuse ("--seed takes a whole number, not " + inQuotes (text));
}

void setMode (RenderOptions& options, Mode mode)
{
    if (options.mode != Mode::render && options.mode != mode)
        refuse ("--list, --presets and --measure exclude each other");

    options.mode = mode;
}

void setPlugin (RenderOptions& options, const std::string& path)
{
    if (path.empty())
        refuse ("--plugin takes the path of a plug-in");

    options.plugin = path;
}

void setState (RenderOptions& options, const std::string& path)
{
    if (path.empty())
        refuse ("--state takes the path of a saved state");

    options.state = path;
}

void setPreset (RenderOptions& options, const std::string& nameOrFile)
{
    if (nameOrFile.empty())
        refuse ("--preset takes the name or the path of a preset");

    options.preset = nameOrFile;
}

void setPresetToSave (RenderOptions& options, const std::string& path)
{
    if (! path.ends_with (".ompreset"))
        refuse ("--save-preset takes a path that ends in .ompreset, not " + inQuotes (path));

    options.presetToSave = path;
}

void setMidi (RenderOptions& options, const std::string& path)
{
    if (path.empty())
        refuse ("--midi takes the path of a MIDI file");

    options.midi = path;
}

/** One option: its name, whether a value follows, and what it does. */
struct Option
{
    std::string_view name;
    bool takesValue;
    void (*apply) (RenderOptions&, const std::string& value);
};

constexpr std::array<Option, 14> optionTable{ {
    { "--set", true, [] (auto& options, auto& text) { options.assignments.push_back (text); } },
    { "--sync", false,
      [] (auto& options, auto&)
      { options.assignments.push_back (std::string (paramId::lfoSyncOrFree) + "=sync"); } },
    { "--bpm", true, setBpm },
    { "--block", true, setBlockSize },
    { "--bits", true, setBits },
    { "--seed", true, setSeed },
    { "--plugin", true, setPlugin },
    { "--state", true, setState },
    { "--preset", true, setPreset },
    { "--save-preset", true, setPresetToSave },
    { "--midi", true, setMidi },
    { "--presets", false, [] (auto& options, auto&) { setMode (options, Mode::presets); } },
    { "--list", false, [] (auto& options, auto&) { setMode (options, Mode::list); } },
    { "--measure", false, [] (auto& options, auto&) { setMode (options, Mode::measure); } },
} };

/** Walks the arguments once. */
class Parser final
{
public:
    explicit Parser (std::span<char* const> argumentsToRead) : arguments (argumentsToRead) {}

    RenderOptions parse()
    {
        while (next < arguments.size() && ! isDone())
            readArgument (arguments[next++]);

        if (! isDone())
            assignOperands();

        return options;
    }

private:
    bool isDone() const { return options.mode == Mode::help || options.mode == Mode::version; }

    void readArgument (const std::string& argument)
    {
        if (optionsHaveEnded || argument.size() < 2 || argument[0] != '-')
            operands.push_back (argument);
        else if (argument == "--")
            optionsHaveEnded = true;
        else if (argument == "--help" || argument == "-h")
            options.mode = Mode::help;
        else if (argument == "--version")
            options.mode = Mode::version;
        else
            readOption (argument);
    }

    /** Takes "--name value" and "--name=value". */
    void readOption (const std::string& argument)
    {
        const auto equals = argument.find ('=');
        const auto name = argument.substr (0, equals);
        const auto hasValue = equals != std::string::npos;
        const auto* option = std::find_if (optionTable.begin(), optionTable.end(),
                                           [&] (const Option& o) { return o.name == name; });

        if (option == optionTable.end())
            refuse ("there is no option " + inQuotes (name));

        if (hasValue && ! option->takesValue)
            refuse (name + " takes no value");

        if (hasValue || ! option->takesValue)
            option->apply (options, hasValue ? argument.substr (equals + 1) : std::string());
        else if (next < arguments.size())
            option->apply (options, arguments[next++]);
        else
            refuse (name + " needs a value");
    }

    size_t countWantedOperands() const
    {
        if (options.mode == Mode::measure)
            return 1;

        const auto onlySaves = operands.empty() && ! options.presetToSave.empty();
        return options.mode == Mode::render && ! onlySaves ? 2 : 0;
    }

    void assignOperands()
    {
        const auto wanted = countWantedOperands();

        if (operands.size() < wanted)
            refuse (wanted == 1 ? "--measure takes a file"
                                : "give a file to read and one to write");

        if (operands.size() > wanted)
            refuse ("there is no place for " + inQuotes (operands[wanted]));

        if (options.seed && ! options.plugin.empty())
            refuse ("--seed works with the built-in engine only, not with --plugin");

        if (! options.midi.empty() && ! options.plugin.empty())
            refuse ("--midi works with the built-in engine only, not with --plugin");

        if (! options.midi.empty() && wanted < 2)
            refuse ("--midi needs a file to read and one to write");

        options.input = wanted > 0 ? operands[0] : std::string();
        options.output = wanted > 1 ? operands[1] : std::string();
    }

    std::span<char* const> arguments;
    size_t next = 0;
    bool optionsHaveEnded = false;
    std::vector<std::string> operands;
    RenderOptions options;
};

} // namespace

RenderOptions RenderOptions::parse (std::span<char* const> arguments)
{
    return Parser (arguments).parse();
}

const char* getHelpText()
{
    return R"(usage: vorlo-render IN OUT [options]
       vorlo-render --measure FILE
       vorlo-render --save-preset FILE [options]
       vorlo-render --list
       vorlo-render --presets

Takes a mono or stereo recording through Vorlo and writes the result.

  IN               a WAV, AIFF or FLAC file
  OUT              the result: its name ends in .wav, .aif, .aiff or .flac. It may be IN. It appears
                   when it is complete; until then, and after a failure, all is as it was

  --set ID=VALUE   sets a parameter: a number ("drive=40", "lowpassFreq=2500Hz") or the name of a
                   value ("lfoWaveform=square", "dry=-inf"); may be given many times, and what is
                   given last counts
  --preset NAME_OR_FILE
                   starts from a preset: a file, or else the name of one of the user's, designers'
                   or factory presets, alone ("Growl") or with its bank ("Bass/Growl"); --set
                   changes what it says
  --state FILE     starts from a saved state, the chunk that a host keeps; --preset comes after it
  --save-preset FILE
                   writes the sound of --state, --preset and --set to a preset, FILE.ompreset
  --presets        prints the presets by name
  --midi FILE      controllers and program changes of a standard MIDI file drive the built-in engine
                   at their times, to the block: controllers as the saved state maps them, programs
                   with the user's presets of the bank "MIDI Programs"
  --list           prints the parameters: id, name, range, unit, default, named values
  --bpm N          the tempo of the song, which plays from its start; 120 by default
  --sync           lets the LFO follow the tempo, as --set lfoSyncOrFree=sync does
  --block N        frames handed over at a time, 1 to 65536; 512 by default
  --bits B         16, 24 or 32f (floating point, not for FLAC); by default those of IN, else 24
  --seed N         makes the random LFO wave repeatable
  --plugin PATH    renders with this VST 2 (.so), VST3 (.vst3) or LV2 (.lv2) build of Vorlo instead
                   of the built-in engine
  --measure FILE   prints level (RMS, dBFS), peak (dBFS) and brightness (spectral centroid, Hz)
  --help           prints this
  --version        prints the version

Presets and settings of the user don't change a render that doesn't ask for them. Options may stand anywhere; "--" ends them.
The exit code is 0 if all went well, 2 for a wrong command line, 1 for any other failure, and 128
plus the signal's number after an interruption.
)";
}

} // namespace render
