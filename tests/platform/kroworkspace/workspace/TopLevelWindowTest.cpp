#include <kroworkspace/workspace/TopLevelWindow.h>

#include <kroui/base/KeyTable.h>
#include <kroui/base/OS_Event.h>
#include <kroui/ui/EventLoop.h>
#include <kroui/ui/UI_Container.h>
#include <kroui/ui/UI_Window.h>

#include <HeadlessFixture.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using kroworkspace::workspace::TopLevelWindow;
using namespace kroui::ui;
using Strings = std::vector<std::string>;

// The event hook is a plain function, so what it sees goes into a file-wide log.
Strings sLog;

void LogKeyEvent(OS_Event* event) {
  if (event->type == OS_Event::Type::KeyDown) sLog.push_back("hook.KeyDown");
  event->type = OS_Event::Type::None; // a watcher's scribbles must not reach the window
}

class KeyNode : public UI_Container {
protected:
  bool KeyDownSelf(const KeyboardEvent&) override {
    sLog.push_back("node.KeyDown");
    return true;
  }
  bool WantsFocusSelf() const override { return true; }
};

class TopLevelWindowTest : public kroui::testing::HeadlessFixture<> {
protected:
  void TearDown() override {
    sLog.clear();
    HeadlessFixture::TearDown();
  }

  void ShowWithFocusedNode(TopLevelWindow& window) {
    auto node = krocore::MakeIntrusive<KeyNode>();
    window.GetRoot().InsertChild(node, {0, 0, 20, 20});
    window.GetWindow().Show();
    Pump();
    ASSERT_TRUE(window.GetWindow().SetFocusedNode(node.Get()));
  }
  void PressK() {
    Headless().SendKeyDown(kKey_K);
    Pump();
  }
  static void Pump() { EventLoop::Instance().ProcessPending(); }
};

TEST_F(TopLevelWindowTest, MadeFromADescriptionOrFromBounds) {
  kroui::backend::WindowDescription description;
  description.title = "panel";
  description.bounds = {10, 20, 110, 70};
  const TopLevelWindow described(description);
  ASSERT_TRUE(described.GetWindow().IsCreated());
  EXPECT_EQ(described.GetWindow().GetTitle(), "panel");
  EXPECT_EQ(described.GetWindow().GetBounds(), description.bounds);
  EXPECT_EQ(&described.GetRoot(), &described.GetWindow().GetRoot());

  const TopLevelWindow placed(kroui::backend::Rect{200, 100, 500, 400});
  ASSERT_TRUE(placed.GetWindow().IsCreated());
  EXPECT_EQ(placed.GetWindow().GetBounds(), (kroui::backend::Rect{200, 100, 500, 400}));
  EXPECT_EQ(placed.GetEventHook(), nullptr);
}

TEST_F(TopLevelWindowTest, TheEventHookSeesEachEventBeforeTheNodesAndCannotAlterIt) {
  TopLevelWindow window(kroui::backend::Rect{100, 100, 300, 200});
  ShowWithFocusedNode(window);
  window.SetEventHook(&LogKeyEvent);
  EXPECT_EQ(window.GetEventHook(), &LogKeyEvent);
  PressK();
  EXPECT_EQ(sLog, (Strings{"hook.KeyDown", "node.KeyDown"}));

  sLog.clear();
  window.SetEventHook(nullptr);
  PressK();
  EXPECT_EQ(sLog, (Strings{"node.KeyDown"})) << "a cleared hook sees nothing";
}

TEST_F(TopLevelWindowTest, EachWindowHasItsOwnHook) {
  TopLevelWindow watched(kroui::backend::Rect{100, 100, 300, 200});
  TopLevelWindow other(kroui::backend::Rect{400, 100, 600, 200});
  watched.SetEventHook(&LogKeyEvent);
  ShowWithFocusedNode(other);
  PressK();
  EXPECT_EQ(sLog, (Strings{"node.KeyDown"})) << "the key went to the other window, unwatched";
}

} // namespace
