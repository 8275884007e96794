#include <kroui/drawbot/DrawCommand.h>

#include <kroui/drawbot/DrawGeometryImpl.h>
#include <kroui/drawbot/raster/TextEngineImpl.h>

#include <cmath>
#include <ostream>
#include <sstream>

namespace kroui::drawbot {
namespace {

#define KROUI_DRAW_KIND_NAME(kind) #kind,
constexpr std::string_view kKindNames[] = {KROUI_ENUMERATE_DRAW_KINDS(KROUI_DRAW_KIND_NAME)};
#undef KROUI_DRAW_KIND_NAME

RectF StrokeBounds(const DrawCommand& command) {
  // Half the pen around the path, and the half pixel that centres it on pixels.
  return Inflate(BoundsOf(command.points), command.lineWidth * std::abs(command.scale.x) / 2.f + 0.5f,
                 command.lineWidth * std::abs(command.scale.y) / 2.f + 0.5f);
}

RectF TextBounds(const DrawCommand& command) {
  const TextMetrics& m = command.textMetrics;
  const RectF logical{command.textOrigin.x, command.textOrigin.y - m.ascent, m.width, m.Height()};
  return Intersect(logical, raster::TextClipArea(m, command.rect, command.vertical));
}

void DescribePoints(std::ostream& out, const std::vector<PointF>& points) {
  for (std::size_t i = 0; i < points.size(); ++i) out << (i == 0 ? " " : "-") << points[i];
}

void DescribeGeometry(std::ostream& out, const DrawCommand& command) {
  switch (command.kind) {
  case DrawKind::Line:
  case DrawKind::Polyline:
  case DrawKind::StrokePolygon:
  case DrawKind::FillPolygon:
    return DescribePoints(out, command.points);
  case DrawKind::Text:
    out << " \"" << command.text << "\" " << command.font << " in " << command.rect << " "
        << command.horizontal << "/" << command.vertical << " at " << command.textOrigin;
    return;
  default:
    out << " " << command.rect;
  }
}

void DescribePaint(std::ostream& out, const DrawCommand& command) {
  if (command.kind == DrawKind::Image) out << " opacity " << command.opacity;
  if (command.kind == DrawKind::Image || command.kind == DrawKind::Pixels) {
    out << " image " << command.image.GetWidth() << "x" << command.image.GetHeight();
    return;
  }
  out << " " << command.color;
  if (command.lineWidth > 0.f) out << " width " << command.lineWidth;
}

} // namespace

std::string_view GetDrawKindName(DrawKind kind) noexcept {
  const auto index = static_cast<std::size_t>(kind);
  return index < std::size(kKindNames) ? kKindNames[index] : std::string_view("?");
}

RectF DrawCommand::Bounds() const {
  switch (kind) {
  case DrawKind::Line:
  case DrawKind::Polyline:
  case DrawKind::StrokePolygon:
    return StrokeBounds(*this);
  case DrawKind::FillPolygon:
    return BoundsOf(points);
  case DrawKind::Text:
    return TextBounds(*this);
  default:
    return rect;
  }
}

bool DrawCommand::IsVisible() const { return Intersects(Bounds(), clip); }

std::string DrawCommand::Describe() const {
  std::ostringstream out;
  out << GetDrawKindName(kind);
  DescribeGeometry(out, *this);
  DescribePaint(out, *this);
  if (scale != PointF{1.f, 1.f}) out << " scale " << scale;
  out << " clip " << clip;
  if (!clipPolygons.empty()) out << " and " << clipPolygons.size() << " polygon(s)";
  return out.str();
}

std::ostream& operator<<(std::ostream& out, const DrawCommand& command) { return out << command.Describe(); }

} // namespace kroui::drawbot
