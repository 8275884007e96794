#include <kroui/ui/EventLoop.h>
#include <kroui/ui/ToolTipManager.h>

#include <krocore/threads/MainThreadQueue.h>

#include "NodeTestSupport.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace {

using namespace kroui::ui;
using kroui::backend::WaitResult;
using Strings = std::vector<std::string>;

class EventLoopTest : public kroui::testing::WindowFixture<> {
protected:
  void TearDown() override {
    krocore::threads::MainThreadQueue::Instance().Clear();
    WindowFixture::TearDown();
  }
  EventLoop& Loop() { return EventLoop::Instance(); }
};

TEST_F(EventLoopTest, RunDrainsTheMainThreadQueueAndEndsOnQuit) {
  int ran = 0;
  krocore::threads::PostToMainThread([&] { ++ran; });
  krocore::threads::PostToMainThread([&] {
    ++ran;
    Loop().Quit();
  });
  Loop().Run();
  EXPECT_EQ(ran, 2);
  EXPECT_FALSE(Loop().IsQuitRequested()) << "the request was used up";
  EXPECT_EQ(Loop().GetRunDepth(), 0);
}

TEST_F(EventLoopTest, LoopsNestAndQuitEndsTheInnermost) {
  std::vector<int> depths;
  krocore::threads::PostToMainThread([&] {
    krocore::threads::PostToMainThread([&] {
      depths.push_back(Loop().GetRunDepth());
      Loop().Quit();
    });
    Loop().Run(); // a modal loop inside a task
    depths.push_back(Loop().GetRunDepth());
    Loop().Quit();
  });
  Loop().Run();
  EXPECT_EQ(depths, (std::vector<int>{2, 1}));
  EXPECT_EQ(Loop().GetRunDepth(), 0);
}

TEST_F(EventLoopTest, WorkPostedFromAnotherThreadWhileRunningIsSeen) {
  // The timer keeps the headless loop waiting for ever (each wait jumps to
  // the next tick); only the worker's task, posted meanwhile, can end it.
  UI_Window& window = MakeWindow();
  auto node = Add(window.GetRoot(), "node", {0, 0, 10, 10});
  node->SetTimer(1, 1000);
  std::thread worker([this] {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    krocore::threads::PostToMainThread([this] { Loop().Quit(); });
  });
  Loop().Run();
  worker.join();
  EXPECT_EQ(Loop().GetRunDepth(), 0);
  EXPECT_GT(Headless().GetTimeMs(), 0) << "the loop was waiting on its timer meanwhile";
}

TEST_F(EventLoopTest, RunReturnsWhenNothingCanEverArrive) {
  // No event, no task, no timer: a headless Run would otherwise never end.
  Loop().Run();
  EXPECT_EQ(Loop().GetRunDepth(), 0);
}

TEST_F(EventLoopTest, AQuitEventEndsRunAfterEarlierEvents) {
  UI_Window& window = MakeWindow();
  auto node = Add(window.GetRoot(), "node", {0, 0, 50, 50});
  node->SetTimer(7, 10'000); // keeps Run waiting for more
  TakeLog();
  Headless().MoveMouseTo(window.GetNativeWindow(), {5, 5});
  Headless().PostQuit();
  Loop().Run();
  EXPECT_EQ(TakeLog(), (Strings{"node.Enter", "node.Move@5,5"}));
}

TEST_F(EventLoopTest, TheMessageFilterSeesEveryEventAsAMessageAndMayDropIt) {
  UI_Window& window = MakeWindow();
  auto node = Add(window.GetRoot(), "node", {0, 0, 50, 50});
  std::vector<MSG> seen;
  Loop().SetMessageFilter([&](const MSG& message) {
    seen.push_back(message);
    return message.message == static_cast<std::uint32_t>(OS_Event::Type::MouseDown);
  });
  Headless().MoveMouseTo(window.GetNativeWindow(), {5, 6});
  Headless().Click();
  TakeLog();
  Pump();
  ASSERT_EQ(seen.size(), 3u);
  EXPECT_EQ(seen[0].hwnd, window.GetNativeWindow());
  EXPECT_EQ(seen[0].lParam, (6 << 16) | 5) << "the position packed as Windows packs it";
  EXPECT_EQ(seen[1].wParam, static_cast<std::uintptr_t>(PointerEvent::Button::Left));
  EXPECT_EQ(TakeLog(), (Strings{"node.Enter", "node.Move@5,6", "node.Up@5,6"})) << "the press was dropped";
}

// What the process filter saw, for the plain function it must be.
std::vector<std::uint32_t> sProcessFilterSeen;

bool DropKeysFilter(const MSG& message) {
  sProcessFilterSeen.push_back(message.message);
  return message.message == static_cast<std::uint32_t>(OS_Event::Type::KeyDown);
}

TEST_F(EventLoopTest, TheProcessFilterGoesFirstOutlivesResetsAndUnplugsWithNull) {
  UI_Window& window = MakeWindow();
  auto node = Add(window.GetRoot(), "node", {0, 0, 50, 50});
  node->SetFocus();
  sProcessFilterSeen.clear();
  Loop().SetProcessMessageFilter(&DropKeysFilter);
  Loop().Reset(); // a test ending, or the backend replaced
  EXPECT_EQ(Loop().GetProcessMessageFilter(), &DropKeysFilter);
  std::vector<std::uint32_t> seenAfter;
  Loop().SetMessageFilter([&](const MSG& message) {
    seenAfter.push_back(message.message);
    return false;
  });
  TakeLog();
  Headless().SendKeyDown(KeyboardCode(0x41));
  Headless().SendKeyUp(KeyboardCode(0x41));
  Pump();
  const auto keyDown = static_cast<std::uint32_t>(OS_Event::Type::KeyDown);
  const auto keyUp = static_cast<std::uint32_t>(OS_Event::Type::KeyUp);
  EXPECT_EQ(sProcessFilterSeen, (std::vector<std::uint32_t>{keyDown, keyUp}));
  EXPECT_EQ(seenAfter, (std::vector<std::uint32_t>{keyUp})) << "what the process filter dropped goes no further";
  EXPECT_EQ(TakeLog(), (Strings{"node.KeyUp"}));

  Loop().SetProcessMessageFilter(nullptr);
  Headless().SendKeyDown(KeyboardCode(0x41));
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{"node.KeyDown"}));
  EXPECT_EQ(sProcessFilterSeen.size(), 2u);
}

TEST_F(EventLoopTest, AModalLoopReadsEventsItselfAndDispatchesThoseItDoesNotWant) {
  UI_Window& window = MakeWindow();
  auto node = Add(window.GetRoot(), "node", {0, 0, 50, 50});
  Headless().MoveMouseTo(window.GetNativeWindow(), {5, 5});
  Headless().TypeKey(kroui::ui::KeyboardCode(0x1B)); // Escape
  TakeLog();
  Strings handled;
  OS_Event event;
  while (Loop().GetNextEvent(event, std::nullopt) == WaitResult::Event) {
    if (event.IsKeyboard()) {
      handled.push_back("key");
    } else {
      Loop().DispatchEvent(event);
    }
  }
  EXPECT_EQ(handled, (Strings{"key", "key"})) << "down and up of Escape";
  EXPECT_EQ(TakeLog(), (Strings{"node.Enter", "node.Move@5,5"}));
  EXPECT_EQ(Loop().GetNextEvent(event, std::nullopt), WaitResult::NoMoreEvents);
}

TEST_F(EventLoopTest, CloseRequestsGoToTheHookOrHideTheWindow) {
  UI_Window& first = MakeWindow();
  UI_Window& second = MakeWindow({300, 300, 400, 400});
  int closes = 0;
  second.SetCloseHook([&](UI_Window&) { ++closes; });
  Headless().RequestClose(first.GetNativeWindow());
  Headless().RequestClose(second.GetNativeWindow());
  Pump();
  EXPECT_FALSE(first.IsShown());
  EXPECT_FALSE(Headless().FindWindow(first.GetNativeWindow())->isShown);
  EXPECT_TRUE(second.IsShown());
  EXPECT_EQ(closes, 1);
}

TEST_F(EventLoopTest, AUserResizeLaysTheTreeOutAgain) {
  UI_Window& window = MakeWindow({0, 0, 200, 100});
  auto fill = Add(window.GetRoot(), "fill", {10, 10, 190, 90});
  fill->SetLayoutBinding({true, true, true, true, false, false});
  Headless().UserSetWindowBounds(window.GetNativeWindow(), {50, 60, 350, 260});
  Pump();
  EXPECT_EQ(window.GetBounds(), (kroui::backend::Rect{50, 60, 350, 260}));
  EXPECT_EQ(window.GetRoot().GetBounds(), (Rect{0, 0, 300, 200}));
  EXPECT_EQ(fill->GetBounds(), (Rect{10, 10, 290, 190}));
  EXPECT_EQ(Headless().GetWindowImage(window.GetNativeWindow()).GetWidth(), 300);
}

TEST_F(EventLoopTest, ReplacingTheBackendDropsTimersMadeOnItsClock) {
  UI_Window& window = MakeWindow();
  auto node = Add(window.GetRoot(), "node", {0, 0, 10, 10});
  node->SetTimer(1, 10);
  mWindows.clear();
  kroui::backend::HeadlessBackend::Install();
  EXPECT_EQ(Loop().GetTimers().GetCount(), 0u);
  EXPECT_FALSE(node->HasTimer(1));
}

TEST_F(EventLoopTest, ReplacingTheBackendClosesTheTooltipAndForgetsTheQuitRequest) {
  ToolTipManager& toolTips = ToolTipManager::Instance();
  toolTips.Show("Trim", {10, 10}, nullptr);
  ASSERT_TRUE(toolTips.IsShown());
  Loop().Quit();
  kroui::backend::HeadlessBackend::Install();
  EXPECT_FALSE(toolTips.IsShown());
  EXPECT_FALSE(Loop().IsQuitRequested());
}

} // namespace
