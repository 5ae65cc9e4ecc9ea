// A file that takes its name only when it is complete.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

namespace render
{

/** Writes beside the target under a hidden name, and replaces the target in one step at the end.
    Unless commit() succeeds, nothing of it is left.
*/
class PendingFile final
{
public:
    /** @throws Failure  if the target can't be a file, or nothing can be written beside it */
    explicit PendingFile (const std::string& targetPath);
    ~PendingFile();

    PendingFile (const PendingFile&) = delete;
    PendingFile& operator= (const PendingFile&) = delete;

    std::int64_t write (const void* data, std::int64_t numBytes);
    std::int64_t read (void* data, std::int64_t numBytes);
    std::int64_t seek (std::int64_t offset, int whence);
    std::int64_t getPosition();
    std::int64_t getLength();

    /** The reason of the first write that failed; empty if all went well. */
    const std::string& getError() const noexcept { return error; }

    /** Brings everything to the disk and renames the file.
        @throws Failure  if that, or any write before, has failed
    */
    void commit();

private:
    void open();
    void noteError();

    const std::string name; ///< as the user gave it
    std::filesystem::path target, temporary;
    std::FILE* file = nullptr;
    std::string error;
};

} // namespace render
