#include <kroui/skins/SkinSetUtilities.h>

#include <kroui/theme/Theme.h>

namespace kroui::skins::utilities {
namespace {

// The roles in the version 5 palette (the numbers of the theme files' entities).
constexpr ui::ColorID kApplicationBackground = 5000012;
constexpr ui::ColorID kContentBackground = 5000013;
constexpr ui::ColorID kFocus = 5000014;
constexpr ui::ColorID kDivider = 5000015;
constexpr ui::ColorID kTextRegular = 5000016;

} // namespace

ui::ColorID GetApplicationBackgroundColorID() noexcept { return kApplicationBackground; }
ui::ColorID GetContentBackgroundColorID() noexcept { return kContentBackground; }
ui::ColorID GetFocusColorID() noexcept { return kFocus; }
ui::ColorID GetDividerColorID() noexcept { return kDivider; }
ui::ColorID GetDefaultTextColorID() noexcept { return kTextRegular; }

std::optional<drawbot::ColorRGBA> GetColorByName(std::string_view name) {
  const ui::Theme& theme = ui::Theme::Get();
  const auto id = theme.FindColorID(name);
  if (!id) return std::nullopt;
  return theme.GetColor(*id);
}

} // namespace kroui::skins::utilities
