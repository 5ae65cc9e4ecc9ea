// The temporary file and its renaming.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/PendingFile.h"

#include "tools/render/Failure.h"

#include <cerrno>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <io.h>
#include <process.h>
#define fsync(fd) _commit (fd)
#define fileno _fileno
#define fseeko _fseeki64
#define ftello _ftelli64
#define getpid _getpid
#else
#include <unistd.h>
#endif

namespace render
{

namespace
{

std::string describe (int errorNumber) { return std::generic_category().message (errorNumber); }

[[noreturn]] void fail (const std::string& name, const std::string& reason)
{
    throw Failure ("can't write " + inQuotes (name) + ": " + reason);
}

/** The file that a name stands for: a symbolic link is written through, not replaced. */
std::filesystem::path resolveLink (const std::filesystem::path& path)
{
    std::error_code ignored;

    if (! std::filesystem::is_symlink (path, ignored))
        return path;

    auto target = std::filesystem::weakly_canonical (path, ignored);
    return target.empty() ? path : target;
}

} // namespace

PendingFile::PendingFile (const std::string& targetPath)
    : name (targetPath),
      target (resolveLink (targetPath))
{
    std::error_code ignored;
    const auto status = std::filesystem::status (target, ignored);

    if (std::filesystem::is_directory (status))
        fail (name, "it is a folder");

    // Renaming over a device would remove the device.
    if (std::filesystem::exists (status) && ! std::filesystem::is_regular_file (status))
        fail (name, "it is no regular file");

    open();
}

PendingFile::~PendingFile()
{
    if (file != nullptr)
        std::fclose (file);

    std::error_code ignored;

    if (! temporary.empty())
        std::filesystem::remove (temporary, ignored);
}

void PendingFile::open()
{
    constexpr int attempts = 100;

    for (int i = 0; i < attempts && file == nullptr; ++i)
    {
        const auto hiddenName =
            ".vorlo-render-" + std::to_string (getpid()) + "-" + std::to_string (i) + ".part";
        const auto path = target.parent_path() / hiddenName;
        file = std::fopen (path.string().c_str(), "w+bx");

        if (file != nullptr)
            temporary = path;
        else if (errno != EEXIST)
            break;
    }

    if (file == nullptr)
        fail (name, describe (errno));
}

void PendingFile::noteError()
{
    if (error.empty())
        error = describe (errno);
}

std::int64_t PendingFile::write (const void* data, std::int64_t numBytes)
{
    const auto wanted = static_cast<size_t> (numBytes);
    const auto written = std::fwrite (data, 1, wanted, file);

    if (written < wanted)
        noteError();

    return static_cast<std::int64_t> (written);
}

std::int64_t PendingFile::read (void* data, std::int64_t numBytes)
{
    return static_cast<std::int64_t> (std::fread (data, 1, static_cast<size_t> (numBytes), file));
}

std::int64_t PendingFile::seek (std::int64_t offset, int whence)
{
    // What is buffered is written now, and that may fail.
    if (fseeko (file, offset, whence) != 0)
        noteError();

    return getPosition();
}

std::int64_t PendingFile::getPosition() { return ftello (file); }

std::int64_t PendingFile::getLength()
{
    const auto position = getPosition();
    const auto length = seek (0, SEEK_END);
    seek (position, SEEK_SET);
    return length;
}

void PendingFile::commit()
{
    if (std::fflush (file) != 0 || fsync (fileno (file)) != 0)
        noteError();

    if (std::fclose (std::exchange (file, nullptr)) != 0)
        noteError();

    if (! error.empty())
        fail (name, error);

    std::error_code failure;
    std::filesystem::rename (temporary, target, failure);

    if (failure)
        fail (name, failure.message());

    temporary.clear();
}

} // namespace render
