#include <zel/appearance/ColorFunctions.h>

#include <zel/appearance/ColorExpression.h>
#include <zel/appearance/ColorRegistry.h>
#include <zel/appearance/ThemeNameTable.h>

#include <string_view>

namespace ZEL {
namespace {

using Color = ColorManager::Color;
using Key = ColorManager::Key;

Color Channels(const ColorExpression& e) {
  return {ColorExpression::ReadChannel(e.GetArgument(0)), ColorExpression::ReadChannel(e.GetArgument(1)),
          ColorExpression::ReadChannel(e.GetArgument(2))};
}

Key KeyAt(const ColorExpression& e, std::size_t index) { return Key(e.GetArgument(index)); }

Color Rgb(ColorRegistry&, const ColorExpression& e) { return Channels(e); }

Color Kro(ColorRegistry&, const ColorExpression& e) { return ThemeNameTable::Resolve(e.GetArgument(0)); }

Color ScaledRgb(ColorRegistry&, const ColorExpression& e) {
  return ColorManager::MakeColor(Channels(e), ColorManager::GetBrightness(),
                                 ColorExpression::ReadPercent(e.GetArgument(3)));
}

Color Reversible(ColorRegistry& registry, const ColorExpression& e) {
  const Color c = Channels(e);
  if (!registry.IsReversing()) return c;
  return {static_cast<unsigned char>(255 - c.red), static_cast<unsigned char>(255 - c.green),
          static_cast<unsigned char>(255 - c.blue)};
}

Color ReversibleScaled(ColorRegistry& registry, const ColorExpression& e) {
  const Color light = registry.Get(KeyAt(e, 0));
  const Color dark = registry.Get(KeyAt(e, 1));
  const bool reversing = registry.IsReversing();
  const std::uint32_t percent = ColorExpression::ReadPercent(e.GetArgument(reversing ? 3 : 2));
  return ColorManager::MakeColor(reversing ? dark : light, ColorManager::GetBrightness(), percent);
}

Color Map(ColorRegistry& registry, const ColorExpression& e) { return registry.Get(KeyAt(e, 0)); }

Color Blend(ColorRegistry& registry, const ColorExpression& e) {
  const Color a = registry.Get(KeyAt(e, 0));
  const Color b = registry.Get(KeyAt(e, 1));
  return ColorManager::MakeColor(a, b, ColorExpression::ReadInteger(e.GetArgument(2)) / 100.0);
}

struct Function {
  std::string_view name;
  Color (*evaluate)(ColorRegistry&, const ColorExpression&);
};

constexpr Function kFunctions[] = {
    {"RGB", &Rgb},
    {"KRO", &Kro},
    {"SCALEDRGB", &ScaledRgb},
    {"REVERSIBLE", &Reversible},
    {"REVERSIBLESCALED", &ReversibleScaled},
    {"MAP", &Map},
    {"COLOR", &Blend},
};

} // namespace

ColorManager::Color EvaluateColorFunction(ColorRegistry& registry, const ColorExpression& expression) {
  for (const Function& function : kFunctions) {
    if (function.name == expression.GetFunction()) return function.evaluate(registry, expression);
  }
  return {0, 0, 0};
}

} // namespace ZEL
