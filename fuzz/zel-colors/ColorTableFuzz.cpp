// Colour tables and the lines a host sets come from outside: whatever the
// text, registering and evaluating must end, and formulas stay normalised.
#include <zel/appearance/ColorRegistry.h>
#include <zel/appearance/ColorTableParser.h>
#include <zel/appearance/ThemeResources.h>

#include <krocore/debug/Assert.h>
#include <kroui/theme/Theme.h>

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

// Loops are reported through the assertion handler: count them instead of
// printing one line per input.
bool Prepare() {
  krocore::debug::SetAssertionHandler([](const krocore::debug::AssertionReport&) {});
  return ZEL::ThemeResources::Install().IsSuccess();
}

// Keys are interned for the life of the process: a bounded input keeps the
// run's memory bounded.
constexpr std::size_t kMaxInput = 4096;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const bool sPrepared = Prepare();
  if (!sPrepared) std::abort();
  if (size == 0) return 0;
  kroui::ui::Theme::Get().SetBrightness(data[0] / 255.f);
  const std::string_view text(reinterpret_cast<const char*>(data) + 1, std::min(size - 1, kMaxInput));

  ZEL::ColorRegistry registry; // a fresh registry per input, so inputs do not meet
  registry.RegisterTable(text);
  for (const auto& [key, info] : registry.GetRecords()) {
    if (ZEL::ColorTableParser::NormalizeExpression(info.expression) != info.expression) std::abort();
    if (!ZEL::ColorTableParser::HasColorPrefix(key.View()) || !(info.name == key)) std::abort();
    registry.Get(key);
  }
  registry.InvalidateCache();
  for (const auto& record : registry.GetRecords()) {
    registry.IsReversing();
    registry.Get(record.first);
  }
  return 0;
}
