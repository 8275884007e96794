#include <kroui/base/KeyTable.h>

#include <array>
#include <cstddef>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace kroui::ui {
namespace {

#define KROUI_KEY_ROW(identifier, virtualKey, traits, displayName) \
  KeyInfo{kKey_##identifier, #identifier, displayName, static_cast<std::uint8_t>(traits)},
constexpr KeyInfo kKeys[] = {KROUI_ENUMERATE_KEYS(KROUI_KEY_ROW)};
#undef KROUI_KEY_ROW

constexpr std::size_t kKeyCount = std::size(kKeys);
constexpr std::size_t kIndexSize = 0x100;
static_assert(kKeyCount < 0xFF, "the index below holds row numbers in a byte");

// Row number + 1 per virtual key, one index for codes without the extended
// bit and one for codes with it; 0 where no row is.
using KeyIndex = std::array<std::uint8_t, kIndexSize>;

constexpr KeyIndex BuildIndex(bool extended) {
  KeyIndex index{};
  for (std::size_t row = 0; row < kKeyCount; ++row) {
    const KeyboardCode code = kKeys[row].code;
    if (code.IsExtended() == extended) index[code.GetControlCode(false)] = static_cast<std::uint8_t>(row + 1);
  }
  return index;
}

constexpr KeyIndex kPlainIndex = BuildIndex(false);
constexpr KeyIndex kExtendedIndex = BuildIndex(true);

constexpr bool RowsAreDistinctAndIndexable() {
  for (std::size_t row = 0; row < kKeyCount; ++row) {
    if (kKeys[row].code.GetControlCode(false) >= kIndexSize) return false;
    for (std::size_t other = row + 1; other < kKeyCount; ++other) {
      if (kKeys[row].code == kKeys[other].code) return false;
    }
  }
  return true;
}
static_assert(RowsAreDistinctAndIndexable(), "two rows of the key list name one code, or a key is past 0xFF");

const KeyInfo* RowAt(std::uint8_t rowPlusOne) noexcept {
  return rowPlusOne == 0 ? nullptr : &kKeys[rowPlusOne - 1];
}

#if defined(_WIN32)
// The numbering is Windows' own; these hold the list to it where the OS can say.
static_assert(kKey_Left.GetControlCode(false) == VK_LEFT && kKey_NumDivide.GetControlCode(false) == VK_DIVIDE);
static_assert(kKey_F24.GetControlCode(false) == VK_F24 && kKey_Quote.GetControlCode(false) == VK_OEM_7);
static_assert(kKey_RightAlt.GetControlCode(false) == VK_RMENU && kKey_Menu.GetControlCode(false) == VK_APPS);
#endif

} // namespace

std::span<const KeyInfo> GetKeyTable() noexcept { return kKeys; }

const KeyInfo* FindKey(KeyboardCode code) noexcept {
  const std::uint32_t virtualKey = code.GetControlCode(false);
  if (virtualKey == 0 || virtualKey >= kIndexSize) return nullptr;
  if (code.IsExtended() && kExtendedIndex[virtualKey] != 0) return RowAt(kExtendedIndex[virtualKey]);
  if (kPlainIndex[virtualKey] != 0) return RowAt(kPlainIndex[virtualKey]);
  return RowAt(kExtendedIndex[virtualKey]);
}

} // namespace kroui::ui
