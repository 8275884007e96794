#include <kroui/ui/DataSource.h>

#include <kroui/base/DragCursorSupport.h>
#include <kroui/base/KeyTable.h>

#include "NodeTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace kroui::ui;
using kroui::testing::LogNodePtr;
using Strings = std::vector<std::string>;

// Two windows side by side: the source at 0,0 .. 200,100, the target at
// 300,0 .. 500,100, each filled by one node.
class DataSourceTest : public kroui::testing::WindowFixture<> {
protected:
  void SetUp() override {
    WindowFixture::SetUp();
    UI_Window& sourceWindow = MakeWindow({0, 0, 200, 100});
    UI_Window& targetWindow = MakeWindow({300, 0, 500, 100});
    source = Add(sourceWindow.GetRoot(), "source", {0, 0, 200, 100});
    target = Add(targetWindow.GetRoot(), "target", {0, 0, 200, 100});
    target->SetWantsDragAndDropEvents(true);
    target->dragAnswer = kDropEffect_Copy;
    target->takesDrop = true;
    DataObject data;
    data.SetText("clip 7");
    dataSource.SetData(data, kDropEffect_Copy | kDropEffect_Move);
    dataSource.SetFinishedHook([this](int effect) { finished.push_back(effect); });
    Headless().MoveMouseTo({50, 50});
    Headless().PressButton();
    Pump();
    TakeLog();
  }

  /// The drag from the source, with the pointer on the source; the user's
  /// input arrives once the drag runs (from a timer inside its loop).
  int Drag(const std::function<void(kroui::backend::HeadlessBackend&)>& script) {
    source->SetTimer(1, 10);
    source->onTimer = [this, script] {
      source->RemoveTimer(1);
      script(Headless());
    };
    const int effect = dataSource.DoDragDrop();
    source->onTimer = nullptr;
    return effect;
  }

  /// What the target heard since the last call.
  Strings TargetLog() {
    Strings heard = TakeLog();
    std::erase_if(heard, [](const std::string& entry) { return entry.rfind("target.", 0) != 0; });
    return heard;
  }

  LogNodePtr source, target;
  DataSource dataSource;
  std::vector<int> finished;
};

TEST_F(DataSourceTest, ADropOnAnAcceptingNodeInAnotherWindowDeliversTheData) {
  const int effect = Drag([](auto& h) {
    h.MoveMouseTo({120, 50});
    h.MoveMouseTo({350, 40});
    h.MoveMouseTo({360, 40});
    h.ReleaseButton();
  });
  EXPECT_EQ(effect, kDropEffect_Copy);
  EXPECT_EQ(finished, std::vector<int>{kDropEffect_Copy});
  EXPECT_EQ(TargetLog(), (Strings{"target.DragEnter", "target.DragOver", "target.Drop:clip 7"}))
      << "the source's own node does not want drops and hears nothing";
  EXPECT_EQ(Headless().GetCurrentCursor(), nullptr) << "the arrow is back";
  EXPECT_FALSE(dataSource.IsDragging());
}

TEST_F(DataSourceTest, EveryOtherEndDropsNothingAndTheTargetHearsALeave) {
  struct Case {
    const char* label;
    std::function<void(kroui::backend::HeadlessBackend&)> end;
  };
  const Case cases[] = {
    {"Escape", [](auto& h) { h.SendKeyDown(kKey_Escape); }},
    {"refused", [this](auto& h) {
       target->dragAnswer = kDropEffect_None;
       h.MoveMouseTo({370, 40});
       h.ReleaseButton();
     }},
    {"left again", [](auto& h) {
       h.MoveMouseTo({250, 40});
       h.ReleaseButton();
     }},
  };
  for (const Case& c : cases) {
    target->dragAnswer = kDropEffect_Copy;
    finished.clear();
    const int effect = Drag([&](auto& h) {
      h.MoveMouseTo({350, 40});
      c.end(h);
    });
    EXPECT_EQ(effect, kDropEffect_None) << c.label;
    EXPECT_EQ(finished, std::vector<int>{kDropEffect_None}) << c.label;
    const Strings heard = TargetLog();
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "target.DragLeave"), 1) << c.label;
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "target.Drop:clip 7"), 0) << c.label;
    Headless().PressButton();
    Pump();
  }
}

TEST_F(DataSourceTest, TheCursorShowsTheTargetsAnswerUnlessTheFrameworkDrawsItsOwn) {
  std::vector<SystemCursor> shapes;
  auto shape = [this] {
    const CursorPtr cursor = Headless().GetCurrentCursor();
    return cursor ? cursor->GetSystemShape() : SystemCursor::None;
  };
  int tick = 0;
  source->SetTimer(1, 10);
  source->onTimer = [&] {
    switch (++tick) {
    case 1: Headless().MoveMouseTo({350, 40}); break;
    case 2: shapes.push_back(shape()); Headless().MoveMouseTo({250, 40}); break;
    case 3: shapes.push_back(shape()); Headless().SendKeyDown(kKey_Escape); break;
    default: break;
    }
  };
  dataSource.DoDragDrop();
  EXPECT_EQ(shapes, (std::vector<SystemCursor>{SystemCursor::Copy, SystemCursor::NoDrop}));

  SetDefaultCursorSupport(false);
  const std::size_t changes = Headless().GetCursorChangeCount();
  tick = 0;
  source->SetTimer(1, 10);
  dataSource.DoDragDrop();
  SetDefaultCursorSupport(true);
  EXPECT_EQ(Headless().GetCursorChangeCount(), changes + 1) << "only the arrow, back at the end";
}

TEST_F(DataSourceTest, FinishDuringTheDragCancelsItAndATimerStillFires) {
  source->SetTimer(1, 30);
  Headless().MoveMouseTo({350, 40});
  // The timer fires inside the drag's loop; its second tick cancels the drag.
  int ticks = 0;
  auto cancelSoon = [&] {
    if (++ticks == 2) dataSource.Finish();
  };
  source->onTimer = cancelSoon;
  EXPECT_EQ(dataSource.DoDragDrop(), kDropEffect_None);
  EXPECT_EQ(ticks, 2);
  EXPECT_EQ(TakeLog(), (Strings{"target.DragEnter", "target.DragOver", "source.Timer1", "source.Timer1",
                                "target.DragLeave"}));
  EXPECT_EQ(dataSource.DoDragDrop(), kDropEffect_None) << "Finish forgot the data: nothing to drag";
}

} // namespace
