#include <zel/appearance/ThemeNameTable.h>

#include <kroui/skins/SkinSetUtilities.h>

#include <gtest/gtest.h>

using ZEL::ThemeNameTable;

namespace {

TEST(ThemeNameTable, LaterEntriesWinAndRolesComeFromTheDefaultSkinSet) {
  namespace skin = kroui::skins::utilities;
  const ThemeNameTable& table = ThemeNameTable::Instance();
  EXPECT_EQ(table.Find("kColor_ListBoxContentHighlighted"), 235u) << "re-entered from the older palette";
  EXPECT_EQ(table.Find("kColor_ListBoxBackgroundHighlighted"), 5000066u);
  EXPECT_EQ(table.Find("kColor_AppBackground"), skin::GetApplicationBackgroundColorID());
  EXPECT_EQ(table.Find("kColor_TabWellEndGradient"), skin::GetContentBackgroundColorID());
  EXPECT_EQ(table.Find("kColor_TextRegular"), skin::GetDefaultTextColorID());
  EXPECT_EQ(table.Find(" \tkColor_RadioButtonTextColor\r"), 12u) << "names are trimmed";
  EXPECT_EQ(table.GetEntries().size(), 139u);
}

TEST(ThemeNameTable, KnowsOnlyItsOwnNames) {
  const ThemeNameTable& table = ThemeNameTable::Instance();
  EXPECT_EQ(table.Find("kColor_Gray_01"), std::nullopt) << "the theme files' name, not the table's";
  EXPECT_EQ(table.Find("kcolor_focus"), std::nullopt);
  EXPECT_EQ(table.Find(""), std::nullopt);
}

} // namespace
