#include <kroui/ui/UI_Window.h>
#include <kroui/utility/CursorDisplay.h>

#include "NodeTestSupport.h"

#include <gtest/gtest.h>

namespace {

using namespace kroui::ui;
using kroui::testing::LogNode;
using kroui::testing::LogNodePtr;
using Action = PointerEvent::Action;
using Strings = std::vector<std::string>;

// A 200x100 window at 100,100 on the screen:
//   root
//     a  10,10 .. 110,90
//       b  10,10 .. 50,50   (20,20 .. 60,60 in the window)
//     c  120,10 .. 190,90
class UI_WindowInput : public kroui::testing::WindowFixture<> {
protected:
  void SetUp() override {
    WindowFixture::SetUp();
    window = &MakeWindow();
    a = Add(window->GetRoot(), "a", {10, 10, 110, 90});
    b = Add(*a, "b", {10, 10, 50, 50});
    c = Add(window->GetRoot(), "c", {120, 10, 190, 90});
    Pump();
    TakeLog();
  }

  void MoveTo(int x, int y) {
    Headless().MoveMouseTo(window->GetNativeWindow(), {x, y});
    Pump();
  }
  void ClickAt(int x, int y) {
    MoveTo(x, y);
    TakeLog();
    Headless().Click();
    Pump();
  }
  Strings Without(const std::string& hook) {
    Strings kept;
    for (const std::string& entry : TakeLog()) {
      if (entry.find(hook) == std::string::npos) kept.push_back(entry);
    }
    return kept;
  }

  UI_Window* window = nullptr;
  LogNodePtr a, b, c;
};

struct BubbleCase {
  const char* label;
  bool aConsumes;
  bool bConsumes;
  Strings expected;
};

class UI_WindowBubbling : public UI_WindowInput, public testing::WithParamInterface<BubbleCase> {};

TEST_P(UI_WindowBubbling, APressGoesToTheHitNodeThenUpWhileDeclined) {
  if (GetParam().aConsumes) a->consumes = {Action::Down};
  if (GetParam().bConsumes) b->consumes = {Action::Down};
  MoveTo(30, 35);
  TakeLog();
  Headless().PressButton();
  Pump();
  EXPECT_EQ(TakeLog(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Consumers, UI_WindowBubbling,
                         testing::Values(BubbleCase{"NobodyConsumes", false, false, {"b.Down@10,15", "a.Down@20,25"}},
                                         BubbleCase{"ParentConsumes", true, false, {"b.Down@10,15", "a.Down@20,25"}},
                                         BubbleCase{"ChildConsumes", false, true, {"b.Down@10,15"}},
                                         BubbleCase{"BothConsume", true, true, {"b.Down@10,15"}}),
                         [](const auto& row) { return std::string(row.param.label); });

TEST_F(UI_WindowInput, TheNodeRecordsItsLastPointsAndPressedButton) {
  b->consumes = {Action::Down};
  MoveTo(30, 35);
  Headless().PressButton();
  Pump();
  EXPECT_TRUE(b->IsLeftMouseDown());
  EXPECT_FALSE(a->IsLeftMouseDown()) << "only the node that took the press";
  MoveTo(40, 45);
  Headless().ReleaseButton();
  Pump();
  EXPECT_FALSE(b->IsLeftMouseDown());
  EXPECT_EQ(b->GetMouseDownPoint(), (Point{10, 15}));
  EXPECT_EQ(b->GetMouseMovePoint(), (Point{20, 25}));
  EXPECT_EQ(b->GetMouseUpPoint(), (Point{20, 25}));
  EXPECT_EQ(a->GetMouseUpPoint(), (Point{30, 35})) << "the release bubbled to a";
  EXPECT_EQ(b->lastPointer.screenPosition, (Point{140, 145}));
}

TEST_F(UI_WindowInput, EnterAndLeaveFollowThePointerOutermostFirst) {
  MoveTo(30, 30);
  EXPECT_EQ(Without("Move"), (Strings{"a.Enter", "b.Enter"}));
  MoveTo(15, 15);
  EXPECT_EQ(Without("Move"), (Strings{"b.Leave"}));
  MoveTo(150, 50);
  EXPECT_EQ(Without("Move"), (Strings{"a.Leave", "c.Enter"}));
  Headless().MoveMouseTo({5, 5}); // off the window, onto the desktop
  Pump();
  EXPECT_EQ(Without("Move"), (Strings{"c.Leave"}));
  EXPECT_EQ(window->GetHoverNode(), nullptr);
}

TEST_F(UI_WindowInput, ACapturingNodeGetsEveryEventAndHoverCatchesUpOnRelease) {
  MoveTo(30, 30);
  ASSERT_TRUE(b->CaptureMouse());
  EXPECT_EQ(Headless().GetCapture(), window->GetNativeWindow());
  TakeLog();
  MoveTo(150, 50);
  Headless().MoveMouseTo({500, 500}); // outside the window: captured all the same
  Pump();
  Headless().Click();
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{"b.Move@130,30", "a.Move@140,40", "b.Move@380,380", "a.Move@390,390",
                                "b.Down@380,380", "a.Down@390,390", "b.Up@380,380", "a.Up@390,390"}));
  MoveTo(150, 50);
  TakeLog();
  b->ReleaseMouse();
  EXPECT_EQ(Headless().GetCapture(), nullptr);
  EXPECT_EQ(TakeLog(), (Strings{"b.Leave", "a.Leave", "c.Enter"}));
}

TEST_F(UI_WindowInput, CaptureIsRefusedToANodeOutsideTheWindowOrHidden) {
  LogNodePtr detached = krocore::MakeIntrusive<LogNode>("detached", &log);
  EXPECT_FALSE(detached->CaptureMouse());
  c->Hide();
  EXPECT_FALSE(c->CaptureMouse());
  ASSERT_TRUE(b->CaptureMouse());
  a->Hide();
  EXPECT_EQ(window->GetCaptureNode(), nullptr) << "hiding the capturing node's ancestor releases it";
}

TEST_F(UI_WindowInput, RepeatedPressesCountUpAndFallBackToDownWhenDeclined) {
  b->consumes = {Action::MultiClick};
  ClickAt(30, 30);
  EXPECT_EQ(Without("Up"), (Strings{"b.Down@10,10", "a.Down@20,20"}));
  Headless().AdvanceClock(100);
  Headless().Click();
  Pump();
  EXPECT_EQ(Without("Up"), (Strings{"b.MultiClick@10,10"}));
  EXPECT_EQ(b->lastPointer.clickCount, 2);
  b->consumes.clear();
  Headless().Click();
  Pump();
  EXPECT_EQ(Without("Up"), (Strings{"b.MultiClick@10,10", "a.MultiClick@20,20", "b.Down@10,10", "a.Down@20,20"}));
  EXPECT_EQ(b->lastPointer.clickCount, 3);
  Headless().AdvanceClock(kroui::backend::HeadlessBackend::kMultiClickTimeMs + 1);
  Headless().Click();
  Pump();
  EXPECT_EQ(b->lastPointer.clickCount, 1);
}

struct GestureCase {
  const char* label;
  void (*send)(kroui::backend::HeadlessBackend&);
  const char* hook;
  void (*check)(const PointerEvent&);
};

class UI_WindowGestures : public UI_WindowInput, public testing::WithParamInterface<GestureCase> {};

TEST_P(UI_WindowGestures, ReachTheNodeUnderThePointerWithTheirValues) {
  MoveTo(30, 30);
  TakeLog();
  GetParam().send(Headless());
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{std::string("b.") + GetParam().hook + "@10,10", std::string("a.") + GetParam().hook +
                                                                                     "@20,20"}));
  GetParam().check(b->lastPointer);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, UI_WindowGestures,
    testing::Values(
        GestureCase{"Wheel", [](auto& h) { h.Wheel(-120, 240, true); }, "Wheel",
                    [](const PointerEvent& e) {
                      EXPECT_EQ(e.wheelDeltaX, -120);
                      EXPECT_EQ(e.wheelDeltaY, 240);
                      EXPECT_TRUE(e.isPreciseWheel);
                    }},
        GestureCase{"Magnify", [](auto& h) { h.Magnify(0.25f); }, "Magnify",
                    [](const PointerEvent& e) { EXPECT_FLOAT_EQ(e.gestureValue, 0.25f); }},
        GestureCase{"Rotate", [](auto& h) { h.Rotate(-15.f); }, "Rotate",
                    [](const PointerEvent& e) { EXPECT_FLOAT_EQ(e.gestureValue, -15.f); }},
        GestureCase{"Pan", [](auto& h) { h.Pan({3, -4}); }, "Pan",
                    [](const PointerEvent& e) { EXPECT_EQ(e.panDelta, (Point{3, -4})); }},
        GestureCase{"GestureEnd", [](auto& h) { h.EndGesture(); }, "GestureEnd",
                    [](const PointerEvent& e) { EXPECT_EQ(e.action, Action::GestureEnd); }}),
    [](const auto& row) { return std::string(row.param.label); });

TEST_F(UI_WindowInput, EventsAtADisabledNodeGoNowhere) {
  a->Disable();
  ClickAt(30, 30);
  EXPECT_EQ(TakeLog(), Strings{});
  a->Enable();
  ClickAt(30, 30);
  EXPECT_FALSE(TakeLog().empty());
}

TEST_F(UI_WindowInput, SecondaryPointersAndPensReachOnlyNodesThatAskForThem) {
  MoveTo(30, 30);
  b->consumes = {Action::Down};
  OS_Event pen;
  pen.type = OS_Event::Type::MouseDown;
  pen.window = window->GetNativeWindow();
  pen.position = {30, 30};
  pen.button = PointerEvent::Button::Left;
  pen.subType = PointerEvent::SubType::Pen;
  Headless().PostEvent(pen);
  Pump();
  EXPECT_EQ(b->lastPointer.subType, PointerEvent::SubType::Mouse);
  b->SetTabletPenEvents(true);
  Headless().PostEvent(pen);
  Pump();
  EXPECT_EQ(b->lastPointer.subType, PointerEvent::SubType::Pen);

  OS_Event secondFinger = pen;
  secondFinger.isPrimary = false;
  TakeLog();
  Headless().PostEvent(secondFinger);
  Pump();
  EXPECT_EQ(TakeLog(), Strings{});
  b->SetDispatchNonPrimaryPointerEvents(true);
  Headless().PostEvent(secondFinger);
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{"b.Down@10,10"}));
}

TEST_F(UI_WindowInput, TheCursorIsTheArrowUnlessANodeSetsItsOwn) {
  const CursorPtr hand = Cursor::Create(kroui::drawbot::Image(4, 4), {1, 2});
  c->setsCursor = true;
  SetCursor(hand);
  MoveTo(150, 50);
  EXPECT_EQ(Headless().GetCurrentCursor(), hand) << "c kept the cursor it set";
  MoveTo(30, 30);
  EXPECT_EQ(Headless().GetCurrentCursor(), nullptr);
}

TEST_F(UI_WindowInput, ADragIsAnsweredByTheNearestNodeThatTakesDrops) {
  a->SetWantsDragAndDropEvents(true);
  a->dragAnswer = kDropEffect_Copy | kDropEffect_Link;
  a->takesDrop = true;
  MoveTo(30, 30);
  TakeLog();
  DataObject data;
  data.SetText("clip 7");
  auto session = Headless().BeginDrag(data, kDropEffect_Copy | kDropEffect_Move);
  Pump();
  EXPECT_EQ(session->acceptedEffect, kDropEffect_Copy) << "only what the source allows";
  Headless().DragTo({135, 135});
  Headless().DragTo({250, 150}); // over c, which takes no drops
  Pump();
  EXPECT_EQ(session->acceptedEffect, kDropEffect_None);
  Headless().DragTo({135, 135});
  Headless().Drop();
  Pump();
  EXPECT_TRUE(session->isDropAccepted);
  EXPECT_EQ(TakeLog(), (Strings{"a.DragEnter", "a.DragOver", "a.DragLeave", "a.DragEnter", "a.Drop:clip 7"}));
}

TEST_F(UI_WindowInput, RemovingTheHoveredNodeLetsItLeave) {
  MoveTo(30, 30);
  TakeLog();
  a->RemoveFromParent();
  EXPECT_EQ(TakeLog(), (Strings{"b.Leave", "a.Leave"}));
  EXPECT_EQ(window->GetHoverNode(), &window->GetRoot());
}

TEST_F(UI_WindowInput, NodeAndScreenCoordinatesConvertThroughTheWindow) {
  EXPECT_EQ(b->GetWindow(), window);
  EXPECT_EQ(b->LocalToScreen(Point{1, 2}), (Point{121, 122}));
  EXPECT_EQ(b->ScreenToLocal(Point{121, 122}), (Point{1, 2}));
  window->Move({0, 0});
  EXPECT_EQ(b->LocalToScreen(Point{1, 2}), (Point{21, 22}));
}

} // namespace
