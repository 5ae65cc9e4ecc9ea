// The temporary file, its flush and its renaming.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/AtomicFile.h"

#include "framework/core/FileStamp.h"

namespace zembra
{

namespace
{

namespace fs = std::filesystem;

juce::File followLink (const juce::File& file)
{
    std::error_code error;
    const auto path = FileStamp::toPath (file);

    if (! fs::is_symlink (path, error))
        return file;

    const auto real = fs::weakly_canonical (path, error).u8string();
    const auto text = std::string (real.begin(), real.end());
    return error ? file : juce::File (juce::CharPointer_UTF8 (text.c_str()));
}

/** A hidden name, so that no scan takes the file for a preset, and short whatever the target's. */
juce::File makeTemporaryName (const juce::File& target)
{
    return target.getSiblingFile (".~" + juce::Uuid().toString() + ".tmp");
}

bool writeWhole (const juce::File& file, const juce::String& text)
{
    const auto numBytes = text.getNumBytesAsUTF8();
    juce::FileOutputStream output (file);

    if (! output.openedOk() || ! output.write (text.toRawUTF8(), numBytes))
        return false;

    output.flush();

    // The stream takes a write that was cut short, as the first one on a full disk, for a good one.
    const auto stamp = FileStamp::of (file);
    return output.getStatus().wasOk() && stamp.has_value() && stamp->size == numBytes;
}

} // namespace

bool AtomicFile::write (const juce::File& target, const juce::String& text)
{
    if (target == juce::File() || target.isDirectory())
        return false;

    const auto realTarget = followLink (target);
    const auto temporary = makeTemporaryName (realTarget);
    std::error_code error;

    if (writeWhole (temporary, text))
    {
        fs::rename (FileStamp::toPath (temporary), FileStamp::toPath (realTarget), error);

        if (! error)
            return true;
    }

    fs::remove (FileStamp::toPath (temporary), error);
    return false;
}

} // namespace zembra
