// vorlo-render: takes audio files through Vorlo without a host.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/Failure.h"
#include "tools/render/Interrupt.h"
#include "tools/render/LinkedEngine.h"
#include "tools/render/Measurement.h"
#include "tools/render/ParameterList.h"
#include "tools/render/PresetLibrary.h"
#include "tools/render/RenderOptions.h"
#include "tools/render/Renderer.h"

#include <cstdio>
#include <exception>

namespace render
{

namespace
{

/** Prints a result; a pipe that nobody reads to its end is a failure too. */
void print (const std::string& text)
{
    if (std::fputs (text.c_str(), stdout) < 0 || std::fflush (stdout) != 0)
        throw Failure ("can't write to the standard output");
}

void run (const RenderOptions& options)
{
    using Mode = RenderOptions::Mode;

    if (options.mode == Mode::help)
        return print (getHelpText());

    if (options.mode == Mode::version)
        return print ("vorlo-render " VORLO_VERSION "\n");

    if (options.mode == Mode::measure)
        return print (measureFile (options.input).toString() + '\n');

    const juce::ScopedJuceInitialiser_GUI messageThread;
    const juce::SharedResourcePointer<zembra::MidiProgramsTable> programs;

    if (! options.midi.empty())
        scanProgramPresets (*programs);

    VorloProcessor reference (getNowhere());

    if (options.mode == Mode::list)
        return print (listParameters (reference.getParamSet()));

    if (options.mode == Mode::presets)
        return print (PresetLibrary (reference).list());

    renderFile (options, reference);
}

/** Whatever a file's name holds, the message stays one line. */
int complain (std::string message, int exitCode)
{
    for (auto& c : message)
        if (const auto byte = static_cast<unsigned char> (c); byte < ' ' || byte == 0x7f)
            c = '?';

    std::fprintf (stderr, "vorlo-render: %s\n", message.c_str());
    return exitCode;
}

} // namespace

} // namespace render

int main (int argc, char** argv)
{
    using render::Failure;

    try
    {
        render::catchInterrupts();
        const std::span arguments (argv, static_cast<size_t> (argc));
        render::run (render::RenderOptions::parse (arguments.subspan (argc > 0 ? 1 : 0)));
        return 0;
    }
    catch (const Failure& failure)
    {
        return render::complain (failure.what(), failure.getExitCode());
    }
    catch (const std::exception& exception)
    {
        return render::complain (exception.what(), Failure::failed);
    }
}
