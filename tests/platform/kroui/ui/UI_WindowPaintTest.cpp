#include <kroui/drawbot/Drawbot.h>
#include <kroui/drawbot/RasterSurface.h>
#include <kroui/drawbot/RecordingDrawbot.h>

#include <support/ImageCompare.h>
#include <support/SourceTree.h>

#include "NodeTestSupport.h"
#include "drawbot/DrawbotTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include <unistd.h>

namespace {

using namespace kroui::ui;
using namespace kroui::drawbot::testing;
using kroui::drawbot::ColorRGBA;
using kroui::drawbot::DrawKind;
using kroui::drawbot::RectF;
using kroui::testing::LogNodePtr;

// A node that fills itself, and strokes its outline after its children.
class PaintedNode : public UI_Container {
public:
  explicit PaintedNode(ColorRGBA fill) : mFill(fill) {}

protected:
  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override {
    drawbot.FillRect({0, 0, static_cast<float>(GetBounds().Width()), static_cast<float>(GetBounds().Height())}, mFill);
  }
  void AddendumPaintSelf(kroui::drawbot::Drawbot& drawbot) override {
    drawbot.StrokeRect({0, 0, static_cast<float>(GetBounds().Width()), static_cast<float>(GetBounds().Height())},
                       kBlack);
  }

private:
  ColorRGBA mFill;
};

// A node that draws a label over its fill.
class LabelNode final : public PaintedNode {
public:
  LabelNode(ColorRGBA fill, std::string text) : PaintedNode(fill), mText(std::move(text)) {}

protected:
  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override {
    PaintedNode::PaintSelf(drawbot);
    drawbot.DrawText(mText, kroui::drawbot::FontKey{}, kWhite,
                     {4.f, 0.f, static_cast<float>(GetBounds().Width()) - 8.f, static_cast<float>(GetBounds().Height())});
  }

private:
  std::string mText;
};

struct MergeCase {
  const char* label;
  std::vector<Rect> invalidated;
  std::vector<Rect> expected;
};

class UI_WindowInvalidation : public kroui::testing::WindowFixture<>,
                              public testing::WithParamInterface<MergeCase> {};

TEST_P(UI_WindowInvalidation, MergesRectanglesThatMeet) {
  UI_Window& window = MakeWindow({0, 0, 200, 100});
  ASSERT_FALSE(window.NeedsPaint());
  for (const Rect& rect : GetParam().invalidated) window.InvalidateWindowRect(rect);
  const std::vector<Rect> merged(window.GetInvalidRects().begin(), window.GetInvalidRects().end());
  EXPECT_EQ(merged, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, UI_WindowInvalidation,
    testing::Values(MergeCase{"ApartStayApart", {{0, 0, 10, 10}, {50, 50, 60, 60}}, {{0, 0, 10, 10}, {50, 50, 60, 60}}},
                    MergeCase{"OverlappingMerge", {{0, 0, 10, 10}, {5, 5, 20, 20}}, {{0, 0, 20, 20}}},
                    MergeCase{"SharingAnEdgeMerge", {{0, 0, 10, 10}, {10, 0, 20, 10}}, {{0, 0, 20, 10}}},
                    MergeCase{"ContainedAddsNothing", {{0, 0, 50, 50}, {10, 10, 20, 20}}, {{0, 0, 50, 50}}},
                    MergeCase{"ABridgeJoinsTwo",
                              {{0, 0, 10, 10}, {40, 0, 50, 10}, {5, 0, 45, 5}},
                              {{0, 0, 50, 10}}},
                    MergeCase{"ClippedToTheWindow", {{190, 90, 300, 300}, {-5, -5, 0, 50}}, {{190, 90, 200, 100}}},
                    MergeCase{"ManySmallBecomeOne",
                              {{0, 0, 2, 2}, {10, 0, 12, 2}, {20, 0, 22, 2}, {30, 0, 32, 2}, {40, 0, 42, 2},
                               {50, 0, 52, 2}, {60, 0, 62, 2}, {70, 0, 72, 2}, {80, 50, 82, 52}},
                              {{0, 0, 82, 52}}}),
    [](const auto& row) { return std::string(row.param.label); });

// A 200x100 window at 0,0: a red node at 10,10..60,60 holding a blue one at
// 10,10..30,30 (20,20..40,40 in the window), a node c at 120,10..190,90.
class UI_WindowPaint : public kroui::testing::WindowFixture<> {
protected:
  void SetUp() override {
    WindowFixture::SetUp();
    window = &MakeWindow({0, 0, 200, 100});
    red = krocore::MakeIntrusive<PaintedNode>(kRed);
    window->GetRoot().InsertChild(red, {10, 10, 60, 60});
    blue = krocore::MakeIntrusive<PaintedNode>(kBlue);
    red->InsertChild(blue, {10, 10, 30, 30});
    c = Add(window->GetRoot(), "c", {120, 10, 190, 90});
    Pump();
  }
  kroui::drawbot::Image Pixels() { return Headless().GetWindowImage(window->GetNativeWindow()); }

  UI_Window* window = nullptr;
  krocore::IntrusivePtr<PaintedNode> red, blue;
  LogNodePtr c;
};

TEST_F(UI_WindowPaint, OnlyWhatWasInvalidatedIsPaintedAndPresented) {
  EXPECT_EQ(c->paints, 1);
  const std::uint64_t paints = window->GetPaintCount();
  Pump();
  EXPECT_EQ(window->GetPaintCount(), paints) << "nothing invalid, nothing painted";

  c->InvalidateRect({5, 5, 10, 10});
  Pump();
  EXPECT_EQ(c->paints, 2);
  const auto* record = Headless().FindWindow(window->GetNativeWindow());
  EXPECT_EQ(record->lastPresented, (kroui::backend::Rect{125, 15, 130, 20}));

  blue->Invalidate();
  Pump();
  EXPECT_EQ(c->paints, 2) << "c lies outside the invalid region";
  EXPECT_EQ(record->lastPresented, (kroui::backend::Rect{20, 20, 40, 40}));
}

TEST_F(UI_WindowPaint, ChildrenPaintOverParentsInsideTheirBoundsAndTheAddendumLast) {
  const kroui::drawbot::Image image = Pixels();
  ASSERT_TRUE(image.IsValid());
  EXPECT_EQ(image.PixelAt(5, 5), kOpaqueWhite);
  EXPECT_EQ(image.PixelAt(15, 15), kOpaqueRed);
  EXPECT_EQ(image.PixelAt(25, 25), kOpaqueBlue);
  EXPECT_EQ(image.PixelAt(10, 30), 0xFF000000u) << "the red node's outline, painted after its child";

  kroui::drawbot::RecordingDrawbot recording(50, 50);
  red->PaintInto(recording);
  const auto commands = recording.Commands();
  ASSERT_EQ(commands.size(), 4u) << recording.Describe();
  EXPECT_EQ(commands[0].kind, DrawKind::FillRect);
  EXPECT_EQ(commands[1].rect, (RectF{10, 10, 20, 20})) << "the child, translated";
  EXPECT_EQ(commands[1].clip, (RectF{10, 10, 20, 20})) << "and clipped to itself";
  EXPECT_EQ(commands[2].kind, DrawKind::StrokeRect) << "the child's addendum";
  EXPECT_EQ(commands[3].kind, DrawKind::StrokeRect) << "the parent's addendum, last";
  EXPECT_EQ(recording.GetSaveDepth(), 0);
}

TEST_F(UI_WindowPaint, HiddenNodesAreNotPaintedAndHidingRepaintsWhatWasUnder) {
  red->Hide();
  Pump();
  EXPECT_TRUE(IsExactlyBox(Pixels(), PixelBox{0, 0, 0, 0}, kOpaqueWhite, kOpaqueWhite));
  EXPECT_EQ(Headless().FindWindow(window->GetNativeWindow())->lastPresented, (kroui::backend::Rect{10, 10, 60, 60}));
}

TEST_F(UI_WindowPaint, AChildIsClippedToItsParentUnlessTheParentLetsItOut) {
  blue->SetBounds({40, 40, 80, 80}); // runs past the red node's 50x50
  Pump();
  EXPECT_EQ(Pixels().PixelAt(65, 65), kOpaqueWhite);
  red->SetClipToSelf(false);
  blue->Invalidate();
  Pump();
  EXPECT_EQ(Pixels().PixelAt(65, 65), kOpaqueBlue);
}

TEST_F(UI_WindowPaint, DoubleBufferingChangesNoPixel) {
  const kroui::drawbot::Image direct = Pixels();
  red->EnableDoubleBuffering(true);
  Pump();
  EXPECT_TRUE(AreIdentical(Pixels(), direct));
  kroui::drawbot::RecordingDrawbot recording(200, 100);
  red->PaintInto(recording);
  EXPECT_EQ(recording.Count(DrawKind::Pixels), 1u) << "the buffer is copied in one go";
  EXPECT_EQ(recording.Count(DrawKind::FillRect), 0u);
}

TEST_F(UI_WindowPaint, RedrawPaintsAtOnceAndBackgroundsAreFilledUnderPaintSelf) {
  c->background = kBlue;
  const std::uint64_t paints = window->GetPaintCount();
  c->Redraw();
  EXPECT_EQ(window->GetPaintCount(), paints + 1) << "without the event loop";
  EXPECT_EQ(Pixels().PixelAt(150, 50), kOpaqueBlue);
}

TEST_F(UI_WindowPaint, AWindowIsWrittenAsPNG) {
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() / ("kroui-window-" + std::to_string(::getpid()) + ".png");
  const auto written = Headless().WriteWindowPNG(window->GetNativeWindow(), path);
  ASSERT_TRUE(written) << written.Error();
  const auto read = kroui::drawbot::ReadPNG(path);
  std::filesystem::remove(path);
  ASSERT_TRUE(read) << read.Error();
  EXPECT_TRUE(AreIdentical(read.Value(), Pixels()));

  UI_Window& unpainted = *mWindows.emplace_back(std::make_unique<UI_Window>(kroui::backend::WindowDescription{}));
  EXPECT_FALSE(Headless().WriteWindowPNG(unpainted.GetNativeWindow(), path));
  EXPECT_FALSE(std::filesystem::exists(path));
}

// A small panel as a window shows it, written as PNG by the headless backend
// and read back: backgrounds, labels, a clipped child, a double-buffered node,
// outlines painted after children. Rewrite the reference with
// ZEL_UPDATE_REFERENCE_IMAGES=1 and look at it before committing it.
TEST_F(UI_WindowPaint, AWindowSceneLooksAsCommitted) {
  red->Hide();
  c->Hide();
  window->SetBackgroundColor({0.16f, 0.17f, 0.19f, 1.f});
  auto ruler = krocore::MakeIntrusive<LabelNode>(ColorRGBA{0.24f, 0.25f, 0.28f, 1.f}, "00:00:00:00");
  window->GetRoot().InsertChild(ruler, {0, 0, 200, 20});
  auto track = krocore::MakeIntrusive<PaintedNode>(ColorRGBA{0.2f, 0.2f, 0.22f, 1.f});
  window->GetRoot().InsertChild(track, {10, 30, 190, 70});
  auto clip = krocore::MakeIntrusive<LabelNode>(ColorRGBA{0.25f, 0.45f, 0.75f, 1.f}, "Interview take 3");
  track->InsertChild(clip, {120, 5, 260, 35}); // runs past the track's right edge: clipped
  auto buffered = krocore::MakeIntrusive<LabelNode>(ColorRGBA{0.75f, 0.45f, 0.25f, 1.f}, "B-roll");
  buffered->EnableDoubleBuffering(true);
  track->InsertChild(buffered, {5, 5, 80, 35});
  Pump();

  const std::filesystem::path written =
      std::filesystem::temp_directory_path() / ("kroui-scene-" + std::to_string(::getpid()) + ".png");
  ASSERT_TRUE(Headless().WriteWindowPNG(window->GetNativeWindow(), written));
  const auto read = kroui::drawbot::ReadPNG(written);
  std::filesystem::remove(written);
  ASSERT_TRUE(read) << read.Error();
  const std::filesystem::path reference =
      testsupport::SourcePath("tests/platform/kroui/ui/reference/window-scene.png");
  EXPECT_TRUE(testsupport::MatchesReferenceImage(read.Value(), reference));
}

} // namespace

namespace {

// A layer over other windows: what turned transparent must not keep the
// pixels painted there before, as blending a clear background would.
TEST_F(UI_WindowPaint, ATranslucentBackgroundRepaintsFromClearPixels) {
  window->SetBackgroundColor({0.f, 0.f, 0.f, 0.f});
  window->GetRoot().Invalidate();
  Pump();
  EXPECT_NE(Pixels().PixelAt(20, 20), 0u) << "the red node";
  EXPECT_EQ(Pixels().PixelAt(150, 80), 0u) << "nothing painted: transparent";
  red->Hide();
  Pump();
  EXPECT_EQ(Pixels().PixelAt(20, 20), 0u);
}

// Layout.

TEST_F(UI_WindowPaint, LayoutsAskedForRunOnceBeforeThePaintParentsFirst) {
  const LogNodePtr parent = Add(window->GetRoot(), "parent", {0, 0, 200, 100});
  const LogNodePtr child = Add(*parent, "child", {10, 10, 50, 50});
  Pump();
  TakeLog();
  child->RequestLayout();
  parent->RequestLayout();
  child->RequestLayout();
  EXPECT_TRUE(TakeLog().empty()) << "nothing runs until the paint";
  EXPECT_TRUE(window->NeedsPaint());
  Pump();
  EXPECT_EQ(TakeLog(), (std::vector<std::string>{"parent.Layout", "child.Layout"}));
  EXPECT_FALSE(window->NeedsPaint());
}

TEST_F(UI_WindowPaint, ALayoutThatAsksForLayoutsNeitherHangsNorRunsARemovedNode) {
  const LogNodePtr parent = Add(window->GetRoot(), "parent", {0, 0, 200, 100});
  const LogNodePtr child = Add(*parent, "child", {10, 10, 50, 50});
  const LogNodePtr gone = Add(window->GetRoot(), "gone", {0, 120, 50, 150});
  Pump();
  parent->onLayout = [&] { child->RequestLayout(); };
  child->onLayout = [&] { child->RequestLayout(); }; // asks for itself for ever
  parent->RequestLayout();
  gone->RequestLayout();
  gone->RemoveFromParent();
  TakeLog();
  Pump();
  const std::vector<std::string> ran = TakeLog();
  EXPECT_EQ(ran.front(), "parent.Layout");
  EXPECT_EQ(std::count(ran.begin(), ran.end(), "child.Layout"), 3) << "the child's request of its parent's round "
                                                                      "runs in the same paint, its own the next";
  EXPECT_EQ(std::count(ran.begin(), ran.end(), "gone.Layout"), 0);
  child->onLayout = nullptr;
  Pump();
  EXPECT_EQ(TakeLog(), (std::vector<std::string>{"child.Layout"})) << "what was left waits for the next paint";
}

} // namespace

