// A stretch of a block that the chain takes in one go.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zembra
{

/** A part of a block. Whatever glides in a block does so in its first chunk, of at most 256 samples;
    a modulated block consists of such chunks only.
*/
struct Chunk
{
    int start;       ///< first sample in the block
    int length;      ///< samples
    int blockLength; ///< samples of the whole block

    bool isFirst() const noexcept { return start == 0; }
};

} // namespace zembra
