#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace kroui::ui {

/// A theme colour's number, as the theme files' entities give it (5000013).
using ColorID = std::uint64_t;

/// One colour of one ID at one brightness position, in HSV with alpha.
/// A key frame of a "General" theme does not follow the brightness.
struct KeyFrame {
  ColorID name = 0; ///< the colour ID, as the attribute is called
  float t = 0.f;    ///< the brightness position
  float v = 0.f;
  float h = 0.f; ///< degrees
  float s = 0.f;
  float a = 1.f;
  bool hold = false; ///< keep this value up to the next key frame instead of blending towards it
  bool general = false;

  bool operator==(const KeyFrame&) const noexcept = default;
};

/// The text of a font size entry: which text it sizes.
enum class FontText : std::uint8_t { MainLarge = 0, MainSmall = 1, Title = 2 };
enum class FontScheme : std::uint8_t { Small = 0, Regular = 1, Large = 2 };

struct FontSize {
  FontText name = FontText::MainLarge;
  float size = 0.f; ///< points
  FontScheme scheme = FontScheme::Regular;

  bool operator==(const FontSize&) const noexcept = default;
};

/// A number the theme gives a control (an opacity, a size).
struct ThemeValue {
  ColorID name = 0; ///< the value's ID
  double v = 0.0;

  bool operator==(const ThemeValue&) const noexcept = default;
};

/// Everything one theme file says, in document order.
struct ThemeDocument {
  std::vector<KeyFrame> keyFrames;
  std::vector<FontSize> fontSizes;
  std::vector<ThemeValue> values;
  /// The general entities of the inline DTD, name and replacement text, so
  /// that colours can also be found by the names the file gives them.
  std::vector<std::pair<std::string, std::string>> entities;
};

} // namespace kroui::ui
