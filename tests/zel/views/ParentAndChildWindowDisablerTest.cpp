#include "ViewTestSupport.h"

#include <zel/views/ParentAndChildWindowDisabler.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace {

using Strings = std::vector<std::string>;
using ZEL::Windows::ParentAndChildWindowDisabler;
using kroui::backend::WindowDescription;

// The main window of the fixture, a palette of kroui and a window of another
// toolkit (known to the backend only) that the main window owns, a window
// the palette owns, and a window nobody owns.
class ParentAndChildWindowDisablerTest : public ZELTest::ViewFixture<> {
protected:
  void SetUp() override {
    ViewFixture::SetUp();
    main = Window().GetNativeWindow();
    palette = std::make_unique<kroui::ui::UI_Window>(Owned("palette", main));
    palette->Show(false);
    foreign = Headless().CreateNativeWindow(Owned("foreign", main));
    ownedByPalette = std::make_unique<kroui::ui::UI_Window>(Owned("sub", palette->GetNativeWindow()));
    unowned = std::make_unique<kroui::ui::UI_Window>(Owned("unowned", nullptr));
  }
  void TearDown() override {
    palette.reset();
    ownedByPalette.reset();
    unowned.reset();
    ViewFixture::TearDown();
  }

  static WindowDescription Owned(std::string title, HWND owner) {
    WindowDescription description{std::move(title), {500, 500, 600, 600}};
    description.owner = owner;
    return description;
  }
  bool IsEnabled(HWND window) { return Headless().IsNativeWindowEnabled(window); }
  /// Which of main, palette, foreign, ownedByPalette and unowned are enabled, as "mpfou" with "-" for disabled.
  std::string Enabled() {
    const HWND windows[] = {main, palette->GetNativeWindow(), foreign, ownedByPalette->GetNativeWindow(),
                            unowned->GetNativeWindow()};
    std::string letters = "mpfou";
    for (std::size_t i = 0; i < letters.size(); ++i) {
      if (!IsEnabled(windows[i])) letters[i] = '-';
    }
    return letters;
  }

  HWND main = nullptr;
  std::unique_ptr<kroui::ui::UI_Window> palette;
  HWND foreign = nullptr;
  std::unique_ptr<kroui::ui::UI_Window> ownedByPalette;
  std::unique_ptr<kroui::ui::UI_Window> unowned;
};

TEST_F(ParentAndChildWindowDisablerTest, DisablesTheParentAndTheWindowsItOwnsThenEnablesThemAgain) {
  auto view = Add(root, "view", {0, 0, 100, 100});
  TakeLog();
  {
    ParentAndChildWindowDisabler disabler(main, true);
    EXPECT_EQ(Enabled(), "---ou") << "the windows the parent owns itself, no others";
    EXPECT_FALSE(Window().IsEnabled()) << "a window of kroui through its UI_Window";
    EXPECT_FALSE(palette->IsEnabled());
    MoveTo(10, 10);
    Headless().Click();
    Pump();
    EXPECT_TRUE(TakeLog().empty()) << "the parent takes no input";
  }
  EXPECT_EQ(Enabled(), "mpfou");
  EXPECT_TRUE(Window().IsEnabled());
  EXPECT_TRUE(palette->IsEnabled());
  Headless().AdvanceClock(1000); // a click of its own, not the second of a double click
  Headless().Click();
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{"view.LeftDown@10,10", "view.LeftUp@10,10"}));
}

TEST_F(ParentAndChildWindowDisablerTest, WindowsDisabledBeforeStayDisabled) {
  palette->SetEnabled(false);
  Headless().SetNativeWindowEnabled(foreign, false);
  { ParentAndChildWindowDisabler disabler(main, true); }
  EXPECT_EQ(Enabled(), "m--ou");

  Window().SetEnabled(false);
  { ParentAndChildWindowDisabler disabler(main, true); }
  EXPECT_EQ(Enabled(), "---ou") << "a parent disabled before stays so";
}

TEST_F(ParentAndChildWindowDisablerTest, OwnedWindowsAreLeftAloneWhenNotAskedFor) {
  {
    ParentAndChildWindowDisabler disabler(main, false);
    EXPECT_EQ(Enabled(), "-pfou");
  }
  EXPECT_EQ(Enabled(), "mpfou");
}

TEST_F(ParentAndChildWindowDisablerTest, WindowsClosedMeanwhileAreSkipped) {
  {
    ParentAndChildWindowDisabler disabler(main, true);
    palette.reset();
    Headless().DestroyNativeWindow(foreign);
  }
  EXPECT_TRUE(IsEnabled(main));
  EXPECT_TRUE(IsEnabled(ownedByPalette->GetNativeWindow()));
}

TEST_F(ParentAndChildWindowDisablerTest, WithoutAParentNoWindowIsDisabled) {
  ParentAndChildWindowDisabler disabler(nullptr, true);
  EXPECT_EQ(Enabled(), "mpfou") << "unowned windows are not the null parent's";
}

TEST_F(ParentAndChildWindowDisablerTest, TheFocusComesBackAfterTheWindowsAreEnabled) {
  auto first = Add(root, "first", {0, 0, 100, 100});
  auto second = Add(root, "second", {100, 0, 200, 100});
  ASSERT_TRUE(first->SetFocus());
  {
    ParentAndChildWindowDisabler disabler(main, true);
    palette->Focus(); // the dialog takes the keyboard
    second->SetFocus();
  }
  EXPECT_TRUE(first->HasFocus());
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), main);
}

TEST_F(ParentAndChildWindowDisablerTest, ASavedViewClosedMeanwhileLeavesTheParentWithoutFocus) {
  auto first = Add(root, "first", {0, 0, 100, 100});
  auto second = Add(root, "second", {100, 0, 200, 100});
  ASSERT_TRUE(first->SetFocus());
  {
    ParentAndChildWindowDisabler disabler(main, true);
    std::erase(views, first);
    first.reset();
    second->SetFocus();
  }
  EXPECT_EQ(Window().GetFocusedNode(), nullptr);
  EXPECT_TRUE(Window().IsEnabled());
}

} // namespace
