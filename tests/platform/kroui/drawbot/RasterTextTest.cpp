#include <kroui/drawbot/FontTable.h>
#include <kroui/drawbot/RasterSurface.h>
#include <kroui/drawbot/RecordingDrawbot.h>
#include <kroui/drawbot/TextShaping.h>

#include "DrawbotTestSupport.h"

#include <cmath>
#include <string>

namespace {

using namespace kroui::drawbot;
using namespace kroui::drawbot::testing;

const FontKey kDefault{kFont_Default};
const FontKey kSmall{kFont_CleanTimecodeSmall};
const FontKey kMedium{kFont_CleanTimecodeMedium};
const FontKey kLarge{kFont_CleanTimecodeLarge};

struct Drawn {
  Image image;
  TextMetrics metrics;
};

Drawn DrawText(std::string_view text, const FontKey& font, const RectF& box, HorizontalAlignment horizontal,
               VerticalAlignment vertical, int width = 200, int height = 60) {
  RasterSurface surface(width, height);
  Drawbot& drawbot = surface.BeginDrawing();
  drawbot.DrawText(text, font, kBlack, box, horizontal, vertical);
  const TextMetrics metrics = drawbot.MeasureText(text, font);
  surface.EndDrawing();
  return {surface.Snapshot(), metrics};
}

float Round(float value) { return std::floor(value + 0.5f); }

/// Where the baseline of text with these metrics starts when aligned in `box`.
PointF ExpectedOrigin(const TextMetrics& m, const RectF& box, HorizontalAlignment h, VerticalAlignment v) {
  const float x = h == HorizontalAlignment::Left     ? box.x
                  : h == HorizontalAlignment::Center ? box.x + (box.width - m.width) / 2.f
                                                     : box.x + box.width - m.width;
  const float y = v == VerticalAlignment::Top        ? box.y + m.ascent
                  : v == VerticalAlignment::Center   ? box.y + (box.height - m.Height()) / 2.f + m.ascent
                  : v == VerticalAlignment::Baseline ? box.y + box.height
                                                     : box.y + box.height - m.descent;
  return {Round(x), Round(y)};
}

class TextAlignment : public ::testing::TestWithParam<std::tuple<HorizontalAlignment, VerticalAlignment>> {};

TEST_P(TextAlignment, PutsTheMeasuredTextWhereAsked) {
  const auto [horizontal, vertical] = GetParam();
  const RectF box{20.f, 10.f, 160.f, 36.f};
  const std::string_view text = "Hg 01:23";
  const Drawn reference = DrawText(text, kDefault, box, HorizontalAlignment::Left, VerticalAlignment::Top);
  const Drawn aligned = DrawText(text, kDefault, box, horizontal, vertical);

  // The same glyphs, moved by as much as the alignment moves the measured text.
  const PointF from =
      ExpectedOrigin(reference.metrics, box, HorizontalAlignment::Left, VerticalAlignment::Top);
  const PointF to = ExpectedOrigin(aligned.metrics, box, horizontal, vertical);
  const PixelBox ink = InkBounds(aligned.image, kTransparent);
  const PixelBox referenceInk = InkBounds(reference.image, kTransparent);
  const int dx = static_cast<int>(to.x - from.x), dy = static_cast<int>(to.y - from.y);
  ASSERT_FALSE(referenceInk.IsEmpty());
  EXPECT_EQ(ink, (PixelBox{referenceInk.left + dx, referenceInk.top + dy, referenceInk.right + dx,
                           referenceInk.bottom + dy}));

  const float descent = vertical == VerticalAlignment::Baseline ? aligned.metrics.descent : 0.f;
  EXPECT_GE(ink.left, box.x);
  EXPECT_LE(ink.right, box.x + box.width);
  EXPECT_GE(ink.top, box.y);
  EXPECT_LE(ink.bottom, box.y + box.height + descent);
}

INSTANTIATE_TEST_SUITE_P(
    EveryAlignment, TextAlignment,
    ::testing::Combine(::testing::Values(HorizontalAlignment::Left, HorizontalAlignment::Center,
                                         HorizontalAlignment::Right),
                       ::testing::Values(VerticalAlignment::Top, VerticalAlignment::Center,
                                         VerticalAlignment::Baseline, VerticalAlignment::Bottom)));

class FontRows : public ::testing::TestWithParam<FontSpec> {};

TEST_P(FontRows, AreMeasuredAsTheyAreDrawn) {
  const FontKey font{krocore::utility::ImmutableString(GetParam().key)};
  const Drawn drawn = DrawText("00:01:23:12", font, {10.f, 10.f, 300.f, 40.f}, HorizontalAlignment::Left,
                               VerticalAlignment::Top, 320, 60);
  const PixelBox ink = InkBounds(drawn.image, kTransparent);
  const TextMetrics& m = drawn.metrics;
  // Side bearings keep the ink a little inside the advance, never outside it.
  EXPECT_GE(ink.left, 10);
  EXPECT_LE(ink.left, 12);
  EXPECT_LE(ink.right, 10 + m.width);
  EXPECT_GE(ink.right, 10 + m.width - 3);
  EXPECT_GE(ink.top, 10);
  EXPECT_LE(ink.bottom, 10 + m.Height());
  EXPECT_NEAR(m.Height(), GetParam().pixelSize * 1.2f, 3.f) << "a line of the font's size";

  RecordingDrawbot recording(100, 100);
  const TextMetrics recorded = recording.MeasureText("00:01:23:12", font);
  EXPECT_EQ(recorded.width, m.width);
  EXPECT_EQ(recorded.ascent, m.ascent);
  EXPECT_EQ(recorded.descent, m.descent);
}

INSTANTIATE_TEST_SUITE_P(EveryFont, FontRows,
                         ::testing::ValuesIn(GetFontTable().begin(), GetFontTable().end()),
                         [](const auto& row) { return std::to_string(row.index); });

TEST(FontTable, FindsRowsByKeyAndFallsBackToTheDefault) {
  EXPECT_EQ(FindFontRow(kDefault), 0u);
  EXPECT_EQ(FindFont(kSmall).family, "DejaVu Sans Mono");
  EXPECT_EQ(FindFont(kLarge).weight, FontWeight::Bold);
  EXPECT_EQ(FindFontRow(FontKey{"fonts.kls.NoSuchFont"}), 0u);
  EXPECT_EQ(FindFontRow(FontKey{}), 0u);
  for (std::size_t row = 0; row < GetFontTable().size(); ++row) {
    EXPECT_EQ(FindFontRow(FontKey{krocore::utility::ImmutableString(GetFontTable()[row].key)}), row);
  }
}

TEST(RasterText, TimecodeFontsHaveEvenDigitsAndGrowWithTheirSize) {
  RecordingDrawbot drawbot(10, 10);
  for (const FontKey& font : {kSmall, kMedium, kLarge}) {
    EXPECT_EQ(drawbot.MeasureText("00:00:00:00", font).width, drawbot.MeasureText("11:11:11:11", font).width)
        << font;
  }
  EXPECT_LT(drawbot.MeasureText("00:01", kSmall).width, drawbot.MeasureText("00:01", kMedium).width);
  EXPECT_LT(drawbot.MeasureText("00:01", kMedium).width, drawbot.MeasureText("00:01", kLarge).width);
  EXPECT_EQ(drawbot.MeasureText("label", FontKey{"fonts.kls.Unknown"}).width,
            drawbot.MeasureText("label", kDefault).width);
}

TEST(RasterText, IsClippedToItsBox) {
  const RectF box{10.f, 10.f, 30.f, 20.f};
  const Drawn drawn = DrawText("a label far too long for its box", kDefault, box, HorizontalAlignment::Left,
                               VerticalAlignment::Center);
  const PixelBox ink = InkBounds(drawn.image, kTransparent);
  EXPECT_GE(ink.left, 10) << ink;
  EXPECT_LE(ink.right, 40) << ink;
  EXPECT_GT(ink.right, 35) << "cut at the box, not before";
}

TEST(RasterText, MovesWithTheTransformPixelForPixel) {
  const Drawn plain = DrawText("00:01:23:12", kSmall, {10.f, 5.f, 100.f, 20.f}, HorizontalAlignment::Left,
                               VerticalAlignment::Center);
  RasterSurface surface(200, 60);
  Drawbot& drawbot = surface.BeginDrawing();
  drawbot.Translate(7.f, 11.f);
  drawbot.DrawText("00:01:23:12", kSmall, kBlack, {10.f, 5.f, 100.f, 20.f});
  surface.EndDrawing();
  const Image moved = surface.Snapshot();
  for (int y = 0; y + 11 < 60; ++y) {
    for (int x = 0; x + 7 < 200; ++x) ASSERT_EQ(plain.image.PixelAt(x, y), moved.PixelAt(x + 7, y + 11));
  }
}

TEST(RasterText, UnderAScaleIsShapedLargerAndMeasuredInUserUnits) {
  RasterSurface surface(300, 80);
  Drawbot& drawbot = surface.BeginDrawing();
  const TextMetrics plain = drawbot.MeasureText("00:01:23:12", kSmall);
  drawbot.Scale(2.f, 2.f);
  const TextMetrics scaled = drawbot.MeasureText("00:01:23:12", kSmall);
  drawbot.DrawText("00:01:23:12", kSmall, kBlack, {0.f, 0.f, 150.f, 40.f}, HorizontalAlignment::Left,
                   VerticalAlignment::Top);
  surface.EndDrawing();
  EXPECT_NEAR(scaled.width, plain.width, plain.width * 0.1f) << "hinted advances differ between sizes";
  const PixelBox ink = InkBounds(surface.Snapshot(), kTransparent);
  EXPECT_NEAR(ink.right - ink.left, 2.f * scaled.width, 4.f) << "drawn at twice the size";
}

TEST(RasterText, ToleratesBrokenAndEmptyText) {
  RasterSurface surface(100, 30);
  Drawbot& drawbot = surface.BeginDrawing();
  const std::string broken("a\xFF\xC3z\0b", 6);
  drawbot.DrawText(broken, kDefault, kBlack, {0.f, 0.f, 100.f, 30.f});
  EXPECT_GT(drawbot.MeasureText(broken, kDefault).width, drawbot.MeasureText("azb", kDefault).width)
      << "each bad byte shows as a replacement character";
  const TextMetrics empty = drawbot.MeasureText("", kDefault);
  EXPECT_EQ(empty.width, 0.f);
  EXPECT_GT(empty.ascent, 0.f) << "an empty line still has the font's height";
  surface.EndDrawing();
  EXPECT_FALSE(InkBounds(surface.Snapshot(), kTransparent).IsEmpty());
}

TEST(GlyphRunCache, ShapesARepeatedLabelOnce) {
  ClearGlyphRunCache();
  RasterSurface surface(200, 40);
  for (int pass = 0; pass < 3; ++pass) {
    Drawbot& drawbot = surface.BeginDrawing();
    drawbot.DrawText("00:01:23:12", kSmall, kBlack, {0.f, 0.f, 200.f, 20.f});
    drawbot.MeasureText("00:01:23:12", kSmall);
    surface.EndDrawing();
  }
  GlyphRunCacheStatistics statistics = GetGlyphRunCacheStatistics();
  EXPECT_EQ(statistics.misses, 1u);
  EXPECT_EQ(statistics.hits, 5u);
  EXPECT_EQ(statistics.entries, 1u);

  RecordingDrawbot recording(10, 10);
  recording.DrawText("00:01:23:12", kSmall, kBlack, {0.f, 0.f, 10.f, 10.f});
  recording.MeasureText("00:01:23:12", kMedium);
  recording.Scale(2.f, 2.f);
  recording.MeasureText("00:01:23:12", kSmall);
  statistics = GetGlyphRunCacheStatistics();
  EXPECT_EQ(statistics.hits, 6u) << "the recording surface shares the runs";
  EXPECT_EQ(statistics.misses, 3u) << "another font and another size are shaped apart";
  ClearGlyphRunCache();
  EXPECT_EQ(GetGlyphRunCacheStatistics().entries, 0u);
}

TEST(GlyphRunCache, KeepsTheMostRecentlyUsedWhenFull) {
  ClearGlyphRunCache();
  RecordingDrawbot drawbot(10, 10);
  const std::size_t capacity = GetGlyphRunCacheStatistics().capacity;
  ASSERT_GT(capacity, 100u);
  drawbot.MeasureText("kept", kDefault);
  for (std::size_t i = 0; i < capacity + 10; ++i) {
    drawbot.MeasureText(std::to_string(i), kDefault);
    if (i % 64 == 0) drawbot.MeasureText("kept", kDefault);
  }
  const GlyphRunCacheStatistics before = GetGlyphRunCacheStatistics();
  EXPECT_EQ(before.entries, capacity);
  drawbot.MeasureText("kept", kDefault);
  drawbot.MeasureText("0", kDefault);
  const GlyphRunCacheStatistics after = GetGlyphRunCacheStatistics();
  EXPECT_EQ(after.hits, before.hits + 1) << "recently used: still there";
  EXPECT_EQ(after.misses, before.misses + 1) << "the oldest: gone";
  ClearGlyphRunCache();
}

} // namespace
