#include "ViewTestSupport.h"

#include <zel/commands/ShortcutManager.h>
#include <zel/views/DC.h>

#include <krocore/debug/Assert.h>
#include <kroui/base/DataObject.h>
#include <kroui/ui/DataSource.h>
#include <kroui/base/KeyTable.h>
#include <kroui/drawbot/RecordingDrawbot.h>
#include <kroui/skins/SkinManager.h>

#include <gtest/gtest.h>

#include <functional>

namespace {

using kroui::ui::ModifierKeys;
using Point = ZEL::ViewBase::Point;
using Rect = ZEL::ViewBase::Rect;
using Strings = std::vector<std::string>;
using ZELTest::RecordingView;

// The window's client area is 300x260 at 100,100 on the screen:
//   root  0,0 .. 300,260
//     a   10,10 .. 110,90
//       b 10,10 .. 50,50     (20,20 .. 60,60 in the window)
//     c   120,10 .. 190,90
class SubViewTree : public ZELTest::ViewFixture<> {
protected:
  void SetUp() override {
    ViewFixture::SetUp();
    a = Add(root, "a", {10, 10, 110, 90});
    b = Add(a, "b", {10, 10, 50, 50});
    c = Add(root, "c", {120, 10, 190, 90});
    Pump();
    TakeLog();
  }

  /// Moves there and forgets what the move logged.
  void RestAt(int x, int y) {
    MoveTo(x, y);
    TakeLog();
  }
  void Do(const std::function<void(kroui::backend::HeadlessBackend&)>& script) {
    script(Headless());
    Pump();
  }

  std::shared_ptr<RecordingView> a, b, c;
};

// Pointer input.

TEST_F(SubViewTree, ButtonsReachTheHitViewInItsCoordinatesWithTheModifiersHeld) {
  RestAt(30, 35);
  Do([](auto& h) {
    h.SetModifiers(ModifierKeys::FromValue(kroui::ui::kModKey_Shift | kroui::ui::kModKey_Control));
    h.PressButton();
  });
  EXPECT_TRUE(b->IsLeftMouseDown());
  EXPECT_EQ(b->MouseDownPoint(), (Point{10, 15}));
  Do([](auto& h) { h.ReleaseButton(); });
  Do([](auto& h) {
    h.SetModifiers(ModifierKeys::FromValue(kroui::ui::kModKey_Alt));
    h.Click(kroui::ui::PointerEvent::Button::Right);
  });
  EXPECT_EQ(TakeLog(), (Strings{"b.LeftDown@10,15+S+C", "b.LeftUp@10,15+S+C", "b.RightDown@10,15+A",
                                "b.RightUp@10,15+A"}))
      << "the view hit takes the press: its parents see nothing";
  EXPECT_FALSE(b->IsLeftMouseDown());
  EXPECT_EQ(b->MouseUpPoint(), (Point{10, 15}));
}

TEST_F(SubViewTree, AQuickSecondPressIsAMultiClickInsteadOfADown) {
  RestAt(30, 35);
  Do([](auto& h) {
    h.Click();
    h.Click();
    h.AdvanceClock(1000);
    h.Click(kroui::ui::PointerEvent::Button::Right);
    h.Click(kroui::ui::PointerEvent::Button::Right);
  });
  EXPECT_EQ(TakeLog(), (Strings{"b.LeftDown@10,15", "b.LeftUp@10,15", "b.LeftMulti2@10,15", "b.LeftUp@10,15",
                                "b.RightDown@10,15", "b.RightUp@10,15", "b.RightDouble@10,15", "b.RightUp@10,15"}));
}

TEST_F(SubViewTree, TheMiddleButtonPassesByOwnerDrawnViews) {
  RestAt(30, 35);
  Do([](auto& h) { h.Click(kroui::ui::PointerEvent::Button::Middle); });
  EXPECT_EQ(TakeLog(), Strings{}) << "only native child views have middle-button hooks";
  EXPECT_FALSE(b->IsLeftMouseDown());
}

TEST_F(SubViewTree, AViewThatDoesNotHandlePointerEventsPassesThemToItsParent) {
  b->handlesPointer = false;
  MoveTo(30, 35);
  Do([](auto& h) { h.PressButton(); });
  EXPECT_EQ(TakeLog(), (Strings{"a.Move@20,25", "a.LeftDown@20,25"}));
}

struct WheelCase {
  const char* label;
  bool aConsumes;
  bool bConsumes;
  Strings expected;
  friend void PrintTo(const WheelCase& row, std::ostream* out) { *out << row.label; }
};

class SubViewWheel : public SubViewTree, public testing::WithParamInterface<WheelCase> {};

TEST_P(SubViewWheel, BubblesUpUntilAHookReturnsTrue) {
  a->consumesWheel = GetParam().aConsumes;
  b->consumesWheel = GetParam().bConsumes;
  RestAt(30, 35);
  Do([](auto& h) { h.Wheel(0, -120); });
  EXPECT_EQ(TakeLog(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Consumers, SubViewWheel,
    testing::Values(WheelCase{"Nobody", false, false, {"b.Wheel0,-120@10,15", "a.Wheel0,-120@20,25", "root.Wheel0,-120@30,35"}},
                    WheelCase{"Parent", true, false, {"b.Wheel0,-120@10,15", "a.Wheel0,-120@20,25"}},
                    WheelCase{"Child", false, true, {"b.Wheel0,-120@10,15"}}),
    [](const auto& row) { return std::string(row.param.label); });

TEST_F(SubViewTree, AGestureEndsAtTheViewThatTookTheGesture) {
  a->consumesGestures = true;
  RestAt(30, 35);
  Do([](auto& h) {
    h.Magnify(0.25f);
    h.EndGesture();
  });
  EXPECT_EQ(TakeLog(), (Strings{"b.Magnify@10,15", "a.Magnify@20,25", "a.EndMagnify"}));
}

// Hit testing: with clipping off, only the view's own hit test decides.

struct HitCase {
  const char* label;
  Rect bounds; // of a new child of root, in the window
  Point at;
  bool hits;
  friend void PrintTo(const HitCase& row, std::ostream* out) { *out << row.label; }
};

class SubViewHit : public SubViewTree, public testing::WithParamInterface<HitCase> {};

TEST_P(SubViewHit, InsideTheClientRectOnlyRightAndBottomEdgesExcluded) {
  for (const bool clips : {true, false}) {
    auto probe = Add(root, "probe", GetParam().bounds);
    probe->SetClipToSelf(clips);
    RestAt(GetParam().at.x, GetParam().at.y);
    Do([](auto& h) {
      h.AdvanceClock(1000); // not a double click
      h.Click();
    });
    const Strings got = TakeLog();
    ASSERT_FALSE(got.empty());
    EXPECT_EQ(got.front().rfind("probe.LeftDown", 0) == 0, GetParam().hits) << got.front() << " clips " << clips;
    views.pop_back();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Edges, SubViewHit,
    testing::Values(HitCase{"TopLeft", {200, 100, 240, 130}, {200, 100}, true},
                    HitCase{"LastPixel", {200, 100, 240, 130}, {239, 129}, true},
                    HitCase{"RightEdge", {200, 100, 240, 130}, {240, 110}, false},
                    HitCase{"BottomEdge", {200, 100, 240, 130}, {210, 130}, false},
                    HitCase{"ZeroWidthAtItsOrigin", {200, 100, 200, 130}, {200, 100}, false},
                    HitCase{"ZeroHeightAtItsOrigin", {200, 100, 240, 100}, {200, 100}, false}),
    [](const auto& row) { return std::string(row.param.label); });

// Keyboard, focus and commands.

TEST_F(SubViewTree, KeysReachOnlyTheFocusedView) {
  ASSERT_TRUE(b->SetFocus());
  b->consumesKeys = true;
  TakeLog();
  Do([](auto& h) { h.TypeKey(kroui::ui::kKey_A, ModifierKeys::FromValue(kroui::ui::kModKey_Shift)); });
  EXPECT_EQ(TakeLog(), (Strings{"b.KeyDown:65'A'", "b.Char:A", "b.KeyUp:65"}));
}

TEST_F(SubViewTree, KeysTheFocusedViewDeclinesClimbUntilAViewTakesThem) {
  ASSERT_TRUE(b->SetFocus());
  a->consumesKeys = true;
  TakeLog();
  Do([](auto& h) { h.TypeKey(kroui::ui::kKey_A, ModifierKeys::FromValue(kroui::ui::kModKey_Shift)); });
  EXPECT_EQ(TakeLog(), (Strings{"b.KeyDown:65'A'", "a.KeyDown:65'A'", "b.Char:A", "a.Char:A", "b.KeyUp:65",
                                "a.KeyUp:65"}))
      << "a takes each, so root never hears them";
}

TEST_F(SubViewTree, FocusMakesTheViewTheCommandTargetAndItsChainGoesOnDuty) {
  ASSERT_TRUE(b->SetFocus());
  EXPECT_EQ(TakeLog(), (Strings{"b:on", "a:on", "root:on", "b.SetFocus"}));
  EXPECT_TRUE(b->IsTarget());
  ASSERT_TRUE(c->SetFocus());
  EXPECT_EQ(TakeLog(), (Strings{"b.KillFocus", "b:off", "a:off", "c:on", "c.SetFocus"}))
      << "root stays on duty and hears nothing";

  root->obeys = {42};
  EXPECT_TRUE(ZEL::PostCommand(42, true));
  EXPECT_EQ(TakeLog(), (Strings{"c:obey 42", "root:obey 42"})) << "what c declines goes to its super-commander";
}

TEST_F(SubViewTree, TabSkipsViewsThatDoNotWantTheFocus) {
  root->wantsFocus = false;
  b->wantsFocus = false;
  ASSERT_TRUE(c->SetFocus());
  TakeLog();
  Do([](auto& h) { h.TypeKey(kroui::ui::kKey_Tab); });
  EXPECT_TRUE(a->HasFocus());
  EXPECT_EQ(TakeLog(), (Strings{"c.KeyDown:9", "root.KeyDown:9", "a.Prepare:a", "root.Prepare:a", "c.KillFocus",
                                "c:off", "a:on", "a.SetFocus", "a.KeyUp:9", "root.KeyUp:9"}))
      << "Tab moves the focus only after the focused view and its super-views declined it, and prepares the next "
         "view (passed up its view chain by default) before it takes the focus";
}

// Timers, tooltips, drag and drop.

TEST_F(SubViewTree, TimersTickIntoTheHookUntilRemoved) {
  b->SetTimer(3, 50);
  kroui::ui::EventLoop::Instance().RunFor(120);
  EXPECT_EQ(TakeLog(), (Strings{"b.Timer3", "b.Timer3"}));
  b->RemoveTimer(3);
  kroui::ui::EventLoop::Instance().RunFor(200);
  EXPECT_TRUE(TakeLog().empty());
}

class SubViewToolTip : public SubViewTree, public testing::WithParamInterface<std::pair<int, int>> {
protected:
  void TearDown() override {
    kroui::skins::core::SkinManager::SetSkinVersion(kroui::skins::core::SkinManager::kDefaultSkinVersion);
    SubViewTree::TearDown();
  }
};

TEST_P(SubViewToolTip, ComesSoonerFromSkinGenerationSevenOn) {
  const auto [skin, delay] = GetParam();
  kroui::skins::core::SkinManager::SetSkinVersion(skin);
  b->SetToolTipText("Ripple delete");
  EXPECT_EQ(b->GetKRONode()->GetToolTipDelay(), delay);
  RestAt(30, 35);
  kroui::ui::EventLoop::Instance().RunFor(delay - 1);
  EXPECT_FALSE(kroui::ui::ToolTipManager::Instance().IsShown());
  kroui::ui::EventLoop::Instance().RunFor(1);
  EXPECT_TRUE(kroui::ui::ToolTipManager::Instance().IsShown());
  EXPECT_EQ(kroui::ui::ToolTipManager::Instance().GetText(), "Ripple delete");
}

INSTANTIATE_TEST_SUITE_P(Skins, SubViewToolTip,
                         testing::Values(std::pair{5, 400}, std::pair{6, 400}, std::pair{7, 200}, std::pair{8, 200}));

TEST_F(SubViewTree, ADragOverAViewPutsItsDragContextInForceUntilTheDrop) {
  ZEL::ShortcutManager::Initialize();
  b->WantsDragAndDropEvents(true);
  b->dragContext = "Timeline";
  b->dropAnswer = kroui::ui::kDropEffect_Copy;
  RestAt(30, 35);
  kroui::ui::DataObject data;
  data.SetText("clip");
  Do([&](auto& h) { h.BeginDrag(data, kroui::ui::kDropEffect_Copy | kroui::ui::kDropEffect_Move); });
  EXPECT_TRUE(ZEL::ShortcutManager::Instance()->IsDragInProgress());
  Do([](auto& h) {
    h.DragTo({135, 140});
    h.Drop();
  });
  EXPECT_EQ(TakeLog(), (Strings{"b.DragEnter@10,15", "b.DragOver@15,20", "b.Drop1@15,20"}));
  EXPECT_FALSE(ZEL::ShortcutManager::Instance()->IsDragInProgress());
  ZEL::ShortcutManager::Finalize();
}

TEST_F(SubViewTree, AViewDragsItsDataOntoAnotherView) {
  c->WantsDragAndDropEvents(true);
  c->dropAnswer = kroui::ui::kDropEffect_Move;
  RestAt(30, 35);
  Do([](auto& h) { h.PressButton(); });
  const std::shared_ptr<kroui::ui::DataSource> source = b->GetDataSource();
  ASSERT_NE(source, nullptr);
  EXPECT_EQ(b->GetDataSource(), source) << "one source per view";
  kroui::ui::DataObject data;
  data.SetText("clip");
  source->SetData(data);
  int heard = -1;
  source->SetFinishedHook([&](int effect) { heard = effect; });
  Headless().MoveMouseTo(Window().GetNativeWindow(), {140, 40});
  Headless().MoveMouseTo(Window().GetNativeWindow(), {150, 50});
  Headless().ReleaseButton();
  TakeLog();
  EXPECT_EQ(source->DoDragDrop(), kroui::ui::kDropEffect_Move);
  EXPECT_EQ(heard, kroui::ui::kDropEffect_Move);
  EXPECT_EQ(TakeLog(), (Strings{"c.DragEnter@30,40", "c.DragOver@20,30", "c.DragOver@30,40", "c.Drop2@30,40"}));
  b->FinishDragAndDrop();
  EXPECT_EQ(source->DoDragDrop(), kroui::ui::kDropEffect_None) << "finished: nothing left to drag";
}

// Painting.

class PaintingView : public ZEL::SubView {
public:
  using SubView::SubView;
  using SubView::GetOffscreenSelf;

protected:
  void PaintSelf(ZEL::DC& dc) override {
    dc.FillRect(ClientRect(), kroui::drawbot::ColorRGBA{0.f, 0.f, 1.f, 1.f});
    GetDC().DrawLine({0, 0}, {5, 0}, kroui::drawbot::ColorRGBA{1.f, 0.f, 0.f, 1.f});
  }
  void AddendumPaintSelf(ZEL::DC& dc) override { dc.FrameRect(ClientRect(), kroui::drawbot::ColorRGBA{}); }
  kroui::drawbot::ColorRGBAOptional GetBackgroundColor() const override {
    return kroui::drawbot::ColorRGBA{0.5f, 0.5f, 0.5f, 1.f};
  }
};

TEST_F(SubViewTree, PaintHooksDrawInViewCoordinatesAroundTheChildren) {
  auto outer = std::make_shared<PaintingView>(root);
  auto inner = std::make_shared<PaintingView>(outer);
  ASSERT_TRUE(outer->Create(c, {10, 10, 60, 40}));
  ASSERT_TRUE(inner->Create(outer, {5, 5, 15, 15}));
  EXPECT_FALSE(outer->GetDC().IsValid()) << "outside a paint there is nothing to draw on";

  kroui::drawbot::RecordingDrawbot drawbot(300, 260);
  root->GetKRONode()->PaintInto(drawbot);
  std::vector<std::string> drawn;
  for (const auto& command : drawbot.Commands()) {
    const auto at = command.kind == kroui::drawbot::DrawKind::Line
                        ? command.points.front()
                        : kroui::drawbot::PointF{command.rect.x, command.rect.y};
    if (at.x < 130) continue; // only what the two painting views drew
    drawn.push_back(std::string(kroui::drawbot::GetDrawKindName(command.kind)) + "@" +
                    std::to_string(static_cast<int>(at.x)) + "," + std::to_string(static_cast<int>(at.y)));
  }
  EXPECT_EQ(drawn, (Strings{"FillRect@130,20", "FillRect@130,20", "Line@130,20", "FillRect@135,25", "FillRect@135,25",
                            "Line@135,25", "StrokeRect@135,25", "StrokeRect@130,20"}))
      << "background, paint, children, then the addendum; GetDC() draws on the pass's surface";

  EXPECT_EQ(outer->GetOffscreenSelf().GetPixels().GetWidth(), 50);
  outer->SetBounds({10, 10, 40, 40});
  EXPECT_EQ(outer->GetOffscreenSelf().GetPixels().GetWidth(), 30) << "remade at the view's new size";
}

// Creation.

TEST_F(SubViewTree, CreatingAgainReplacesTheNodeSoTheParentHoldsOne) {
  const auto* parentNode = static_cast<kroui::ui::UI_Container*>(a->GetKRONode().Get());
  const auto oldNode = b->GetKRONode();
  ASSERT_TRUE(b->Create(a, {0, 0, 5, 5}));
  EXPECT_EQ(parentNode->GetChildCount(), 1u);
  EXPECT_EQ(oldNode->GetParent(), nullptr);
  EXPECT_EQ(b->GetBounds(), (Rect{0, 0, 5, 5}));
  EXPECT_EQ(TakeLog(), Strings{"b.Created@0,0"}) << "once per creation, with the bounds";

  ASSERT_TRUE(b->Create(c, {1, 1, 2, 2}));
  EXPECT_EQ(parentNode->GetChildCount(), 0u);
  EXPECT_EQ(b->GetParent(), c);
}

TEST_F(SubViewTree, ADestroyedViewLeavesTheTree) {
  const auto* parentNode = static_cast<kroui::ui::UI_Container*>(a->GetKRONode().Get());
  const auto node = b->GetKRONode();
  b.reset();
  views.erase(views.begin() + 1);
  EXPECT_EQ(parentNode->GetChildCount(), 0u);
  EXPECT_EQ(node->GetParent(), nullptr);
}

TEST_F(SubViewTree, CreatingInAParentWithoutANodeReportsAndChangesNothing) {
  auto orphan = RecordingView::Make("orphan", {}, log);
  auto child = RecordingView::Make("child", {}, log);
  krocore::debug::ScopedAssertionRecorder recorder;
  EXPECT_FALSE(child->Create(orphan, {0, 0, 10, 10}));
  EXPECT_TRUE(recorder.Contains("SubViewImpl has not been initialized"));
  EXPECT_TRUE(recorder.Contains("SubView: the parent view has no node that can hold views"));
  EXPECT_FALSE(child->IsCreated());

}

// Geometry, state, the view chain.

TEST_F(SubViewTree, ReflowsLayOutTheParentOnceBeforeThePaint) {
  const int aBefore = a->boundsHeard, rootBefore = root->boundsHeard;
  b->RequestReflow();
  b->RequestReflow();
  a->RequestReflow();
  c->RequestReflow();
  EXPECT_EQ(a->boundsHeard, aBefore) << "nothing runs until the window paints";
  Pump();
  EXPECT_EQ(a->boundsHeard - aBefore, 1) << "b asked twice, a laid out once";
  EXPECT_EQ(root->boundsHeard - rootBefore, 1) << "a and c share their parent's one layout";
  Pump();
  EXPECT_EQ(a->boundsHeard - aBefore, 1);
  EXPECT_EQ(b->GetParent(), a);
  EXPECT_EQ(root->GetParent(), nullptr) << "root was placed in a platform container";
}

TEST_F(SubViewTree, AViewThatOverridesNothingStacksAtZero) {
  const ZEL::SubView plain{ZEL::CommanderWeakPtr()};
  EXPECT_EQ(plain.GetStackedDimensionHeight(), 0);
  EXPECT_EQ(plain.GetStackedDimensionHeightMax(), 0);
  EXPECT_EQ(plain.GetStackedDimensionHeightMin(500), 0);
}

// A view that was constructed but never created: every operation reports
// and answers its neutral value.

class Uncreated : public ZEL::SubView {
public:
  Uncreated() : SubView(ZEL::CommanderWeakPtr()) {}
  using SubView::GetOffscreenSelf;
  using SubView::GetPointerEventSubType;
  using SubView::SetDispatchNonPrimaryMouseEvents;
};

struct NeutralCase {
  const char* operation;
  std::function<void(Uncreated&)> call;
  friend void PrintTo(const NeutralCase& row, std::ostream* out) { *out << row.operation; }
};

class SubViewNotCreated : public ZELTest::ViewFixture<>, public testing::WithParamInterface<NeutralCase> {};

TEST_P(SubViewNotCreated, ReportsOnceNamingTheOperationAndAnswersNeutrally) {
  auto view = std::make_shared<Uncreated>();
  {
    krocore::debug::ScopedAssertionRecorder recorder;
    GetParam().call(*view);
    const auto reports = recorder.Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, "SubViewImpl has not been initialized");
    EXPECT_EQ(reports[0].operation, std::string("ZEL::SubView::") + GetParam().operation);
    EXPECT_NE(reports[0].file.find("SubView"), std::string::npos) << reports[0].file;
  }
  EXPECT_FALSE(view->IsCreated());
  EXPECT_EQ(static_cast<kroui::ui::UI_Container&>(*root->GetKRONode()).GetChildCount(), 0u);
}

const Rect kSome{1, 2, 3, 4};

INSTANTIATE_TEST_SUITE_P(
    Operations, SubViewNotCreated,
    testing::Values(
        NeutralCase{"SetBounds", [](Uncreated& v) { v.SetBounds(kSome); }},
        NeutralCase{"GetBounds", [](Uncreated& v) { EXPECT_EQ(v.GetBounds(), Rect{}); }},
        NeutralCase{"RequestReflow", [](Uncreated& v) { v.RequestReflow(); }},
        NeutralCase{"ClientRect", [](Uncreated& v) { EXPECT_EQ(v.ClientRect(), Rect{}); }},
        NeutralCase{"Show", [](Uncreated& v) { v.Show(true); }},
        NeutralCase{"Hide", [](Uncreated& v) { v.Hide(); }},
        NeutralCase{"IsShown", [](Uncreated& v) { EXPECT_FALSE(v.IsShown()); }},
        NeutralCase{"GetParent", [](Uncreated& v) { EXPECT_EQ(v.GetParent(), nullptr); }},
        NeutralCase{"GetKRONode", [](Uncreated& v) { EXPECT_EQ(v.GetKRONode(), nullptr); }},
        NeutralCase{"Enable", [](Uncreated& v) { v.Enable(true); }},
        NeutralCase{"Disable", [](Uncreated& v) { v.Disable(); }},
        NeutralCase{"SetTabletPenEvent", [](Uncreated& v) { v.SetTabletPenEvent(true); }},
        NeutralCase{"GetTabletPenEvent", [](Uncreated& v) { EXPECT_FALSE(v.GetTabletPenEvent()); }},
        NeutralCase{"SetToolTipText", [](Uncreated& v) { v.SetToolTipText("tip"); }},
        NeutralCase{"GetDC", [](Uncreated& v) { EXPECT_FALSE(v.GetDC().IsValid()); }},
        NeutralCase{"GetOffscreenSelf", [](Uncreated& v) { EXPECT_FALSE(v.GetOffscreenSelf().IsValid()); }},
        NeutralCase{"Position", [](Uncreated& v) { EXPECT_EQ(v.Position(), Point{}); }},
        NeutralCase{"Size", [](Uncreated& v) { EXPECT_EQ(v.Size(), ZEL::ViewBase::Extent{}); }},
        NeutralCase{"ClientToScreen",
                    [](Uncreated& v) {
                      Point p{5, 6};
                      v.ClientToScreen(p);
                      EXPECT_EQ(p, (Point{5, 6}));
                    }},
        NeutralCase{"ScreenToClient",
                    [](Uncreated& v) {
                      Point p{5, 6};
                      v.ScreenToClient(p);
                      EXPECT_EQ(p, (Point{5, 6}));
                    }},
        NeutralCase{"SetLayoutBinding", [](Uncreated& v) { v.SetLayoutBinding(true, true, true, true, true, true); }},
        NeutralCase{"IsViewVisible", [](Uncreated& v) { EXPECT_FALSE(v.IsViewVisible()); }},
        NeutralCase{"AreAllParentsVisible", [](Uncreated& v) { EXPECT_FALSE(v.AreAllParentsVisible()); }},
        NeutralCase{"IsEnabled", [](Uncreated& v) { EXPECT_FALSE(v.IsEnabled()); }},
        NeutralCase{"SetClipToSelf", [](Uncreated& v) { v.SetClipToSelf(false); }},
        NeutralCase{"GetClipToSelf", [](Uncreated& v) { EXPECT_FALSE(v.GetClipToSelf()); }},
        NeutralCase{"EnableDoubleBuffering", [](Uncreated& v) { v.EnableDoubleBuffering(true, true); }},
        NeutralCase{"Invalidate", [](Uncreated& v) { v.Invalidate(); }},
        NeutralCase{"InvalidateRect", [](Uncreated& v) { v.InvalidateRect(kSome); }},
        NeutralCase{"Redraw", [](Uncreated& v) { v.Redraw(); }},
        NeutralCase{"SetFocus", [](Uncreated& v) { EXPECT_FALSE(v.SetFocus()); }},
        NeutralCase{"KillFocus", [](Uncreated& v) { v.KillFocus(); }},
        NeutralCase{"HasFocus", [](Uncreated& v) { EXPECT_FALSE(v.HasFocus()); }},
        NeutralCase{"CaptureMouse", [](Uncreated& v) { EXPECT_FALSE(v.CaptureMouse()); }},
        NeutralCase{"ReleaseMouse", [](Uncreated& v) { v.ReleaseMouse(); }},
        NeutralCase{"IsMouseCaptured", [](Uncreated& v) { EXPECT_FALSE(v.IsMouseCaptured()); }},
        NeutralCase{"IsLeftMouseDown", [](Uncreated& v) { EXPECT_FALSE(v.IsLeftMouseDown()); }},
        NeutralCase{"IsRightMouseDown", [](Uncreated& v) { EXPECT_FALSE(v.IsRightMouseDown()); }},
        NeutralCase{"MouseDownPoint", [](Uncreated& v) { EXPECT_EQ(v.MouseDownPoint(), Point{}); }},
        NeutralCase{"MouseMovePoint", [](Uncreated& v) { EXPECT_EQ(v.MouseMovePoint(), Point{}); }},
        NeutralCase{"MouseUpPoint", [](Uncreated& v) { EXPECT_EQ(v.MouseUpPoint(), Point{}); }},
        NeutralCase{"SetDispatchNonPrimaryMouseEvents", [](Uncreated& v) { v.SetDispatchNonPrimaryMouseEvents(true); }},
        NeutralCase{"GetPointerEventSubType",
                    [](Uncreated& v) { EXPECT_EQ(v.GetPointerEventSubType(), kroui::ui::PointerEvent::SubType::Mouse); }},
        NeutralCase{"SetTimer", [](Uncreated& v) { v.SetTimer(1, 10); }},
        NeutralCase{"RemoveTimer", [](Uncreated& v) { v.RemoveTimer(1); }},
        NeutralCase{"WantsDragAndDropEvents", [](Uncreated& v) { v.WantsDragAndDropEvents(true); }},
        NeutralCase{"GetDataSource", [](Uncreated& v) { EXPECT_EQ(v.GetDataSource(), nullptr); }},
        NeutralCase{"FinishDragAndDrop", [](Uncreated& v) { v.FinishDragAndDrop(); }},
        NeutralCase{"Animator", [](Uncreated& v) { EXPECT_EQ(v.Animator(), nullptr); }}),
    [](const auto& row) { return std::string(row.param.operation); });

} // namespace
