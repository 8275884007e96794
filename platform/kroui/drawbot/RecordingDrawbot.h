#pragma once

#include <kroui/Export.h>
#include <kroui/drawbot/DrawCommand.h>
#include <kroui/drawbot/Drawbot.h>

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kroui::drawbot {

/// A drawbot that keeps a display list of the calls instead of pixels, so
/// that a test can assert what a control drew: where (in device pixels, the
/// transform applied), with what, and under which clip. It keeps the state
/// stack exactly as the raster surface does, and measures and places text
/// with the raster surface's own text engine, so the list says where the
/// pixels would be.
///
///   RecordingDrawbot drawbot(200, 40);
///   view.Paint(drawbot);
///   const DrawCommand* label = drawbot.FindText("00:01:23:12");
///   EXPECT_EQ(label->textOrigin, (PointF{12, 27}));
///   EXPECT_EQ(label->clip, (RectF{0, 0, 200, 40}));
///
/// Every call is recorded, also one the clip hides (see DrawCommand::IsVisible).
class KROUI_API RecordingDrawbot final : public Drawbot {
public:
  /// Records as if onto a device of this many pixels, which is the first clip.
  RecordingDrawbot(int width, int height);
  ~RecordingDrawbot() override;
  RecordingDrawbot(const RecordingDrawbot&) = delete;
  RecordingDrawbot& operator=(const RecordingDrawbot&) = delete;

  void Save() override;
  void Restore() override;
  void Translate(float dx, float dy) override;
  void Scale(float sx, float sy) override;
  void ClipRect(const RectF& rect) override;
  void ClipPolygon(std::span<const PointF> polygon) override;
  RectF GetClipBounds() const override;

  void DrawLine(PointF from, PointF to, const ColorRGBA& color, float width = 1.f) override;
  void DrawPolyline(std::span<const PointF> points, const ColorRGBA& color, float width = 1.f) override;
  void StrokeRect(const RectF& rect, const ColorRGBA& color, float width = 1.f) override;
  void FillRect(const RectF& rect, const ColorRGBA& color) override;
  void StrokePolygon(std::span<const PointF> polygon, const ColorRGBA& color, float width = 1.f) override;
  void FillPolygon(std::span<const PointF> polygon, const ColorRGBA& color) override;

  void DrawImage(const Image& image, const RectF& destination, float opacity = 1.f) override;
  void DrawPixels(const Image& pixels, PointF origin) override;

  void DrawText(std::string_view text, const FontKey& font, const ColorRGBA& color, const RectF& box,
                HorizontalAlignment horizontal = HorizontalAlignment::Left,
                VerticalAlignment vertical = VerticalAlignment::Center) override;
  TextMetrics MeasureText(std::string_view text, const FontKey& font) override;

  // Inspection.
  std::span<const DrawCommand> Commands() const noexcept;
  std::vector<const DrawCommand*> FindAll(DrawKind kind) const;
  /// The first command of a kind; null when there is none.
  const DrawCommand* FindFirst(DrawKind kind) const noexcept;
  /// The first text command that drew exactly `text`; null when there is none.
  const DrawCommand* FindText(std::string_view text) const noexcept;
  std::size_t Count(DrawKind kind) const noexcept;
  /// Saves not yet restored.
  int GetSaveDepth() const noexcept;
  /// One line per command, in order.
  std::string Describe() const;
  /// Forgets the commands recorded; the transform and clip stay as they are.
  void ClearCommands() noexcept;

private:
  struct State;
  std::unique_ptr<State> mState;
};

} // namespace kroui::drawbot
