#include "../appearance/AppearanceFixture.h"

#include <zel/views/DC.h>
#include <zel/views/DCState.h>

#include <kroui/drawbot/FontTable.h>
#include <kroui/drawbot/Image.h>
#include <kroui/drawbot/RecordingDrawbot.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

using kroui::drawbot::ColorRGBA;
using kroui::drawbot::DrawKind;
using kroui::drawbot::PointF;
using kroui::drawbot::RecordingDrawbot;
using kroui::drawbot::RectF;
using Key = krocore::utility::ImmutableString;
using Point = ZEL::DC::Point;

constexpr ColorRGBA kBlue{0.f, 0.f, 1.f, 1.f};

class DCTest : public ZEL::testing::AppearanceFixture<> {
protected:
  RecordingDrawbot drawbot{200, 100};
};

TEST_F(DCTest, ColoursGivenByKeyAreAskedOfTheRegistryWhenDrawn) {
  const Key fill("colors.test.dc.fill");
  ZEL::ColorManager::SetColor("colors.test.dc.fill = $RGB(255, 0, 0)");
  {
    ZEL::DC dc(drawbot);
    dc.FillRect({0, 0, 10, 10}, fill);
    ZEL::ColorManager::SetColor("colors.test.dc.fill = $RGB(0, 0, 255)");
    dc.FillRect({0, 0, 10, 10}, fill);
    dc.SetTextColor(Key("colors.test.dc.fill"));
    dc.SetFont({Key(kroui::drawbot::kFont_CleanTimecodeSmall)});
    dc.DrawText("00:00:01:00", {5, 5, 100, 20});
  }
  const auto fills = drawbot.FindAll(DrawKind::FillRect);
  ASSERT_EQ(fills.size(), 2u);
  EXPECT_EQ(fills[0]->color, (ColorRGBA{1.f, 0.f, 0.f, 1.f}));
  EXPECT_EQ(fills[1]->color, kBlue) << "a changed registry shows at the next call";
  const auto* text = drawbot.FindText("00:00:01:00");
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->color, kBlue);
  EXPECT_EQ(text->font.key, Key(kroui::drawbot::kFont_CleanTimecodeSmall));
  EXPECT_EQ(text->rect, (RectF{5, 5, 95, 15}));
}

TEST_F(DCTest, RestoringAStateBringsBackTransformClipAndPen) {
  ZEL::DC dc(drawbot);
  dc.SaveState();
  dc.Translate(10, 5);
  dc.ClipRect({0, 0, 20, 20});
  dc.SetLineWidth(3.f);
  dc.SetTextColor(kBlue);
  EXPECT_EQ(dc.GetClipBox(), (ZEL::DC::Rect{0, 0, 20, 20}));
  dc.DrawLine({0, 0}, {4, 0}, kBlue);
  ASSERT_TRUE(dc.RestoreState());
  dc.DrawLine({0, 0}, {4, 0}, kBlue);
  EXPECT_FALSE(dc.RestoreState()) << "nothing left to restore";

  const auto lines = drawbot.FindAll(DrawKind::Line);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0]->points, (std::vector<PointF>{{10, 5}, {14, 5}}));
  EXPECT_EQ(lines[0]->clip, (RectF{10, 5, 20, 20}));
  EXPECT_EQ(lines[0]->lineWidth, 3.f);
  EXPECT_EQ(lines[1]->points, (std::vector<PointF>{{0, 0}, {4, 0}}));
  EXPECT_EQ(lines[1]->clip, (RectF{0, 0, 200, 100}));
  EXPECT_EQ(lines[1]->lineWidth, 1.f);
  EXPECT_EQ(dc.GetTextColor(), (ColorRGBA{0.f, 0.f, 0.f, 1.f}));
}

TEST_F(DCTest, StatesLeftSavedAreRestoredWhenTheBlockOrTheContextEnds) {
  {
    ZEL::DC dc(drawbot);
    {
      ZEL::DCState outer(dc);
      dc.SaveState(); // left unbalanced inside the block
      dc.Translate(50, 50);
      EXPECT_EQ(dc.GetStateDepth(), 2);
    }
    EXPECT_EQ(dc.GetStateDepth(), 0);
    EXPECT_EQ(drawbot.GetSaveDepth(), 0);
    dc.SaveState();
    dc.SaveState();
  }
  EXPECT_EQ(drawbot.GetSaveDepth(), 0) << "a paint cannot leak its state into the rest of the pass";
}

TEST_F(DCTest, APolygonClipAppliesToWhatIsDrawnAfterIt) {
  ZEL::DC dc(drawbot);
  const Point triangle[] = {{0, 0}, {40, 0}, {0, 40}};
  dc.Translate(5, 5);
  dc.SetClipPolygon(triangle);
  dc.FillRect({0, 0, 40, 40}, kBlue);
  const auto* fill = drawbot.FindFirst(DrawKind::FillRect);
  ASSERT_NE(fill, nullptr);
  ASSERT_EQ(fill->clipPolygons.size(), 1u);
  EXPECT_EQ(fill->clipPolygons[0], (std::vector<PointF>{{5, 5}, {45, 5}, {5, 45}}));
}

TEST_F(DCTest, ImagesAndPixelsLandWhereAskedAndInvalidOnesAreSkipped) {
  const kroui::drawbot::Image image(4, 3);
  ZEL::DC dc(drawbot);
  EXPECT_TRUE(ZEL::DC::IsImageValid(image));
  EXPECT_FALSE(ZEL::DC::IsImageValid(kroui::drawbot::Image()));
  dc.DrawImage(kroui::drawbot::Image(), Point{0, 0});
  dc.DrawPixels(kroui::drawbot::Image(), {0, 0});
  EXPECT_TRUE(drawbot.Commands().empty());

  dc.DrawImage(image, Point{2, 3}, 0.5f);
  dc.DrawImage(image, ZEL::DC::Rect{0, 0, 40, 30});
  dc.DrawPixels(image, {7, 8});
  const auto images = drawbot.FindAll(DrawKind::Image);
  ASSERT_EQ(images.size(), 2u);
  EXPECT_EQ(images[0]->rect, (RectF{2, 3, 4, 3})) << "at its own size";
  EXPECT_EQ(images[0]->opacity, 0.5f);
  EXPECT_EQ(images[1]->rect, (RectF{0, 0, 40, 30}));
  ASSERT_NE(drawbot.FindFirst(DrawKind::Pixels), nullptr);
  EXPECT_EQ(drawbot.FindFirst(DrawKind::Pixels)->rect, (RectF{7, 8, 4, 3}));
}

TEST_F(DCTest, AnEmptyContextAcceptsEverythingAndDrawsNothing) {
  ZEL::DC dc;
  EXPECT_FALSE(dc.IsValid());
  dc.SaveState();
  dc.FillRect({0, 0, 5, 5}, kBlue);
  dc.DrawText("x", {0, 0, 5, 5});
  EXPECT_FALSE(dc.RestoreState());
  EXPECT_EQ(dc.GetClipBox(), ZEL::DC::Rect{});
  EXPECT_FALSE(dc.GetPixels().IsValid());
}

TEST_F(DCTest, AnOffscreenContextKeepsItsPixels) {
  ZEL::DC offscreen = ZEL::DC::MakeOffscreen(4, 3);
  offscreen.FillRect({0, 0, 2, 3}, kBlue);
  const auto pixels = offscreen.GetPixels();
  ASSERT_TRUE(pixels.IsValid());
  EXPECT_EQ(pixels.PixelAt(1, 2), 0xFF0000FFu);
  EXPECT_EQ(pixels.PixelAt(2, 0), 0u) << "transparent where nothing was drawn";

  offscreen.SaveState();
  offscreen.Clear({1.f, 0.f, 0.f, 1.f});
  EXPECT_EQ(offscreen.GetStateDepth(), 0);
  EXPECT_EQ(offscreen.GetPixels().PixelAt(3, 2), 0xFFFF0000u);
  offscreen.FillRect({3, 2, 4, 3}, kBlue);
  EXPECT_EQ(offscreen.GetPixels().PixelAt(3, 2), 0xFF0000FFu) << "drawing goes on after a clear";
}

} // namespace
