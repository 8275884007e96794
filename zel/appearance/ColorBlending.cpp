// ColorManager's arithmetic: brightness scaling and blends.
#include <zel/appearance/ColorManager.h>

namespace ZEL {
namespace {

using Color = ColorManager::Color;

unsigned char ToChannel(double value) {
  if (!(value > 0.0)) return 0; // also NaN
  return value >= 255.0 ? 255 : static_cast<unsigned char>(value);
}

// 0.35 at brightness 0, 0.8 at 50, 1.25 at 100.
float BrightnessFactor(unsigned brightness) {
  const float fraction = static_cast<float>(brightness) / 100.f;
  return (fraction + fraction) * 0.45f + 0.35f;
}

unsigned char Scale(unsigned char channel, float factor) { return ToChannel(channel * factor + 0.5f); }

unsigned char Mix(unsigned char a, unsigned char b, double t) {
  return ToChannel(a * (1.0 - t) + b * t + 0.5);
}

} // namespace

Color ColorManager::MakeColor(const Color& a, const Color& b, double t) {
  return {Mix(a.red, b.red, t), Mix(a.green, b.green, t), Mix(a.blue, b.blue, t)};
}

Color ColorManager::MakeColor(const Color& a, const Color& b, double t, unsigned brightness) {
  return MakeColor(MakeColor(a, brightness, 0), b, t);
}

Color ColorManager::MakeColor(const Color& c, unsigned brightness,
                              unsigned /*percent: kept for the formulas*/) {
  const float factor = BrightnessFactor(brightness);
  return {Scale(c.red, factor), Scale(c.green, factor), Scale(c.blue, factor)};
}

Color ColorManager::MakeColor(const Key& a, const Key& b, double t) {
  return MakeColor(GetColor(a), GetColor(b), t);
}

Color ColorManager::MakeColor(const Key& a, const Key& b, double t, unsigned brightness) {
  return MakeColor(GetColor(a), GetColor(b), t, brightness);
}

Color ColorManager::MakeAdjustedColor(const Color& a, const Color& b, double t) {
  return MakeColor(a, b, t, GetBrightness());
}

Color ColorManager::MakeAdjustedColor(const Key& a, const Key& b, double t) {
  return MakeColor(a, b, t, GetBrightness());
}

} // namespace ZEL
