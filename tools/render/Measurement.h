// Level, peak and brightness of a file.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace render
{

/** What the ear notices first, in three figures. */
struct Measurement
{
    double rmsDb = 0.0;      ///< over all samples and channels, dBFS; minus infinity for silence
    double peakDb = 0.0;     ///< the loudest sample, dBFS; minus infinity for silence
    double centroidHz = 0.0; ///< mean frequency, weighted by power; 0 for silence

    /** "rms_db peak_db centroid_hz"; minus infinity is "-inf". */
    std::string toString() const;
};

/** Measures a file of any number of channels in constant memory.
    @throws Failure  if it can't be read, or holds samples that are no finite numbers
*/
Measurement measureFile (const std::string& path);

} // namespace render
