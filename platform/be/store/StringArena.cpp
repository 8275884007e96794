#include <be/store/StringArenaImpl.h>

#include <cstring>

namespace BE::detail {

std::string_view StringArena::Copy(std::string_view text) {
  if (text.empty()) return {};
  char* copy = Allocate(text.size());
  std::memcpy(copy, text.data(), text.size());
  return {copy, text.size()};
}

void StringArena::Clear() {
  mBlocks.clear();
  mLarge.clear();
  mUsed = kBlockSize;
}

char* StringArena::Allocate(std::size_t size) {
  // A long text gets a block of its own rather than wasting the rest of one.
  if (size > kBlockSize / 4) return mLarge.emplace_back(std::make_unique_for_overwrite<char[]>(size)).get();
  if (mUsed + size > kBlockSize) {
    mBlocks.push_back(std::make_unique_for_overwrite<char[]>(kBlockSize));
    mUsed = 0;
  }
  char* memory = mBlocks.back().get() + mUsed;
  mUsed += size;
  return memory;
}

} // namespace BE::detail
