#include <krocore/utility/StringArena.h>
#include <krocore/utility/StringArenaImpl.h>

#include <krocore/debug/Assert.h>

#include <bit>
#include <cstring>

namespace krocore::utility {
namespace {

constexpr std::size_t kMaxAlignment = alignof(std::max_align_t);

// Blocks come from operator new[], which aligns them for any fundamental type.
std::byte* Append(std::vector<std::unique_ptr<std::byte[]>>& blocks, std::size_t bytes) {
  return blocks.emplace_back(std::make_unique_for_overwrite<std::byte[]>(bytes)).get();
}

std::size_t AlignUp(std::size_t offset, std::size_t alignment) { return (offset + alignment - 1) & ~(alignment - 1); }

} // namespace

StringArena::StringArena(std::size_t blockSize)
    : mImpl(std::make_unique<StringArenaImpl>()) {
  mImpl->mBlockSize = blockSize < kMaxAlignment ? kMaxAlignment : blockSize;
}

StringArena::~StringArena() = default;
StringArena::StringArena(StringArena&&) noexcept = default;
StringArena& StringArena::operator=(StringArena&&) noexcept = default;

std::string_view StringArena::Copy(std::string_view text) {
  if (text.empty()) return {};
  auto* copy = static_cast<char*>(Allocate(text.size(), 1));
  std::memcpy(copy, text.data(), text.size());
  return {copy, text.size()};
}

void* StringArena::Allocate(std::size_t bytes, std::size_t alignment) {
  if (!std::has_single_bit(alignment) || alignment > kMaxAlignment) {
    KROCORE_FAIL("StringArena alignment must be a power of two no larger than max_align_t");
    alignment = kMaxAlignment;
  }
  StringArenaImpl& arena = *mImpl;
  if (bytes > arena.mBlockSize / 4) return Append(arena.mLarge, bytes);
  std::size_t offset = AlignUp(arena.mUsed, alignment);
  if (arena.mBlocks.empty() || offset + bytes > arena.mBlockSize) {
    Append(arena.mBlocks, arena.mBlockSize);
    offset = 0;
  }
  arena.mUsed = offset + bytes;
  return arena.mBlocks.back().get() + offset;
}

void StringArena::Clear() noexcept {
  mImpl->mBlocks.clear();
  mImpl->mLarge.clear();
  mImpl->mUsed = 0;
}

} // namespace krocore::utility
