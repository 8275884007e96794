#include <zel/appearance/Cursor.h>
#include <zel/views/ModalControlInterface.h>
#include <zel/views/ModalEventLoopDriver.h>

#include <krocore/debug/Assert.h>
#include <kroui/base/KeyTable.h>

#include "ViewTestSupport.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using ZELTest::RecordingView;
using Result = ZEL::ModalEventLoopDriver::EventLoopResult;
using Strings = std::vector<std::string>;
using kroui::backend::MonitorInfo;
namespace ui = kroui::ui;

/// A dragging control that logs what the loop tells it, as "Hook@x,y" with
/// "+C" while Control is held, and stays active for `activeChecks` questions.
class RecordingControl : public ZEL::ModalControlInterface {
public:
  int activeChecks = -1; ///< -1: for ever
  std::function<void()> onMoved;
  Strings log;

  bool ModalIsStillActive() const override { return activeChecks < 0 || mChecks++ < activeChecks; }
  void ModalMouseMoved(const Point& p, ZEL::KeyModifiers m) override {
    Log("Moved", p, m);
    if (onMoved) onMoved();
  }
  void ModalKeyModifiersChanged(const Point& p, ZEL::KeyModifiers m) override { Log("Modifiers", p, m); }
  void ModalCommit(const Point& p, ZEL::KeyModifiers m) override { Log("Commit", p, m); }
  void ModalCancel() override { log.push_back("Cancel"); }

private:
  void ModalAboutToCommitSelf(const Point& p, ZEL::KeyModifiers m) override { Log("AboutToCommit", p, m); }
  void Log(const std::string& hook, const Point& p, ZEL::KeyModifiers m) {
    log.push_back(hook + "@" + std::to_string(p.x) + "," + std::to_string(p.y) +
                  (m.Has(ZEL::kModifier_Control) ? "+C" : ""));
  }

  mutable int mChecks = 0;
};

// The host window's client area is at 100,100 on the screen: client 20,30 is screen 120,130.
class ModalEventLoopDriverTest : public ZELTest::ViewFixture<> {
protected:
  void TearDown() override {
    kroui::ui::EventLoop::Instance().Reset();
    ViewFixture::TearDown();
  }
  Result Run() { return ZEL::ModalEventLoopDriver(control).RunEventLoop(); }
  HWND Host() { return Window().GetNativeWindow(); }
  /// Schedules `work` on the loop's timers `delayMs` from now.
  void After(std::int64_t delayMs, std::function<void()> work) {
    auto& loop = kroui::ui::EventLoop::Instance();
    loop.GetTimers().Schedule(this, ++mTimerIDs, loop.Now(), delayMs, false, std::move(work));
  }

  RecordingControl control;

private:
  std::uint64_t mTimerIDs = 0;
};

TEST_F(ModalEventLoopDriverTest, TracksInAnInvisibleTopmostWindowOverEveryMonitor) {
  Headless().SetMonitors({{{0, 0, 1920, 1080}, {0, 0, 1920, 1040}, 1.f, true},
                          {{-1600, -200, 0, 1000}, {-1600, -200, 0, 1000}, 1.f, false},
                          {{0, -1200, 1920, 0}, {0, -1200, 1920, 0}, 1.f, false}});
  Headless().MoveMouseTo(Host(), {20, 30});
  Headless().ReleaseButton();
  kroui::backend::WindowDescription seen;
  HWND tracking = nullptr;
  control.onMoved = [&] {
    tracking = Headless().GetCapture();
    if (const auto* record = Headless().FindWindow(tracking)) seen = record->description;
    EXPECT_EQ(Headless().GetWindowStack().back(), tracking);
    EXPECT_EQ(Headless().GetFocusedNativeWindow(), Host()) << "the active window keeps the keyboard";
    EXPECT_TRUE(ZEL::Cursor::IsModal());
  };
  EXPECT_EQ(Run(), Result::Committed);
  EXPECT_EQ(seen.bounds, (kroui::backend::Rect{-1600, -1200, 1920, 1080}));
  EXPECT_TRUE(seen.style.Has(kroui::backend::kWindowStyle_Topmost | kroui::backend::kWindowStyle_Layered |
                             kroui::backend::kWindowStyle_NoActivate | kroui::backend::kWindowStyle_Disabled));
  EXPECT_FLOAT_EQ(seen.alpha, 1.f / 255.f);
  EXPECT_EQ(Headless().FindWindow(tracking), nullptr) << "the window goes with the loop";
  EXPECT_EQ(Headless().GetCapture(), nullptr);
  EXPECT_FALSE(ZEL::Cursor::IsModal());
}

TEST_F(ModalEventLoopDriverTest, ButtonDownPreparesTheCommitAndButtonUpCommitsAtTheLastPoint) {
  Headless().MoveMouseTo(Host(), {20, 30});
  Headless().PressButton();
  Headless().MoveMouseTo(Host(), {40, 50});
  Headless().ReleaseButton();
  EXPECT_EQ(Run(), Result::Committed);
  EXPECT_EQ(control.log, (Strings{"Moved@120,130", "AboutToCommit@120,130", "Moved@120,130", "Moved@140,150",
                                  "Commit@140,150"}));
}

TEST_F(ModalEventLoopDriverTest, AKeyReadsTheModifiersAgainAtTheLastPoint) {
  Headless().MoveMouseTo(Host(), {20, 30});
  Headless().SendKeyDown(ui::kKey_Shift);
  Headless().SetModifiers(ui::ModifierKeys::FromValue(ui::kModKey_Control)); // held when the loop reads the keys
  Headless().ReleaseButton();
  EXPECT_EQ(Run(), Result::Committed);
  EXPECT_EQ(control.log, (Strings{"Moved@120,130", "Moved@120,130+C", "Commit@120,130+C"}));
}

TEST_F(ModalEventLoopDriverTest, OtherEventsReachTheirWindowsAsUsual) {
  Headless().MoveMouseTo(Host(), {20, 30});
  Headless().PressButton(ui::PointerEvent::Button::Right);
  Headless().ReleaseButton();
  log.clear();
  EXPECT_EQ(Run(), Result::Committed);
  EXPECT_EQ(log, (Strings{"root.RightDown@20,30"}));
}

TEST_F(ModalEventLoopDriverTest, AControlInactiveAtTheStartReadsNoEventAndIsCancelled) {
  control.activeChecks = 0;
  Headless().MoveMouseTo(Host(), {20, 30});
  const std::size_t pending = Headless().GetPendingEventCount();
  EXPECT_EQ(Run(), Result::Cancelled);
  EXPECT_EQ(control.log, (Strings{"Cancel"}));
  EXPECT_EQ(Headless().GetPendingEventCount(), pending);
}

TEST_F(ModalEventLoopDriverTest, AControlThatBecomesInactiveEndsTheLoopCancelled) {
  control.activeChecks = 2;
  for (int x = 10; x <= 40; x += 10) Headless().MoveMouseTo(Host(), {x, 30});
  Headless().ReleaseButton();
  EXPECT_EQ(Run(), Result::Cancelled);
  EXPECT_EQ(control.log, (Strings{"Moved@110,130", "Moved@120,130", "Cancel"}));
}

TEST_F(ModalEventLoopDriverTest, LosingTheCaptureCancels) {
  After(10, [&] { Headless().SetCapture(Host()); });
  EXPECT_EQ(Run(), Result::Cancelled);
  EXPECT_EQ(control.log, (Strings{"Cancel"}));
}

TEST_F(ModalEventLoopDriverTest, TheCaptureTakenFromAnotherWindowAtTheStartDoesNotCancel) {
  Headless().SetCapture(Host()); // the control's window held it for the press that began the drag
  Headless().MoveMouseTo(Host(), {20, 30});
  Headless().ReleaseButton();
  EXPECT_EQ(Run(), Result::Committed);
  EXPECT_EQ(control.log, (Strings{"Moved@120,130", "Commit@120,130"}));
}

TEST_F(ModalEventLoopDriverTest, AnEmptyQueueWithNothingScheduledEndsTheLoopCancelled) {
  // Headless, no event can ever arrive then: the loop ends rather than wait for ever.
  EXPECT_EQ(Run(), Result::Cancelled);
  EXPECT_EQ(control.log, (Strings{"Cancel"}));
}

TEST_F(ModalEventLoopDriverTest, TimersFireAndInvalidViewsRepaintDuringTheLoop) {
  const auto* host = Headless().FindWindow(Host());
  ASSERT_NE(host, nullptr);
  const std::size_t presentsBefore = host->presentCount;
  bool fired = false;
  After(50, [&] {
    fired = true;
    root->Invalidate();
    // The tracking window holds the capture now: the pointer's events go to it.
    Headless().MoveMouseTo({500, 600});
    Headless().ReleaseButton();
  });
  EXPECT_EQ(Run(), Result::Committed);
  EXPECT_TRUE(fired);
  EXPECT_GT(host->presentCount, presentsBefore) << "the invalid view was painted during the loop";
  EXPECT_EQ(control.log, (Strings{"Moved@500,600", "Commit@500,600"}));
}

TEST_F(ModalEventLoopDriverTest, ASecondLoopInsideTheFirstReportsAndIsCancelled) {
  RecordingControl inner;
  Result innerResult = Result::Committed;
  krocore::debug::ScopedAssertionRecorder recorder;
  control.onMoved = [&] { innerResult = ZEL::ModalEventLoopDriver(inner).RunEventLoop(); };
  Headless().MoveMouseTo(Host(), {20, 30});
  Headless().ReleaseButton();
  EXPECT_EQ(Run(), Result::Committed);
  EXPECT_EQ(innerResult, Result::Cancelled);
  EXPECT_EQ(inner.log, (Strings{"Cancel"}));
  EXPECT_TRUE(recorder.Contains("ModalEventLoopDriver: modal loops do not nest"));
}

struct CancelKeyCase {
  const char* name;
  std::uint32_t key;
  std::uint8_t modifiers;
  bool cancels;
};

class ModalEventLoopDriverKeyTest : public ZELTest::ViewFixture<::testing::TestWithParam<CancelKeyCase>> {
protected:
  void TearDown() override {
    kroui::ui::EventLoop::Instance().Reset();
    ViewFixture::TearDown();
  }
};

TEST_P(ModalEventLoopDriverKeyTest, CancelsOnlyOnTheCancelKeys) {
  const CancelKeyCase& c = GetParam();
  RecordingControl control;
  Headless().MoveMouseTo(Window().GetNativeWindow(), {20, 30});
  Headless().TypeKey(ui::KeyboardCode(c.key), ui::ModifierKeys::FromValue(c.modifiers));
  Headless().ReleaseButton();
  const Result result = ZEL::ModalEventLoopDriver(control).RunEventLoop();
  EXPECT_EQ(result, c.cancels ? Result::Cancelled : Result::Committed);
  // Headless, the modifiers of a typed key are still held at its key up.
  EXPECT_EQ(control.log.back().rfind(c.cancels ? "Cancel" : "Commit@120,130", 0), 0u) << control.log.back();
  EXPECT_EQ(control.log.at(1).rfind("Moved@120,130", 0), 0u) << "the key down shows the modifiers first";
}

INSTANTIATE_TEST_SUITE_P(Keys, ModalEventLoopDriverKeyTest,
                         ::testing::Values(CancelKeyCase{"Escape", 0x1B, 0, true},
                                           CancelKeyCase{"Cancel", 0x03, 0, true},
                                           CancelKeyCase{"F4", 0x73, 0, true},
                                           CancelKeyCase{"CtrlC", 0x43, ui::kModKey_Control, true},
                                           CancelKeyCase{"PlainC", 0x43, 0, false},
                                           CancelKeyCase{"ShiftC", 0x43, ui::kModKey_Shift, false},
                                           CancelKeyCase{"CtrlV", 0x56, ui::kModKey_Control, false},
                                           CancelKeyCase{"F3", 0x72, 0, false}),
                         [](const ::testing::TestParamInfo<CancelKeyCase>& row) { return row.param.name; });

} // namespace
