#pragma once

#include <zel/Export.h>

#include <krocore/geom/Geometry.h>
#include <krocore/utility/ImmutableString.h>
#include <kroui/Forward.h>
#include <kroui/drawbot/DrawTypes.h>

#include <memory>
#include <span>
#include <string_view>

namespace ZEL {

struct DCImpl;

/// The drawing context a view paints with: one platform drawbot for one
/// paint pass, in the view's own integer coordinates, with a pen (font, text
/// colour, line width) and a stack of saved states. Colours are given as
/// values or as keys of the colour registry ("colors.kls.text"), which are
/// looked up when the call is made, so that a repaint after a theme change
/// draws in the new colours.
///
///   void PaintSelf(DC& dc) override {
///     dc.FillRect(ClientRect(), kColor_Background);
///     DCState state(dc);                 // saved here...
///     dc.ClipRect({4, 4, 60, 20});
///     dc.SetTextColor(kColor_Text);
///     dc.DrawText("Clip 1", {4, 4, 60, 20});
///   }                                    // ...restored here
///
/// States a paint leaves saved are restored when the DC goes, so a view can
/// never leak its clip or transform into the rest of the paint. An empty DC
/// (made by default, or handed out where nothing can be drawn) accepts every
/// call and draws nothing. UI thread only.
class ZEL_API DC {
public:
  using Point = krocore::geom::PointT<int>;
  using Rect = krocore::geom::RectT<int>;
  using Extent = krocore::geom::ExtentT<int>;
  using ColorKey = krocore::utility::ImmutableString;
  using ColorRGBA = kroui::drawbot::ColorRGBA;

  /// Draws nothing.
  DC() noexcept;
  /// Paints on `drawbot`, which must outlive the DC.
  explicit DC(kroui::drawbot::Drawbot& drawbot);
  /// A DC over pixels of its own (transparent to begin with): a double buffer.
  static DC MakeOffscreen(int width, int height);
  DC(DC&& other) noexcept;
  DC& operator=(DC&& other) noexcept;
  ~DC();

  bool IsValid() const noexcept;
  /// Null for an empty DC.
  kroui::drawbot::Drawbot* GetDrawbot() const noexcept;

  // States: the drawbot's transform and clip, and the pen.
  void SaveState();
  /// False, with nothing restored, when no state is saved.
  bool RestoreState();
  int GetStateDepth() const noexcept;

  // Transform and clip; clips only ever shrink.
  void Translate(int dx, int dy);
  void ClipRect(const Rect& rect);
  /// Clips to the inside of a polygon as well as to the clip in force.
  void SetClipPolygon(std::span<const Point> polygon);
  /// The bounds of the clip in force, in current coordinates.
  Rect GetClipBox() const;

  // The pen.
  void SetLineWidth(float width);
  float GetLineWidth() const noexcept;
  void SetFont(const kroui::drawbot::FontKey& font);
  const kroui::drawbot::FontKey& GetFont() const noexcept;
  void SetTextColor(const ColorRGBA& color);
  void SetTextColor(const ColorKey& key);
  ColorRGBA GetTextColor() const noexcept;

  // Lines and shapes, in the line width of the pen.
  void DrawLine(Point from, Point to, const ColorRGBA& color);
  void DrawLine(Point from, Point to, const ColorKey& key);
  void DrawPolyline(std::span<const Point> points, const ColorRGBA& color);
  void FrameRect(const Rect& rect, const ColorRGBA& color);
  void FrameRect(const Rect& rect, const ColorKey& key);
  void FillRect(const Rect& rect, const ColorRGBA& color);
  void FillRect(const Rect& rect, const ColorKey& key);
  void FillPolygon(std::span<const Point> polygon, const ColorRGBA& color);
  void FillPolygon(std::span<const Point> polygon, const ColorKey& key);

  // Pixels. Invalid images are skipped.
  static bool IsImageValid(const kroui::drawbot::Image& image) noexcept;
  /// At the image's own size.
  void DrawImage(const kroui::drawbot::Image& image, Point origin, float opacity = 1.f);
  /// Scaled into `destination`.
  void DrawImage(const kroui::drawbot::Image& image, const Rect& destination, float opacity = 1.f);
  /// One to one on device pixels, unscaled whatever the transform.
  void DrawPixels(const kroui::drawbot::Image& pixels, Point origin);

  // Text, UTF-8, in the pen's font and text colour.
  void DrawText(std::string_view text, const Rect& box,
                kroui::drawbot::HorizontalAlignment horizontal = kroui::drawbot::HorizontalAlignment::Left,
                kroui::drawbot::VerticalAlignment vertical = kroui::drawbot::VerticalAlignment::Center);
  kroui::drawbot::TextMetrics MeasureText(std::string_view text);
  /// The text's advance and line height, rounded up to whole pixels.
  Extent GetTextExtent(std::string_view text);

  // Pixels of its own (MakeOffscreen only).
  /// The pixels drawn so far; invalid for a DC that paints on someone else's drawbot.
  kroui::drawbot::Image GetPixels() const;
  /// Sets every pixel to `color`, replacing what is there; drops the saved states.
  void Clear(const ColorRGBA& color);

private:
  explicit DC(std::unique_ptr<DCImpl> impl) noexcept;
  void RestoreAll();

  std::unique_ptr<DCImpl> mImpl;
};

} // namespace ZEL
