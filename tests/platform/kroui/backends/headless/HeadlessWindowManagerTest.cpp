#include <kroui/base/OS_Event.h>

#include <HeadlessFixture.h>

#include <gtest/gtest.h>

namespace {

using namespace kroui::backend;
using Type = kroui::ui::OS_Event::Type;

class HeadlessWindowManager : public kroui::testing::HeadlessFixture<> {
protected:
  HWND Make(HWND owner = nullptr, WindowStyle style = kWindowStyle_Normal) {
    WindowDescription description;
    description.bounds = {0, 0, 100, 100};
    description.style = style;
    description.owner = owner;
    return Headless().CreateNativeWindow(description);
  }
  std::vector<Type> TakeTypes() {
    std::vector<Type> types;
    kroui::ui::OS_Event event;
    while (Headless().WaitForEvent(event, 0) == WaitResult::Event) types.push_back(event.type);
    return types;
  }
};

TEST_F(HeadlessWindowManager, TheWindowsAreListedTopFirstTopmostAboveTheRest) {
  HWND first = Make();
  HWND pinned = Make(nullptr, kWindowStyle_Topmost);
  HWND second = Make();
  EXPECT_EQ(Headless().GetTopLevelWindows(), (std::vector<HWND>{pinned, second, first}));
  Headless().ShowNativeWindow(first, true, false); // showing raises
  EXPECT_EQ(Headless().GetTopLevelWindows(), (std::vector<HWND>{pinned, first, second}));
  Headless().CreateChildSurface(first, {0, 0, 5, 5}, false);
  Headless().DestroyNativeWindow(second);
  EXPECT_EQ(Headless().GetTopLevelWindows(), (std::vector<HWND>{pinned, first})) << "no surface, nothing gone";
}

TEST_F(HeadlessWindowManager, AnOwnerIsNamedOnlyWhileItLives) {
  HWND owner = Make();
  HWND owned = Make(owner);
  HWND ownedByOwned = Make(owned);
  EXPECT_EQ(Headless().GetNativeWindowOwner(owned), owner);
  EXPECT_EQ(Headless().GetNativeWindowOwner(ownedByOwned), owned) << "the direct owner only";
  EXPECT_EQ(Headless().GetNativeWindowOwner(owner), nullptr);
  Headless().DestroyNativeWindow(owner);
  EXPECT_EQ(Headless().GetNativeWindowOwner(owned), nullptr);
  EXPECT_EQ(Headless().GetNativeWindowOwner(owner), nullptr) << "a stale handle";
}

TEST_F(HeadlessWindowManager, RestoringUnminimisesRaisesAndActivatesUnlessTheStyleSaysNot) {
  HWND main = Make();
  HWND palette = Make(nullptr, kWindowStyle_Tool | kWindowStyle_NoActivate);
  Headless().ShowNativeWindow(main, true, true);
  Headless().ShowNativeWindow(palette, true, false);
  Headless().MinimizeNativeWindow(main);
  Headless().MinimizeNativeWindow(palette);
  TakeTypes();
  EXPECT_TRUE(Headless().IsNativeWindowMinimized(main));

  Headless().RestoreNativeWindow(palette);
  EXPECT_FALSE(Headless().IsNativeWindowMinimized(palette));
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), nullptr);
  Headless().RestoreNativeWindow(main);
  EXPECT_FALSE(Headless().IsNativeWindowMinimized(main));
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), main);
  EXPECT_EQ(Headless().GetTopLevelWindows().front(), main);
  EXPECT_EQ(TakeTypes(), std::vector<Type>{Type::WindowFocusIn});

  Headless().ShowNativeWindow(palette, true, false); // above main now
  Headless().RestoreNativeWindow(main);
  EXPECT_EQ(Headless().GetTopLevelWindows().front(), palette) << "a window that is not minimised stays where it is";
}

TEST_F(HeadlessWindowManager, EnabledStateFollowsTheStyleAndAStaleHandleIsNeither) {
  HWND window = Make();
  HWND disabled = Make(nullptr, kWindowStyle_Disabled);
  EXPECT_TRUE(Headless().IsNativeWindowEnabled(window));
  EXPECT_FALSE(Headless().IsNativeWindowEnabled(disabled));
  Headless().SetNativeWindowEnabled(window, false);
  Headless().SetNativeWindowEnabled(disabled, true);
  EXPECT_FALSE(Headless().IsNativeWindowEnabled(window));
  EXPECT_TRUE(Headless().IsNativeWindowEnabled(disabled));
  Headless().DestroyNativeWindow(disabled);
  EXPECT_FALSE(Headless().IsNativeWindowEnabled(disabled));
  EXPECT_FALSE(Headless().IsNativeWindowMinimized(disabled));
  Headless().RestoreNativeWindow(disabled);
}

} // namespace
