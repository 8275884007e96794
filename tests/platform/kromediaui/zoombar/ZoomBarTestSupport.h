#pragma once

#include <kromediaui/zoombar/UI_ZoomBar.h>

#include <kroui/ui/EventLoop.h>
#include <kroui/ui/UI_Window.h>

#include <HeadlessFixture.h>

#include <memory>

namespace kromediaui::testing {

/// A headless window (client area 400x100 at 100,100 on the screen) with a
/// horizontal zoom bar 400 pixels long at 0,40: a pixel is 0.0025 of the whole.
class ZoomBarFixture : public kroui::testing::HeadlessFixture<> {
protected:
  void SetUp() override {
    HeadlessFixture::SetUp();
    kroui::backend::WindowDescription description;
    description.title = "zoom bar";
    description.bounds = {100, 100, 500, 200};
    window = std::make_unique<kroui::ui::UI_Window>(description);
    window->Show();
    bar = krocore::MakeIntrusive<UI_ZoomBar>();
    window->GetRoot().InsertChild(bar, {0, 40, 400, 40 + UI_ZoomBar::GetDefaultSize()});
    Pump();
  }
  void TearDown() override {
    bar.Reset();
    window.reset();
    HeadlessFixture::TearDown();
  }

  void Pump() { kroui::ui::EventLoop::Instance().ProcessPending(); }
  void Wait(int ms) { kroui::ui::EventLoop::Instance().RunFor(ms); }
  /// Points at `x` along the bar.
  void MoveTo(int x, int y = 46) {
    Headless().MoveMouseTo(window->GetNativeWindow(), {x, y});
    Pump();
  }
  void Press() {
    Headless().PressButton();
    Pump();
  }
  void Release() {
    Headless().ReleaseButton();
    Pump();
  }

  std::unique_ptr<kroui::ui::UI_Window> window;
  krocore::IntrusivePtr<UI_ZoomBar> bar;
};

} // namespace kromediaui::testing
