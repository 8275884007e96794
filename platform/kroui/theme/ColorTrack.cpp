#include <kroui/theme/ColorTrack.h>

#include <algorithm>
#include <cmath>

namespace kroui::ui {
namespace {

float Lerp(float a, float b, float w) { return a + (b - a) * w; }

// Along the shorter way round the circle. A grey has no hue of its own, so
// it takes its partner's, and a blend from grey into a colour only saturates.
float LerpHue(const KeyFrame& from, const KeyFrame& to, float w) {
  float a = from.s > 0.f ? from.h : to.h;
  float b = to.s > 0.f ? to.h : a;
  float delta = std::fmod(b - a, 360.f);
  if (delta > 180.f) delta -= 360.f;
  if (delta < -180.f) delta += 360.f;
  return a + delta * w;
}

KeyFrame Blend(const KeyFrame& from, const KeyFrame& to, float w) {
  KeyFrame blended = from;
  blended.v = Lerp(from.v, to.v, w);
  blended.s = Lerp(from.s, to.s, w);
  blended.a = Lerp(from.a, to.a, w);
  blended.h = LerpHue(from, to, w);
  return blended;
}

} // namespace

void ColorTrack::Add(const KeyFrame& frame) {
  if (frame.general) {
    mGeneral = frame;
    return;
  }
  auto at = std::lower_bound(mFrames.begin(), mFrames.end(), frame.t,
                             [](const KeyFrame& existing, float t) { return existing.t < t; });
  if (at != mFrames.end() && at->t == frame.t)
    *at = frame;
  else
    mFrames.insert(at, frame);
}

bool ColorTrack::Remove(float t) {
  const auto at = std::find_if(mFrames.begin(), mFrames.end(), [t](const KeyFrame& frame) { return frame.t == t; });
  if (at == mFrames.end()) return false;
  mFrames.erase(at);
  return true;
}

KeyFrame ColorTrack::FrameAt(float brightness) const {
  if (mGeneral) return *mGeneral;
  if (brightness <= mFrames.front().t) return mFrames.front();
  if (brightness >= mFrames.back().t) return mFrames.back();
  const auto next = std::upper_bound(mFrames.begin(), mFrames.end(), brightness,
                                     [](float t, const KeyFrame& frame) { return t < frame.t; });
  const KeyFrame& from = *(next - 1);
  if (from.hold || from.t == brightness) return from;
  return Blend(from, *next, (brightness - from.t) / (next->t - from.t));
}

drawbot::ColorRGBA ColorTrack::At(float brightness) const {
  if (IsEmpty()) return {0.f, 0.f, 0.f, 0.f};
  if (!(brightness >= 0.f)) brightness = 0.f; // also NaN
  const KeyFrame frame = FrameAt(std::min(brightness, 1.f));
  return ColorFromHSV(frame.h, frame.s, frame.v, frame.a);
}

drawbot::ColorRGBA ColorFromHSV(float h, float s, float v, float a) {
  const auto finite = [](float x) { return std::isfinite(x) ? x : 0.f; };
  s = std::clamp(finite(s), 0.f, 1.f);
  v = std::clamp(finite(v), 0.f, 1.f);
  a = std::clamp(finite(a), 0.f, 1.f);
  float sector = std::fmod(finite(h), 360.f);
  if (sector < 0.f) sector += 360.f;
  sector /= 60.f;
  const int index = static_cast<int>(sector) % 6;
  const float f = sector - std::floor(sector);
  const float p = v * (1.f - s);
  const float q = v * (1.f - s * f);
  const float r = v * (1.f - s * (1.f - f));
  const float channels[6][3] = {{v, r, p}, {q, v, p}, {p, v, r}, {p, q, v}, {r, p, v}, {v, p, q}};
  return {channels[index][0], channels[index][1], channels[index][2], a};
}

} // namespace kroui::ui
