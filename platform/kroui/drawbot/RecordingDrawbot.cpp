#include <kroui/drawbot/RecordingDrawbot.h>

#include <kroui/drawbot/DrawStateStackImpl.h>
#include <kroui/drawbot/FontTable.h>
#include <kroui/drawbot/raster/TextEngineImpl.h>

#include <krocore/debug/Assert.h>

#include <algorithm>
#include <cmath>
#include <sstream>

namespace kroui::drawbot {

struct RecordingDrawbot::State {
  DrawStateStack stack;
  std::vector<DrawCommand> commands;

  explicit State(const RectF& bounds) : stack(bounds) {}

  /// A command with what every kind records: the clip and scale in force.
  DrawCommand& Record(DrawKind kind);
  void RecordPoints(DrawKind kind, std::span<const PointF> points, const ColorRGBA& color, float width);
};

DrawCommand& RecordingDrawbot::State::Record(DrawKind kind) {
  const DrawState& current = stack.Current();
  DrawCommand& command = commands.emplace_back();
  command.kind = kind;
  command.scale = {current.transform.scaleX, current.transform.scaleY};
  command.clip = current.clip;
  for (const ClipPolygonNode* node = current.polygons.get(); node; node = node->outer.get()) {
    command.clipPolygons.push_back(node->points);
  }
  std::reverse(command.clipPolygons.begin(), command.clipPolygons.end());
  command.saveDepth = stack.GetDepth();
  return command;
}

void RecordingDrawbot::State::RecordPoints(DrawKind kind, std::span<const PointF> points,
                                           const ColorRGBA& color, float width) {
  DrawCommand& command = Record(kind);
  const Transform& t = stack.Current().transform;
  for (const PointF& p : points) command.points.push_back(t.Apply(p));
  command.color = color;
  command.lineWidth = width;
}

RecordingDrawbot::RecordingDrawbot(int width, int height)
    : mState(std::make_unique<State>(
          RectF{0.f, 0.f, static_cast<float>(std::max(width, 0)), static_cast<float>(std::max(height, 0))})) {
  KROCORE_ASSERT(width >= 0 && height >= 0, "A recording drawbot's size cannot be negative");
}

RecordingDrawbot::~RecordingDrawbot() = default;

void RecordingDrawbot::Save() { mState->stack.Save(); }

void RecordingDrawbot::Restore() {
  KROCORE_ASSERT(mState->stack.Restore(), "Restore without a matching Save");
}

void RecordingDrawbot::Translate(float dx, float dy) { mState->stack.Translate(dx, dy); }

void RecordingDrawbot::Scale(float sx, float sy) { mState->stack.Scale(sx, sy); }

void RecordingDrawbot::ClipRect(const RectF& rect) { mState->stack.ClipRect(rect); }

void RecordingDrawbot::ClipPolygon(std::span<const PointF> polygon) { mState->stack.ClipPolygon(polygon); }

RectF RecordingDrawbot::GetClipBounds() const { return mState->stack.GetClipBounds(); }

void RecordingDrawbot::DrawLine(PointF from, PointF to, const ColorRGBA& color, float width) {
  const PointF points[] = {from, to};
  mState->RecordPoints(DrawKind::Line, points, color, width);
}

void RecordingDrawbot::DrawPolyline(std::span<const PointF> points, const ColorRGBA& color, float width) {
  mState->RecordPoints(DrawKind::Polyline, points, color, width);
}

void RecordingDrawbot::StrokePolygon(std::span<const PointF> polygon, const ColorRGBA& color, float width) {
  mState->RecordPoints(DrawKind::StrokePolygon, polygon, color, width);
}

void RecordingDrawbot::FillPolygon(std::span<const PointF> polygon, const ColorRGBA& color) {
  mState->RecordPoints(DrawKind::FillPolygon, polygon, color, 0.f);
}

void RecordingDrawbot::StrokeRect(const RectF& rect, const ColorRGBA& color, float width) {
  DrawCommand& command = mState->Record(DrawKind::StrokeRect);
  command.rect = mState->stack.Current().transform.Apply(rect);
  command.color = color;
  command.lineWidth = width;
}

void RecordingDrawbot::FillRect(const RectF& rect, const ColorRGBA& color) {
  DrawCommand& command = mState->Record(DrawKind::FillRect);
  command.rect = mState->stack.Current().transform.Apply(rect);
  command.color = color;
}

void RecordingDrawbot::DrawImage(const Image& image, const RectF& destination, float opacity) {
  DrawCommand& command = mState->Record(DrawKind::Image);
  command.rect = mState->stack.Current().transform.Apply(destination);
  command.image = image;
  command.opacity = opacity;
}

void RecordingDrawbot::DrawPixels(const Image& pixels, PointF origin) {
  DrawCommand& command = mState->Record(DrawKind::Pixels);
  const PointF device = mState->stack.Current().transform.Apply(origin);
  // Pixels are copied unscaled onto whole pixels, as the raster surface copies them.
  command.rect = {std::floor(device.x + 0.5f), std::floor(device.y + 0.5f),
                  static_cast<float>(pixels.GetWidth()), static_cast<float>(pixels.GetHeight())};
  command.image = pixels;
}

void RecordingDrawbot::DrawText(std::string_view text, const FontKey& font, const ColorRGBA& color,
                                const RectF& box, HorizontalAlignment horizontal,
                                VerticalAlignment vertical) {
  const Transform& t = mState->stack.Current().transform;
  DrawCommand& command = mState->Record(DrawKind::Text);
  command.text = std::string(text);
  command.font = font;
  command.color = color;
  command.rect = t.Apply(box);
  command.horizontal = horizontal;
  command.vertical = vertical;
  command.textMetrics =
      raster::TextEngine::Instance().Measure(text, FindFontRow(font), std::abs(t.scaleY)).metrics;
  command.textOrigin = raster::PlaceText(command.textMetrics, command.rect, horizontal, vertical);
}

TextMetrics RecordingDrawbot::MeasureText(std::string_view text, const FontKey& font) {
  const Transform& t = mState->stack.Current().transform;
  const float sx = t.IsInvertible() ? std::abs(t.scaleX) : 1.f,
              sy = t.IsInvertible() ? std::abs(t.scaleY) : 1.f;
  const TextMetrics device = raster::TextEngine::Instance().Measure(text, FindFontRow(font), sy).metrics;
  return {device.width / sx, device.ascent / sy, device.descent / sy};
}

std::span<const DrawCommand> RecordingDrawbot::Commands() const noexcept { return mState->commands; }

std::vector<const DrawCommand*> RecordingDrawbot::FindAll(DrawKind kind) const {
  std::vector<const DrawCommand*> found;
  for (const DrawCommand& command : mState->commands) {
    if (command.kind == kind) found.push_back(&command);
  }
  return found;
}

const DrawCommand* RecordingDrawbot::FindFirst(DrawKind kind) const noexcept {
  const auto found = std::find_if(mState->commands.begin(), mState->commands.end(),
                                  [kind](const DrawCommand& command) { return command.kind == kind; });
  return found == mState->commands.end() ? nullptr : &*found;
}

const DrawCommand* RecordingDrawbot::FindText(std::string_view text) const noexcept {
  const auto found =
      std::find_if(mState->commands.begin(), mState->commands.end(), [text](const DrawCommand& command) {
        return command.kind == DrawKind::Text && command.text == text;
      });
  return found == mState->commands.end() ? nullptr : &*found;
}

std::size_t RecordingDrawbot::Count(DrawKind kind) const noexcept {
  return static_cast<std::size_t>(
      std::count_if(mState->commands.begin(), mState->commands.end(),
                    [kind](const DrawCommand& command) { return command.kind == kind; }));
}

int RecordingDrawbot::GetSaveDepth() const noexcept { return mState->stack.GetDepth(); }

std::string RecordingDrawbot::Describe() const {
  std::ostringstream out;
  for (const DrawCommand& command : mState->commands) out << command.Describe() << "\n";
  return out.str();
}

void RecordingDrawbot::ClearCommands() noexcept { mState->commands.clear(); }

} // namespace kroui::drawbot
