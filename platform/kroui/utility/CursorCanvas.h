#pragma once

#include <kroui/Export.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroui/drawbot/Image.h>

#include <cstdint>
#include <memory>
#include <span>

namespace kroui::utility {

/// Draws a cursor image the way every cursor of the platform and of the
/// framework looks: crisp black shapes (a pixel is inked when its centre is),
/// with a white outline one pixel wide all round, so that the cursor reads on
/// any background. White ink draws details over black ones (the fingers of a
/// fist). Hollow ink draws a shape as a black edge one pixel wide around a
/// white inside, and lies under the other two. The outline follows every
/// inked pixel.
///
/// Coordinates are pixel centres: (3, 9) is the middle of pixel column 3,
/// row 9, so a line of width 1 from (3, 1) to (3, 17) inks exactly that
/// column from row 1 to row 17, ends included. Angles are degrees, clockwise
/// from three o'clock (y grows downwards).
///
///   CursorCanvas canvas;                       // 32x32, transparent
///   canvas.Pointer({1, 1});                    // the arrow, its tip on pixel (1, 1)
///   canvas.Plus({14, 16}, 3);                  // a badge
///   ui::Cursor::Create(canvas.Finish(), {1, 1});
class KROUI_API CursorCanvas {
public:
  static constexpr int kSize = 32;
  enum class Ink : std::uint8_t { Black, White, Hollow };
  using PointF = drawbot::PointF;
  using RectF = drawbot::RectF;

  CursorCanvas();
  ~CursorCanvas();
  CursorCanvas(const CursorCanvas&) = delete;
  CursorCanvas& operator=(const CursorCanvas&) = delete;

  // Shapes.
  void FillPolygon(std::span<const PointF> polygon, Ink ink = Ink::Black);
  /// Square ends: a line covers half its width beyond each end point.
  void Line(PointF from, PointF to, float width = 1.f, Ink ink = Ink::Black);
  /// Segments joined round.
  void Polyline(std::span<const PointF> points, float width = 1.f, Ink ink = Ink::Black);
  /// From pixel centre to pixel centre, both included.
  void FillRect(const RectF& rect, Ink ink = Ink::Black);
  void StrokeRect(const RectF& rect, float width = 1.f, Ink ink = Ink::Black);
  void Disc(PointF centre, float radius, Ink ink = Ink::Black);
  void Ring(PointF centre, float radius, float width = 1.f, Ink ink = Ink::Black);
  void Arc(PointF centre, float radius, float fromDegrees, float toDegrees, float width = 1.f,
           Ink ink = Ink::Black);

  // Marks that many cursors share.
  /// A filled arrowhead whose point is on `tip`, pointing along `direction`.
  void Arrowhead(PointF tip, PointF direction, float length, Ink ink = Ink::Black);
  /// A shaft with a head at `to`, and at `from` too when `isDouble`.
  void Arrow(PointF from, PointF to, float width, float headLength, bool isDouble = false,
             Ink ink = Ink::Black);
  /// An arc with a head at its `toDegrees` end (and its start when `isDouble`).
  void ArcArrow(PointF centre, float radius, float fromDegrees, float toDegrees, float width,
                float headLength, bool isDouble = false, Ink ink = Ink::Black);
  /// The pointing arrow, `height` pixels tall, its tip exactly on pixel `tip`.
  void Pointer(PointF tip, float height = 17.f, Ink ink = Ink::Black);
  /// A plus or a minus `arm` pixels from the centre each way, three pixels thick.
  void Plus(PointF centre, float arm);
  void Minus(PointF centre, float arm);
  /// The "not allowed" sign: a ring with a slash.
  void NoSign(PointF centre, float radius);
  /// A hand seen from its back: open or closed to a fist with the palm
  /// centred on `at`, or pointing up with the tip of the finger on `at`.
  enum class Hand : std::uint8_t { Open, Fist, Pointing };
  void DrawHand(Hand hand, PointF at);

  /// The finished image: black ink, white ink, the white outline, transparent elsewhere.
  drawbot::Image Finish();

private:
  struct State;
  std::unique_ptr<State> mState;
};

} // namespace kroui::utility
