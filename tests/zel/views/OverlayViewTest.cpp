#include "ViewTestSupport.h"

#include <zel/views/OverlayView.h>

#include <krocore/debug/Assert.h>
#include <kroworkspace/workspace/TopLevelWindow.h>

#include <gtest/gtest.h>

namespace {

using Rect = ZEL::ViewBase::Rect;
using Strings = std::vector<std::string>;
using kroui::drawbot::ColorRGBA;

constexpr ColorRGBA kMagenta{1.f, 0.f, 1.f, 1.f};
constexpr ColorRGBA kBlue{0.f, 0.f, 1.f, 1.f};
constexpr std::uint32_t kMagentaPixel = 0xFFFF00FF;
constexpr std::uint32_t kBluePixel = 0xFF0000FF;

/// Paints its left half magenta and its right half blue; logs its hooks.
class HalvesOverlay : public ZEL::OverlayView {
public:
  HalvesOverlay(const ZEL::CommanderWeakPtr& super, Strings& log) : OverlayView(super), mLog(log) {}

protected:
  void PaintSelf(ZEL::DC& dc) override {
    const Rect bounds = GetBounds();
    dc.FillRect({0, 0, bounds.Width() / 2, bounds.Height()}, kMagenta);
    dc.FillRect({bounds.Width() / 2, 0, bounds.Width(), bounds.Height()}, kBlue);
  }
  void FinishCreateSelf(const Rect&) override { mLog.push_back("overlay.FinishCreate"); }
  void DestroySelf() override { mLog.push_back("overlay.Destroy"); }
  void SetBoundsSelf(const Rect&) override { mLog.push_back("overlay.Bounds"); }

private:
  Strings& mLog;
};

// A panel at 20,30 in the window (at 100,100 on the screen), and an overlay
// over the panel's 10,10 .. 110,60: on the screen 130,140 .. 230,190.
class OverlayViewTest : public ZELTest::ViewFixture<> {
protected:
  void SetUp() override {
    ViewFixture::SetUp();
    panel = Add(root, "panel", {20, 30, 220, 230});
    TakeLog();
    overlay = std::make_shared<HalvesOverlay>(panel, log);
    ASSERT_TRUE(overlay->Create(panel, {10, 10, 110, 60}, &Window()));
    Pump();
  }
  void TearDown() override {
    overlay.reset();
    ViewFixture::TearDown();
  }

  HWND Layer() const { return overlay->GetLayerWindow()->GetNativeWindow(); }
  std::uint32_t LayerPixel(int x, int y) { return Headless().GetWindowImage(Layer()).PixelAt(x, y); }

  std::shared_ptr<ZELTest::RecordingView> panel;
  std::shared_ptr<HalvesOverlay> overlay;
};

TEST_F(OverlayViewTest, ItsLayerStandsAboveTheWindowOverTheParentsAreaWithoutTakingTheFocus) {
  const auto* record = Headless().FindWindow(Layer());
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(record->description.bounds, (Rect{130, 140, 230, 190}));
  EXPECT_TRUE(record->description.style.Has(kroui::backend::kWindowStyle_Layered));
  EXPECT_TRUE(record->description.style.Has(kroui::backend::kWindowStyle_NoActivate));
  EXPECT_EQ(record->description.owner, Window().GetNativeWindow());
  EXPECT_TRUE(record->isShown);
  EXPECT_EQ(Headless().GetWindowStack().back(), Layer());
  EXPECT_EQ(Headless().GetFocusedNativeWindow(), Window().GetNativeWindow());

  overlay->SetOpacity(0.4f);
  EXPECT_FLOAT_EQ(record->description.alpha, 0.4f);
  overlay->SetBounds({0, 0, 50, 20});
  EXPECT_EQ(record->description.bounds, (Rect{120, 130, 170, 150}));
  EXPECT_EQ(TakeLog(), (Strings{"overlay.FinishCreate", "overlay.Bounds"}));
}

TEST_F(OverlayViewTest, PixelsInTheKeyColourTurnTransparentAlsoWhereTheyWerePaintedBefore) {
  EXPECT_EQ(LayerPixel(10, 10), kMagentaPixel);
  EXPECT_EQ(LayerPixel(90, 10), kBluePixel);
  overlay->SetOpacityAndTransparentColorKey(0.8f, kMagenta);
  Pump();
  EXPECT_EQ(LayerPixel(10, 10), 0u);
  EXPECT_EQ(LayerPixel(90, 10), kBluePixel);
}

TEST_F(OverlayViewTest, ThePointerPassesThroughToTheWindowBelow) {
  Headless().MoveMouseTo({150, 150});
  Pump();
  TakeLog();
  Headless().Click();
  Pump();
  EXPECT_EQ(TakeLog(), (Strings{"panel.LeftDown@30,20", "panel.LeftUp@30,20"}));
}

TEST_F(OverlayViewTest, DestroyTakesTheLayerAwayAndLeavesANeutralHandle) {
  const HWND layer = Layer();
  overlay->Destroy();
  EXPECT_EQ(Headless().FindWindow(layer), nullptr);
  EXPECT_FALSE(overlay->IsCreated());
  EXPECT_EQ(overlay->GetLayerWindow(), nullptr);
  EXPECT_EQ(TakeLog(), (Strings{"overlay.FinishCreate", "overlay.Destroy"}));

  krocore::debug::ScopedAssertionRecorder recorder;
  overlay->SetOpacity(1.f);
  EXPECT_EQ(overlay->GetBounds(), Rect{});
  ASSERT_EQ(recorder.Count(), 2u);
  EXPECT_EQ(recorder.Reports()[0].message, "OverlayViewImpl has not been initialized");
  EXPECT_EQ(recorder.Reports()[0].operation, "ZEL::OverlayView::SetOpacity");
}

TEST_F(OverlayViewTest, StandsAboveAWorkspaceWindowThatOwnsItsLayer) {
  kroworkspace::workspace::TopLevelWindow workspaceWindow(kroui::backend::Rect{300, 300, 700, 600});
  auto over = std::make_shared<HalvesOverlay>(panel, log);
  ASSERT_TRUE(over->Create(panel, {10, 10, 60, 40}, &workspaceWindow));
  EXPECT_EQ(over->GetLayerWindow()->GetOwner(), workspaceWindow.GetWindow().GetNativeWindow());
  over.reset();

  krocore::debug::ScopedAssertionRecorder recorder;
  auto none = std::make_shared<HalvesOverlay>(panel, log);
  EXPECT_FALSE(none->Create(panel, {10, 10, 60, 40}, static_cast<kroworkspace::workspace::TopLevelWindow*>(nullptr)));
  EXPECT_TRUE(recorder.Contains("OverlayView: no window to stand above"));
}

} // namespace
