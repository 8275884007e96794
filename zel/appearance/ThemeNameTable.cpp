#include <zel/appearance/ThemeNameTable.h>

#include <kroui/skins/SkinManager.h>
#include <kroui/skins/SkinSetUtilities.h>
#include <kroui/theme/Theme.h>

#include <cmath>

namespace ZEL {
namespace {

namespace skin = kroui::skins::utilities;
using RoleID = kroui::ui::ColorID (*)() noexcept;

// A name with a fixed ID, or with the ID of a skin-set role.
struct Row {
  const char* name;
  kroui::ui::ColorID id;
  RoleID role;
};

// In order: a name entered twice keeps the later ID. kColor_ListBoxContentHighlighted
// is one such, entered with the current palette's ID and re-entered with the older
// palette's 235, which is the colour it shows.
const Row kRows[] = {
    {"kColor_Gamut_01", 5000001, nullptr},
    {"kColor_Gamut_02", 5000002, nullptr},
    {"kColor_Gamut_03", 5000003, nullptr},
    {"kColor_Gamut_04", 5000004, nullptr},
    {"kColor_Gamut_05", 5000005, nullptr},
    {"kColor_Gamut_06", 5000006, nullptr},
    {"kColor_Gamut_07", 5000007, nullptr},
    {"kColor_Gamut_08", 5000008, nullptr},
    {"kColor_Gamut_09", 5000009, nullptr},
    {"kColor_Gamut_10", 5000010, nullptr},
    {"kColor_Gamut_Blue", 5000011, nullptr},
    {"kColor_ControlDefault", 5000040, nullptr},
    {"kColor_SliderTrackDisabled", 5000055, nullptr},
    {"kColor_ScrollBarTrackDefault", 5000056, nullptr},
    {"kColor_ScrollBarTrackDisabled", 5000057, nullptr},
    {"kColor_ScrollBarThumbDefault", 5000058, nullptr},
    {"kColor_ScrollBarThumbActive", 5000059, nullptr},
    {"kColor_ScrollBarThumbDisabled", 5000060, nullptr},
    {"kColor_ListBackground", 5000064, nullptr},
    {"kColor_ListBorder", 5000065, nullptr},
    {"kColor_ListBoxBackgroundHighlighted", 5000066, nullptr},
    {"kColor_ListBoxContentHighlighted", 5000066, nullptr},
    {"kColor_ListBoxBackgroundSelected", 5000067, nullptr},
    {"kColor_ListBoxBackgroundDefault", 5000068, nullptr},
    {"kColor_TabWell", 5000070, nullptr},
    {"kColor_TabActive", 5000071, nullptr},
    {"kColor_TabInactive", 5000072, nullptr},
    {"kColor_TabWellDivider", 5000073, nullptr},
    {"kColor_TabTextActive", 5000074, nullptr},
    {"kColor_TabTextInactive", 5000075, nullptr},
    {"kColor_TabTextDisabled", 5000076, nullptr},
    {"kColor_TreeDivider", 5000077, nullptr},
    {"kColor_TreeSelected", 5000078, nullptr},
    {"kColor_TreeSelectedDisabled", 5000079, nullptr},
    {"kColor_TreeDrag", 5000080, nullptr},
    {"kColor_TreeMarquee", 5000081, nullptr},

    {"kColor_ApplicationBackground", 0, &skin::GetApplicationBackgroundColorID},
    {"kColor_AppBackground", 0, &skin::GetApplicationBackgroundColorID},
    {"kColor_ContentBackground", 0, &skin::GetContentBackgroundColorID},
    {"kColor_TabBackground", 0, &skin::GetContentBackgroundColorID},
    {"kColor_TabContent", 0, &skin::GetContentBackgroundColorID},
    {"kColor_TabNormalStartGradient", 0, &skin::GetContentBackgroundColorID},
    {"kColor_TabNormalEndGradient", 0, &skin::GetContentBackgroundColorID},
    {"kColor_TabWellStartGradient", 0, &skin::GetContentBackgroundColorID},
    {"kColor_TabWellEndGradient", 0, &skin::GetContentBackgroundColorID},
    {"kColor_Focus", 0, &skin::GetFocusColorID},
    {"kColor_Divider", 0, &skin::GetDividerColorID},
    {"kColor_TextRegular", 0, &skin::GetDefaultTextColorID},

    {"kColor_RadioButtonTextColor", 12, nullptr},
    {"kColor_RadioButtonTextDisabledColor", 13, nullptr},
    {"kColor_ButtonNormalUpInnerFillStartGradient", 29, nullptr},
    {"kColor_ButtonNormalUpInnerFillEndGradient", 30, nullptr},
    {"kColor_ButtonNormalDownInnerFillStartGradient", 31, nullptr},
    {"kColor_ButtonNormalDownInnerFillEndGradient", 32, nullptr},
    {"kColor_ButtonRolloverUpInnerFillStartGradient", 33, nullptr},
    {"kColor_ButtonRolloverUpInnerFillEndGradient", 34, nullptr},
    {"kColor_ButtonRolloverDownInnerFillStartGradient", 35, nullptr},
    {"kColor_ButtonRolloverDownInnerFillEndGradient", 36, nullptr},
    {"kColor_ButtonDisableUpInnerFillStartGradient", 37, nullptr},
    {"kColor_ButtonDisableUpInnerFillEndGradient", 38, nullptr},
    {"kColor_ButtonDisableDownInnerFillStartGradient", 39, nullptr},
    {"kColor_ButtonDisableDownInnerFillEndGradient", 40, nullptr},
    {"kColor_ButtonNormalUpTextColor", 49, nullptr},
    {"kColor_ButtonRolloverUpTextColor", 51, nullptr},
    {"kColor_ButtonDisableUpTextColor", 53, nullptr},
    {"kColor_ButtonDisableDownTextColor", 54, nullptr},
    {"kColor_ButtonDisableShadowTextColor", 56, nullptr},
    {"kColor_SBInnerFillNormal", 125, nullptr},
    {"kColor_SBInnerFillDisabled", 126, nullptr},
    {"kColor_SBButtonInnerFillRolloverStart", 133, nullptr},
    {"kColor_SBButtonInnerFillRolloverEnd", 134, nullptr},
    {"kColor_SBArrowColorNormalStart", 155, nullptr},
    {"kColor_SBArrowColorDisabledStart", 157, nullptr},
    {"kColor_SliderWindowBodyFill", 169, nullptr},
    {"kColor_SliderWindowDisableBodyFill", 170, nullptr},
    {"kColor_DividerLineStroke", 183, nullptr},
    {"kColor_DividerLineBevelStroke", 184, nullptr},
    {"kColor_SliderThumbKnobStartGradient", 185, nullptr},
    {"kColor_SliderThumbKnobEndGradient", 186, nullptr},
    {"kColor_SliderThumbInnerKnobStartGradient", 189, nullptr},
    {"kColor_SliderThumbRolloverInnerKnobStartGradient", 195, nullptr},
    {"kColor_SliderThumbRolloverInnerKnobEndGradient", 196, nullptr},
    {"kColor_SliderThumbKnobOuterShadow", 201, nullptr},
    {"kColor_SliderThumbFocusFill", 207, nullptr},
    {"kColor_HotTextNormalText", 220, nullptr},
    {"kColor_HotTextRolloverText", 221, nullptr},
    {"kColor_HotTextDisableText", 222, nullptr},
    {"kColor_HotTextFocusText", 223, nullptr},
    {"kColor_HotTextLabelDisableText", 229, nullptr},
    {"kColor_HotTextLabelRolloverText", 230, nullptr},
    {"kColor_HotTextLabelNormalText", 231, nullptr},
    {"kColor_ListBoxContentHighlighted", 235, nullptr},
    {"kColor_ListBoxDragInsert", 237, nullptr},
    {"kColor_ListBoxDragBorderHighlightFill", 238, nullptr},
    {"kColor_ListBoxDragBorderHighlightShadow", 239, nullptr},
    {"kColor_ListBoxItemBevel", 240, nullptr},
    {"kColor_ListBoxItemTextNormal", 241, nullptr},
    {"kColor_ListBoxItemTextSelected", 242, nullptr},
    {"kColor_ListBoxItemTextHighlighted", 243, nullptr},
    {"kColor_ListBoxOutline", 5000065, nullptr},
    {"kColor_ListBoxContentNormal", 5000068, nullptr},
    {"kColor_ListBoxContentSelected", 5000067, nullptr},
    {"kColor_ListBoxContentDivider", 5000077, nullptr},
    {"kColor_MultiTreeHeaderOutlineGradientStart", 247, nullptr},
    {"kColor_MultiTreeHeaderOutlineGradientEnd", 248, nullptr},
    {"kColor_MultiTreeHeaderFillGradientStart", 249, nullptr},
    {"kColor_MultiTreeHeaderFillGradientEnd", 250, nullptr},
    {"kColor_MultiTreeHeaderSeparatorLine", 251, nullptr},
    {"kColor_MultiTreeHeaderSeparatorLineBevel", 252, nullptr},
    {"kColor_LevelMeterOutlineGradientStart", 257, nullptr},
    {"kColor_LevelMeterBackgroundFill", 259, nullptr},
    {"kColor_LevelMeterShadow", 260, nullptr},
    {"kColor_LevelMeterHighlight", 261, nullptr},
    {"kColor_LevelMeterNormalGradientStart", 262, nullptr},
    {"kColor_LevelMeterWarningGradientStart", 264, nullptr},
    {"kColor_LevelMeterCautionFill", 266, nullptr},
    {"kColor_ProgressBarEmptyFill", 274, nullptr},
    {"kColor_ProgressBarProgressFillGradientStart", 275, nullptr},
    {"kColor_TextEditNormalBackground", 278, nullptr},
    {"kColor_TextEditDisableBackground", 279, nullptr},
    {"kColor_TextEditNormalText", 280, nullptr},
    {"kColor_TextEditDisableText", 281, nullptr},
    {"kColor_StaticTextNormalText", 282, nullptr},
    {"kColor_StaticTextDisableText", 283, nullptr},
    {"kColor_TabNormalText", 284, nullptr},
    {"kColor_TabNormalStroke", 284, nullptr},
    {"kColor_TabDeactiveText", 287, nullptr},
    {"kColor_TabDeactiveStroke", 287, nullptr},
    {"kColor_TabDeactiveStartGradient", 288, nullptr},
    {"kColor_TabDeactiveEndGradient", 289, nullptr},
    {"kColor_TabFocusedStroke", 290, nullptr},
    {"kColor_ToolBarWellStartGradient", 295, nullptr},
    {"kColor_ToolBarWellEndGradient", 296, nullptr},
    {"kColor_ToolBarContentStartGradient", 297, nullptr},
    {"kColor_ToolBarContentEndGradient", 298, nullptr},
    {"kColor_GroupBox1TopStroke", 299, nullptr},
    {"kColor_GroupBox1BottomStroke", 300, nullptr},
    {"kColor_GroupBox2CaptionFill", 301, nullptr},
    {"kColor_GroupBox2ContentFill", 302, nullptr},
    {"kColor_TextOnDarkBackground", 303, nullptr},
};

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\n\v\f\r") - first + 1);
}

unsigned char ToChannel(float x) {
  const float scaled = std::floor(x * 255.f + 0.5f);
  if (!(scaled > 0.f)) return 0; // also NaN
  return scaled >= 255.f ? 255 : static_cast<unsigned char>(scaled);
}

ColorManager::Color ToColor(const kroui::drawbot::ColorRGBA& rgba) {
  return {ToChannel(rgba.red), ToChannel(rgba.green), ToChannel(rgba.blue)};
}

} // namespace

ThemeNameTable::ThemeNameTable() {
  for (const Row& row : kRows) mEntries.insert_or_assign(row.name, row.role ? row.role() : row.id);
}

const ThemeNameTable& ThemeNameTable::Instance() {
  static const ThemeNameTable sTable; // a thread-safe one-time construction
  return sTable;
}

std::optional<kroui::ui::ColorID> ThemeNameTable::Find(std::string_view name) const {
  const auto found = mEntries.find(Trim(name));
  if (found == mEntries.end()) return std::nullopt;
  return found->second;
}

ColorManager::Color ThemeNameTable::Resolve(std::string_view name) {
  constexpr kroui::drawbot::ColorRGBA kRed{1.f, 0.f, 0.f, 1.f};
  if (kroui::skins::core::SkinManager::GetSkinVersion() > 6)
    return ToColor(kroui::skins::utilities::GetColorByName(name).value_or(kRed));
  const auto id = Instance().Find(name);
  return ToColor(id ? kroui::ui::GetColor(*id) : kRed);
}

} // namespace ZEL
