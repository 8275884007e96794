// Draws every colour of the registry's tables at brightness 0, 0.25, 0.5 and
// 1 into one PNG, grouped by key family ("colors.kls.kro.Value" holds
// colors.kls.kro.Value.0 to .11), so that a palette change can be judged by eye:
//
//   colors.kls.Formula
//     A95   [0][.25][.5][1]     A90   [0][.25][.5][1]     A   [0][.25][.5][1]
//     ...
#include <zel/appearance/ColorManager.h>
#include <zel/appearance/ColorTableParser.h>
#include <zel/appearance/ThemeResources.h>

#include <krocore/resources/ModuleResources.h>
#include <kroui/drawbot/RasterSurface.h>
#include <kroui/theme/Theme.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

using kroui::drawbot::ColorRGBA;
using kroui::drawbot::Drawbot;
using kroui::drawbot::RectF;
using ZEL::ColorManager;

constexpr std::array<float, 4> kBrightness = {0.f, 0.25f, 0.5f, 1.f};
constexpr int kColumns = 3;
constexpr float kMargin = 16.f, kRowHeight = 22.f, kHeaderHeight = 30.f;
constexpr float kLabelWidth = 210.f, kSwatchWidth = 40.f, kSwatchGap = 4.f, kColumnGap = 24.f;
constexpr float kEntryWidth = kLabelWidth + 4 * (kSwatchWidth + kSwatchGap) + kColumnGap;
constexpr ColorRGBA kPage{0.16f, 0.16f, 0.16f, 1.f};
constexpr ColorRGBA kInk{0.85f, 0.85f, 0.85f, 1.f};
constexpr ColorRGBA kFaintInk{0.6f, 0.6f, 0.6f, 1.f};

struct Entry {
  std::string name; // the key after its family
  std::array<ColorRGBA, kBrightness.size()> colors;
};

using Families = std::map<std::string, std::vector<Entry>>;

std::vector<std::string> TableKeys() {
  std::vector<std::string> keys;
  for (const auto* table : {u"zelcolors", u"appcolors"}) {
    const auto text = krocore::utility::GetBinaryFromModule(ZEL::ThemeResources::kModule,
                                                            ZEL::ThemeResources::kTableType, table);
    ZEL::ColorTableParser::ForEachLine(text.AsText(), [&](std::string_view line) {
      if (auto parsed = ZEL::ColorTableParser::ParseLine(line)) keys.push_back(parsed->key);
    });
  }
  return keys;
}

std::size_t Depth(std::string_view key) {
  return static_cast<std::size_t>(std::count(key.begin(), key.end(), '.'));
}

// A key's family is the key without its last part ("colors.kls.kro.Value.4" is
// in "colors.kls.kro.Value"); a family of fewer than kMinFamily keys joins its
// parent, deepest first, so that colors.kls.kro.Value.4.Unblended stands with
// the Value ramp and colors.kls.dark.gray with the other colors.kls greys.
std::vector<std::string> FamiliesOf(const std::vector<std::string>& keys) {
  constexpr std::size_t kMinFamily = 3;
  std::vector<std::string> families;
  std::map<std::string, std::size_t> sizes;
  std::size_t deepest = 0;
  for (const std::string& key : keys) {
    ++sizes[families.emplace_back(key.substr(0, key.rfind('.')))];
    deepest = std::max(deepest, Depth(families.back()));
  }
  for (std::size_t depth = deepest; depth >= 1; --depth) {
    for (std::string& family : families) {
      if (Depth(family) != depth || sizes[family] >= kMinFamily) continue;
      --sizes[family];
      family.resize(family.rfind('.'));
      ++sizes[family];
    }
  }
  return families;
}

Families Evaluate(const std::vector<std::string>& keys) {
  Families families;
  const std::vector<std::string> familyOfKey = FamiliesOf(keys);
  for (std::size_t i = 0; i < keys.size(); ++i)
    families[familyOfKey[i]].push_back(Entry{keys[i].substr(familyOfKey[i].size() + 1), {}});
  for (std::size_t level = 0; level < kBrightness.size(); ++level) {
    kroui::ui::Theme::Get().SetBrightness(kBrightness[level]); // a theme change: the cache empties
    for (auto& [family, entries] : families)
      for (Entry& entry : entries)
        entry.colors[level] = ColorManager::GetColorRGBA(ColorManager::Key(family + "." + entry.name));
  }
  return families;
}

float SheetHeight(const Families& families) {
  float height = 2 * kMargin + 2 * kHeaderHeight;
  for (const auto& [family, entries] : families)
    height += kHeaderHeight + kRowHeight * static_cast<float>((entries.size() + kColumns - 1) / kColumns);
  return height;
}

// The title, then the brightness of each swatch column.
float DrawLegend(Drawbot& drawbot, float y) {
  drawbot.DrawText("Colour registry at brightness 0, 0.25, 0.5 and 1", {}, kInk,
                   {kMargin, y, 900.f, kHeaderHeight});
  y += kHeaderHeight;
  for (int column = 0; column < kColumns; ++column) {
    float x = kMargin + static_cast<float>(column) * kEntryWidth + kLabelWidth;
    for (const char* label : {"0", ".25", ".5", "1"}) {
      drawbot.DrawText(label, {}, kFaintInk, {x, y, kSwatchWidth, kHeaderHeight},
                       kroui::drawbot::HorizontalAlignment::Center);
      x += kSwatchWidth + kSwatchGap;
    }
  }
  return y + kHeaderHeight;
}

void DrawEntry(Drawbot& drawbot, const Entry& entry, float x, float y) {
  drawbot.DrawText(entry.name, {}, kInk, {x + 12.f, y, kLabelWidth - 12.f, kRowHeight});
  x += kLabelWidth;
  for (const ColorRGBA& color : entry.colors) {
    const RectF swatch{x, y + 2.f, kSwatchWidth, kRowHeight - 4.f};
    drawbot.FillRect(swatch, color);
    drawbot.StrokeRect(swatch, {0.f, 0.f, 0.f, 1.f});
    x += kSwatchWidth + kSwatchGap;
  }
}

float DrawFamily(Drawbot& drawbot, const std::string& family, const std::vector<Entry>& entries, float y) {
  drawbot.DrawText(family, {}, kInk, {kMargin, y + 8.f, 900.f, kHeaderHeight - 8.f});
  y += kHeaderHeight;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const auto column = static_cast<float>(i % kColumns);
    DrawEntry(drawbot, entries[i], kMargin + column * kEntryWidth, y);
    if (i % kColumns == kColumns - 1 || i + 1 == entries.size()) y += kRowHeight;
  }
  return y;
}

int WriteSheet(const Families& families, const char* path) {
  kroui::drawbot::RasterSurface surface(static_cast<int>(2 * kMargin + kColumns * kEntryWidth),
                                        static_cast<int>(SheetHeight(families)));
  surface.Clear(kPage);
  Drawbot& drawbot = surface.BeginDrawing();
  float y = DrawLegend(drawbot, kMargin);
  for (const auto& [family, entries] : families) y = DrawFamily(drawbot, family, entries, y);
  surface.EndDrawing();
  const auto written = surface.WritePNG(path);
  if (!written) std::fprintf(stderr, "zel_color_sheet: %s\n", written.Error().c_str());
  return written ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
  const char* path = argc > 1 ? argv[1] : "color-sheet.png";
  const auto installed = ZEL::ThemeResources::Install();
  if (!installed) {
    std::fprintf(stderr, "zel_color_sheet: %s\n", installed.Error().c_str());
    return 1;
  }
  ColorManager::Initialize();
  const int status = WriteSheet(Evaluate(TableKeys()), path);
  ColorManager::Terminate();
  return status;
}
