#include <kroui/drawbot/DrawTypes.h>

#include <ostream>

namespace kroui::drawbot {

std::ostream& operator<<(std::ostream& out, const ColorRGBA& color) {
  return out << "rgba(" << color.red << ", " << color.green << ", " << color.blue << ", " << color.alpha
             << ")";
}

std::ostream& operator<<(std::ostream& out, const PointF& point) {
  return out << "(" << point.x << ", " << point.y << ")";
}

std::ostream& operator<<(std::ostream& out, const RectF& rect) {
  return out << "[" << rect.x << ", " << rect.y << " " << rect.width << "x" << rect.height << "]";
}

std::ostream& operator<<(std::ostream& out, const FontKey& font) { return out << font.key.View(); }

std::ostream& operator<<(std::ostream& out, const TextMetrics& metrics) {
  return out << "{width " << metrics.width << ", ascent " << metrics.ascent << ", descent " << metrics.descent
             << "}";
}

std::ostream& operator<<(std::ostream& out, HorizontalAlignment alignment) {
  constexpr const char* kNames[] = {"Left", "Center", "Right"};
  return out << kNames[static_cast<int>(alignment) % 3];
}

std::ostream& operator<<(std::ostream& out, VerticalAlignment alignment) {
  constexpr const char* kNames[] = {"Top", "Center", "Baseline", "Bottom"};
  return out << kNames[static_cast<int>(alignment) % 4];
}

} // namespace kroui::drawbot
