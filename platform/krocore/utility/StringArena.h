#pragma once

#include <krocore/Export.h>

#include <cstddef>
#include <memory>
#include <string_view>

namespace krocore::utility {

struct StringArenaImpl;

/// Stable storage for many texts. Each copy is carved from a large block and
/// stays where it is until Clear or the arena's end, so the views handed out
/// stay valid and no text costs an allocation of its own. A text longer than
/// a quarter block gets a block to itself rather than waste the rest of one.
///
/// Not thread-safe: a user shared between threads (the interner) holds its
/// own lock around it.
class KROCORE_API StringArena {
public:
  static constexpr std::size_t kDefaultBlockSize = 32 * 1024;

  explicit StringArena(std::size_t blockSize = kDefaultBlockSize);
  ~StringArena();
  StringArena(const StringArena&) = delete;
  StringArena& operator=(const StringArena&) = delete;
  /// The texts move with their blocks, so their views stay valid; the arena
  /// moved from may only be assigned to or destroyed.
  StringArena(StringArena&&) noexcept;
  StringArena& operator=(StringArena&&) noexcept;

  /// A copy of `text`; the empty text takes no space.
  std::string_view Copy(std::string_view text);
  /// Uninitialised room for a record that carries its text with it.
  /// `alignment` is a power of two, at most alignof(std::max_align_t).
  void* Allocate(std::size_t bytes, std::size_t alignment);
  /// Gives every block back: every view and record handed out dies.
  void Clear() noexcept;

private:
  std::unique_ptr<StringArenaImpl> mImpl;
};

} // namespace krocore::utility
