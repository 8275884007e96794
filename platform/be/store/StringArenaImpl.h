#pragma once

// Private to the property store: where the texts of a tree's keys and strings
// live, so that the tree holds views and makes no allocation per text.

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace BE::detail {

/// Copies texts into large blocks. A copy stays where it is until Clear, so
/// the views handed out stay valid while the arena lives.
class StringArena {
public:
  std::string_view Copy(std::string_view text);
  void Clear();

private:
  static constexpr std::size_t kBlockSize = 32 * 1024;

  char* Allocate(std::size_t size);

  std::vector<std::unique_ptr<char[]>> mBlocks;
  std::vector<std::unique_ptr<char[]>> mLarge;
  std::size_t mUsed = kBlockSize;
};

} // namespace BE::detail
