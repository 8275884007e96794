#pragma once

#include <cstddef>
#include <cstring>
#include <ostream>
#include <string>
#include <string_view>

namespace kromediatypes {

/// The text of a formatted time, held in place: formatting a label for every
/// ruler tick or every frame of playback allocates nothing. The longest label
/// of any time in any display (about ten thousand hours, with up to twelve
/// digits of frames at the fastest rate) fits with room.
class TimeText {
public:
  static constexpr std::size_t kCapacity = 31;

  constexpr TimeText() noexcept = default;

  /// Keeps the first kCapacity bytes of a longer text.
  TimeText(const char* text, std::size_t size) noexcept {
    mSize = static_cast<unsigned char>(size < kCapacity ? size : kCapacity);
    if (mSize != 0) std::memcpy(mData, text, mSize);
    mData[mSize] = '\0';
  }
  explicit TimeText(std::string_view text) noexcept : TimeText(text.data(), text.size()) {}

  std::string_view View() const noexcept { return {mData, mSize}; }
  const char* c_str() const noexcept { return mData; }
  std::string ToString() const { return std::string(View()); }
  std::size_t Size() const noexcept { return mSize; }
  bool IsEmpty() const noexcept { return mSize == 0; }

  friend bool operator==(const TimeText& a, const TimeText& b) noexcept { return a.View() == b.View(); }
  friend bool operator==(const TimeText& a, std::string_view b) noexcept { return a.View() == b; }
  friend std::ostream& operator<<(std::ostream& out, const TimeText& text) { return out << text.View(); }

private:
  char mData[kCapacity + 1] = {};
  unsigned char mSize = 0;
};

} // namespace kromediatypes
