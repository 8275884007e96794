#include <kroui/utility/TrackingWindow.h>

#include <platform/kroui/HeadlessFixture.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

using kroui::backend::MonitorInfo;
using kroui::backend::Rect;
using kroui::utility::TrackingWindow;
namespace backend = kroui::backend;

// The primary display, one to its left and one above it, as a desk often has them.
std::vector<MonitorInfo> MonitorsAroundThePrimary() {
  return {{{0, 0, 1920, 1080}, {0, 0, 1920, 1040}, 1.f, true},
          {{-1280, 56, 0, 1080}, {-1280, 56, 0, 1080}, 1.f, false},
          {{200, -900, 1800, 0}, {200, -900, 1800, 0}, 2.f, false}};
}

using TrackingWindowTest = kroui::testing::HeadlessFixture<>;

TEST(TrackingWindowDescription, CoversEveryMonitorIncludingNegativeCoordinates) {
  const auto monitors = MonitorsAroundThePrimary();
  EXPECT_EQ(TrackingWindow::GetMonitorsUnion(monitors), (Rect{-1280, -900, 1920, 1080}));
  EXPECT_TRUE(TrackingWindow::GetMonitorsUnion({}).IsEmpty());

  const backend::WindowDescription description = TrackingWindow::Describe(monitors);
  EXPECT_EQ(description.bounds, (Rect{-1280, -900, 1920, 1080}));
  for (const std::uint32_t style : {backend::kWindowStyle_Popup, backend::kWindowStyle_Tool,
                                    backend::kWindowStyle_Topmost, backend::kWindowStyle_Layered,
                                    backend::kWindowStyle_Disabled, backend::kWindowStyle_NoActivate}) {
    EXPECT_TRUE(description.style.Has(style)) << style;
  }
  EXPECT_FLOAT_EQ(description.alpha, 1.f / 255.f);
  EXPECT_EQ(description.owner, nullptr);
}

TEST_F(TrackingWindowTest, ShowsOnTopWithoutTakingTheFocusAndGoesWithItsCapture) {
  Headless().SetMonitors(MonitorsAroundThePrimary());
  backend::WindowDescription active;
  active.bounds = {100, 100, 400, 300};
  const HWND activeWindow = Headless().CreateNativeWindow(active);
  Headless().ShowNativeWindow(activeWindow, true, true);
  {
    TrackingWindow tracking;
    ASSERT_TRUE(tracking.IsCreated());
    const HWND window = tracking.GetNativeWindow();
    const auto* record = Headless().FindWindow(window);
    ASSERT_NE(record, nullptr);
    EXPECT_TRUE(record->isShown);
    EXPECT_EQ(record->description.bounds, (Rect{-1280, -900, 1920, 1080}));
    EXPECT_EQ(Headless().GetWindowStack().back(), window);
    EXPECT_EQ(Headless().GetFocusedNativeWindow(), activeWindow);

    EXPECT_TRUE(tracking.CaptureMouse());
    EXPECT_EQ(Headless().GetCapture(), window);
  }
  EXPECT_EQ(Headless().GetCapture(), nullptr);
  EXPECT_EQ(Headless().GetWindowStack(), std::vector<HWND>{activeWindow});
}

TEST_F(TrackingWindowTest, LeavesAnotherWindowsCaptureAlone) {
  backend::WindowDescription other;
  other.bounds = {0, 0, 10, 10};
  const HWND otherWindow = Headless().CreateNativeWindow(other);
  {
    TrackingWindow tracking;
    ASSERT_TRUE(tracking.CaptureMouse());
    Headless().SetCapture(otherWindow); // taken away during the drag
  }
  EXPECT_EQ(Headless().GetCapture(), otherWindow);
}

} // namespace
