#include <kroui/theme/ColorTrack.h>

#include <gtest/gtest.h>

#include <cmath>

using kroui::drawbot::ColorRGBA;
using kroui::ui::ColorFromHSV;
using kroui::ui::ColorTrack;
using kroui::ui::KeyFrame;

namespace {

KeyFrame Grey(float t, float v, bool hold = false) { return {1, t, v, 0.f, 0.f, 1.f, hold, false}; }
KeyFrame Hue(float t, float h, float s = 1.f) { return {1, t, 1.f, h, s, 1.f, false, false}; }

ColorTrack Track(std::initializer_list<KeyFrame> frames) {
  ColorTrack track;
  for (const KeyFrame& frame : frames) track.Add(frame);
  return track;
}

void ExpectColor(const ColorRGBA& actual, const ColorRGBA& expected) {
  EXPECT_NEAR(actual.red, expected.red, 5e-4f);
  EXPECT_NEAR(actual.green, expected.green, 5e-4f);
  EXPECT_NEAR(actual.blue, expected.blue, 5e-4f);
  EXPECT_NEAR(actual.alpha, expected.alpha, 5e-4f);
}

struct Sample {
  float brightness;
  float value;
};

class ColorTrackLevels : public testing::TestWithParam<Sample> {};

// The current palette's levels, added out of order: dark greys that brighten,
// then a step to the light levels between 0.5 and 0.5001.
TEST_P(ColorTrackLevels, BlendBetweenNeighboursAndStepAtTheSplit) {
  const ColorTrack track = Track({Grey(1.f, 0.9f), Grey(0.5f, 0.2f), Grey(0.f, 0.1f), Grey(0.5001f, 0.7f)});
  const float v = GetParam().value;
  ExpectColor(track.At(GetParam().brightness), {v, v, v, 1.f});
}

INSTANTIATE_TEST_SUITE_P(Cases, ColorTrackLevels,
                         testing::Values(Sample{0.f, 0.1f}, Sample{0.25f, 0.15f}, Sample{0.5f, 0.2f},
                                         Sample{0.50005f, 0.45f}, Sample{0.5001f, 0.7f}, Sample{0.75f, 0.8f},
                                         Sample{1.f, 0.9f}, Sample{-3.f, 0.1f}, Sample{7.f, 0.9f},
                                         Sample{NAN, 0.1f}));

TEST(ColorTrack, HoldKeepsTheValueUpToTheNextKeyFrame) {
  const ColorTrack track = Track({Grey(0.f, 0.1f, true), Grey(0.5f, 0.3f), Grey(1.f, 0.9f)});
  ExpectColor(track.At(0.49f), {0.1f, 0.1f, 0.1f, 1.f});
  ExpectColor(track.At(0.5f), {0.3f, 0.3f, 0.3f, 1.f});
  ExpectColor(track.At(0.75f), {0.6f, 0.6f, 0.6f, 1.f});
}

TEST(ColorTrack, AGeneralKeyFrameFixesTheColourAtEveryBrightness) {
  KeyFrame general = Grey(0.f, 0.4f);
  general.general = true;
  const ColorTrack track = Track({Grey(0.f, 0.1f), general, Grey(1.f, 0.9f)});
  EXPECT_TRUE(track.IsFixed());
  for (float b : {0.f, 0.3f, 0.5f, 0.5001f, 1.f}) ExpectColor(track.At(b), {0.4f, 0.4f, 0.4f, 1.f});
}

TEST(ColorTrack, HueTakesTheShorterWayGreysBorrowItAndAlphaBlends) {
  ExpectColor(Track({Hue(0.f, 350.f), Hue(1.f, 10.f)}).At(0.5f), {1.f, 0.f, 0.f, 1.f});
  ExpectColor(Track({Hue(0.f, 0.f, 0.f), Hue(1.f, 240.f)}).At(0.5f), {0.5f, 0.5f, 1.f, 1.f});
  KeyFrame clear = Grey(0.f, 1.f);
  clear.a = 0.f;
  ExpectColor(Track({clear, Grey(1.f, 1.f)}).At(0.25f), {1.f, 1.f, 1.f, 0.25f});
  ExpectColor(ColorTrack().At(0.5f), {0.f, 0.f, 0.f, 0.f});
}

struct HSVCase {
  float h, s, v;
  ColorRGBA rgb;
};

class HSVConversion : public testing::TestWithParam<HSVCase> {};

TEST_P(HSVConversion, MatchesTheColourWheel) {
  ExpectColor(ColorFromHSV(GetParam().h, GetParam().s, GetParam().v, 1.f), GetParam().rgb);
}

INSTANTIATE_TEST_SUITE_P(Cases, HSVConversion,
                         testing::Values(HSVCase{60, 1, 1, {1, 1, 0, 1}}, HSVCase{-120, 1, 1, {0, 0, 1, 1}},
                                         HSVCase{30, 0.5f, 0.8f, {0.8f, 0.6f, 0.4f, 1}},
                                         HSVCase{NAN, 2.f, 0.5f, {0.5f, 0, 0, 1}}));

} // namespace
