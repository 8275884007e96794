#pragma once

// Private to StringArena: the blocks that texts are carved from.

#include <cstddef>
#include <memory>
#include <vector>

namespace krocore::utility {

struct StringArenaImpl {
  std::size_t mBlockSize = 0;
  std::vector<std::unique_ptr<std::byte[]>> mBlocks; ///< the last one is being filled
  std::vector<std::unique_ptr<std::byte[]>> mLarge;  ///< one text each
  std::size_t mUsed = 0;                             ///< bytes taken from the last block
};

} // namespace krocore::utility
