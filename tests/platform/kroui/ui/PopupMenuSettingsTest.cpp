#include <kroui/ui/PopupMenuSettings.h>

#include <gtest/gtest.h>

TEST(PopupMenuSettings, DefaultCheckStyleIsOffUntilTurnedOn) {
  EXPECT_FALSE(kroui::ui::IsPopupMenuDefaultCheckStyleOn());
  kroui::ui::SetPopupMenuDefaultCheckStyle(true);
  EXPECT_TRUE(kroui::ui::IsPopupMenuDefaultCheckStyleOn());
  kroui::ui::SetPopupMenuDefaultCheckStyle(false);
  EXPECT_FALSE(kroui::ui::IsPopupMenuDefaultCheckStyleOn());
}
