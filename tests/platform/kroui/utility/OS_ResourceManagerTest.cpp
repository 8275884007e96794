#include <kroui/utility/OS_ResourceManager.h>

#include "ui/NodeTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace {

using kroui::ui::SystemCursor;
using kroui::utility::CursorMode;
using kroui::utility::OS_ResourceManager;

class OS_ResourceManagerTest : public kroui::testing::WindowFixture<> {
protected:
  void MoveTo(int x) {
    Headless().MoveMouseTo(window->GetNativeWindow(), {x, 50});
    Pump();
  }
  bool IsShown() {
    EXPECT_EQ(OS_ResourceManager::IsPlatformCursorShown(), Headless().IsCursorVisible());
    return Headless().IsCursorVisible();
  }

  OS_ResourceManager manager;
  kroui::ui::UI_Window* window = nullptr;
};

TEST_F(OS_ResourceManagerTest, KnowsTheSystemsCursorsAndThePlatformsOwn) {
  std::vector<std::int32_t> expected{0, 1, 2, 3, 4, 5, 6};
  for (std::int32_t id = 10; id <= 23; ++id) expected.push_back(id);
  EXPECT_EQ(manager.GetCursorIDs(), expected);
  EXPECT_EQ(manager.GetCursor(OS_ResourceManager::kOSArrow), nullptr) << "the system's arrow";

  const std::map<std::int32_t, SystemCursor> shapes{{1, SystemCursor::IBeam}, {2, SystemCursor::Wait},
                                                    {3, SystemCursor::Cross}, {4, SystemCursor::NoDrop},
                                                    {5, SystemCursor::Copy},  {6, SystemCursor::Link}};
  std::vector<kroui::drawbot::Image> seen;
  for (std::int32_t id : expected) {
    if (id == OS_ResourceManager::kOSArrow) continue;
    SCOPED_TRACE(id);
    const kroui::ui::CursorPtr cursor = manager.GetCursor(id);
    ASSERT_NE(cursor, nullptr);
    const auto& image = cursor->GetImage();
    EXPECT_EQ(image.GetWidth(), 32);
    EXPECT_EQ(image.GetHeight(), 32);
    EXPECT_EQ(image.PixelAt(cursor->GetHotSpot().x, cursor->GetHotSpot().y), 0xFF000000u)
        << "the hot spot is inked";
    EXPECT_EQ(cursor->GetSystemShape(), shapes.contains(id) ? shapes.at(id) : SystemCursor::None);
    const bool isNew = std::none_of(seen.begin(), seen.end(), [&](const auto& other) {
      return std::equal(other.Pixels(), other.Pixels() + 32 * 32, image.Pixels());
    });
    EXPECT_TRUE(isNew) << "each cursor has a picture of its own";
    seen.push_back(image);
  }
}

TEST_F(OS_ResourceManagerTest, SettingACursorShowsItThroughTheBackend) {
  manager.SetCursor(OS_ResourceManager::kHand, CursorMode::Keep);
  EXPECT_EQ(Headless().GetCurrentCursor(), manager.GetCursor(OS_ResourceManager::kHand));
  manager.SetCursor(OS_ResourceManager::kOSArrow, CursorMode::Keep);
  EXPECT_EQ(Headless().GetCurrentCursor(), nullptr);
}

TEST_F(OS_ResourceManagerTest, CountedHidesNestAndAnUncountedShowEndsThemAll) {
  OS_ResourceManager::ShowPlatformCursor(false, true, false);
  OS_ResourceManager::ShowPlatformCursor(false, true, false);
  EXPECT_FALSE(IsShown());
  OS_ResourceManager::ShowPlatformCursor(true, true, false);
  EXPECT_FALSE(IsShown()) << "one hide is still outstanding";
  OS_ResourceManager::ShowPlatformCursor(true, true, false);
  EXPECT_TRUE(IsShown());
  OS_ResourceManager::ShowPlatformCursor(true, true, false);
  OS_ResourceManager::ShowPlatformCursor(false, true, false);
  EXPECT_FALSE(IsShown()) << "a show too many is not saved up";

  OS_ResourceManager::ShowPlatformCursor(false, true, false);
  OS_ResourceManager::ShowPlatformCursor(true, false, false);
  EXPECT_TRUE(IsShown());
  OS_ResourceManager::ShowPlatformCursor(false, false, false);
  OS_ResourceManager::ShowPlatformCursor(false, false, false);
  OS_ResourceManager::ShowPlatformCursor(true, true, false);
  EXPECT_TRUE(IsShown()) << "uncounted hides do not nest";
}

TEST_F(OS_ResourceManagerTest, AHideUntilThePointerMovesEndsAtTheNextMove) {
  window = &MakeWindow();
  OS_ResourceManager::ShowPlatformCursor(false, false, true);
  EXPECT_FALSE(IsShown());
  MoveTo(30);
  EXPECT_TRUE(IsShown());

  OS_ResourceManager::ShowPlatformCursor(false, true, false);
  OS_ResourceManager::ShowPlatformCursor(false, false, true);
  MoveTo(40);
  EXPECT_FALSE(IsShown()) << "a counted hide outlasts the move";
}

TEST_F(OS_ResourceManagerTest, ANewBackendShowsThePointer) {
  OS_ResourceManager::ShowPlatformCursor(false, true, false);
  kroui::backend::HeadlessBackend& fresh = kroui::backend::HeadlessBackend::Install();
  EXPECT_TRUE(OS_ResourceManager::IsPlatformCursorShown());
  EXPECT_TRUE(fresh.IsCursorVisible());
}

} // namespace
