#pragma once

#include <zel/Forward.h>
#include <zel/appearance/ColorManager.h>

namespace ZEL {

/// The value of a formula's function, its keys looked up in the registry:
///
///   RGB(r, g, b)                      the channels as given
///   KRO(name)                         the theme colour of that name
///   SCALEDRGB(r, g, b, p)             the channels scaled for the brightness
///   REVERSIBLE(r, g, b)               the channels, inverted on a dark theme
///   REVERSIBLESCALED(a, b, pa, pb)    key b's colour on a dark theme, else key a's, scaled
///   MAP(key)                          the key's colour
///   COLOR(a, b, p)                    key a's colour blended p percent towards key b's
///
/// Names are compared with case; any other name is black.
ColorManager::Color EvaluateColorFunction(ColorRegistry& registry, const ColorExpression& expression);

} // namespace ZEL
