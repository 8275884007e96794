#include <kroui/ui/UI_Window.h>

#include <krocore/debug/Assert.h>

#include "NodeTestSupport.h"

#include <gtest/gtest.h>

namespace {

using namespace kroui::ui;
using namespace kroui::backend;

class UI_WindowTest : public kroui::testing::WindowFixture<> {
protected:
  const HeadlessBackend::WindowRecord& Record(const UI_Window& window) {
    const HeadlessBackend::WindowRecord* record = Headless().FindWindow(window.GetNativeWindow());
    EXPECT_NE(record, nullptr);
    static const HeadlessBackend::WindowRecord kNone;
    return record ? *record : kNone;
  }
};

TEST_F(UI_WindowTest, EveryOperationReachesTheBackendWindow) {
  WindowDescription description;
  description.title = "Source Monitor";
  description.bounds = {10, 20, 330, 260};
  description.style = kWindowStyle_Popup | kWindowStyle_Layered;
  description.alpha = 0.5f;
  auto window = std::make_unique<UI_Window>(description);
  ASSERT_TRUE(window->IsCreated());
  EXPECT_EQ(UI_Window::FromNativeWindow(window->GetNativeWindow()), window.get());
  EXPECT_FALSE(Record(*window).isShown);
  EXPECT_EQ(window->GetRoot().GetBounds(), (Rect{0, 0, 320, 240}));

  window->Show();
  window->SetTitle("Program Monitor");
  window->SetAlpha(2.f);
  window->Move({40, 50});
  window->Resize({100, 80});
  EXPECT_TRUE(Record(*window).isShown);
  EXPECT_EQ(Record(*window).description.title, "Program Monitor");
  EXPECT_EQ(Record(*window).description.alpha, 1.f) << "opacity is clamped";
  EXPECT_EQ(Record(*window).description.bounds, (Rect{40, 50, 140, 130}));
  EXPECT_EQ(window->GetRoot().GetBounds(), (Rect{0, 0, 100, 80}));
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), window->GetNativeWindow());

  window->Minimize();
  EXPECT_TRUE(Record(*window).isMinimized);
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), nullptr);
  window->Focus();
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), window->GetNativeWindow());

  const HWND native = window->GetNativeWindow();
  window.reset();
  EXPECT_EQ(Headless().FindWindow(native), nullptr);
  EXPECT_EQ(UI_Window::FromNativeWindow(native), nullptr);
}

TEST_F(UI_WindowTest, ADisabledWindowTakesNoInput) {
  UI_Window& window = MakeWindow();
  auto node = Add(window.GetRoot(), "node", {0, 0, 100, 100});
  window.SetEnabled(false);
  EXPECT_TRUE(Record(window).description.style.Has(kWindowStyle_Disabled));
  TakeLog();
  Headless().MoveMouseTo(window.GetNativeWindow(), {5, 5});
  Headless().Click();
  Pump();
  EXPECT_TRUE(TakeLog().empty());
  window.SetEnabled(true);
  Headless().Click();
  Pump();
  EXPECT_FALSE(TakeLog().empty());
}

TEST_F(UI_WindowTest, RestoringAMinimisedWindowActivatesItAndRepaintsItWhole) {
  UI_Window& window = MakeWindow();
  window.Minimize();
  EXPECT_TRUE(window.IsMinimized());
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), nullptr);
  window.PaintNow();
  ASSERT_FALSE(window.NeedsPaint());
  window.Restore();
  EXPECT_FALSE(window.IsMinimized());
  EXPECT_FALSE(Record(window).isMinimized);
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), window.GetNativeWindow());
  ASSERT_EQ(window.GetInvalidRects().size(), 1u);
  EXPECT_EQ(window.GetInvalidRects()[0], window.GetRoot().GetLocalBounds());
}

TEST_F(UI_WindowTest, AnOwnedWindowNamesItsOwnerWhileTheOwnerLives) {
  auto owner = std::make_unique<UI_Window>(WindowDescription{"main", {0, 0, 50, 50}});
  WindowDescription description{"dialog", {10, 10, 40, 40}};
  description.owner = owner->GetNativeWindow();
  UI_Window dialog(description);
  EXPECT_EQ(dialog.GetOwner(), owner->GetNativeWindow());
  EXPECT_EQ(owner->GetOwner(), nullptr);
  owner.reset();
  EXPECT_EQ(dialog.GetOwner(), nullptr) << "no stale handle";

  kroui::backend::HeadlessBackend::Install();
  EXPECT_FALSE(dialog.IsMinimized()) << "another backend's window is not asked about";
  dialog.Restore();
}

TEST_F(UI_WindowTest, TheTreeOutlivesItsWindowWithoutATrace) {
  krocore::IntrusivePtr<UI_Container> root;
  kroui::testing::LogNodePtr node;
  {
    UI_Window window(WindowDescription{"", {0, 0, 50, 50}});
    root = krocore::IntrusivePtr<UI_Container>(&window.GetRoot());
    node = Add(*root, "node", {0, 0, 10, 10});
    node->SetFocus();
    node->CaptureMouse();
  }
  EXPECT_EQ(node->GetWindow(), nullptr);
  EXPECT_FALSE(node->HasFocus());
  node->Invalidate(); // no window to tell: nothing happens
  EXPECT_FALSE(node->SetFocus());
}

// A backend that keeps the defaults: it has no window system.
struct WindowlessBackend final : Backend {
  std::string_view GetName() const override { return "windowless"; }
  kroui::ui::ModifierKeys GetModifierState() const override { return {}; }
  bool IsKeyDown(std::uint32_t) const override { return false; }
  int ShowMessageBox(const kroui::ui::MessageBoxRequest&) override { return 0; }
};

TEST_F(UI_WindowTest, WithoutAWindowSystemTheWindowIsNotCreatedAndSaysSo) {
  SetBackend(std::make_unique<WindowlessBackend>());
  krocore::debug::ScopedAssertionRecorder recorder;
  UI_Window window(WindowDescription{"", {0, 0, 50, 50}});
  EXPECT_FALSE(window.IsCreated());
  EXPECT_TRUE(recorder.Contains("UI_Window: the backend could not make a window"));
  window.Show();
  EXPECT_FALSE(window.IsShown());
  EXPECT_EQ(UI_Window::FromNativeWindow(nullptr), nullptr);
}

} // namespace
