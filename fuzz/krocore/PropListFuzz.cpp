// Property-list text (JSON) comes from files a user can damage: reading any
// bytes must fail cleanly or give a list whose text form reads back to an
// equal list with the same text.
#include <krocore/proplist/PropList.h>

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  auto read = krocore::proplist::PropList::FromText(text);
  if (!read) {
    if (read.Error().empty()) std::abort();
    return 0;
  }
  const std::string written = read.Value().ToText();
  auto again = krocore::proplist::PropList::FromText(written);
  if (!again || again.Value() != read.Value() || again.Value().ToText() != written) std::abort();
  return 0;
}
