#include "ViewTestSupport.h"

#include <zel/views/PlatformView.h>

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace {

using Rect = ZEL::ViewBase::Rect;
using Strings = std::vector<std::string>;
using Surface = kroui::backend::HeadlessBackend::ChildSurfaceRecord;
using Button = kroui::ui::PointerEvent::Button;

/// Logs the hooks only a native child view has, and its button presses.
class RecordingPlatformView : public ZEL::PlatformView {
public:
  RecordingPlatformView(const ZEL::CommanderWeakPtr& super, Strings& log) : PlatformView(super), mLog(log) {}

protected:
  void FinishCreateSelf(const Rect&) override { mLog.push_back("Created"); }
  void BecomingTranslucentSelf() override { mLog.push_back("BecomingTranslucent"); }
  void BecameOpaqueSelf() override { mLog.push_back("BecameOpaque"); }
  void DidShow() override { mLog.push_back("Show"); }
  void DidHide() override { mLog.push_back("Hide"); }
  void DidMoveToNewParentWindow() override { mLog.push_back("NewWindow"); }
  void DidMoveWindow() override { mLog.push_back("Moved"); }
  void MiddleButtonDownSelf(const Point& p, ZEL::KeyModifiers) override { Log("MiddleDown", p); }
  void MiddleButtonUpSelf(const Point& p, ZEL::KeyModifiers) override { Log("MiddleUp", p); }
  void LeftButtonDownSelf(const Point& p, ZEL::KeyModifiers) override { Log("LeftDown", p); }
  bool MouseWheelSelf(const Point&, ZEL::KeyModifiers, int delta) override {
    mLog.push_back("Wheel" + std::to_string(delta));
    return true;
  }

private:
  void Log(const std::string& hook, const Point& p) {
    mLog.push_back(hook + "@" + std::to_string(p.x) + "," + std::to_string(p.y));
  }
  Strings& mLog;
};

// A panel at 20,30 of the window, and the platform view at 10,10 .. 110,60 of
// the panel: 30,40 .. 130,90 of the window.
class PlatformViewTest : public ZELTest::ViewFixture<> {
protected:
  void SetUp() override {
    ViewFixture::SetUp();
    panel = Add(root, "panel", {20, 30, 220, 230});
    TakeLog();
    view = std::make_shared<RecordingPlatformView>(panel, log);
    ASSERT_TRUE(view->Create(panel, {10, 10, 110, 60}));
  }
  void TearDown() override {
    view.reset();
    ViewFixture::TearDown();
  }

  const Surface& TheSurface() {
    const Surface* surface = Headless().FindChildSurface(view->GetPlatformViewPtr());
    EXPECT_NE(surface, nullptr);
    static const Surface sNone;
    return surface ? *surface : sNone;
  }

  std::shared_ptr<ZELTest::RecordingView> panel;
  std::shared_ptr<RecordingPlatformView> view;
};

TEST_F(PlatformViewTest, CreatedInAViewItsSurfaceCoversTheViewsAreaOfTheWindow) {
  const Surface& surface = TheSurface();
  EXPECT_EQ(surface.parent, Window().GetNativeWindow());
  EXPECT_EQ(surface.bounds, (Rect{30, 40, 130, 90}));
  EXPECT_TRUE(surface.isShown);
  EXPECT_FALSE(surface.isGPUAccelerated);
  EXPECT_EQ(TakeLog(), (Strings{"NewWindow", "Show", "Created"}));
  EXPECT_EQ(view->GetParent(), panel);
}

TEST_F(PlatformViewTest, CreatedInAPlatformNodeItAsksForTheSurfaceKindGiven) {
  auto direct = std::make_shared<RecordingPlatformView>(root, log);
  ASSERT_TRUE(direct->Create(kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Container>(&Window().GetRoot()),
                             {5, 6, 25, 26}, ZEL::PlatformView::GPUAccelerated));
  const Surface* surface = Headless().FindChildSurface(direct->GetPlatformViewPtr());
  ASSERT_NE(surface, nullptr);
  EXPECT_TRUE(surface->isGPUAccelerated);
  EXPECT_EQ(surface->bounds, (Rect{5, 6, 25, 26}));
  EXPECT_EQ(direct->GetParent(), nullptr);
  EXPECT_EQ(Headless().GetChildSurfaces(Window().GetNativeWindow()).size(), 2u);
}

TEST_F(PlatformViewTest, TheSurfaceFollowsMovesOfTheViewAndOfItsAncestors) {
  TakeLog();
  panel->SetBounds({50, 60, 250, 260});
  EXPECT_EQ(TheSurface().bounds, (Rect{60, 70, 160, 120}));
  view->SetBounds({0, 0, 40, 30});
  EXPECT_EQ(TheSurface().bounds, (Rect{50, 60, 90, 90}));
  // A parent resized by its own layout binding moves the view too.
  root->SetBounds({0, 0, 200, 200});
  panel->SetLayoutBinding(false, false, true, true, false, false);
  root->SetBounds({0, 0, 300, 260});
  EXPECT_EQ(TheSurface().bounds, (Rect{150, 120, 190, 150}));
  EXPECT_EQ(TakeLog(), (Strings{"Moved", "Moved", "Moved"}));
}

TEST_F(PlatformViewTest, TheSurfaceShowsOnlyWhileTheViewAndEveryAncestorAreShown) {
  TakeLog();
  panel->Hide();
  EXPECT_FALSE(TheSurface().isShown);
  view->Hide();
  panel->Show(true);
  EXPECT_FALSE(TheSurface().isShown);
  view->Show(true);
  EXPECT_TRUE(TheSurface().isShown);
  EXPECT_EQ(TakeLog(), (Strings{"Hide", "Show"}));
}

TEST_F(PlatformViewTest, TheSurfaceMovesWithTheViewToAnotherWindowAndHidesWhileDetached) {
  kroui::backend::WindowDescription description;
  description.bounds = {500, 100, 700, 300};
  kroui::ui::UI_Window other(description);
  const HWND surface = view->GetPlatformViewPtr();
  TakeLog();

  const auto node = view->GetKRONode();
  node->RemoveFromParent();
  EXPECT_FALSE(TheSurface().isShown);
  other.GetRoot().InsertChild(node, {7, 8, 17, 18});
  EXPECT_EQ(view->GetPlatformViewPtr(), surface); // moved, not remade
  EXPECT_EQ(TheSurface().parent, other.GetNativeWindow());
  EXPECT_EQ(TheSurface().bounds, (Rect{7, 8, 17, 18}));
  EXPECT_TRUE(TheSurface().isShown);
  EXPECT_EQ(TakeLog(), (Strings{"Hide", "NewWindow", "Moved", "Show"}));
  view.reset(); // before the window it lives in
}

TEST_F(PlatformViewTest, OpacityReachesTheSurfaceAndCrossingOneCallsTheTranslucencyHooks) {
  TakeLog();
  view->SetOpacity(0.5f);
  EXPECT_FLOAT_EQ(TheSurface().opacity, 0.5f);
  view->SetOpacity(0.25f);
  view->SetOpacity(1.f);
  view->SetOpacity(3.f); // clamped: still opaque
  EXPECT_FLOAT_EQ(TheSurface().opacity, 1.f);
  EXPECT_FLOAT_EQ(view->GetOpacity(), 1.f);
  EXPECT_EQ(TakeLog(), (Strings{"BecomingTranslucent", "BecameOpaque"}));
}

TEST_F(PlatformViewTest, ClippingReachesTheSurface) {
  view->SetOSControlClipping(true);
  EXPECT_TRUE(TheSurface().isClipped);
  view->SetOSControlClipping(false);
  EXPECT_FALSE(TheSurface().isClipped);
}

TEST_F(PlatformViewTest, SettingsMadeBeforeTheViewReachesAWindowApplyToItsSurface) {
  const auto holder = krocore::MakeIntrusive<kroui::ui::UI_Container>();
  auto late = std::make_shared<RecordingPlatformView>(root, log);
  ASSERT_TRUE(late->Create(kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Container>(holder.Get()), {0, 0, 10, 10}));
  EXPECT_EQ(late->GetPlatformViewPtr(), nullptr);
  late->SetOpacity(0.5f);
  late->SetOSControlClipping(true);
  Window().GetRoot().InsertChild(holder, {40, 50, 140, 150});
  const Surface* surface = Headless().FindChildSurface(late->GetPlatformViewPtr());
  ASSERT_NE(surface, nullptr);
  EXPECT_EQ(surface->bounds, (Rect{40, 50, 50, 60}));
  EXPECT_FLOAT_EQ(surface->opacity, 0.5f);
  EXPECT_TRUE(surface->isClipped);
}

TEST_F(PlatformViewTest, MiddleButtonAndWheelReachTheViewInItsCoordinates) {
  TakeLog();
  MoveTo(50, 60);
  Headless().PressButton(Button::Middle);
  Headless().ReleaseButton(Button::Middle);
  Headless().Wheel(0, 120);
  Headless().Wheel(120, 0); // sideways: not for the short form
  Pump();
  const Strings all = TakeLog();
  // The recording views log with a '.' or ':' after their names; this view does not.
  Strings own;
  std::copy_if(all.begin(), all.end(), std::back_inserter(own),
               [](const std::string& entry) { return entry.find_first_of(".:") == std::string::npos; });
  EXPECT_EQ(own, (Strings{"MiddleDown@20,20", "MiddleUp@20,20", "Wheel120"}));
  EXPECT_EQ(std::count(all.begin(), all.end(), "panel.Wheel120,0@30,30"), 1);
}

TEST_F(PlatformViewTest, DestroyingTheViewDestroysItsSurface) {
  const HWND surface = view->GetPlatformViewPtr();
  const auto node = view->GetKRONode(); // held on: the surface must go with the view regardless
  view.reset();
  EXPECT_EQ(Headless().FindChildSurface(surface), nullptr);
  EXPECT_TRUE(Headless().GetChildSurfaces(Window().GetNativeWindow()).empty());
  EXPECT_EQ(node->GetParent(), nullptr);
}

TEST_F(PlatformViewTest, CreatedAgainItReplacesItsSurface) {
  const HWND first = view->GetPlatformViewPtr();
  ASSERT_TRUE(view->Create(panel, {0, 0, 20, 20}));
  EXPECT_EQ(Headless().FindChildSurface(first), nullptr);
  EXPECT_EQ(Headless().GetChildSurfaces(Window().GetNativeWindow()), (std::vector<HWND>{view->GetPlatformViewPtr()}));
}

TEST(PlatformViewNotCreated, OperationsReportAndAnswerNeutrally) {
  Strings log;
  auto view = std::make_shared<RecordingPlatformView>(ZEL::CommanderWeakPtr(), log);
  krocore::debug::ScopedAssertionRecorder recorder;
  view->SetOpacity(0.5f);
  view->SetOSControlClipping(true);
  view->Show(true);
  EXPECT_EQ(view->GetPlatformViewPtr(), nullptr);
  EXPECT_EQ(view->GetBounds(), Rect{});
  EXPECT_FALSE(view->IsShown());
  EXPECT_EQ(view->GetKRONode(), nullptr);
  EXPECT_FLOAT_EQ(view->GetOpacity(), 1.f);
  ASSERT_EQ(recorder.Count(), 8u);
  EXPECT_EQ(recorder.Reports()[0].message, "PlatformViewImpl has not been initialized");
  EXPECT_EQ(recorder.Reports()[0].operation, "ZEL::PlatformView::SetOpacity");
  EXPECT_TRUE(log.empty());
}

} // namespace
