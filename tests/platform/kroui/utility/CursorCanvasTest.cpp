#include <kroui/utility/CursorCanvas.h>

#include <gtest/gtest.h>

#include <array>

namespace {

using kroui::utility::CursorCanvas;
using Ink = CursorCanvas::Ink;
using P = CursorCanvas::PointF;

constexpr std::uint32_t kBlack = 0xFF000000u, kWhite = 0xFFFFFFFFu, kClear = 0u;

TEST(CursorCanvas, InkedPixelsAreRingedByAOnePixelWhiteOutline) {
  CursorCanvas canvas;
  canvas.FillRect({5, 5, 0, 0});
  const auto image = canvas.Finish();
  ASSERT_EQ(image.GetWidth(), CursorCanvas::kSize);
  ASSERT_EQ(image.GetHeight(), CursorCanvas::kSize);
  EXPECT_EQ(image.PixelAt(5, 5), kBlack);
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) {
      if (dx || dy) {
        EXPECT_EQ(image.PixelAt(5 + dx, 5 + dy), kWhite) << dx << "," << dy;
      }
    }
  }
  EXPECT_EQ(image.PixelAt(3, 5), kClear);
  EXPECT_EQ(image.PixelAt(5, 7), kClear);
}

TEST(CursorCanvas, WholeCoordinatesArePixelCentresAndLinesIncludeTheirEnds) {
  CursorCanvas canvas;
  canvas.Line({3, 1}, {3, 17});
  canvas.Line({10, 20}, {20, 20}, 3.f);
  const auto image = canvas.Finish();
  for (int y = 1; y <= 17; ++y) EXPECT_EQ(image.PixelAt(3, y), kBlack) << y;
  EXPECT_EQ(image.PixelAt(3, 0), kWhite);
  EXPECT_EQ(image.PixelAt(3, 18), kWhite);
  EXPECT_EQ(image.PixelAt(2, 9), kWhite);
  EXPECT_EQ(image.PixelAt(4, 9), kWhite);
  // Width 3: one row each side, and square ends one pixel beyond.
  for (int y = 19; y <= 21; ++y) EXPECT_EQ(image.PixelAt(9, y), kBlack) << y;
  EXPECT_EQ(image.PixelAt(21, 20), kBlack);
  EXPECT_EQ(image.PixelAt(15, 22), kWhite);
}

TEST(CursorCanvas, HollowInkHasABlackEdgeAroundAWhiteInsideAndLiesUnderTheOthers) {
  CursorCanvas canvas;
  canvas.FillRect({4, 4, 6, 6}, Ink::Hollow);
  canvas.FillRect({7, 7, 0, 0});
  canvas.FillRect({20, 4, 6, 6});
  canvas.Line({21, 7}, {25, 7}, 1.f, Ink::White);
  const auto image = canvas.Finish();
  EXPECT_EQ(image.PixelAt(4, 4), kBlack);
  EXPECT_EQ(image.PixelAt(10, 6), kBlack);
  EXPECT_EQ(image.PixelAt(5, 5), kWhite);
  EXPECT_EQ(image.PixelAt(7, 7), kBlack) << "black ink over the hollow shape";
  EXPECT_EQ(image.PixelAt(11, 6), kWhite);
  EXPECT_EQ(image.PixelAt(23, 7), kWhite) << "white ink over black";
  EXPECT_EQ(image.PixelAt(23, 6), kBlack);
}

class PointerTip : public testing::TestWithParam<P> {};

TEST_P(PointerTip, TheTipPixelIsInkedAndNothingAboveOrLeftOfIt) {
  const P tip = GetParam();
  CursorCanvas canvas;
  canvas.Pointer(tip);
  const auto image = canvas.Finish();
  const int x = static_cast<int>(tip.x), y = static_cast<int>(tip.y);
  EXPECT_EQ(image.PixelAt(x, y), kBlack);
  if (y > 0) {
    EXPECT_NE(image.PixelAt(x, y - 1), kBlack);
  }
  if (x > 0) {
    EXPECT_NE(image.PixelAt(x - 1, y), kBlack);
  }
  EXPECT_EQ(image.PixelAt(x, y + 10), kBlack) << "its left edge goes straight down";
}

INSTANTIATE_TEST_SUITE_P(Tips, PointerTip, testing::Values(P{0, 0}, P{1, 1}, P{5, 7}));

TEST(CursorCanvas, AnArrowheadInksItsTipAndNotBeyond) {
  CursorCanvas canvas;
  canvas.Arrowhead({10, 10}, {1, 0}, 4.f);
  canvas.Arrowhead({20, 20}, {1, 1}, 4.f);
  const auto image = canvas.Finish();
  EXPECT_EQ(image.PixelAt(10, 10), kBlack);
  EXPECT_EQ(image.PixelAt(11, 10), kWhite);
  EXPECT_EQ(image.PixelAt(12, 10), kClear);
  EXPECT_EQ(image.PixelAt(20, 20), kBlack);
  EXPECT_EQ(image.PixelAt(21, 21), kWhite);
}

TEST(CursorCanvas, ThinRingsStayUnbroken) {
  CursorCanvas canvas;
  canvas.Ring({15, 15}, 6.f, 1.f);
  const auto image = canvas.Finish();
  // Every column and row that the ring crosses holds an inked pixel.
  for (int i = 9; i <= 21; ++i) {
    bool column = false, row = false;
    for (int j = 0; j < CursorCanvas::kSize; ++j) {
      column = column || image.PixelAt(i, j) == kBlack;
      row = row || image.PixelAt(j, i) == kBlack;
    }
    EXPECT_TRUE(column && row) << i;
  }
  EXPECT_NE(image.PixelAt(15, 15), kBlack);
}

TEST(CursorCanvas, FinishingStartsAFreshDrawing) {
  CursorCanvas canvas;
  canvas.Disc({16, 16}, 5.f);
  EXPECT_EQ(canvas.Finish().PixelAt(16, 16), kBlack);
  const auto blank = canvas.Finish();
  for (int y = 0; y < CursorCanvas::kSize; ++y)
    for (int x = 0; x < CursorCanvas::kSize; ++x) ASSERT_EQ(blank.PixelAt(x, y), kClear) << x << "," << y;
}

} // namespace
